#include "PuzzleTest.h"
#include "common/ctl_RoundDots.h"
#include "visual/ListView.h"

#include <gtest/gtest.h>

namespace puzzle
{
namespace
{

using phial::String;
using phial::StringView;

constexpr int Carbon = 6;
constexpr int Fluorine = 9;
constexpr int Sodium = 11;
constexpr int Chlorine = 17;

class PuzzleRound : public PuzzleTest
{
protected:
    static constexpr std::string_view TwoTasks = "[nachbarn] Anfang | Start\nNa | Natrium | sodium\n"
                                                 "F Cl | Halogene | Halogens\n[leer] Leer | Empty\nK\n";
    void begin(int level = 0)
    {
        open(TwoTasks);
        touch(u"but_Level", level);
    }
};

TEST_F(PuzzleRound, IsPlayedByDragging)
{
    begin();
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 2");
    EXPECT_EQ(seen(u"lab_Theme"), u"Natrium");
    EXPECT_EQ(focused(), u"pse_Table");
    drag(0, Sodium);
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Richtig! Am richtigen Platz, 10 Punkte für dich.<br>Jedes Kärtchen am richtigen Platz.");
    EXPECT_EQ(seen(u"lab_Hint"), u"Na (11): Periode 3, Hauptgruppe I");
    touch(u"but_Check");

    EXPECT_EQ(seen(u"lab_Theme"), u"Halogene");
    drag(0, Fluorine);
    drag(1, Chlorine);
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Alle am richtigen Platz, 10 Punkte"));
    expectRankBox();
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Result"), u"20 von 20 Punkten");
    EXPECT_EQ(seen(u"lab_Solved"), u"2 von 2 Aufgaben gelöst");
    const auto review = form().control<phial::ListView>(u"lst_Review");
    EXPECT_EQ(review->ITEMS()->Item(2)->Title(), u"F, Cl");
}

TEST_F(PuzzleRound, LeavesWhatIsRightAndSendsTheRestHome)
{
    begin();
    drag(0, Sodium);
    touch(u"but_Check");
    touch(u"but_Check");
    drag(0, Fluorine);
    drag(1, Carbon);
    EXPECT_EQ(table().DRAGSYMBOLDROP(1), u"C");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Lege die Kärtchen nur auf graue Plätze. Die anderen sind schon besetzt.")
        << "and no try is used up";
    drag(place(Carbon), place(Sodium));
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Cl: gleiche Periode, aber 6 Gruppen weiter rechts.<br>Du hast noch 2 Versuche.");
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"F");
    EXPECT_EQ(table().DRAGSYMBOLDROP(1), u"");
    EXPECT_EQ(focused(), u"pse_Table");
}

} // namespace
} // namespace puzzle
