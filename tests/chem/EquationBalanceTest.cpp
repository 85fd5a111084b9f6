#include "chem/formula/EquationBalance.h"

#include "FormulaTexts.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

using test::equation;

using Factors = std::vector<std::int64_t>;

Factors factorsOf(StringView text)
{
    const EquationSolution solution = balance(equation(text));
    EXPECT_EQ(solution.kind, EquationSolution::Kind::One) << toUtf8(text);
    return solution.factors;
}

TEST(EquationBalance, FindsTheSmallestWholeFactors)
{
    EXPECT_EQ(factorsOf(u"H2 + O2 -> H2O"), (Factors{2, 1, 2}));
    EXPECT_EQ(factorsOf(u"C + O2 -> CO2"), (Factors{1, 1, 1}));
    EXPECT_EQ(factorsOf(u"C4H10 + O2 -> CO2 + H2O"), (Factors{2, 13, 8, 10}));
    EXPECT_EQ(factorsOf(u"KMnO4 + HCl -> KCl + MnCl2 + Cl2 + H2O"), (Factors{2, 16, 2, 2, 5, 8}));
    EXPECT_EQ(factorsOf(u"CuSO4*5H2O -> CuSO4 + H2O"), (Factors{1, 1, 5}));
    EXPECT_EQ(factorsOf(u"Ca3(PO4)2 + SiO2 + C -> CaSiO3 + P4 + CO"), (Factors{2, 6, 10, 6, 1, 10}));
}

TEST(EquationBalance, BalancesChargesToo)
{
    EXPECT_EQ(factorsOf(u"Cu + Ag^+ -> Cu^2+ + Ag"), (Factors{1, 2, 1, 2}));
    EXPECT_EQ(factorsOf(u"MnO4^- + Fe^2+ + H^+ -> Mn^2+ + Fe^3+ + H2O"), (Factors{1, 5, 8, 1, 5, 4}));
    EXPECT_EQ(factorsOf(u"MnO4^- + H^+ + e^- -> Mn^2+ + H2O"), (Factors{1, 8, 5, 1, 4}));
    EXPECT_EQ(factorsOf(u"Cr2O7^2- + H^+ + C2H5OH -> Cr^3+ + CH3COOH + H2O"), (Factors{2, 16, 3, 4, 3, 11}));
}

TEST(EquationBalance, PaysNoHeedToTheFactorsThatStandThere)
{
    EXPECT_EQ(factorsOf(u"7H2 + 3O2 -> 9H2O"), (Factors{2, 1, 2}));
}

TEST(EquationBalance, KnowsFactorsOfManyDigits)
{
    EXPECT_EQ(factorsOf(u"K4Fe(CN)6 + H2SO4 + H2O -> K2SO4 + FeSO4 + (NH4)2SO4 + CO"),
              (Factors{1, 6, 6, 2, 1, 3, 6}));
    EXPECT_EQ(
        factorsOf(u"[Cr(N2H4CO)6]4[Cr(CN)6]3 + KMnO4 + H2SO4 -> K2Cr2O7 + MnSO4 + CO2 + KNO3 + K2SO4 + H2O"),
        (Factors{10, 1176, 1399, 35, 1176, 420, 660, 223, 1879}));
}

TEST(EquationBalance, TellsWhereThereIsNone)
{
    using Kind = EquationSolution::Kind;
    EXPECT_EQ(balance(equation(u"H2 -> O2")).kind, Kind::None);
    EXPECT_EQ(balance(equation(u"H2 + O2 -> H2")).kind, Kind::None) << "oxygen cannot vanish";
    EXPECT_EQ(balance(equation(u"Na -> Na^+")).kind, Kind::None) << "the charge cannot come from nothing";
    EXPECT_EQ(balance(equation(u"H2O2 + O2 -> H2O")).kind, Kind::None) << "a factor below 0";
}

TEST(EquationBalance, TellsOfTwoReactionsInOne)
{
    EXPECT_EQ(balance(equation(u"H2 + O2 + N2 -> H2O + NH3")).kind, EquationSolution::Kind::Several);
    EXPECT_EQ(balance(equation(u"H2O2 + KMnO4 + H2SO4 -> MnSO4 + K2SO4 + O2 + H2O")).kind,
              EquationSolution::Kind::Several);
}

TEST(EquationBalance, RefusesNumbersThatHaveNoRoom)
{
    EXPECT_EQ(balance(equation(u"(((H999999999)999999999)999999999) -> H")).kind,
              EquationSolution::Kind::TooLarge);
}

TEST(EquationBalance, TellsWhatTheSidesHave)
{
    const FormulaTree fire = equation(u"CH4 + O2 -> CO2 + H2O");
    const auto wrong = imbalancesOf(fire);
    ASSERT_EQ(wrong.size(), 2U);
    EXPECT_EQ(wrong[0].element, 1);
    EXPECT_EQ(wrong[0].left, (Rational{4, 1}));
    EXPECT_EQ(wrong[0].right, (Rational{2, 1}));
    EXPECT_EQ(wrong[1].element, 8);
    EXPECT_TRUE(imbalancesOf(fire, {{1, 1}, {2, 1}, {1, 1}, {2, 1}}).empty());
    EXPECT_TRUE(imbalancesOf(fire, {{1, 2}, {1, 1}, {1, 2}, {1, 1}}).empty());
    EXPECT_TRUE(imbalancesOf(equation(u"2H2 + O2 -> 2H2O")).empty());
    EXPECT_FALSE(sidesOf(fire, {{1, 1}})) << "a factor for each";
}

TEST(EquationBalance, TellsTheChargeLast)
{
    const auto wrong = imbalancesOf(equation(u"Cu + Ag^+ -> Cu^2+ + Ag"));
    ASSERT_EQ(wrong.size(), 1U);
    EXPECT_EQ(wrong[0].element, 0);
    EXPECT_EQ(wrong[0].left, (Rational{1, 1}));
    EXPECT_EQ(wrong[0].right, (Rational{2, 1}));
}

} // namespace

} // namespace phial
