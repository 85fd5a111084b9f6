#include "chem/FormulaAnalysis.h"

#include "support/Raises.h"

#include <cmath>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <map>
#include <vector>

namespace phial
{
namespace
{

std::map<String, double> counted(StringView formula)
{
    std::map<String, double> counts;
    for (const AtomCount& atoms : AtomCounts(formula)) {
        counts[String(atoms.symbol)] = atoms.count;
    }
    return counts;
}

String repeated(StringView text, int times)
{
    String result;
    for (int time = 0; time < times; ++time) {
        result += text;
    }
    return result;
}

// A symbol for every number: a capital and small letters as digits.
String symbolNumber(int number)
{
    String symbol(1, u'A');
    do {
        symbol += static_cast<char16_t>(u'a' + number % 26);
        number /= 26;
    } while (number > 0);
    return symbol;
}

TEST(NextSymbol, StandsBehindTheSymbolItGives)
{
    std::size_t position = 0;
    EXPECT_EQ(nextSymbol(u"2NaCl", position), u"Na");
    EXPECT_EQ(position, 3U);
    EXPECT_EQ(nextSymbol(u"2NaCl", position), u"Cl");
    EXPECT_EQ(position, 5U);
    EXPECT_EQ(nextSymbol(u"2NaCl", position), u"");
    EXPECT_EQ(position, 5U);
}

TEST(AtomCounts, KeepTheOrderOfFirstAppearance)
{
    std::vector<StringView> symbols;
    const String formula = u"CH3COOH";
    for (const AtomCount& atoms : AtomCounts(formula)) {
        symbols.push_back(atoms.symbol);
    }
    EXPECT_THAT(symbols, testing::ElementsAre(u"C", u"H", u"O"));
}

TEST(AtomCounts, FindEachOfVeryManySymbolsAgain)
{
    String formula;
    for (int round = 0; round < 2; ++round) {
        for (int number = 0; number < 20'000; ++number) {
            formula += symbolNumber(number);
        }
    }
    const auto counts = counted(formula);
    EXPECT_EQ(counts.size(), 20'000U);
    EXPECT_THAT(counts, testing::Each(testing::Pair(testing::_, 2.0)));
}

TEST(AtomCounts, TakeALongFormulaInItsWholeLength)
{
    EXPECT_EQ(counted(repeated(u"CH2", 40'000)), (std::map<String, double>{{u"C", 40'000}, {u"H", 80'000}}));
}

TEST(AtomCounts, TakeALongNumberAsADouble)
{
    EXPECT_EQ(counted(u"H3000000000").at(u"H"), 3e9);
    EXPECT_EQ(counted(u"H" + String(400, u'9')).at(u"H"), HUGE_VAL);
}

TEST(AtomCounts, NestTenThousandGroupsWithoutNumbers)
{
    EXPECT_EQ(counted(repeated(u"(", 10'000) + u"OH" + repeated(u")", 10'000)),
              (std::map<String, double>{{u"H", 0}, {u"O", 0}}));
}

TEST(AtomCounts, NestTenThousandGroupsWithTheNumberOne)
{
    EXPECT_EQ(counted(repeated(u"(H", 10'000) + repeated(u")1", 10'000)).at(u"H"), 10'000);
}

TEST(AtomCounts, AreInfiniteBeyondTheRangeOfADouble)
{
    EXPECT_EQ(counted(repeated(u"(", 10'000) + u"H" + repeated(u")2", 10'000)).at(u"H"), HUGE_VAL);
}

TEST(AtomCounts, AreZeroInAGroupWithoutNumberHoweverMuchItHolds)
{
    EXPECT_EQ(counted(repeated(u"(", 10'000) + u"H" + repeated(u")2", 9'999) + u")").at(u"H"), 0);
    EXPECT_EQ(counted(u"(" + repeated(u"(", 10'000) + u"H0" + repeated(u")2", 10'000) + u")2").at(u"H"), 0);
}

TEST(AtomCounts, TakeTenThousandGroupsWithoutAnEnd)
{
    EXPECT_EQ(counted(u"Na2" + repeated(u"(OH", 10'000)),
              (std::map<String, double>{{u"Na", 2}, {u"H", 0}, {u"O", 0}}));
}

TEST(AtomCounts, RaiseAnOverflowForANumberBehindAGroupBeyond32Bits)
{
    EXPECT_EQ(counted(u"(H)2147483647").at(u"H"), 2147483647.0);
    EXPECT_RAISES(counted(u"(H)2147483648"), Overflow);
}

} // namespace
} // namespace phial
