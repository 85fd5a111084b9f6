#include "core/NumberText.h"

#include "support/CaseTable.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace phial
{
namespace
{

// Columns of typed_numbers.txt.
enum NumberColumn : std::size_t { Typed, Value, Rest, NumberColumnCount };

class TypedNumbers : public testing::TestWithParam<test::CaseRow>
{
};

/// The columns show a blank at either end as "_".
String withBlanks(StringView column)
{
    return replaced(column, u"_", u" ");
}

TEST_P(TypedNumbers, AreReadAsWritten)
{
    const auto& columns = GetParam().columns;
    const String text = withBlanks(columns[Typed]);
    const NumberAtStart number = typedNumberAtStart(text);
    const String value = number.length == 0 ? u"none"
                         : number.overflow  ? u"overflow"
                                            : plainText(number.value, u'.');
    EXPECT_EQ(value, columns[Value]);
    EXPECT_EQ(text.substr(number.length), withBlanks(columns[Rest]));
}

INSTANTIATE_TEST_SUITE_P(Table, TypedNumbers,
                         testing::ValuesIn(test::readCaseTable("typed_numbers.txt", NumberColumnCount)),
                         test::caseName<testing::TestParamInfo<test::CaseRow>>);

TEST(NumberTextTest, PlainTextDropsTrailingZeros)
{
    EXPECT_EQ(plainText(2.5, u','), u"2,5");
    EXPECT_EQ(plainText(100.0, u','), u"100");
    EXPECT_EQ(plainText(-0.25, u'.'), u"-0.25");
    EXPECT_EQ(plainText(0.0, u','), u"0");
}

TEST(NumberTextTest, PlainTextHasFifteenSignificantDigits)
{
    EXPECT_EQ(plainText(0.1 + 0.2, u','), u"0,3");
    EXPECT_EQ(plainText(1.0 / 3, u','), u"0,333333333333333");
    EXPECT_EQ(plainText(2.0 / 3, u','), u"0,666666666666667");
    EXPECT_EQ(plainText(123456789.123456789, u','), u"123456789,123457");
    EXPECT_EQ(plainText(0.99999999999999994, u','), u"1");
}

TEST(NumberTextTest, NotationChangesAtItsLimits)
{
    EXPECT_EQ(plainText(0.00001, u','), u"0,00001");
    EXPECT_EQ(plainText(0.000009, u','), u"9E-06");
    EXPECT_EQ(plainText(999999999999999.0, u','), u"999999999999999");
    EXPECT_EQ(plainText(1e15, u','), u"1E+15");
    EXPECT_EQ(plainText(9999999999999999.0, u','), u"1E+16");
    EXPECT_EQ(plainText(1.5e300, u','), u"1,5E+300");
    EXPECT_EQ(plainText(-1.25e-7, u','), u"-1,25E-07");
}

TEST(NumberTextTest, NeverMinusZero)
{
    EXPECT_EQ(plainText(-0.0, u','), u"0");
}

TEST(NumberTextTest, SmallestNumbersHaveFifteenDigitsToo)
{
    EXPECT_EQ(plainText(std::numeric_limits<double>::denorm_min(), u'.'), u"4.94065645841247E-324");
}

TEST(NumberTextTest, ValuesThatAreNotFiniteHaveNames)
{
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(plainText(Infinity, u','), u"inf");
    EXPECT_EQ(plainText(-Infinity, u','), u"-inf");
    EXPECT_EQ(plainText(std::nan(""), u','), u"nan");
}

TEST(NumberTextTest, PlainTextAgreesWithTheStandardLibrary)
{
    std::mt19937_64 random(4711);
    for (int i = 0; i < 100000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (!std::isfinite(value)) {
            continue;
        }
        char expected[64];
        std::snprintf(expected, sizeof expected, "%.14e", value);
        const String text = plainText(value, u'.');
        ASSERT_EQ(std::strtod(toUtf8(text).c_str(), nullptr), std::strtod(expected, nullptr)) << expected;
    }
}

TEST(NumberTextTest, NumbersOfFifteenDigitsComeBack)
{
    std::mt19937_64 random(815);
    std::uniform_int_distribution<std::int64_t> digits(-999'999'999'999'999, 999'999'999'999'999);
    std::uniform_int_distribution<int> exponent(-20, 20);
    for (int i = 0; i < 20000; ++i) {
        const double value = static_cast<double>(digits(random)) * std::pow(10, exponent(random));
        const String text = plainText(value, u',');
        const double read = typedNumberAtStart(text).value;
        ASSERT_EQ(plainText(read, u','), text);
        ASSERT_EQ(typedNumberAtStart(text).length, text.size());
    }
}

TEST(NumberTextTest, TheNumberAtTheBeginningNeedsAPoint)
{
    EXPECT_EQ(numberAtStart(u"  -12.5E+1 g").value, -125);
    EXPECT_EQ(numberAtStart(u"  -12.5E+1 g").length, 10U);
    EXPECT_EQ(numberAtStart(u"2,5").value, 2);
    EXPECT_EQ(numberAtStart(u"1EP3").length, 1U);
    EXPECT_EQ(numberAtStart(u"abc").value, 0);
    EXPECT_EQ(numberAtStart(u"").length, 0U);
}

TEST(NumberTextTest, AMillionDigitsAreRead)
{
    const String digits(1'000'000, u'9');
    EXPECT_TRUE(typedNumberAtStart(digits).overflow);
    EXPECT_EQ(typedNumberAtStart(u"0," + digits).value, 1);
    EXPECT_EQ(typedNumberAtStart(digits + u"E-1000000").value, 1);
    EXPECT_EQ(typedNumberAtStart(u"1E-" + digits).value, 0);
}

} // namespace
} // namespace phial
