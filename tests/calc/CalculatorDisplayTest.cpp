#include "calc/CalculatorDisplay.h"

#include "core/NumberText.h"
#include "support/CaseTable.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sstream>

namespace phial
{

namespace
{

Locale localeWith(char16_t decimalSign)
{
    Locale locale;
    locale.decimalSign = decimalSign;
    return locale;
}

std::vector<Variant> sampleVariables()
{
    return {Variant(u"A"),    Variant(2.5), Variant(u"N2"),   Variant(-3.0),
            Variant(u"long"), Variant(1.0), Variant(u"word"), Variant(u"Wasser")};
}

CalculatorAnswer strike(CalculatorDisplay& display, const String& key)
{
    const std::size_t colon = key.find(u':', 1);
    const String kind = key.substr(0, colon == String::npos ? 0 : colon);
    const String rest = colon == String::npos ? String() : replaced(key.substr(colon + 1), u"_", u" ");
    if (kind == u"var") {
        return display.addVariable(rest);
    }
    if (kind == u"mass") {
        return display.addMass(typedNumberAtStart(rest).value);
    }
    if (kind == u"paste") {
        return display.paste(rest);
    }
    if (kind == u"show") {
        display.show(rest);
        return CalculatorAnswer::Done;
    }
    if (kind == u"typed") {
        return display.press(CalculatorDisplay::keyFor(rest.front()));
    }
    if (key.size() == 2 && key.front() == u'M') {
        return display.recall(key[1] - u'1');
    }
    if (key.starts_with(u"clear")) {
        display.clear(key[5] - u'1');
        return CalculatorAnswer::Done;
    }
    return display.press(key);
}

std::vector<String> keysIn(const String& text)
{
    std::vector<String> keys;
    std::istringstream stream(toUtf8(text));
    for (std::string key; stream >> key;) {
        keys.push_back(fromUtf8(key));
    }
    return keys;
}

String valueText(const std::optional<double>& value, char16_t sign)
{
    return value ? plainText(*value, sign) : String(u"-");
}

String memoriesText(const CalculatorDisplay& display, char16_t sign)
{
    String text;
    String gap;
    for (std::int32_t at = 0; at < CalculatorDisplay::Memories; ++at) {
        gap += (at > 0 ? u" " : u"") + valueText(display.memory(at), sign);
        if (display.memory(at)) {
            text = gap;
        }
    }
    return text;
}

std::string nameOf(CalculatorAnswer answer)
{
    switch (answer) {
    case CalculatorAnswer::Done:
        return "Done";
    case CalculatorAnswer::Ignored:
        return "Ignored";
    case CalculatorAnswer::NoRoom:
        return "NoRoom";
    case CalculatorAnswer::Failed:
        return "Failed";
    }
    return {};
}

class CalculatorCases : public ::testing::TestWithParam<test::CaseRow>
{
};

} // namespace

TEST_P(CalculatorCases, KeysMakeThatOfTheLine)
{
    const auto& columns = GetParam().columns;
    const char16_t sign = columns[0].front();
    CalculatorDisplay display(nullptr, localeWith(sign));
    display.variables(sampleVariables());
    auto answer = CalculatorAnswer::Done;
    for (const String& key : keysIn(columns[1])) {
        answer = strike(display, key);
    }
    EXPECT_EQ(toUtf8(display.text()), toUtf8(columns[2]));
    EXPECT_EQ(toUtf8(memoriesText(display, sign)), toUtf8(columns[3]));
    EXPECT_EQ(toUtf8(valueText(display.result(), sign)), toUtf8(columns[4]));
    EXPECT_EQ(nameOf(answer), toUtf8(columns[5]));
}

INSTANTIATE_TEST_SUITE_P(CalculatorDisplay, CalculatorCases,
                         ::testing::ValuesIn(test::readCaseTable("calculator.txt", 6)),
                         test::caseName<::testing::TestParamInfo<test::CaseRow>>);

TEST(CalculatorDisplay, IsFreshUntilAKeyIsPressedAndBehindAResult)
{
    CalculatorDisplay display;
    EXPECT_TRUE(display.isFresh());
    display.press(u"2");
    EXPECT_FALSE(display.isFresh());
    display.press(u"=");
    EXPECT_TRUE(display.isFresh());
    display.press(u"sin");
    EXPECT_TRUE(display.isFresh());
    display.press(u"<-");
    EXPECT_FALSE(display.isFresh());
    display.show(u"7");
    EXPECT_TRUE(display.isFresh());
}

TEST(CalculatorDisplay, AFailedTermHasTheValueMinusOneAndTakesTheResultAway)
{
    CalculatorDisplay display;
    display.press(u"7");
    display.press(u"OK");
    EXPECT_EQ(display.result(), 7);
    display.show(u"1/0");
    display.press(u"=");
    EXPECT_EQ(display.value(), -1);
    EXPECT_FALSE(display.result());
    EXPECT_EQ(display.failedTerm(), u"1/0");
    EXPECT_TRUE(display.solveError().starts_with(u"Error executing 1 / 0"));
    display.press(u"5");
    EXPECT_EQ(display.failedTerm(), u"");
}

TEST(CalculatorDisplay, HasFourMemories)
{
    CalculatorDisplay display;
    for (const std::int32_t outside : {-1, 4}) {
        EXPECT_RAISES(display.memory(outside), IndexOutOfBounds);
        EXPECT_RAISES(display.clear(outside), IndexOutOfBounds);
        EXPECT_RAISES(display.recall(outside), IndexOutOfBounds);
    }
}

TEST(CalculatorDisplay, ResultsKeepAllDigitsThatThereIsRoomFor)
{
    const CalculatorDisplay display(nullptr, localeWith(u','));
    EXPECT_EQ(display.fitted(-1.23456789012345e-15), u"-1,2345678901235E-15");
    EXPECT_EQ(display.fitted(-9.99999999999914e-300), u"-9,999999999999E-300");
    EXPECT_EQ(display.fitted(-9.99999999999999e-300), u"-1E-299");
    EXPECT_EQ(display.fitted(1.23456789012345e-300), u"1,2345678901234E-300");
    EXPECT_EQ(display.fitted(0.00001234567890123), u"0,00001234567890123");
    EXPECT_EQ(display.fitted(1e300), u"1E+300");
}

namespace
{

/// Any key, memory, variable and mass, with digits more often than the rest.
String randomKey(std::mt19937& random)
{
    static constexpr StringView Keys[] = {
        u"0",  u"1",  u"2",     u"5",      u"9",           u"7",         u",",    u".",  u"+",
        u"-",  u"*",  u"r",     u"/",      u":",           u"^",         u"(",    u")",  u"log",
        u"<-", u"CE", u"(-)",   u"=",      u"STO1",        u"STO2",      u"STO4", u"OK", u"M1",
        u"M2", u"M4", u"var:A", u"var:N2", u"mass:12,011", u"mass:1,008"};
    return String(Keys[random() % std::size(Keys)]);
}

} // namespace

TEST(CalculatorDisplay, WhateverIsPressedNoNumberIsCutAndEachResultIsTheSolvers)
{
    std::mt19937 random(41);
    for (int run = 0; run < 3000; ++run) {
        CalculatorDisplay display(nullptr, localeWith(u','));
        display.variables(sampleVariables());
        for (int at = 0; at < 40; ++at) {
            const String before = display.text();
            const bool wasFailed = display.isFailed();
            const String key = randomKey(random);
            const CalculatorAnswer answer = strike(display, key);
            ASSERT_LE(display.text().size(), CalculatorDisplay::Room);
            if (answer == CalculatorAnswer::NoRoom || answer == CalculatorAnswer::Ignored) {
                ASSERT_EQ(toUtf8(display.text()), toUtf8(before)) << toUtf8(key);
            }
            ASSERT_EQ(display.isFailed(), !display.failedTerm().empty());
            if (key == u"=" && !wasFailed) {
                ExpressionSolver solver(nullptr, localeWith(u','));
                double value = 0;
                solver.SOLVE(before, display.variables(), value);
                ASSERT_EQ(answer == CalculatorAnswer::Failed, !solver.SolveError().empty()) << toUtf8(before);
                ASSERT_EQ(toUtf8(display.text()),
                          display.isFailed() ? "ERROR" : toUtf8(display.fitted(value)));
            }
        }
    }
}

} // namespace phial
