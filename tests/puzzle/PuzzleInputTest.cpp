#include "PuzzleTest.h"
#include "app/cls_Language.h"

#include <gtest/gtest.h>

namespace puzzle
{
namespace
{

using phial::String;

class PuzzleInput : public PuzzleTest
{
protected:
    static constexpr int Fluorine = 9;
    static constexpr int Sodium = 11;
    static constexpr int Chlorine = 17;

    PuzzleInput() { open("[nachbarn] Anfang | Start\nNa | Natrium | sodium\nF Cl | Halogene | Halogens\n"); }
    void tap(phial::PixelPoint at) { phial::headless::click(table(), at.x, at.y); }
    void expectFullPoints()
    {
        const bool german = phial::LNG()->EFFECTIVE() == phial::ID_Language_German;
        EXPECT_EQ(seen(u"lab_Result"), german ? u"20 von 20 Punkten" : u"20 of 20 points");
    }
    /// A round by keys, from the choice of the level on.
    void playByKeys()
    {
        type(u"{enter}");
        type(u"n{enter}");               // takes the tile
        type(u"^{home}{down 2}{enter}"); // from hydrogen down to sodium
        type(u"{tab}{enter}{enter}");    // checks, and goes on
        type(u"f{enter}^{end}{up 5}{left}{enter}");
        type(u"c{enter}^{end}{up 4}{left}{enter}");
        type(u"{tab}{enter}");
        expectRankBox();
        type(u"{enter}");
    }
};

TEST_F(PuzzleInput, PlaysAWholeRoundByTaps)
{
    touch(u"but_Level", 0);
    tap(home(0));
    tap(place(Sodium));
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"Na");
    touch(u"but_Check");
    touch(u"but_Check");
    tap(home(1));
    tap(place(Chlorine));
    tap(home(0));
    tap(place(Fluorine));
    touch(u"but_Check");
    expectRankBox();
    touch(u"but_Check");
    expectFullPoints();
}

TEST_F(PuzzleInput, PlaysAWholeRoundByKeysInGerman)
{
    playByKeys();
    expectFullPoints();
}

TEST_F(PuzzleInput, PlaysAWholeRoundByKeysInEnglish)
{
    touch(u"but_Language");
    form().control<phial::ctl_Button>(u"but_Level", 0)->SetFocus();
    playByKeys();
    expectFullPoints();
}

TEST_F(PuzzleInput, LeadsLettersToTilesThatDoNotTellTheirProtonsToo)
{
    open("[leer] Leer | Empty\nNa K\n");
    type(u"{enter}k{enter}^{home}{down 3}{enter}");
    EXPECT_EQ(table().DRAGSYMBOLDROP(1), u"K");
}

TEST_F(PuzzleInput, LetsGoOfATileByEscapeBeforeItLeavesTheRound)
{
    type(u"{enter}n{enter}");
    type(u"{esc}");
    EXPECT_TRUE(form().control<phial::Control>(u"pan_Task")->frame().isReachable());
    answerLeaving();
    type(u"{esc}");
    EXPECT_FALSE(form().control<phial::Control>(u"pan_Task")->frame().isReachable());
}

// A blind pupil is told what others see: which places are empty, and the elements around them.
TEST_F(PuzzleInput, TellsPlacesAndElementsButNotWhatBelongsThere)
{
    touch(u"but_Level", 0);
    const auto parts = table().parts();
    const auto named = [&](int protons) { return parts.at(static_cast<std::size_t>(protons - 1)).name; };
    EXPECT_EQ(named(Sodium), u"Gruppe 1, Periode 3, leer");
    EXPECT_TRUE(contains(named(8), u"Sauerstoff, O, 8"));
    EXPECT_EQ(parts.back().name, u"Na, noch nicht eingeordnet");
}

} // namespace
} // namespace puzzle
