#include "DialogHelpImagesTest.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

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
    outside.advance(HelpSlideTime);
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

TEST_F(DialogHelpImages, FollowsATapOnAnEnlargedMenu)
{
    putMenu();
    put("K1/a.gif");
    open();
    headless::turnWheel(page(1), 20);
    headless::click(page(1), 599, 400);
    EXPECT_EQ(dialog.Folder(), at(u"K1\\"));
}

TEST_F(DialogHelpImages, OpensWithTheKeyboardAtItsMenu)
{
    putMenu();
    put("K2/01.gif");
    put("K2/02.gif");
    open();
    const ControlPtr menu = form.control<PictureBox>(u"pic_Viewer", 1);
    EXPECT_EQ(form.ActiveControl(), menu);
    strike(Key::Return);
    EXPECT_THAT(outside.visual().printed(), ::testing::IsEmpty());
    headless::strike(form, {.key = static_cast<Key>(u'2')});
    EXPECT_EQ(form.ActiveControl(), form.control<ctl_Button>(u"but_Next"));
    EXPECT_FALSE(menu->frame().canFocus()) << "pages of a chapter are turned by the buttons";
    press(u"but_Menu");
    EXPECT_EQ(form.ActiveControl(), menu);
}

TEST_F(DialogHelpImages, OpensAChapterOfTheMenuByItsNumber)
{
    putMenu();
    put("K2/01.gif");
    put("K2/02.gif");
    open();
    headless::strike(form, {.key = static_cast<Key>(u'3')});
    EXPECT_EQ(dialog.Folder(), at(u"")) << "there is no such chapter";
    headless::strike(form, {.key = static_cast<Key>(u'7')});
    EXPECT_EQ(dialog.Folder(), at(u""));
    headless::strike(form, {.key = static_cast<Key>(u'2')});
    EXPECT_EQ(dialog.Folder(), at(u"K2\\"));
    EXPECT_EQ(form.ActiveControl(), form.control<ctl_Button>(u"but_Next"));
    headless::strike(form, {.key = static_cast<Key>(u'1')});
    EXPECT_EQ(dialog.Folder(), at(u"K2\\")) << "no menu is in view";
    press(u"but_Menu");
    EXPECT_EQ(dialog.Folder(), at(u""));
}

TEST_F(DialogHelpImages, BeginsWithTheChapterThatIsAskedFor)
{
    putMenu();
    put("K2/01.gif");
    dialog.More().Set(u"CHAPTER", u"K2");
    open();
    EXPECT_EQ(dialog.Folder(), at(u"K2\\"));
    EXPECT_EQ(dialog.MenuFolder(), at(u""));
    press(u"but_Menu");
    EXPECT_EQ(dialog.Folder(), at(u""));
}

TEST_F(DialogHelpImages, BeginsWithTheMenuWhereTheChapterIsMissing)
{
    putMenu();
    dialog.More().Set(u"CHAPTER", u"K2");
    open();
    EXPECT_EQ(dialog.Folder(), at(u""));
    EXPECT_TRUE(dialog.HasMenu());
}

} // namespace

} // namespace phial
