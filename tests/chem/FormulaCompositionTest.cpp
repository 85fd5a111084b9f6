#include "chem/formula/FormulaComposition.h"

#include "FormulaTexts.h"
#include "chem/ElementSymbols.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

using test::formula;

std::optional<double> schoolMass(StringView symbol)
{
    constexpr std::pair<StringView, double> Masses[] = {
        {u"H", 1.008}, {u"O", 15.999}, {u"S", 32.06}, {u"Cu", 63.546}};
    for (const auto& [known, mass] : Masses) {
        if (known == symbol) {
            return mass;
        }
    }
    return std::nullopt;
}

std::optional<double> mass(StringView text)
{
    const FormulaTree tree = formula(text);
    return molarMassOf(tree, tree.species.front(), schoolMass);
}

TEST(FormulaComposition, AddsUpTheAtomsOfPartsAndGroups)
{
    const FormulaTree vitriol = formula(u"2Cu(SO4)*5H2O");
    const auto atoms = atomsIn(vitriol, vitriol.species.front());
    const std::vector<ElementCount> expected{
        {1, 0, {10, 1}}, {8, 0, {9, 1}}, {16, 0, {1, 1}}, {29, 0, {1, 1}}};
    EXPECT_EQ(atoms, expected) << "without the factor";
}

TEST(FormulaComposition, IsotopesCountByThemselves)
{
    const FormulaTree water = formula(u"HDO");
    const std::vector<ElementCount> expected{{1, 0, {1, 1}}, {1, 2, {1, 1}}, {8, 0, {1, 1}}};
    EXPECT_EQ(atomsIn(water, water.species.front()), expected);
}

TEST(FormulaComposition, AddsUpTheMass)
{
    EXPECT_NEAR(*mass(u"H2O"), 18.015, 1e-9);
    EXPECT_NEAR(*mass(u"CuSO4*5H2O"), 249.677, 1e-9);
    EXPECT_NEAR(*mass(u"3H2O"), 18.015, 1e-9) << "of one formula";
    EXPECT_NEAR(*mass(u"D2O"), 2 * 2.0141 + 15.999, 1e-9);
    EXPECT_NEAR(*mass(u"T2O"), 2 * 3.0160 + 15.999, 1e-9);
    EXPECT_NEAR(*mass(u"^18O"), 18, 1e-9);
    EXPECT_NEAR(*mass(u"^3He"), 3, 1e-9) << "the mass number, where no exact mass is known";
    EXPECT_EQ(mass(u"NaCl"), std::nullopt) << "sodium is not in the table";
}

TEST(FormulaComposition, WritesHillsOrder)
{
    const auto hill = [](StringView text) {
        const FormulaTree tree = formula(text);
        return hillFormula(tree, tree.species.front());
    };
    EXPECT_EQ(hill(u"CHCl3"), u"CHCl3") << "hydrogen behind carbon";
    EXPECT_EQ(hill(u"HCl"), u"ClH") << "by the alphabet without carbon";
    EXPECT_EQ(hill(u"^1HCl"), u"Cl^1H");
}

TEST(FormulaComposition, TellsTheSharesOfTheMass)
{
    const FormulaTree water = formula(u"H2O");
    const auto shares = massFractionsOf(water, water.species.front(), schoolMass);
    ASSERT_EQ(shares.size(), 2U);
    EXPECT_NEAR(shares[0], 2.016 / 18.015, 1e-12);
    EXPECT_NEAR(shares[0] + shares[1], 1, 1e-12);
    const FormulaTree salt = formula(u"NaCl");
    EXPECT_TRUE(massFractionsOf(salt, salt.species.front(), schoolMass).empty());
}

TEST(ElementSymbols, StandAtTheirAtomicNumber)
{
    for (int number = 1; number <= LastElement; ++number) {
        EXPECT_EQ(atomicNumberOf(elementOf(number).symbol), number);
    }
    EXPECT_EQ(elementOf(74).german, u"Wolfram");
    for (const auto* none :
         {u"", u"h", u"CL", u"Xx", u"J", u"Hel", u"Ö", u"9", u"@", u"[", u"H`", u"H{", u"HE"}) {
        EXPECT_EQ(atomicNumberOf(none), 0) << toUtf8(none);
    }
    EXPECT_EQ(atomicNumberOf(StringView(u"H\0", 2)), 0);
}

} // namespace
} // namespace phial
