#include "core/Format.h"

#include "support/Raises.h"

#include <gtest/gtest.h>
#include <limits>

namespace phial
{
namespace
{

const Locale German;
const Locale English{u'.', LanguageEnglish};

Moment moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return Moment::fromCalendar({year, month, day, hour, minute, second});
}

const Moment Morning = moment(2024, 3, 5, 8, 7, 9);

TEST(FormatTest, DateAndTime)
{
    EXPECT_EQ(formatPattern(Morning, u"dd.mm.yyyy", German), u"05.03.2024");
    EXPECT_EQ(formatPattern(Morning, u"dd-mm-yyyy", German), u"05-03-2024");
    EXPECT_EQ(formatPattern(Morning, u"HH:MM:SS", German), u"08:07:09");
    EXPECT_EQ(formatPattern(Morning, u"dd.mm.yyyy HH:MM", German), u"05.03.2024 08:07");
    EXPECT_EQ(formatPattern(Morning, u"HH:MM:SS dd.mm.yyyy", German), u"08:07:09 05.03.2024");
    EXPECT_EQ(formatPattern(Morning, u"yyyy-mm-dd HH:MM:SS", German), u"2024-03-05 08:07:09");
}

TEST(FormatTest, MinutesStandDirectlyBehindHours)
{
    EXPECT_EQ(formatPattern(Morning, u"h:m", German), u"8:7");
    EXPECT_EQ(formatPattern(Morning, u"mm hh mm dd mm", German), u"03 08 07 05 03");
    EXPECT_EQ(formatPattern(Morning, u"nn", German), u"07");
}

TEST(FormatTest, ShortFields)
{
    EXPECT_EQ(formatPattern(Morning, u"d.m.yy", German), u"5.3.24");
    EXPECT_EQ(formatPattern(Morning, u"h:n:s", German), u"8:7:9");
}

TEST(FormatTest, NamesFollowTheLanguageInForce)
{
    EXPECT_EQ(formatPattern(Morning, u"dd. mmmm yyyy", German), u"05. M\u00E4rz 2024");
    EXPECT_EQ(formatPattern(Morning, u"dd. mmmm yyyy", English), u"05. March 2024");
    EXPECT_EQ(formatPattern(Morning, u"dddd, mmm", German), u"Dienstag, Mrz");
    EXPECT_EQ(formatPattern(Morning, u"ddd, mmm", English), u"Tue, Mar");
    EXPECT_EQ(formatPattern(Morning, u"ddd", German), u"Di");
}

TEST(FormatTest, WeekdaysBeforeDayZero)
{
    EXPECT_EQ(formatPattern(moment(1899, 12, 30), u"dddd", German), u"Samstag");
    EXPECT_EQ(formatPattern(moment(1899, 12, 29, 18), u"dddd", German), u"Freitag");
    EXPECT_EQ(formatPattern(moment(1800, 1, 1), u"dddd", English), u"Wednesday");
}

TEST(FormatTest, QuotedSignsStandForThemselves)
{
    EXPECT_EQ(formatPattern(Morning, u"\"am\" d.m.", German), u"am 5.3.");
    EXPECT_EQ(formatPattern(Morning, u"\\d: d", German), u"d: 5");
}

TEST(FormatTest, NumbersWithFixedDecimals)
{
    EXPECT_EQ(formatPattern(3.14159, u"#0.00", German), u"3,14");
    EXPECT_EQ(formatPattern(3.14159, u"#0.00", English), u"3.14");
    EXPECT_EQ(formatPattern(0.5, u"#0.00", German), u"0,50");
    EXPECT_EQ(formatPattern(1234567.0, u"#0.0", German), u"1234567,0");
    EXPECT_EQ(formatPattern(-2, u"#0.0", German), u"-2,0");
}

TEST(FormatTest, NumbersWithoutDecimals)
{
    EXPECT_EQ(formatPattern(12.4, u"#0", German), u"12");
    EXPECT_EQ(formatPattern(0, u"#0", German), u"0");
    EXPECT_EQ(formatPattern(7, u"000", German), u"007");
    EXPECT_EQ(formatPattern(2.5, u"#0", German), u"2");
    EXPECT_EQ(formatPattern(3.5, u"#0", German), u"4");
}

TEST(FormatTest, DecimalsShownWhenNeeded)
{
    EXPECT_EQ(formatPattern(2.5, u"0.0##", German), u"2,5");
    EXPECT_EQ(formatPattern(2.125, u"0.0##", German), u"2,125");
    EXPECT_EQ(formatPattern(2, u"0.##", German), u"2");
    EXPECT_EQ(formatPattern(0.5, u"#.0", German), u",5");
}

TEST(FormatTest, NothingIsNegativeZero)
{
    EXPECT_EQ(formatPattern(-0.001, u"#0.00", German), u"0,00");
    EXPECT_EQ(formatPattern(-0.0, u"#0", German), u"0");
}

TEST(FormatTest, TextAroundANumberStays)
{
    EXPECT_EQ(formatPattern(18.02, u"#0.0 g/mol", German), u"18,0 g/mol");
    EXPECT_EQ(formatPattern(5, u"\"No. 1: \"0", German), u"No. 1: 5");
}

TEST(FormatTest, NumbersOfAnySizeAreFormatted)
{
    EXPECT_EQ(formatPattern(std::numeric_limits<double>::max(), u"0.0", German).size(), 311U);
    EXPECT_EQ(formatPattern(std::numeric_limits<double>::infinity(), u"0.0", German), u"inf");
}

TEST(FormatTest, ValuesAreConvertedToWhatThePatternAsksFor)
{
    EXPECT_EQ(formatPattern(u"2,5", u"#0.00", German), u"2,50");
    EXPECT_EQ(formatPattern(45356.0, u"dd.mm.yyyy", German), u"05.03.2024");
    EXPECT_RAISES(formatPattern(u"Wasser", u"#0.00", German), TypeMismatch);
}

} // namespace
} // namespace phial
