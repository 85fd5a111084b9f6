#include "core/ExactNumber.h"

#include <bit>
#include <gtest/gtest.h>
#include <limits>

namespace phial
{
namespace
{

TEST(ExactNumberTest, NumbersAreWrittenShort)
{
    EXPECT_EQ(exactText(0.1), u"0.1");
    EXPECT_EQ(exactText(-0.0), u"-0");
    EXPECT_EQ(exactText(1e20), u"1e+20");
    EXPECT_EQ(exactText(std::numeric_limits<double>::infinity()), u"#7FF0000000000000");
}

TEST(ExactNumberTest, BitsOfANumberThatIsNotFiniteComeBack)
{
    constexpr std::uint64_t Bits = 0xFFF8000000000123U;
    const auto number = exactReal(exactText(std::bit_cast<double>(Bits)));
    ASSERT_TRUE(number.has_value());
    EXPECT_EQ(std::bit_cast<std::uint64_t>(*number), Bits);
}

TEST(ExactNumberTest, WhatIsNotANumberThroughoutIsNone)
{
    for (const StringView text : {u"", u" 1", u"1 ", u"+1", u"1,5", u"0x10", u"nan", u"inf", u"1e999", u"#0",
                                  u"#7FF000000000000G", u"1\u0660"}) {
        EXPECT_FALSE(exactReal(text).has_value()) << toUtf8(text);
        EXPECT_FALSE(exactWhole(text).has_value()) << toUtf8(text);
        EXPECT_FALSE(exactCount(text).has_value()) << toUtf8(text);
    }
    EXPECT_FALSE(exactReal(String(100, u'1')).has_value());
}

TEST(ExactNumberTest, WholeNumbersHave32Bits)
{
    EXPECT_EQ(exactWhole(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_FALSE(exactWhole(u"2147483648").has_value());
    EXPECT_EQ(exactCount(u"4294967295"), std::numeric_limits<std::uint32_t>::max());
    EXPECT_FALSE(exactCount(u"4294967296").has_value());
    EXPECT_FALSE(exactCount(u"-1").has_value());
}

} // namespace
} // namespace phial
