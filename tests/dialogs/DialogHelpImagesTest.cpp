#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "headless/Hand.h"
#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>
#include <string>
#include <vector>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr PixelSize PageSize{300, 200};
constexpr double ViewWidth = 1000;
constexpr double ViewHeight = 418;
constexpr double SlideTime = 0.4; // seconds, more than any slide takes

/// A book below the temporary folder, with the pages that a test puts there, in a window without a screen.
class DialogHelpImages : public test::AppSession
{
protected:
    DialogHelpImages() { LNG()->CURRENT(ID_Language_German); }

    String at(StringView relative) const { return path(u"Hilfe\\") + String(relative); }

    /// A page of that size.
    PicturePtr put(const std::string& file, PixelSize size = PageSize)
    {
        const std::string relative = "Hilfe/" + file;
        folder.write(relative, "a picture");
        auto picture = std::make_shared<Picture>(size);
        outside.visual().addPicture(folder.native() / relative, picture);
        return picture;
    }
    /// A file that is no picture.
    void putBroken(const std::string& file) const { folder.write("Hilfe/" + file, "no picture"); }
    void putPages(int count)
    {
        for (int page = 1; page <= count; ++page) {
            put(std::string(page < 10 ? "0" : "") + std::to_string(page) + ".gif");
        }
    }
    /// A menu picture and its map, whose left half is blue and whose right half is as it is given.
    void putMenu(const std::string& in = {}, std::uint32_t right = 0xFF00FFFD)
    {
        put(in + "menu.gif");
        const PicturePtr map = put(in + "menu_choice.gif", {30, 20});
        for (std::size_t pixel = 0; pixel < map->pixels().size(); ++pixel) {
            map->pixels()[pixel] = pixel % 30 < 15 ? 0xFF0000FF : right;
        }
    }

    void open()
    {
        dialog.Folder(path(u"Hilfe\\"));
        form.Show();
    }
    PictureBox& page(std::int32_t index) { return *form.control<PictureBox>(u"pic_Viewer", index); }
    PictureBox& view() { return *form.control<PictureBox>(u"pic_ViewHolder"); }
    ctl_Button& button(StringView name) { return *form.control<ctl_Button>(name); }
    Label& segment(std::int32_t index) { return *form.control<Label>(u"bar_Progress", index); }
    std::shared_ptr<Timer> animation() { return form.control<Timer>(u"tmr_Animation"); }
    void press(StringView name)
    {
        headless::click(button(name));
        outside.advance(SlideTime);
    }
    void strike(Key key) { headless::strike(form, {.key = key}); }
    void strikeAndWait(Key key)
    {
        strike(key);
        outside.advance(SlideTime);
    }
    /// A swipe over the view, begun beside the page.
    void swipe(double distance)
    {
        headless::drag(view(), {500, 10}, {500 + distance, 10});
        outside.advance(SlideTime);
    }
    void allowDeletion() { dialog.More().Set(u"Delete", true); }
    void answer(DialogAnswer choice)
    {
        outside.dialogs().expectYesNo(choice, u"Wollen Sie die Lösung wirklich löschen?");
    }
    String shownPage() { return form.control<ctl_Title>(u"bar_Header")->TextRight(); }
    std::vector<bool> pressable()
    {
        return {button(u"but_Back").Enabled(), button(u"but_Next").Enabled(), button(u"but_Menu").Enabled()};
    }
    static PointerEvent touch(std::int32_t number, double x, double y)
    {
        return {.Button = PointerButton::Left, .X = x, .Y = y, .Touch = number};
    }

    frm_DialogHelpImages dialog;
    Form& form = dialog.form();
};

TEST_F(DialogHelpImages, LaysThePagesSideBySide)
{
    putPages(3);
    open();
    EXPECT_EQ(page(1).frame().pixelRectangle(), (PixelRectangle{350, 109, 300, 200}));
    EXPECT_EQ(page(2).frame().pixelRectangle(), (PixelRectangle{1350, 109, 300, 200}));
    EXPECT_FALSE(page(0).Visible());
    EXPECT_TRUE(page(1).Visible());
    EXPECT_TRUE(page(2).Visible());
    strikeAndWait(Key::Right);
    EXPECT_EQ(page(0).frame().pixelRectangle(), (PixelRectangle{-650, 109, 300, 200}));
    EXPECT_EQ(view().frame().pixelRectangle(), (PixelRectangle{0, 48, ViewWidth, ViewHeight}));
}

TEST_F(DialogHelpImages, ShowsTheProgramsOwnHelpWithoutAFolder)
{
    QVAPP()->URL()->DATAAPP(path(u""));
    putPages(2);
    form.Show();
    EXPECT_EQ(dialog.Files().Count(), 2);
    EXPECT_EQ(dialog.Folder(), at(u""));
}

TEST_F(DialogHelpImages, BearsItsTitle)
{
    dialog.TitleText(u"Salze");
    open();
    EXPECT_EQ(form.control<ctl_Title>(u"bar_Header")->Title(), u"Salze");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(form.control<ctl_Title>(u"bar_Header")->Title(), u"Salze");
    EXPECT_EQ(button(u"but_Back").Caption(), u"Back");
}

TEST_F(DialogHelpImages, IsClosedByItsHeader)
{
    open();
    form.control<ctl_Title>(u"bar_Header")->CLOSE.emit();
    EXPECT_FALSE(form.Visible());
}

TEST_F(DialogHelpImages, IsClosedByEscape)
{
    open();
    strike(Key::Escape);
    EXPECT_FALSE(form.Visible());
}

TEST_F(DialogHelpImages, HasNeitherPicturesNorSegmentsInAnEmptyFolder)
{
    open();
    EXPECT_EQ(dialog.Page(), 1);
    EXPECT_FALSE(page(1).Visible());
    EXPECT_FALSE(form.find(u"bar_Progress", 1));
    EXPECT_EQ(pressable(), (std::vector{false, false, false}));
    EXPECT_EQ(shownPage(), u"");
    strikeAndWait(Key::Right);
    strikeAndWait(Key::End);
    swipe(-900);
    headless::click(view(), 500, 200);
    EXPECT_EQ(dialog.Page(), 1);
}

TEST_F(DialogHelpImages, ColoursASegmentForEachPage)
{
    putPages(3);
    open();
    press(u"but_Next");
    EXPECT_EQ(segment(1).BackColor(), QBColor(8));
    EXPECT_EQ(segment(2).BackColor(), QBColor(15));
    EXPECT_EQ(segment(3).BackColor(), QBColor(7));
    EXPECT_TRUE(segment(3).Visible());
    EXPECT_FALSE(segment(0).Visible());
    EXPECT_FALSE(form.find(u"bar_Progress", 4));
    EXPECT_EQ(segment(2).Left() - segment(1).Left(), 64);
    EXPECT_EQ(shownPage(), u"2 / 3");
}

TEST_F(DialogHelpImages, GoesToThePageOfASegmentAtOnce)
{
    putPages(4);
    open();
    headless::click(button(u"but_Next"));
    outside.advance(0.1);
    headless::click(segment(4));
    EXPECT_EQ(dialog.Page(), 4);
    EXPECT_FALSE(animation()->Enabled());
    EXPECT_EQ(page(1).Left(), 350);
    outside.advance(SlideTime);
    EXPECT_EQ(dialog.Page(), 4);
}

TEST_F(DialogHelpImages, SlidesByTheTime)
{
    putPages(2);
    open();
    headless::click(button(u"but_Next"));
    EXPECT_TRUE(animation()->Enabled());
    EXPECT_EQ(animation()->Interval(), 10);
    outside.advance(0.1);
    EXPECT_NEAR(page(1).Left(), 350 - 320, 33);
    EXPECT_EQ(page(2).Left() - page(1).Left(), ViewWidth);
    EXPECT_EQ(dialog.Page(), 1);
    outside.advance(0.25);
    EXPECT_EQ(dialog.Page(), 2);
    EXPECT_EQ(page(1).Left(), 350);
    EXPECT_FALSE(animation()->Enabled());
    EXPECT_EQ(pressable(), (std::vector{true, false, false}));
}

TEST_F(DialogHelpImages, TurnsAtOnceWhereTheUserWantsLessMotion)
{
    outside.display().reducesMotion(true);
    putPages(2);
    open();
    headless::click(button(u"but_Next"));
    EXPECT_EQ(dialog.Page(), 2);
}

TEST_F(DialogHelpImages, EndsARunningSlideAtTheNextPress)
{
    putPages(5);
    open();
    headless::click(button(u"but_Next"));
    headless::click(button(u"but_Next"));
    EXPECT_EQ(dialog.Page(), 2);
    headless::click(button(u"but_Back"));
    EXPECT_EQ(dialog.Page(), 3);
    outside.advance(SlideTime);
    EXPECT_EQ(dialog.Page(), 2);
}

TEST_F(DialogHelpImages, KeepsThePicturesThatItStillShows)
{
    putPages(4);
    open();
    const PicturePtr second = page(2).Picture();
    press(u"but_Next");
    EXPECT_EQ(page(1).Picture(), second);
    EXPECT_TRUE(page(0).Picture());
}

/// Each reading of a large picture makes another one.
TEST_F(DialogHelpImages, ReadsAPictureOnceForAsLongAsTheViewKeepsItsSize)
{
    put("01.gif", {2000, 400});
    open();
    const PicturePtr wide = page(1).Picture();
    form.Resize.emit();
    EXPECT_EQ(page(1).Picture(), wide);
    form.innerSize({900, 560});
    EXPECT_EQ(page(1).Width(), 900);
    EXPECT_NE(page(1).Picture(), wide);
}

TEST_F(DialogHelpImages, TurnsBySwipesOfMoreThanAThird)
{
    putPages(3);
    open();
    swipe(-334);
    EXPECT_EQ(dialog.Page(), 2);
    swipe(-333);
    EXPECT_EQ(dialog.Page(), 2);
    EXPECT_EQ(page(1).Left(), 350);
    swipe(400);
    EXPECT_EQ(dialog.Page(), 1);
}

TEST_F(DialogHelpImages, FollowsTheHandOnThePageItself)
{
    putPages(3);
    open();
    page(1).pointerDown(touch(0, 100, 100));
    page(1).pointerMove(touch(0, 60, 100));
    EXPECT_EQ(page(1).Left(), 310);
    EXPECT_EQ(page(2).Left(), 1310);
    page(1).pointerMove(touch(0, 100 - 900, 100));
    EXPECT_EQ(page(1).Left(), 310 - 900);
    page(1).pointerMove(touch(0, 100 - 900, 100));
    EXPECT_EQ(page(1).Left(), 350 - ViewWidth);
    page(1).pointerUp(touch(0, 100, 100));
    outside.advance(SlideTime);
    EXPECT_EQ(dialog.Page(), 2);
}

TEST_F(DialogHelpImages, StopsAtItsEnds)
{
    putPages(2);
    open();
    view().pointerDown(touch(0, 100, 10));
    view().pointerMove(touch(0, 600, 10));
    EXPECT_EQ(page(1).Left(), 350);
    view().pointerUp(touch(0, 600, 10));
    strikeAndWait(Key::End);
    swipe(-900);
    EXPECT_EQ(dialog.Page(), 2);
    EXPECT_EQ(page(1).Left(), 350);
}

TEST_F(DialogHelpImages, LeavesAPageAloneWhoseTouchTheDesktopHasTaken)
{
    putPages(2);
    open();
    view().pointerDown(touch(1, 800, 10));
    view().pointerMove(touch(1, 100, 10));
    PointerEvent end = touch(1, 100, 10);
    end.isCancelled = true;
    view().pointerUp(end);
    outside.advance(SlideTime);
    EXPECT_EQ(dialog.Page(), 1);
    EXPECT_EQ(page(1).Left(), 350);
}

TEST_F(DialogHelpImages, OpensAChapterByATapOnTheMenu)
{
    putMenu();
    put("K1/a.gif");
    put("K2/b.gif");
    put("K2/c.gif");
    open();
    EXPECT_EQ(dialog.Files().Count(), 1);
    headless::click(page(1), 151, 100);
    EXPECT_EQ(dialog.Folder(), at(u"K2\\"));
    EXPECT_EQ(dialog.MenuFolder(), at(u""));
    EXPECT_EQ(shownPage(), u"1 / 2");
    press(u"but_Menu");
    EXPECT_EQ(dialog.Folder(), at(u""));
    headless::click(page(1), 149, 199);
    EXPECT_EQ(dialog.Folder(), at(u"K1\\"));
}

TEST_F(DialogHelpImages, TakesAFingersTrembleForATap)
{
    putMenu();
    put("K1/a.gif");
    open();
    headless::drag(page(1), {20, 20}, {23, 22});
    EXPECT_EQ(dialog.Folder(), at(u"K1\\"));
}

TEST_F(DialogHelpImages, TakesNoSwipeForATap)
{
    putMenu();
    put("K1/a.gif");
    open();
    headless::drag(page(1), {20, 20}, {26, 20});
    headless::drag(page(1), {20, 20}, {20, 60});
    outside.advance(SlideTime);
    EXPECT_EQ(dialog.Folder(), at(u""));
    EXPECT_EQ(page(1).Left(), 350);
}

TEST_F(DialogHelpImages, DoesNothingForATapBesideTheMenuAndOnOtherColours)
{
    putMenu({}, 0xFFFFFFFF);
    open();
    headless::click(page(1), 200, 100);
    headless::click(view(), 10, 10);
    EXPECT_EQ(dialog.Folder(), at(u""));
}

TEST_F(DialogHelpImages, DoesNothingForATapOnAHoleOfTheMap)
{
    putMenu({}, 0);
    open();
    headless::click(page(1), 200, 100);
    EXPECT_EQ(dialog.Folder(), at(u""));
}

TEST_F(DialogHelpImages, ShowsTheMapWhereItIsTheOnlyMenu)
{
    const PicturePtr map = put("menu_choice.gif", {2000, 100});
    std::ranges::fill(map->pixels(), 0xFFFF00FFU);
    put("K6/a.gif");
    open();
    EXPECT_TRUE(dialog.HasMenu());
    EXPECT_EQ(dialog.Files().Count(), 0);
    EXPECT_EQ(page(1).frame().pixelRectangle(), (PixelRectangle{0, 184, 1000, 50}));
    EXPECT_FALSE(page(3).Visible());
    EXPECT_EQ(page(3).Picture(), map);
    EXPECT_EQ(pressable(), (std::vector{false, false, false}));
    headless::click(page(1), 999, 49);
    EXPECT_EQ(dialog.Folder(), at(u"K6\\"));
}

TEST_F(DialogHelpImages, LivesWithAMapThatIsNoPicture)
{
    put("menu.gif");
    putBroken("menu_choice.gif");
    open();
    EXPECT_TRUE(dialog.HasMenu());
    headless::click(page(1));
    EXPECT_EQ(dialog.Folder(), at(u""));
}

TEST_F(DialogHelpImages, ComesBackToTheMenuBehindTheLastPage)
{
    putMenu();
    put("K1/a.gif");
    open();
    headless::click(page(1), 20, 20);
    EXPECT_EQ(pressable(), (std::vector{true, true, true}));
    press(u"but_Next");
    EXPECT_EQ(dialog.Folder(), at(u""));
    EXPECT_EQ(pressable(), (std::vector{false, false, false}));
    headless::click(page(1), 20, 20);
    press(u"but_Back");
    EXPECT_EQ(dialog.Folder(), at(u""));
    headless::click(page(1), 20, 20);
    swipe(-500);
    EXPECT_EQ(dialog.Folder(), at(u""));
    headless::click(page(1), 20, 20);
    swipe(500);
    EXPECT_EQ(dialog.Folder(), at(u"K1\\"));
}

TEST_F(DialogHelpImages, OpensAChapterThatIsMissingAsAnEmptyOne)
{
    putMenu();
    open();
    headless::click(page(1), 20, 20);
    EXPECT_EQ(dialog.Files().Count(), 0);
    EXPECT_FALSE(page(1).Visible());
    press(u"but_Back");
    EXPECT_EQ(dialog.Folder(), at(u""));
}

TEST_F(DialogHelpImages, IsTurnedByKeys)
{
    putPages(5);
    open();
    strikeAndWait(Key::Right);
    strikeAndWait(Key::PageDown);
    EXPECT_EQ(dialog.Page(), 3);
    strikeAndWait(Key::Left);
    strikeAndWait(Key::PageUp);
    strikeAndWait(Key::Left);
    EXPECT_EQ(dialog.Page(), 1);
    strike(Key::End);
    EXPECT_EQ(dialog.Page(), 5);
    strike(Key::Home);
    EXPECT_EQ(dialog.Page(), 1);
}

TEST_F(DialogHelpImages, DeletesOnlyWhereItIsAllowed)
{
    putPages(1);
    dialog.More().Set(u"DELETE", 1);
    open();
    EXPECT_FALSE(button(u"but_Delete").Visible());
}

TEST_F(DialogHelpImages, DeletesNothingWithoutAYes)
{
    putPages(2);
    allowDeletion();
    open();
    EXPECT_TRUE(button(u"but_Delete").Visible());
    answer(DialogAnswer::No);
    press(u"but_Delete");
    EXPECT_EQ(dialog.Files().Count(), 2);
    EXPECT_TRUE(folder.has("Hilfe/01.gif"));
}

TEST_F(DialogHelpImages, ShowsThePageBeforeTheDeletedOne)
{
    putPages(3);
    allowDeletion();
    open();
    strike(Key::End);
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_FALSE(folder.has("Hilfe/03.gif"));
    EXPECT_EQ(shownPage(), u"2 / 2");
    EXPECT_FALSE(form.find(u"bar_Progress", 3));
    strike(Key::Home);
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_EQ(dialog.Files(), (CoreStringList{at(u"02.gif")}));
    EXPECT_EQ(dialog.Page(), 1);
}

TEST_F(DialogHelpImages, ClosesWhenTheLastPageIsDeleted)
{
    putPages(1);
    allowDeletion();
    open();
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(folder.has("Hilfe/01.gif"));
}

TEST_F(DialogHelpImages, DeletesThePageThatARunningSlideGoesTo)
{
    putPages(3);
    allowDeletion();
    open();
    headless::click(button(u"but_Next"));
    answer(DialogAnswer::Yes);
    press(u"but_Delete");
    EXPECT_EQ(dialog.Files(), (CoreStringList{at(u"01.gif"), at(u"03.gif")}));
}

TEST_F(DialogHelpImages, TellsOfAFileThatCannotBeDeleted)
{
    putPages(2);
    allowDeletion();
    outside.files().protect(folder.native() / "Hilfe");
    open();
    answer(DialogAnswer::Yes);
    outside.dialogs().expect(headless::Box::Error,
                             u"Die Lösung lässt sich nicht löschen. Die Datei ist geschützt.");
    press(u"but_Delete");
    EXPECT_EQ(dialog.Files().Count(), 2);
    EXPECT_EQ(dialog.Page(), 1);
}

TEST_F(DialogHelpImages, AsksInEnglish)
{
    LNG()->CURRENT(ID_Language_English);
    putPages(1);
    allowDeletion();
    open();
    outside.dialogs().expectYesNo(DialogAnswer::No, u"Do you really want to delete this solution?");
    press(u"but_Delete");
}

TEST_F(DialogHelpImages, LeavesThePlaceOfABrokenPictureEmpty)
{
    put("01.gif");
    putBroken("02.gif");
    put("03.gif");
    open();
    EXPECT_FALSE(page(2).Visible());
    press(u"but_Next");
    EXPECT_FALSE(page(1).Visible());
    EXPECT_TRUE(page(0).Visible());
    EXPECT_TRUE(page(2).Visible());
    press(u"but_Next");
    EXPECT_TRUE(page(1).Visible());
}

TEST_F(DialogHelpImages, ReadsAPictureAgainThatFailedOnce)
{
    putPages(1);
    putBroken("02.gif");
    open();
    EXPECT_FALSE(page(2).Visible());
    put("02.gif");
    press(u"but_Next");
    EXPECT_TRUE(page(1).Visible());
}

TEST_F(DialogHelpImages, ShowsLargePicturesWithinTheView)
{
    put("01.gif", {2000, 400});
    open();
    EXPECT_EQ(page(1).frame().pixelRectangle(), (PixelRectangle{0, 109, 1000, 200}));
}

TEST_F(DialogHelpImages, FillsALargerWindow)
{
    putPages(2);
    open();
    form.innerSize({1400, 900});
    EXPECT_EQ(view().frame().pixelRectangle(), (PixelRectangle{0, 48, 1400, 758}));
    EXPECT_EQ(page(1).Left(), 550);
    EXPECT_EQ(page(2).Left(), 1950);
    EXPECT_EQ(button(u"but_Next").Left() + button(u"but_Next").Width(), 1384);
    form.innerSize({480, 320});
    EXPECT_EQ(page(1).frame().pixelRectangle(), (PixelRectangle{106, 0, 267, 178}));
    EXPECT_LT(button(u"but_Delete").Left() + button(u"but_Delete").Width(), button(u"but_Next").Left());
}

TEST_F(DialogHelpImages, HoldsTenThousandPages)
{
    std::filesystem::create_directories(folder.native() / "Hilfe");
    for (int file = 0; file < 10000; ++file) {
        putBroken(std::to_string(file) + ".jpg");
    }
    open();
    EXPECT_EQ(dialog.Files().Count(), 10000);
    EXPECT_TRUE(form.find(u"bar_Progress", 322));
    EXPECT_FALSE(form.find(u"bar_Progress", 323));
    strike(Key::End);
    EXPECT_EQ(shownPage(), u"10000 / 10000");
    headless::click(segment(2));
    EXPECT_EQ(dialog.Page(), 33);
}

TEST_F(DialogHelpImages, IsReadAnewInTheOtherLanguage)
{
    putPages(3);
    put("en/a.gif");
    put("en/b.gif");
    open();
    strike(Key::End);
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(dialog.Files().Count(), 2);
    EXPECT_EQ(shownPage(), u"2 / 2");
}

TEST_F(DialogHelpImages, IsEnlargedByTheWheel)
{
    put("01.gif", {800, 400});
    put("02.gif");
    open();
    headless::turnWheel(page(1), 3);
    EXPECT_NEAR(page(1).Width(), 800 * 1.953125, 0.1);
    EXPECT_THAT(outside.visual().drawing(page(1)), HasSubstr("image "));
    headless::turnWheel(page(1), -5);
    EXPECT_EQ(page(1).frame().pixelRectangle(), (PixelRectangle{100, 9, 800, 400}));
    EXPECT_TRUE(page(1).Picture());
}

TEST_F(DialogHelpImages, IsEnlargedByTwoFingersAndThenMoved)
{
    put("01.gif", {800, 400});
    put("02.gif");
    open();
    view().pointerDown(touch(1, 450, 200));
    view().pointerDown(touch(2, 550, 200));
    view().pointerMove(touch(1, 400, 200));
    view().pointerMove(touch(2, 600, 200));
    view().pointerUp(touch(1, 400, 200));
    view().pointerUp(touch(2, 600, 200));
    outside.advance(0.02);
    EXPECT_NEAR(page(1).Width(), 1600, 0.1);
    const double left = page(1).Left();
    view().pointerDown(touch(1, 500, 200));
    view().pointerMove(touch(1, 440, 200));
    view().pointerUp(touch(1, 440, 200));
    EXPECT_NEAR(page(1).Left(), left - 60, 0.1);
    outside.advance(SlideTime);
    EXPECT_EQ(dialog.Page(), 1);
    press(u"but_Next");
    EXPECT_EQ(dialog.Page(), 2);
    EXPECT_EQ(page(1).Width(), 300);
}

TEST_F(DialogHelpImages, FollowsATapOnAnEnlargedMenu)
{
    putMenu();
    put("K1/a.gif");
    open();
    headless::turnWheel(page(1), 20);
    headless::click(page(1), 599, 400);
    EXPECT_EQ(dialog.Folder(), at(u"K1\\"));
}

TEST_F(DialogHelpImages, SaysWhatAPageShows)
{
    putPages(2);
    folder.write("Hilfe/02.txt", "Salze lösen sich in Wasser.");
    open();
    EXPECT_EQ(page(1).frame().AccessibleName(), u"Seite 1 von 2");
    press(u"but_Next");
    EXPECT_EQ(page(1).frame().AccessibleName(), u"Seite 2 von 2: Salze lösen sich in Wasser.");
    EXPECT_EQ(page(1).frame().announcement(), page(1).frame().AccessibleName());
}

TEST_F(DialogHelpImages, HandsTheKeyboardOnFromAButtonThatGoesOff)
{
    putPages(2);
    open();
    button(u"but_Next").SetFocus();
    press(u"but_Next");
    EXPECT_EQ(form.ActiveControl(), form.control<ctl_Button>(u"but_Back"));
}

TEST_F(DialogHelpImages, PrintsThePageInView)
{
    dialog.TitleText(u"Salze");
    putPages(1);
    open();
    headless::clickButton(*form.control<ctl_CmdBar>(u"ctl_CmdBar1"), u"HELP.PRINT();");
    ASSERT_EQ(outside.visual().printed().size(), 1U);
    EXPECT_EQ(outside.visual().printed().front().title, u"Salze");
    EXPECT_EQ(outside.visual().printed().front().orientation, PageOrientation::Landscape);
    EXPECT_THAT(outside.visual().printed().front().page->text(), HasSubstr("image "));
}

TEST_F(DialogHelpImages, PrintsNothingWithoutAPicture)
{
    putBroken("01.gif");
    open();
    headless::clickButton(*form.control<ctl_CmdBar>(u"ctl_CmdBar1"), u"HELP.PRINT();");
    EXPECT_THAT(outside.visual().printed(), IsEmpty());
}

} // namespace

} // namespace phial
