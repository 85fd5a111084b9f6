#include "core/Arithmetic.h"

#include "support/Raises.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace phial
{
namespace
{

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(ArithmeticTest, DivisionByZeroRaises)
{
    EXPECT_EQ(checkedDivide(1, 4), 0.25);
    EXPECT_RAISES(checkedDivide(1, 0), DivisionByZero);
    EXPECT_RAISES(checkedDivide(0, 0), DivisionByZero);
    EXPECT_RAISES(checkedDivide(1, -0.0), DivisionByZero);
}

TEST(ArithmeticTest, ResultsBeyondTheRangeRaise)
{
    EXPECT_RAISES(checkedAdd(1.7e308, 1.7e308), Overflow);
    EXPECT_RAISES(checkedSubtract(-1.7e308, 1.7e308), Overflow);
    EXPECT_RAISES(checkedMultiply(1e200, 1e200), Overflow);
    EXPECT_RAISES(checkedDivide(1e200, 1e-200), Overflow);
    EXPECT_RAISES(checkedPower(10, 400), Overflow);
    EXPECT_RAISES(checkedExponential(710), Overflow);
    EXPECT_EQ(checkedAdd(1, 2), 3);
    EXPECT_EQ(checkedSubtract(1, 2), -1);
    EXPECT_EQ(checkedMultiply(2, 3), 6);
}

TEST(ArithmeticTest, ResultsTooSmallAreZero)
{
    EXPECT_EQ(checkedMultiply(1e-200, 1e-200), 0);
    EXPECT_EQ(checkedExponential(-800), 0);
}

TEST(ArithmeticTest, ArgumentsThatAreNotFiniteRaise)
{
    EXPECT_RAISES(checkedAdd(Infinity, 1), InvalidArgument);
    EXPECT_RAISES(checkedDivide(1, Infinity), InvalidArgument);
    EXPECT_RAISES(checkedPower(NotANumber, 0), InvalidArgument);
    EXPECT_RAISES(checkedExponential(-Infinity), InvalidArgument);
}

TEST(ArithmeticTest, PowersOfNegativeNumbersNeedWholeExponents)
{
    EXPECT_EQ(checkedPower(-2, 3), -8);
    EXPECT_EQ(checkedPower(-2, -1), -0.5);
    EXPECT_RAISES(checkedPower(-2, 0.5), InvalidArgument);
}

TEST(ArithmeticTest, PowersOfZero)
{
    EXPECT_EQ(checkedPower(0, 0), 1);
    EXPECT_EQ(checkedPower(0, 2), 0);
    EXPECT_RAISES(checkedPower(0, -1), DivisionByZero);
}

TEST(ArithmeticTest, RootsAndLogarithmsRefuseWhatHasNone)
{
    EXPECT_EQ(checkedSquareRoot(9), 3);
    EXPECT_EQ(checkedSquareRoot(0), 0);
    EXPECT_RAISES(checkedSquareRoot(-1), InvalidArgument);
    EXPECT_EQ(checkedLogarithm(1), 0);
    EXPECT_RAISES(checkedLogarithm(0), InvalidArgument);
    EXPECT_RAISES(checkedLogarithm(-1), InvalidArgument);
}

TEST(ArithmeticTest, HalvesAreRoundedToTheEvenNeighbour)
{
    EXPECT_EQ(toWhole(0.5), 0);
    EXPECT_EQ(toWhole(1.5), 2);
    EXPECT_EQ(toWhole(2.5), 2);
    EXPECT_EQ(toWhole(-0.5), 0);
    EXPECT_EQ(toWhole(-1.5), -2);
    EXPECT_EQ(toWhole(2.500001), 3);
}

TEST(ArithmeticTest, WholeNumbersEndAt32Bits)
{
    EXPECT_EQ(toWhole(2147483647.4), 2147483647);
    EXPECT_EQ(toWhole(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_RAISES(toWhole(2147483647.5), Overflow);
    EXPECT_RAISES(toWhole(-2147483649.0), Overflow);
    EXPECT_RAISES(toWhole(NotANumber), Overflow);
}

TEST(ArithmeticTest, WholeDivisionTruncates)
{
    EXPECT_EQ(wholeQuotient(7, -2), -3);
    EXPECT_EQ(wholeRemainder(7, -2), 1);
    EXPECT_EQ(wholeRemainder(-7, 2), -1);
    EXPECT_RAISES(wholeQuotient(1, 0), DivisionByZero);
    EXPECT_RAISES(wholeRemainder(1, 0), DivisionByZero);
}

TEST(ArithmeticTest, TheOneQuotientBeyond32BitsRaises)
{
    constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
    EXPECT_RAISES(wholeQuotient(Least, -1), Overflow);
    EXPECT_EQ(wholeRemainder(Least, -1), 0);
}

TEST(ArithmeticTest, DecimalsAreRoundedByTheExactValue)
{
    EXPECT_EQ(roundToDecimals(0.125, 2), 0.12); // a true tie
    EXPECT_EQ(roundToDecimals(0.375, 2), 0.38);
    EXPECT_EQ(roundToDecimals(2.675, 2), 2.67); // in binary a little less
    EXPECT_EQ(roundToDecimals(35.45, 1), 35.5); // in binary a little more
    EXPECT_EQ(roundToDecimals(-1.25, 1), -1.2);
    EXPECT_EQ(roundToDecimals(2.5, 0), 2);
}

TEST(ArithmeticTest, NumbersWithoutFurtherDecimalsStay)
{
    EXPECT_EQ(roundToDecimals(1e300, 2), 1e300);
    EXPECT_EQ(roundToDecimals(5e-324, 2000), 5e-324);
    EXPECT_EQ(roundToDecimals(0.1, 400), 0.1);
    EXPECT_EQ(roundToDecimals(Infinity, 2), Infinity);
    EXPECT_TRUE(std::isnan(roundToDecimals(NotANumber, 2)));
    EXPECT_RAISES(roundToDecimals(1, -1), InvalidArgument);
}

} // namespace
} // namespace phial
