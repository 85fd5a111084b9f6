#include "chem/formula/OxidationNumbers.h"

#include "FormulaTexts.h"
#include "chem/ElementSymbols.h"
#include "support/CaseTable.h"

#include <array>
#include <gtest/gtest.h>

namespace phial
{
namespace
{

constexpr auto FaultsByName =
    std::to_array<StringView>({u"NoAtoms", u"SeveralOpen", u"Unusual", u"TooLarge"});

/// As the table writes it.
String tableForm(const FormulaTree& tree, const OxidationNumbers& found)
{
    if (found.fault) {
        return u"! " + String(FaultsByName[static_cast<std::size_t>(*found.fault)]);
    }
    String all;
    for (const OxidationNumber& each : found.numbers) {
        all += (all.empty() ? u"" : u", ") + String(elementOf(tree.items[each.item].element).symbol) + u" " +
               writtenOxidationNumber(each.number) + (each.isMean ? u" mean" : u"");
    }
    return all;
}

OxidationNumbers numbersOf(StringView text)
{
    const FormulaTree tree = test::formula(text);
    return oxidationNumbersOf(tree, tree.species.front());
}

std::vector<OxidationRule> rulesOf(StringView text)
{
    std::vector<OxidationRule> rules;
    for (const OxidationNumber& each : numbersOf(text).numbers) {
        rules.push_back(each.rule);
    }
    return rules;
}

class OxidationNumbersTest : public testing::TestWithParam<test::CaseRow>
{
};

TEST_P(OxidationNumbersTest, AreThoseOfTheTable)
{
    const FormulaTree tree = test::formula(GetParam().columns[0]);
    const OxidationNumbers found = oxidationNumbersOf(tree, tree.species.front());
    EXPECT_EQ(toUtf8(tableForm(tree, found)), toUtf8(GetParam().columns[1]));
    EXPECT_EQ(found.fault.has_value(), found.numbers.empty());
}

INSTANTIATE_TEST_SUITE_P(Table, OxidationNumbersTest,
                         testing::ValuesIn(test::readCaseTable("oxidation_numbers.txt", 2)),
                         test::caseName<testing::TestParamInfo<test::CaseRow>>);

TEST(OxidationRules, AreNamedForEachAtom)
{
    using enum OxidationRule;
    EXPECT_EQ(rulesOf(u"O2"), (std::vector{Element}));
    EXPECT_EQ(rulesOf(u"Fe^3+"), (std::vector{SimpleIon}));
    EXPECT_EQ(rulesOf(u"KMnO4"), (std::vector{Metal, Sum, Oxygen}));
    EXPECT_EQ(rulesOf(u"NaH"), (std::vector{Metal, Hydride}));
    EXPECT_EQ(rulesOf(u"H2O2"), (std::vector{Hydrogen, Peroxide}));
    EXPECT_EQ(rulesOf(u"OF2"), (std::vector{Sum, Fluorine}));
    EXPECT_EQ(rulesOf(u"FeCl3"), (std::vector{Sum, Electronegative}));
}

TEST(OxidationRules, AreToldInBothLanguages)
{
    EXPECT_EQ(germanSentence(OxidationRule::Element), u"Elemente haben die Oxidationszahl 0.");
    EXPECT_EQ(englishSentence(OxidationRule::Sum), u"All oxidation numbers add up to the charge.");
    EXPECT_EQ(germanSentence(OxidationFault::NoAtoms), u"Ein Teilchen ohne Atome hat keine Oxidationszahl.");
    EXPECT_EQ(englishSentence(OxidationFault::TooLarge),
              u"The numbers of this formula are too large. Write smaller ones.");
}

TEST(OxidationNumbers, AreFoundInDeepBracketsWithoutRecursion)
{
    constexpr std::size_t Depth = 100'000;
    const auto found = numbersOf(String(Depth, u'(') + u"H2O" + String(Depth, u')'));
    ASSERT_EQ(found.numbers.size(), 2U);
    EXPECT_EQ(found.numbers[1].number, (Rational{-2, 1}));
}

} // namespace
} // namespace phial
