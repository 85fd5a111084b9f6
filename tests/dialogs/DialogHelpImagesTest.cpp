#include "DialogHelpImagesTest.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(DialogHelpImages, LaysThePagesSideBySide)
{
    putPages(3);
    open();
    waitForNeighbours();
    EXPECT_EQ(page(1).frame().pixelRectangle(), (PixelRectangle{350, 109, 300, 200}));
    EXPECT_EQ(page(2).frame().pixelRectangle(), (PixelRectangle{1350, 109, 300, 200}));
    EXPECT_FALSE(page(0).Visible());
    EXPECT_TRUE(page(1).Visible());
    EXPECT_TRUE(page(2).Visible());
    strikeAndWait(Key::Right);
    EXPECT_EQ(page(0).frame().pixelRectangle(), (PixelRectangle{-650, 109, 300, 200}));
    EXPECT_EQ(view().frame().pixelRectangle(), (PixelRectangle{0, 48, HelpViewWidth, HelpViewHeight}));
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
    form.control<ctl_Title>(u"bar_Header")->CLOSE.raise();
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

TEST_F(DialogHelpImages, KeepsThePicturesThatItStillShows)
{
    putPages(4);
    open();
    waitForNeighbours();
    const PicturePtr second = page(2).Picture();
    press(u"but_Next");
    EXPECT_EQ(page(1).Picture(), second);
    EXPECT_TRUE(page(0).Picture());
}

TEST_F(DialogHelpImages, ReadsThePageInViewBeforeItsNeighbours)
{
    putPages(3);
    open();
    EXPECT_TRUE(page(1).Visible());
    EXPECT_FALSE(page(2).Picture());
    waitForNeighbours();
    EXPECT_TRUE(page(2).Picture());
    EXPECT_EQ(page(1).Left(), 350) << "and moves nothing";
}

TEST_F(DialogHelpImages, ReadsTheNeighboursAtOnceForASwipe)
{
    putPages(3);
    open();
    view().pointerDown({.X = 500, .Y = 10});
    EXPECT_FALSE(page(2).Picture());
    view().pointerMove({.X = 480, .Y = 10});
    EXPECT_TRUE(page(2).Visible());
    EXPECT_EQ(page(2).Left(), 1330);
}

/// Each reading of a large picture makes another one.
TEST_F(DialogHelpImages, ReadsAPictureOnceForAsLongAsTheViewKeepsItsSize)
{
    put("01.gif", {2000, 400});
    open();
    const PicturePtr wide = page(1).Picture();
    form.Resize.raise();
    EXPECT_EQ(page(1).Picture(), wide);
    form.innerSize({900, 560});
    EXPECT_EQ(page(1).Width(), 900);
    EXPECT_NE(page(1).Picture(), wide);
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
    waitForNeighbours();
    EXPECT_EQ(page(1).Left(), 550);
    EXPECT_EQ(page(2).Left(), 1950);
    EXPECT_EQ(button(u"but_Next").Left() + button(u"but_Next").Width(), 1384);
    form.innerSize({480, 320});
    EXPECT_EQ(page(1).frame().pixelRectangle(), (PixelRectangle{106, 0, 267, 178}));
    EXPECT_LT(button(u"but_Delete").Left() + button(u"but_Delete").Width(), button(u"but_Next").Left());
}

TEST_F(DialogHelpImages, IsNoLargerThanTheScreen)
{
    outside.display().resize(819, 480);
    putPages(1);
    open();
    EXPECT_EQ(form.innerSize(), (PixelSize{803, 444}));
    EXPECT_LE(form.Top() + form.Height(), 480 * TwipsPerPixel);
    EXPECT_LT(view().frame().pixelRectangle().bottom(), button(u"but_Next").frame().pixelRectangle().top);
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

TEST_F(DialogHelpImages, OpensWithTheKeyboardAtTheWayToTheNextPage)
{
    putPages(2);
    open();
    EXPECT_EQ(form.ActiveControl(), form.control<ctl_Button>(u"but_Next"));
}

TEST_F(DialogHelpImages, OpensWithTheKeyboardAtAPageThatIsAlone)
{
    putPages(1);
    open();
    EXPECT_EQ(form.ActiveControl(), form.control<PictureBox>(u"pic_Viewer", 1));
    strike(Key::Return);
    EXPECT_THAT(outside.visual().printed(), IsEmpty());
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

TEST_F(DialogHelpImages, DrawsAnEdgeAroundTheSegmentsThatEndsWithThem)
{
    putPages(3);
    open();
    const PixelRectangle last = segment(3).frame().pixelRectangle();
    const PixelRectangle edge = form.control<Label>(u"lab_Strip")->frame().pixelRectangle();
    EXPECT_EQ(edge.left, segment(1).frame().pixelRectangle().left - 2);
    EXPECT_EQ(edge.right(), last.right() + 2);
    EXPECT_EQ(edge.top, last.top - 2);
    EXPECT_EQ(edge.bottom(), last.bottom() + 2);
}

} // namespace

} // namespace phial
