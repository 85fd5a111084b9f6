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

TEST_F(TableBubble, LiesUponAllOthersWhenItComes)
{
    form->add<PictureBox>(u"pic_Above");
    point(0, 0);
    ASSERT_NE(form->container().controls().back(), bubble);
    outside.advance(5.5 * Tick);
    EXPECT_EQ(form->container().controls().back(), bubble);
}

TEST_F(TableBubble, DoesNotComeForAPointerThatHasLeftBefore)
{
    outside.display().moveCursor(900, 700);
    point(0, 0);
    outside.advance(4.5 * Tick);
    static_cast<Control&>(*table).pointerLeave();
    outside.advance(6 * Tick);
    EXPECT_FALSE(bubble->Visible());
    point(0, 0);
    outside.advance(4.5 * Tick);
    EXPECT_FALSE(bubble->Visible()) << "its time counts anew";
    outside.advance(Tick);
    EXPECT_TRUE(bubble->Visible());
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

TEST_F(TableBubble, StaysWhileThePointerIsOverItInAZoomedWindowToo)
{
    form->Zoom(1.5);
    point(17, 6);
    outside.advance(6 * Tick);
    const CoreWindowOps& windows = coreRoot().CoreSystem().CoreWindowOps();
    outside.display().moveCursor(
        static_cast<std::int32_t>(windows.ScreenLeft(table->hWnd()) + 18.5 * TableCell * 1.5),
        static_cast<std::int32_t>(windows.ScreenTop(table->hWnd()) + 8.5 * TableCell * 1.5));
    static_cast<Control&>(*table).pointerLeave();
    outside.advance(3 * Tick);
    EXPECT_TRUE(bubble->Visible());
}

TEST_F(TableBubble, WhereThePointerIsNotToldTheLeaveCountsUnlessItIsTheBubbles)
{
    outside.display().tellsCursor(false);
    point(0, 0); // the cell's middle, which the bubble leaves free
    outside.advance(6 * Tick);
    static_cast<Control&>(*table).pointerLeave();
    EXPECT_FALSE(bubble->Visible());
    PointerEvent lower = over(0, 0);
    lower.Button = PointerButton::None;
    lower.X += 10;
    lower.Y += 10;
    static_cast<Control&>(*table).pointerMove(lower);
    outside.advance(6 * Tick);
    static_cast<Control&>(*table).pointerLeave();
    outside.advance(3 * Tick);
    EXPECT_TRUE(bubble->Visible());
}

TEST_F(TableBubble, AnotherOneTakesItsPlaceAndCountsAnew)
{
    point(0, 0);
    outside.advance(6 * Tick);
    const auto other = form->add<ctl_Bubble>(u"ctl_Bubble2");
    other->Visible(false);
    table->BUBBLE(other);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(6 * Tick);
    EXPECT_TRUE(other->Visible());
    table->BUBBLE(nullptr);
    EXPECT_FALSE(other->Visible());
}

TEST_F(TableBubble, DoesNotComeForADisabledTable)
{
    point(0, 0);
    table->Enabled(false);
    outside.advance(6 * Tick);
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, GoesWhenTheCellsGoElsewhere)
{
    point(0, 0);
    outside.advance(6 * Tick);
    table->FIXEDSIZE(true);
    table->Move(10, 20, 19 * 65, 12.5 * 65);
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, GoesWhenAnotherModeIsRead)
{
    point(0, 0);
    outside.advance(6 * Tick);
    PropertyBag bag;
    bag.WriteProperty(u"MODE", 1);
    table->readProperties(bag);
    EXPECT_FALSE(bubble->Visible());
    table->HIGHLIGHT(u"O");
    EXPECT_EQ(table->parts().front().name, u"Gruppe 1, Periode 1, leer");
}

TEST_F(TableBubble, MayBeTakenAwayByAHandlerOfItsChanges)
{
    for (const StringView change : {u"TEXT", u"ZIPSIDE"}) {
        table->BUBBLE(bubble);
        bubble->TEXT(u"before");
        bubble->ZIPSIDE(enm_BallonZipSide::ID_BallonZipSide_RightTop);
        bubble->Visible(false);
        Connections taking;
        taking += bubble->PropertyChanged.connect([&](const String& name) {
            if (name == change) {
                table->BUBBLE(nullptr);
            }
        });
        point(17, 0);
        point(0, 0);
        outside.advance(6 * Tick);
        EXPECT_FALSE(bubble->Visible()) << toUtf8(change);
        EXPECT_EQ(table->BUBBLE(), nullptr) << toUtf8(change);
    }
}

TEST_F(TableBubble, MayBeReplacedByAHandlerOfItsChanges)
{
    const auto other = form->add<ctl_Bubble>(u"ctl_Bubble2");
    other->Visible(false);
    Connections replacing;
    replacing += bubble->PropertyChanged.connect([&](const String&) { table->BUBBLE(other); });
    point(0, 0);
    outside.advance(5.5 * Tick);
    EXPECT_FALSE(other->Visible()); // its time counts from now on
    outside.advance(5 * Tick);
    EXPECT_TRUE(other->Visible());
    EXPECT_EQ(other->TEXT(), bubble->TEXT());
}

TEST_F(TableBubble, MayTakeTheTableAwayWhenItChanges)
{
    Connections taking;
    taking += bubble->PropertyChanged.connect([&](const String&) {
        if (table) {
            connections = {};
            form->remove(*table);
            table.reset();
        }
    });
    point(0, 0);
    outside.advance(6 * Tick);
    EXPECT_EQ(table, nullptr);
}

} // namespace

} // namespace phial
