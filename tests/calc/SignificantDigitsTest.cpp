#include "calc/SignificantDigits.h"

#include "calc/CalculatorDisplay.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

/// The value of the term in the digits that its numbers warrant; "" where all are shown.
std::string shownIn(StringView term)
{
    ExpressionSolver solver;
    double value = 0;
    solver.SOLVE(term, {}, value);
    return toUtf8(inSignificantDigits(value, term, u',').value_or(u""));
}

TEST(TextInRoom, HasAsManyDigitsAsThereIsRoomFor)
{
    EXPECT_EQ(textInRoom(18.015, 12, u','), u"18,015");
    EXPECT_EQ(textInRoom(1.0 / 3, 12, u','), u"0,3333333333");
    EXPECT_EQ(textInRoom(2.0 / 3, 6, u'.'), u"0.6667");
    EXPECT_EQ(textInRoom(-1E-20 / 3, 20, u','), u"-3,3333333333333E-21");
    EXPECT_EQ(textInRoom(-1E-20 / 3, 12, u','), u"-3,33333E-21");
    EXPECT_EQ(textInRoom(123456, 4, u','), u"100000") << "not without its value";
}

} // namespace

TEST(SignificantDigits, AProductHasThoseOfTheLeastExactNumber)
{
    EXPECT_EQ(shownIn(u"2,50*3,1"), "7,8");
    EXPECT_EQ(shownIn(u"2,0*3,0"), "6,0");
    EXPECT_EQ(shownIn(u"5,85/58,44"), "0,100");
    EXPECT_EQ(shownIn(u"0,0025*18,015"), "0,045");
    EXPECT_EQ(shownIn(u"-1,5*2,00"), "-3,0");
}

TEST(SignificantDigits, ASumHasTheDecimalsOfTheNumberWithTheFewest)
{
    EXPECT_EQ(shownIn(u"12,011+15,9990"), "28,010");
    EXPECT_EQ(shownIn(u"100,5+0,25"), "100,8");
    EXPECT_EQ(shownIn(u"(1,25-1,05)"), "0,20");
    EXPECT_EQ(shownIn(u"-1,5+-1,25"), "-2,8");
}

TEST(SignificantDigits, WholeNumbersAreCountsAndExact)
{
    EXPECT_EQ(shownIn(u"4*1,008"), "4,032");
    EXPECT_EQ(shownIn(u"2+3,5"), "5,5");
    EXPECT_EQ(shownIn(u"2*3"), "");
    EXPECT_EQ(shownIn(u"1/3"), "");
}

TEST(SignificantDigits, ThoseOfAPowersExponentDoNotCount)
{
    EXPECT_EQ(shownIn(u"2,500^2,0"), "6,250");
    EXPECT_EQ(shownIn(u"2,500^-2,0"), "0,1600");
    EXPECT_EQ(shownIn(u"6,022E+23*2"), "1,204E+24");
}

TEST(SignificantDigits, ZerosAtTheBeginningAreNone)
{
    EXPECT_EQ(shownIn(u"0,00120*5,000"), "0,00600");
    EXPECT_EQ(shownIn(u"0,0*5,000"), "0");
    EXPECT_EQ(shownIn(u"0,00*5,000"), "0,0");
}

TEST(SignificantDigits, LargeAndSmallValuesHaveAnExponent)
{
    EXPECT_EQ(shownIn(u"125,5*1000"), "1,255E+05");
    EXPECT_EQ(shownIn(u"12,5*10"), "125");
    EXPECT_EQ(shownIn(u"1,5/10000"), "0,00015");
    EXPECT_EQ(shownIn(u"1,5/100000"), "1,5E-05");
    EXPECT_EQ(shownIn(u"9,96*1,0"), "10");
    EXPECT_EQ(shownIn(u"99,6*1,0"), "1,0E+02");
}

TEST(SignificantDigits, NamesHaveNone)
{
    EXPECT_EQ(shownIn(u"log(1,5)"), "");
    EXPECT_EQ(shownIn(u"2,5*A"), "");
    EXPECT_EQ(shownIn(u""), "");
}

TEST(SignificantDigits, TheCalculatorShowsThemWhenAskedTo)
{
    Locale german;
    CalculatorDisplay display(nullptr, german);
    display.show(u"2,0*3,0");
    display.press(u"=");
    EXPECT_EQ(display.text(), u"6");
    display.digits(ResultDigits::Significant);
    display.show(u"2,0*3,333");
    display.press(u"STO1");
    EXPECT_EQ(display.text(), u"6,7");
    EXPECT_EQ(display.memory(0), 6.666);
    display.show(u"1/3");
    display.press(u"=");
    EXPECT_EQ(display.text(), u"0,333333333333333");
}

} // namespace phial
