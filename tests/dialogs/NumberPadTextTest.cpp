#include "dialogs/NumberPadText.h"

#include "support/CaseTable.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace phial
{

namespace
{

/// Pieces between blanks.
std::vector<String> wordsIn(const String& text)
{
    std::vector<String> words;
    std::istringstream stream(toUtf8(text));
    for (std::string word; stream >> word;) {
        words.push_back(fromUtf8(word));
    }
    return words;
}

NumberPadText::Selection selectionIn(const String& text)
{
    NumberPadText::Selection selection;
    std::istringstream(toUtf8(text)) >> selection.start >> selection.length;
    return selection;
}

class NumberPadCases : public ::testing::TestWithParam<test::CaseRow>
{
};

} // namespace

TEST_P(NumberPadCases, KeysMakeThatOfTheText)
{
    const auto& columns = GetParam().columns;
    const String& before = columns[1];
    NumberPadText pad(columns[2] == u"yes" ? before : String(), columns[0].front());
    if (columns[2] == u"no") {
        pad.typed(before);
    }
    auto selection = selectionIn(columns[3]);
    for (const String& key : wordsIn(columns[4])) {
        pad.press(key, selection);
        selection = {pad.text().size(), 0};
    }
    EXPECT_EQ(toUtf8(pad.text()), toUtf8(columns[5]));
    EXPECT_EQ(toUtf8(pad.number()), toUtf8(columns[6]));
    EXPECT_EQ(pad.isTouched(), columns[2] == u"no" || !columns[4].empty());
}

INSTANTIATE_TEST_SUITE_P(NumberPadText, NumberPadCases,
                         ::testing::ValuesIn(test::readCaseTable("numericpad.txt", 7)),
                         test::caseName<::testing::TestParamInfo<test::CaseRow>>);

TEST(NumberPadText, WhateverIsPressedANumberIsRead)
{
    constexpr StringView Keys[] = {u"0", u"5", u"9", u",", u"BACKSPACE", u"CLEAR", u"SWAP", u"SWAP"};
    std::mt19937 random(17);
    NumberPadText pad({}, u',');
    for (int at = 0; at < 20000; ++at) {
        const std::size_t start = random() % (pad.text().size() + 1);
        pad.press(Keys[random() % std::size(Keys)], {start, random() % (pad.text().size() - start + 1)});
        const String number = pad.number();
        ASSERT_EQ(NumberPadText(number, u',').number().empty(), false);
        ASSERT_EQ(number.find_first_not_of(u"-0123456789,E+"), String::npos) << toUtf8(pad.text());
        NumberPadText again({}, u',');
        again.typed(number);
        ASSERT_EQ(toUtf8(again.number()), toUtf8(number)) << toUtf8(pad.text());
    }
}

} // namespace phial
