#include "formeln/FormulaJudge.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "support/AppSession.h"

#include <gtest/gtest.h>

namespace formeln
{
namespace
{

using learning::Judgement;
using phial::String;
using phial::StringView;

class FormulaJudge : public phial::test::AppSession
{
protected:
    FormulaJudge() { phial::LNG()->CURRENT(phial::ID_Language_German); }

    static Judgement judged(StringView answer, StringView right)
    {
        return judgeFormula(answer, right).judgement;
    }
    static String remark(StringView answer, StringView right) { return judgeFormula(answer, right).remark; }
    static Equation rust() { return *equationIn(u"Fe + O2 -> Fe2O3"); }
};

TEST_F(FormulaJudge, TakesEveryNotation)
{
    EXPECT_EQ(judged(u"SO4^2-", u"SO4^2-"), Judgement::Right);
    EXPECT_EQ(judged(u"SO₄²⁻", u"SO4^2-"), Judgement::Right);
    EXPECT_EQ(judged(u"NH4+", u"NH4^+"), Judgement::Right);
    EXPECT_EQ(judged(u"CuSO4.5H2O", u"CuSO4*5H2O"), Judgement::Right);
}

TEST_F(FormulaJudge, OrganicSubstancesMayBeWrittenOtherwiseSaltsMayNot)
{
    EXPECT_EQ(judged(u"C2H6O", u"C2H5OH"), Judgement::Right);
    EXPECT_EQ(judged(u"N2H4O3", u"NH4NO3"), Judgement::Wrong);
    EXPECT_EQ(remark(u"ClNa", u"NaCl"), u"Die Atome stimmen. Schreibe sie in der üblichen Reihenfolge.");
}

TEST_F(FormulaJudge, WhatCannotBeReadIsNoAnswer)
{
    EXPECT_EQ(judged(u"", u"NaCl"), Judgement::Unreadable);
    EXPECT_EQ(judged(u"nacl", u"NaCl"), Judgement::Unreadable);
    EXPECT_EQ(judged(u"SO42-", u"SO4^2-"), Judgement::Unreadable);
    EXPECT_EQ(remark(u"CU", u"Cu"), u"CU gibt es nicht. Cu ist Kupfer.");
}

TEST_F(FormulaJudge, TellsWhatIsWrong)
{
    EXPECT_EQ(remark(u"SO4^-", u"SO4^2-"), u"Die Atome stimmen, die Ladung \u2212 nicht.");
    EXPECT_EQ(remark(u"SO4", u"SO4^2-"), u"Die Atome stimmen. Es ist ein Ion: Die Ladung fehlt.");
    EXPECT_EQ(remark(u"NaCl^+", u"NaCl"), u"Die Atome stimmen. Der Stoff ist nach außen neutral.");
    EXPECT_EQ(remark(u"CaOH2", u"Ca(OH)2"), u"Da fehlt eine Klammer: Die Zahl gilt für die ganze Gruppe.");
    EXPECT_EQ(remark(u"2NaCl", u"NaCl"), u"Gefragt ist ein Teilchen, ohne Zahl davor.");
    EXPECT_EQ(remark(u"NaSO4", u"Na2SO4"), u"Die Elemente stimmen. Von Natrium sind es zu wenige Atome.");
    EXPECT_EQ(remark(u"Na3SO4", u"Na2SO4"), u"Die Elemente stimmen. Von Natrium sind es zu viele Atome.");
    EXPECT_EQ(remark(u"NaBr", u"NaCl"), u"Chlor fehlt in deiner Formel.");
    EXPECT_EQ(remark(u"NaClBr", u"NaCl"), u"Brom kommt hier nicht vor.");
}

TEST_F(FormulaJudge, SpeaksEnglish)
{
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(remark(u"CU", u"Cu"), u"There is no CU. Cu is copper.");
    EXPECT_EQ(remark(u"NaBr", u"NaCl"), u"Your formula has no chlorine.");
    EXPECT_EQ(atomsOf(u"SO4^2-"), u"4\u00A0×\u00A0O, 1\u00A0×\u00A0S; charge 2\u2212");
}

TEST_F(FormulaJudge, FactorsMustBalanceAndBeTheSmallest)
{
    EXPECT_EQ(balanced(rust()), (std::vector<int>{4, 3, 2}));
    EXPECT_EQ(judgeFactors(rust(), {4, 3, 2}).judgement, Judgement::Right);
    EXPECT_EQ(judgeFactors(rust(), {2, 3, 1}).judgement, Judgement::Wrong);
    EXPECT_EQ(judgeFactors(rust(), {2, 3, 1}).remark, u"Sauerstoff: links 6, rechts 3.");
    EXPECT_EQ(judgeFactors(rust(), {8, 6, 4}).remark,
              u"Die Gleichung geht auf, aber mit kleineren Zahlen auch.");
    const Equation silver = *equationIn(u"Cu + Ag^+ -> Cu^2+ + Ag");
    EXPECT_EQ(judgeFactors(silver, {1, 1, 1, 1}).remark, u"Ladung: links 1, rechts 2.");
    EXPECT_EQ(balanced(*equationIn(u"H2 -> O2")), std::nullopt);
}

TEST_F(FormulaJudge, WritesAFormulaAndItsAtoms)
{
    EXPECT_EQ(formulaMarkup(u"SO4^2-"), u"SO<sub>4</sub><sup>2-</sup>");
    EXPECT_EQ(formulaMarkup(u"CuSO4*5H2O"), u"CuSO<sub>4</sub>·5H<sub>2</sub>O")
        << "the dot as one prints it";
    EXPECT_EQ(elementsOf(u"Na2SO4"), u"Sauerstoff, Natrium, Schwefel");
    EXPECT_EQ(balancedMarkup(rust(), {4, 3, 2}), u"4Fe + 3O<sub>2</sub> → 2Fe<sub>2</sub>O<sub>3</sub>");
    EXPECT_EQ(atomsOnBothSides(rust(), {4, 3, 2}),
              u"Sauerstoff: links 6, rechts 6<br>Eisen: links 4, rechts 4");
}

} // namespace
} // namespace formeln
