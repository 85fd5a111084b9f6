#include "PuzzleTest.h"
#include "headless/TouchScreen.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace puzzle
{
namespace
{

/// A class puts its hands on the screen: two tiles to place, and more fingers than one.
class PuzzleFingers : public PuzzleTest
{
protected:
    static constexpr int Hydrogen = 1;
    static constexpr int Fluorine = 9;
    static constexpr int Chlorine = 17;

    PuzzleFingers()
    {
        open("[leer] Leer | Empty\nF Cl | Halogene | Halogens\n");
        touch(u"but_Level", 0);
    }

    void put(std::int32_t finger, phial::PixelPoint at) { screen.press(finger, table(), at); }
    /// From one place of the table to another.
    void lead(std::int32_t finger, phial::PixelPoint from, phial::PixelPoint to)
    {
        screen.move(finger, {to.x - from.x, to.y - from.y});
    }
    void tap(std::int32_t finger, phial::PixelPoint at)
    {
        put(finger, at);
        screen.release(finger);
    }
    phial::ctl_Button& button(phial::StringView name) { return *form().control<phial::ctl_Button>(name); }
    phial::String where(int slot) { return table().DRAGSYMBOLDROP(slot); }
    /// Each tile can still be brought to its place, by a finger.
    void expectPlayable()
    {
        for (const auto& [slot, protons] : {std::pair(0, Fluorine), std::pair(1, Chlorine)}) {
            if (where(slot).empty()) {
                tap(1, home(slot));
                tap(1, place(protons));
            }
        }
        EXPECT_EQ(where(0), u"F");
        EXPECT_EQ(where(1), u"Cl");
        touch(u"but_Check");
        EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Alle am richtigen Platz"));
    }
    bool isAnyTaken()
    {
        return std::ranges::any_of(table().parts(), [](const auto& part) { return part.state.pressed; });
    }

    phial::headless::TouchScreen screen{outside.display()};
};

TEST_F(PuzzleFingers, TheFirstOfTwoDragsItsTile)
{
    put(1, home(0));
    put(2, home(1));
    lead(1, home(0), place(Fluorine));
    lead(2, home(1), place(Chlorine));
    screen.release(1);
    screen.release(2);
    EXPECT_EQ(where(0), u"F");
    EXPECT_EQ(where(1), u"") << "it has not left its home";
    EXPECT_FALSE(isAnyTaken());
    expectPlayable();
}

TEST_F(PuzzleFingers, AnotherOneMayLiftFirst)
{
    put(1, home(0));
    put(2, home(1));
    lead(1, home(0), place(Fluorine));
    screen.release(2);
    put(2, home(1));
    screen.release(2);
    screen.release(1);
    EXPECT_EQ(where(0), u"F");
    EXPECT_EQ(where(1), u"");
    EXPECT_FALSE(isAnyTaken());
    expectPlayable();
}

TEST_F(PuzzleFingers, OneThatRestsOnATileLeavesItWhereItIs)
{
    put(1, home(0));
    tap(2, home(1));
    tap(2, place(Chlorine));
    EXPECT_EQ(where(1), u"") << "of several fingers the first counts";
    screen.release(1);
    EXPECT_TRUE(isAnyTaken()) << "it was a tap";
    tap(1, home(0));
    EXPECT_FALSE(isAnyTaken());
    expectPlayable();
}

TEST_F(PuzzleFingers, OneThatRestsElsewhereDisturbsNobody)
{
    screen.press(1, *form().control<phial::Control>(u"lab_Feedback"));
    tap(2, home(0));
    tap(2, place(Fluorine));
    EXPECT_EQ(where(0), u"F");
    screen.release(1);
    expectPlayable();
}

TEST_F(PuzzleFingers, OneThatLeavesTheWindowBringsItsTileHome)
{
    put(1, home(0));
    lead(1, home(0), {-4000, -300});
    screen.release(1);
    EXPECT_EQ(where(0), u"");
    EXPECT_FALSE(isAnyTaken());
    expectPlayable();
}

TEST_F(PuzzleFingers, OneThatLeavesTheTableAndComesBackKeepsItsTile)
{
    put(1, home(0));
    lead(1, home(0), {-4000, -300});
    lead(1, {-4000, -300}, place(Fluorine));
    screen.release(1);
    EXPECT_EQ(where(0), u"F");
    expectPlayable();
}

TEST_F(PuzzleFingers, ATileInTheHandIsNotJudged)
{
    drag(0, Fluorine);
    drag(1, Hydrogen);
    put(1, place(Hydrogen));
    lead(1, place(Hydrogen), place(Chlorine));
    touch(u"but_Check");
    screen.release(1);
    expectPlayable();
}

TEST_F(PuzzleFingers, ATaskThatIsDecidedBeneathAFingerLosesNothing)
{
    drag(0, Fluorine);
    drag(1, Chlorine);
    put(1, place(Fluorine));
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Alle am richtigen Platz"));
    lead(1, place(Fluorine), place(Hydrogen));
    screen.release(1);
    EXPECT_FALSE(isAnyTaken());
    expectRankBox();
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Result"), u"10 von 10 Punkten");
    touch(u"but_Again");
    touch(u"but_Level", 0);
    expectPlayable();
}

TEST_F(PuzzleFingers, AQuestionThatComesUpBeneathAFingerLeavesNoTileInTheHand)
{
    put(1, home(0));
    lead(1, home(0), place(Hydrogen));
    outside.visual().onModal(u"frm_LeaveRound", [](phial::Form& asking) {
        phial::headless::click(*asking.control<phial::ctl_Button>(u"but_GoOn"));
    });
    touch(u"but_Stop");
    screen.release(1);
    EXPECT_EQ(where(0), u"H") << "beneath the finger";
    EXPECT_FALSE(isAnyTaken());
    tap(1, place(Hydrogen));
    tap(1, place(Fluorine));
    expectPlayable();
}

TEST_F(PuzzleFingers, TrembleMoreThanAMouse)
{
    put(1, home(0));
    screen.move(1, {9, 0});
    screen.release(1);
    EXPECT_TRUE(isAnyTaken());
    tap(1, place(Fluorine));
    expectPlayable();
}

TEST_F(PuzzleFingers, ATileThatWasTakenIsInNoHandInTheNextTask)
{
    tap(1, home(0));
    EXPECT_TRUE(isAnyTaken());
    answerLeaving();
    touch(u"but_Stop");
    touch(u"but_Level", 0);
    EXPECT_FALSE(isAnyTaken());
    tap(1, place(Hydrogen));
    EXPECT_EQ(where(0), u"");
    expectPlayable();
}

} // namespace
} // namespace puzzle
