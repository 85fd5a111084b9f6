#include "PeriodicTableTest.h"
#include "headless/Hand.h"
#include "headless/TouchScreen.h"
#include "visual/FormDesign.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A table on which oxygen, nitrogen and chlorine are to be placed.
class TablePlacing : public PeriodicTableTest
{
protected:
    TablePlacing()
    {
        form->Show();
        load();
        table->MODE(enm_PSEMode::ID_PSEMode_Place);
        for (const StringView symbol : {u"O", u"N", u"Cl"}) {
            table->DRAGADD(symbol);
        }
        connections += table->DROPPED.connect([this](std::int32_t slot) {
            log.push_back("dropped " + std::to_string(slot) + " on " + toUtf8(table->DRAGSYMBOLDROP(slot)));
        });
    }
    static PointerEvent home(std::int32_t slot)
    {
        return {PointerButton::Left, 0, (slot * 1.5 + 3.5) * TableCell, 9.5 * TableCell};
    }
    std::string told() const { return toUtf8(table->frame().announcement()); }
    std::string currentName() const
    {
        const auto part = table->currentPart();
        EXPECT_EQ(table->currentPartArea(),
                  part ? std::optional(table->parts().at(*part).area) : std::nullopt);
        return part ? toUtf8(table->parts().at(*part).name) : "";
    }
    void type(StringView keys) { headless::type(*form, keys); }
    bool isTaken(const std::string& symbol)
    {
        return cell(symbol).find("line #000000 w3\n") != std::string::npos;
    }
};

TEST_F(TablePlacing, ATapTakesATileAndAnotherPutsItDown)
{
    press(home(2));
    EXPECT_TRUE(isTaken("Cl"));
    EXPECT_EQ(told(), "Cl genommen");
    EXPECT_THAT(log, IsEmpty());
    press(over(16, 2));
    EXPECT_THAT(log, ElementsAre("dropped 2 on Cl"));
    EXPECT_EQ(told(), "Cl auf Gruppe 17, Periode 3");
    EXPECT_FALSE(isTaken("Cl"));
    EXPECT_THAT(cell("Cl"), HasSubstr("clip 544,128 32x32\n"));
    LNG()->CURRENT(ID_Language_English);
    press(over(16, 2));
    EXPECT_EQ(told(), "Cl taken");
    press(over(5, 8));
    EXPECT_EQ(told(), "Cl on lanthanides, place 2");
}

TEST_F(TablePlacing, ATapOnTheTakenTileLetsItGo)
{
    press(home(0));
    press(home(0));
    EXPECT_EQ(told(), "O losgelassen");
    EXPECT_FALSE(isTaken("O"));
    press(over(15, 1));
    EXPECT_THAT(log, IsEmpty()) << "nothing is taken";
}

TEST_F(TablePlacing, ADragIsToldAsWell)
{
    headless::drag(*table, {home(0).X, home(0).Y}, {over(14, 1).X, over(14, 1).Y});
    EXPECT_THAT(log, ElementsAre("dropped 0 on N"));
    EXPECT_EQ(told(), "O auf Gruppe 15, Periode 2");
    headless::drag(*table, {over(14, 1).X, over(14, 1).Y}, {over(4, 0).X, over(4, 0).Y});
    EXPECT_EQ(told(), "O auf Gruppe 5, Periode 1");
    headless::drag(*table, {over(4, 0).X, over(4, 0).Y}, {5, 5});
    EXPECT_EQ(told(), "O zurückgelegt");
    EXPECT_THAT(log, ElementsAre("dropped 0 on N", "dropped 0 on ", "dropped 0 on "));
}

TEST_F(TablePlacing, AFingerMayTrembleMoreThanAMouse)
{
    headless::TouchScreen screen(outside.display());
    screen.press(1, *table, {home(0).X, home(0).Y});
    screen.move(1, {9, 0});
    screen.release(1);
    EXPECT_EQ(told(), "O genommen");
    press(home(0));
    headless::drag(*table, {home(0).X, home(0).Y}, {home(0).X + 9, home(0).Y});
    EXPECT_EQ(told(), "O losgelassen");
    EXPECT_FALSE(isTaken("O"));
}

TEST_F(TablePlacing, TakesFingersWhereADesignHasPlacedItToo)
{
    static constexpr ControlDesign Own[] = {design<ctl_PSE>(u"pse_Own", {0, 0, 608, 400}).focusable()};
    addControls(*form, Own);
    EXPECT_TRUE(form->control<ctl_PSE>(u"pse_Own")->frame().takesTouch());
}

TEST_F(TablePlacing, ASecondFingerDisturbsNoDrag)
{
    headless::TouchScreen screen(outside.display());
    screen.press(1, *table, {home(0).X, home(0).Y});
    screen.press(2, *table, {home(1).X, home(1).Y});
    screen.move(2, {60, 60});
    screen.move(1, {over(15, 1).X - home(0).X, over(15, 1).Y - home(0).Y});
    screen.release(2);
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("dropped 0 on O"));
    EXPECT_EQ(table->DRAGSYMBOLDROP(1), u"");
}

TEST_F(TablePlacing, KeysTakeATileToItsCell)
{
    table->SetFocus();
    EXPECT_EQ(currentName(), "O, noch nicht eingeordnet") << "who comes stands on the first tile";
    type(u"{right 2}");
    EXPECT_EQ(currentName(), "Cl, noch nicht eingeordnet");
    type(u"{enter}");
    EXPECT_TRUE(isTaken("Cl"));
    EXPECT_EQ(told(), "Cl genommen");
    EXPECT_TRUE(table->parts().at(*table->currentPart()).state.pressed);
    type(u"{up}{end}{left}{up 4}");
    EXPECT_EQ(currentName(), "Gruppe 17, Periode 3, leer");
    type(u" ");
    EXPECT_THAT(log, ElementsAre("dropped 2 on Cl"));
    EXPECT_EQ(told(), "Cl auf Gruppe 17, Periode 3");
    EXPECT_EQ(currentName(), "Cl auf Gruppe 17, Periode 3");
}

// Where the last tile was put says nothing about the next ones, and would seem to.
TEST_F(TablePlacing, TheCursorBeginsAnewWhereTheHostChangesTheTiles)
{
    table->SetFocus();
    press(home(1));
    press(over(14, 1));
    EXPECT_EQ(currentName(), "N auf Gruppe 15, Periode 2");
    press(home(0));
    press(over(15, 1));
    table->DRAGRESET(1);
    EXPECT_EQ(currentName(), "N, noch nicht eingeordnet");
    type(u"{right}{enter}{up}{enter}");
    table->DRAGCLEAR();
    table->DRAGADD(u"Fe");
    EXPECT_EQ(currentName(), "Fe, noch nicht eingeordnet");
}

TEST_F(TablePlacing, EscapeLetsGoAndElseGoesOn)
{
    table->SetFocus();
    EXPECT_FALSE(table->wantsKey(Key::Escape));
    type(u"{enter}");
    EXPECT_TRUE(table->wantsKey(Key::Escape));
    KeyEvent escape{static_cast<std::int32_t>(Key::Escape)};
    static_cast<Control&>(*table).keyDown(escape);
    EXPECT_EQ(escape.KeyCode, 0);
    EXPECT_EQ(told(), "O losgelassen");
    EXPECT_FALSE(isTaken("O"));
    escape = {static_cast<std::int32_t>(Key::Escape)};
    static_cast<Control&>(*table).keyDown(escape);
    EXPECT_NE(escape.KeyCode, 0);
}

TEST_F(TablePlacing, DeleteAndBackspaceSendTheTileAtTheCursorHome)
{
    for (const StringView key : {u"{del}", u"{bs}"}) {
        press(home(0));
        press(over(15, 1));
        log.clear();
        form->focus(table);
        type(key);
        EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"");
        EXPECT_THAT(cell("O"), HasSubstr("clip 96,288 32x32\n"));
        EXPECT_EQ(told(), "O zurückgelegt");
        EXPECT_EQ(currentName(), "Gruppe 16, Periode 2, leer") << "the cursor stays";
        EXPECT_THAT(log, ElementsAre("dropped 0 on "));
    }
    KeyEvent erase{static_cast<std::int32_t>(Key::Delete)};
    static_cast<Control&>(*table).keyDown(erase);
    EXPECT_NE(erase.KeyCode, 0) << "there is no tile";
}

TEST_F(TablePlacing, OfTilesOnEachOtherEachPressTakesTheNextOne)
{
    for (const std::int32_t slot : {0, 1, 2}) {
        Control& control = *table;
        const PointerEvent there = slot == 1 ? over(3, 4) : over(15, 1);
        control.pointerDown(home(slot));
        control.pointerMove(there);
        control.pointerUp(there);
    }
    table->SetFocus();
    ASSERT_EQ(currentName(), "O auf Gruppe 16, Periode 2");
    type(u"{enter}");
    EXPECT_EQ(told(), "O genommen");
    type(u"{enter}");
    EXPECT_EQ(told(), "Cl genommen") << "nitrogen lies elsewhere";
    const std::string all = drawn();
    EXPECT_GT(all.find("\"Cl\" Calibri"), all.find("\"O\" Calibri")) << "the taken one can be seen";
    type(u"{enter}");
    EXPECT_EQ(told(), "Cl losgelassen");
    type(u"{enter 2}{home}{enter}");
    EXPECT_EQ(table->DRAGSYMBOLDROP(2), u"Li");
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"O");
}

TEST_F(TablePlacing, LettersReachTilesAndGiveNothingAway)
{
    table->SetFocus();
    type(u"c");
    EXPECT_EQ(currentName(), "Cl, noch nicht eingeordnet");
    outside.advance(2);
    type(u"f");
    EXPECT_EQ(currentName(), "Cl, noch nicht eingeordnet") << "no tile begins so";
}

TEST_F(TablePlacing, PlacesGiveNothingAway)
{
    table->FADED()->Add(u"Fe");
    table->REDRAW();
    const auto parts = table->parts();
    ASSERT_EQ(parts.size(), 121U);
    EXPECT_EQ(parts[7].name, u"Gruppe 16, Periode 2, leer");
    EXPECT_EQ(parts[7].action, u"Hierher legen");
    EXPECT_EQ(parts[25].name, u"Eisen, Fe, 26, 55,8 Gramm pro Mol, Feststoff") << "which is shown";
    EXPECT_EQ(parts[118].name, u"O, noch nicht eingeordnet");
    EXPECT_EQ(parts[118].role, PartRole::Button);
    EXPECT_EQ(parts[118].action, u"Nehmen");
    EXPECT_FALSE(parts[118].state.pressed);
    table->activatePart(118);
    EXPECT_EQ(table->parts()[118].action, u"Loslassen");
    EXPECT_TRUE(table->parts()[118].state.pressed);
    table->activatePart(6);
    EXPECT_THAT(log, ElementsAre("dropped 0 on N"));
    EXPECT_EQ(table->parts()[6].name, u"Gruppe 15, Periode 2, O");
    EXPECT_EQ(table->parts()[118].name, u"O auf Gruppe 15, Periode 2");
    table->activatePart(7);
    EXPECT_EQ(log.size(), 1U) << "no tile is taken, and no element is clicked";
}

TEST_F(TablePlacing, WhatTheHostSendsHomeIsTakenNoMore)
{
    press(home(0));
    table->DRAGRESET(0);
    EXPECT_FALSE(isTaken("O"));
    press(home(1));
    table->DRAGCLEAR();
    press(over(15, 1));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TablePlacing, AnotherModeLetsGo)
{
    press(home(0));
    table->MODE(enm_PSEMode::ID_PSEMode_Normal);
    EXPECT_FALSE(isTaken("O"));
    EXPECT_EQ(table->parts().size(), 118U);
}

} // namespace

} // namespace phial
