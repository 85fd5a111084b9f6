#include "calc/ExpressionSolver.h"
#include "support/Allocations.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

constexpr std::size_t Million = 1'000'000;
constexpr std::size_t HundredThousand = 100'000;

String repeated(StringView part, std::size_t count)
{
    String text;
    text.reserve(part.size() * count);
    for (std::size_t index = 0; index < count; ++index) {
        text += part;
    }
    return text;
}

/// The value of a term that must not fail.
double valueOf(StringView term, const std::vector<Variant>& variables = {})
{
    ExpressionSolver solver;
    double result = 0;
    solver.SOLVE(term, variables, result);
    EXPECT_EQ(solver.SolveError(), u"");
    return result;
}

TEST(LargeTerms, MillionNestedBrackets)
{
    EXPECT_EQ(valueOf(repeated(u"(", Million) + u"7" + repeated(u")", Million)), 7);
}

TEST(LargeTerms, MillionUnclosedBrackets)
{
    EXPECT_EQ(valueOf(repeated(u"(", Million) + u"7"), 7);
}

TEST(LargeTerms, MillionNestedSums)
{
    EXPECT_EQ(valueOf(repeated(u"(1+", Million) + u"7" + repeated(u")", Million)), Million + 7);
}

TEST(LargeTerms, HundredThousandNestedFunctions)
{
    EXPECT_EQ(valueOf(repeated(u"abs(", HundredThousand) + u"-7" + repeated(u")", HundredThousand)), 7);
}

TEST(LargeTerms, HundredThousandFailingBrackets)
{
    EXPECT_EQ(valueOf(u"5" + repeated(u"+(1/0)", HundredThousand)), 5);
    EXPECT_EQ(valueOf(u"5" + repeated(u"+(log(0)+1)", HundredThousand)), 5);
}

TEST(LargeTerms, MillionDecimals)
{
    EXPECT_EQ(valueOf(u"0." + repeated(u"3", Million)), 0.333333333333333);
}

TEST(LargeTerms, MillionLeadingZeros)
{
    EXPECT_EQ(valueOf(repeated(u"0", Million) + u"42"), 42);
}

TEST(LargeTerms, NumberOfAMillionDigitsIsBeyondRangeAndCountsAsZero)
{
    EXPECT_EQ(valueOf(repeated(u"9", Million) + u"+1"), 1);
}

TEST(LargeTerms, MillionDigitsWithBlanksBetween)
{
    EXPECT_EQ(valueOf(repeated(u"0 ", Million) + u"42"), 42);
}

TEST(LargeTerms, HundredThousandSums)
{
    EXPECT_EQ(valueOf(repeated(u"1+", HundredThousand) + u"1"), HundredThousand + 1);
}

TEST(LargeTerms, HundredThousandDifferences)
{
    EXPECT_EQ(valueOf(repeated(u"1-", HundredThousand) + u"1"), 1 - static_cast<double>(HundredThousand));
}

TEST(LargeTerms, HundredThousandProductsAndQuotients)
{
    EXPECT_EQ(valueOf(repeated(u"2/2*", HundredThousand / 2) + u"3"), 3);
}

TEST(LargeTerms, HundredThousandPowers)
{
    EXPECT_EQ(valueOf(u"2" + repeated(u"^1", HundredThousand)), 2);
}

TEST(LargeTerms, HundredThousandSigns)
{
    EXPECT_EQ(valueOf(u"0" + repeated(u"+-1", HundredThousand)), -static_cast<double>(HundredThousand));
}

TEST(LargeTerms, HundredThousandPairsOfMinus)
{
    EXPECT_EQ(valueOf(u"1" + repeated(u"--1", HundredThousand)), HundredThousand + 1);
}

TEST(LargeTerms, HundredThousandVariables)
{
    EXPECT_EQ(valueOf(repeated(u"A+", HundredThousand) + u"0", {u"A", 2.5}), 2.5 * HundredThousand);
}

TEST(LargeTerms, HundredThousandLongValues)
{
    EXPECT_EQ(valueOf(repeated(u"A-A+", HundredThousand) + u"1", {u"A", 123456.789}), 1);
}

TEST(LargeTerms, VariableNameOfAMillionCharacters)
{
    const String name = repeated(u"x", Million);
    EXPECT_EQ(valueOf(u"5*" + name, {name, 3.0}), 15);
}

TEST(LargeTerms, TokensOfALongTermTakeTheirMemoryOnce)
{
    const String term = repeated(u"1+", HundredThousand) + u"1";
    ExpressionSolver solver;
    const std::size_t before = largeAllocations();
    EXPECT_EQ(solver.SolveTerm(term), HundredThousand + 1);
    EXPECT_EQ(largeAllocations() - before, 1U);
    solver.SolveTerm(term);
    EXPECT_EQ(largeAllocations() - before, 1U) << "the solver keeps its memory";
}

} // namespace
} // namespace phial::test
