#include "DialogHelpImagesTest.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;

TEST_F(DialogHelpImages, SlidesByTheTime)
{
    putPages(2);
    open();
    headless::click(button(u"but_Next"));
    EXPECT_TRUE(animation()->Enabled());
    EXPECT_EQ(animation()->Interval(), 10);
    outside.advance(0.1);
    EXPECT_NEAR(page(1).Left(), 350 - 320, 33);
    EXPECT_EQ(page(2).Left() - page(1).Left(), HelpViewWidth);
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
    outside.advance(HelpSlideTime);
    EXPECT_EQ(dialog.Page(), 2);
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
    EXPECT_EQ(page(1).Left(), 350 - HelpViewWidth);
    page(1).pointerUp(touch(0, 100, 100));
    outside.advance(HelpSlideTime);
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
    outside.advance(HelpSlideTime);
    EXPECT_EQ(dialog.Page(), 1);
    EXPECT_EQ(page(1).Left(), 350);
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
    outside.advance(HelpSlideTime);
    EXPECT_EQ(dialog.Page(), 1);
    press(u"but_Next");
    EXPECT_EQ(dialog.Page(), 2);
    EXPECT_EQ(page(1).Width(), 300);
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
    outside.advance(HelpSlideTime);
    EXPECT_EQ(dialog.Page(), 4);
}

} // namespace

} // namespace phial
