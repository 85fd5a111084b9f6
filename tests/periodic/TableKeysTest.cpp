#include "PeriodicTableTest.h"
#include "headless/Hand.h"
#include "headless/TouchScreen.h"
#include "mascot/ctl_Bubble.h"
#include "visual/ctl_Button.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class TableKeys : public PeriodicTableTest
{
protected:
    TableKeys()
    {
        bubble = form->add<ctl_Bubble>(u"ctl_Bubble1");
        bubble->Move(0, 0, 100, 80);
        bubble->Visible(false);
        table->BUBBLE(bubble);
        form->Show();
        load();
        table->SetFocus();
    }
    std::string current() const
    {
        const auto part = table->currentPart();
        EXPECT_EQ(table->currentPartArea(),
                  part ? std::optional(table->parts().at(*part).area) : std::nullopt);
        const std::string name = part ? toUtf8(table->parts().at(*part).name) : "";
        return name.substr(0, name.find(','));
    }
    void type(StringView keys) { headless::type(*form, keys); }
    bool passes(Key key, std::int32_t shift = 0)
    {
        KeyEvent event{static_cast<std::int32_t>(key), shift};
        static_cast<Control&>(*table).keyDown(event);
        return event.KeyCode != 0;
    }

    std::shared_ptr<ctl_Bubble> bubble;
};

TEST_F(TableKeys, MoveByGroupAndPeriod)
{
    EXPECT_EQ(current(), "Wasserstoff");
    type(u"{right}");
    EXPECT_EQ(current(), "Helium");
    type(u"{down 2}");
    EXPECT_EQ(current(), "Argon");
    type(u"{home}");
    EXPECT_EQ(current(), "Natrium");
    type(u"{end}");
    EXPECT_EQ(current(), "Argon");
    type(u"^{end}");
    EXPECT_EQ(current(), "Oganesson");
    type(u"^{home}");
    EXPECT_EQ(current(), "Wasserstoff");
}

TEST_F(TableKeys, StayWithTheTableAtItsEdge)
{
    EXPECT_FALSE(passes(Key::Up));
    EXPECT_EQ(current(), "Wasserstoff");
    EXPECT_TRUE(passes(Key::Tab));
    EXPECT_TRUE(passes(Key::PageDown));
    EXPECT_TRUE(passes(Key::Delete));
    EXPECT_TRUE(passes(Key::Return, ShiftMask::Control));
}

TEST_F(TableKeys, LettersJump)
{
    type(u"cl");
    EXPECT_EQ(current(), "Chlor");
    outside.advance(1.1);
    type(u"c");
    EXPECT_EQ(current(), "Calcium");
    outside.advance(1.1);
    type(u"F");
    EXPECT_EQ(current(), "Fluor");
    KeyPressEvent none{u'q'};
    static_cast<Control&>(*table).keyPress(none);
    EXPECT_EQ(none.KeyAscii, u'q') << "which goes on";
    KeyPressEvent taken{u'h'};
    static_cast<Control&>(*table).keyPress(taken);
    EXPECT_EQ(taken.KeyAscii, 0);
}

TEST_F(TableKeys, EnterAndSpaceClick)
{
    soundOn(true);
    sound(u"click\\a.wav", 0.1, 3);
    type(u"o{enter}");
    type(u" ");
    type(u"{right}~");
    EXPECT_THAT(log, ElementsAre("click O", "again O", "click F"));
    EXPECT_THAT(heard(), ElementsAre(3, 3));
}

TEST_F(TableKeys, AHeldKeyClicksOnce)
{
    headless::hold(*form, {0, Key::Return});
    EXPECT_THAT(log, ElementsAre("click H"));
    headless::hold(*form, {u' '});
    EXPECT_THAT(log, ElementsAre("click H", "again H"));
}

TEST_F(TableKeys, EnterIsTheTablesAndNotTheDefaultButtons)
{
    EXPECT_TRUE(table->wantsKey(Key::Return));
    EXPECT_FALSE(table->wantsKey(Key::Escape));
}

TEST_F(TableKeys, TheBubbleComesForTheCursorAndEscapeHidesIt)
{
    outside.advance(1);
    EXPECT_FALSE(bubble->Visible()) << "the focus alone is no question";
    type(u"{right}");
    outside.advance(0.45);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(0.1);
    EXPECT_TRUE(bubble->Visible());
    EXPECT_THAT(toUtf8(bubble->TEXT()), HasSubstr("Helium"));
    EXPECT_TRUE(table->wantsKey(Key::Escape));
    EXPECT_FALSE(passes(Key::Escape));
    EXPECT_FALSE(bubble->Visible());
    outside.advance(1);
    EXPECT_FALSE(bubble->Visible());
    EXPECT_FALSE(table->wantsKey(Key::Escape));
    EXPECT_TRUE(passes(Key::Escape)) << "there is nothing to hide";
    type(u"{left}");
    outside.advance(0.6);
    EXPECT_TRUE(bubble->Visible());
}

TEST_F(TableKeys, TheBubbleGoesWithTheFocus)
{
    const auto other = form->add<ctl_Button>(u"but_Ok");
    type(u"{right}");
    outside.advance(0.6);
    EXPECT_TRUE(bubble->Visible());
    headless::tab(*form);
    EXPECT_TRUE(other->frame().hasFocus());
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableKeys, APressTakesTheCursorAlong)
{
    headless::click(*table, over(7, 3).X, over(7, 3).Y);
    EXPECT_EQ(current(), "Eisen");
    headless::click(*table, BesideTable.X, BesideTable.Y);
    EXPECT_EQ(current(), "Eisen");
}

TEST_F(TableKeys, WithoutElementsThereIsNoCursor)
{
    const auto empty = form->add<ctl_PSE>(u"frm_Q");
    empty->SetFocus();
    EXPECT_EQ(empty->currentPart(), std::nullopt);
    KeyEvent down{static_cast<std::int32_t>(Key::Down)};
    static_cast<Control&>(*empty).keyDown(down);
    EXPECT_NE(down.KeyCode, 0);
    EXPECT_FALSE(empty->wantsKey(Key::Return));
    type(u"c{enter}");
    EXPECT_THAT(log, IsEmpty());
}

// Fingers.

class TableTouch : public TableKeys
{
protected:
    void down(std::int32_t column, std::int32_t row)
    {
        screen.press(1, *table, {over(column, row).X, over(column, row).Y});
    }

    headless::TouchScreen screen{outside.display()};
};

TEST_F(TableTouch, ATapClicksAndOpensNoBubble)
{
    down(0, 0);
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("click H"));
    outside.advance(2);
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableTouch, ALongPressOpensTheBubbleAndDoesNotClick)
{
    down(0, 0);
    outside.advance(0.6);
    EXPECT_TRUE(bubble->Visible());
    screen.move(1, {2, 2});
    EXPECT_TRUE(bubble->Visible());
    screen.release(1);
    EXPECT_THAT(log, IsEmpty());
    outside.advance(2);
    EXPECT_TRUE(bubble->Visible()) << "it can be read without the finger";
    down(0, 0);
    EXPECT_FALSE(bubble->Visible());
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("click H"));
}

TEST_F(TableTouch, AFingerThatWandersClicksWhereItIsLetGo)
{
    down(0, 0);
    outside.advance(0.4);
    screen.move(1, {0, TableCell});
    outside.advance(0.4);
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("click Li"));
}

TEST_F(TableTouch, WithoutABubbleALongPressIsAClick)
{
    table->BUBBLE(nullptr);
    down(0, 0);
    outside.advance(3);
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("click H"));
}

TEST_F(TableTouch, AMouseMayRestAndClick)
{
    point(0, 0);
    outside.advance(1);
    press(over(0, 0));
    EXPECT_THAT(log, ElementsAre("click H"));
}

} // namespace

} // namespace phial
