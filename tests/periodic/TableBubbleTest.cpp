#include "PeriodicTableTest.h"
#include "core/CoreSystem.h"
#include "core/CoreWindowOps.h"
#include "mascot/ctl_Bubble.h"
#include "visual/PictureBox.h"

namespace phial
{

namespace
{

class TableBubble : public PeriodicTableTest
{
protected:
    TableBubble()
    {
        table->Move(10, 20);
        bubble = form->add<ctl_Bubble>(u"ctl_Bubble1");
        bubble->Move(0, 0, 100, 80);
        bubble->Visible(false);
        table->BUBBLE(bubble);
        load();
    }
    static constexpr double Tick = 0.1;

    std::shared_ptr<ctl_Bubble> bubble;
};

TEST_F(TableBubble, ComesAtTheFifthTickOnTheSameElement)
{
    point(0, 0);
    outside.advance(4.5 * Tick);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(Tick);
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(bubble->TEXT(),
              u" Name:         Wasserstoff\r Symbol:      H\r Protonen:  1\r mol.Masse: 1 g/mol");
    EXPECT_EQ(bubble->Left(), 10 + 48 + 5);
    EXPECT_EQ(bubble->Top(), 20 + 80 + 5);
    EXPECT_EQ(bubble->ZIPSIDE(), enm_BallonZipSide::ID_BallonZipSide_LeftTop);
}

TEST_F(TableBubble, CountsAnewOnAnotherElement)
{
    point(0, 0);
    outside.advance(4.5 * Tick);
    point(17, 0);
    outside.advance(4.5 * Tick);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(Tick);
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(bubble->ZIPSIDE(), enm_BallonZipSide::ID_BallonZipSide_RightTop);
    point(0, 0); // the old text goes at once
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, StaysWhileThePointerIsOverItInTheCell)
{
    point(0, 0);
    outside.advance(6 * Tick);
    const CoreWindowOps& windows = coreRoot().CoreSystem().CoreWindowOps();
    const std::int32_t left = windows.ScreenLeft(table->hWnd());
    const std::int32_t top = windows.ScreenTop(table->hWnd());
    outside.display().moveCursor(left + 48, top + 80);
    static_cast<Control&>(*table).pointerLeave();
    outside.advance(3 * Tick);
    EXPECT_TRUE(bubble->Visible());
    outside.display().moveCursor(left + 48 + 32, top + 80); // on the bubble, but beyond the cell
    outside.advance(Tick);
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, GoesWhenThePointerLeaves)
{
    point(0, 0);
    outside.advance(6 * Tick);
    outside.display().moveCursor(900, 700);
    static_cast<Control&>(*table).pointerLeave();
    EXPECT_FALSE(bubble->Visible());
    press(over(1, 1));
    table->MODE(enm_PSEMode::ID_PSEMode_Place);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(6 * Tick);
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, FollowsItsContainersUnits)
{
    form->ScaleMode(ScaleUnit::Twips);
    const auto frame = form->add<PictureBox>(u"pic_Frame");
    frame->Move(30 * 15, 40 * 15, 300 * 15, 300 * 15);
    bubble->frame().container(*frame->container());
    point(0, 0);
    const PixelRectangle place = bubble->frame().pixelRectangle();
    EXPECT_EQ(place.left, 10 + 48 + 5 - 30);
    EXPECT_EQ(place.top, 20 + 80 + 5 - 40);
}

} // namespace

} // namespace phial
