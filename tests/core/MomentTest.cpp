#include "core/Moment.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

CalendarTime at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return {year, month, day, hour, minute, second};
}

void expectEqual(const CalendarTime& left, const CalendarTime& right)
{
    EXPECT_EQ(left.year, right.year);
    EXPECT_EQ(left.month, right.month);
    EXPECT_EQ(left.day, right.day);
    EXPECT_EQ(left.hour, right.hour);
    EXPECT_EQ(left.minute, right.minute);
    EXPECT_EQ(left.second, right.second);
}

TEST(MomentTest, CountsFromTheEndOf1899)
{
    EXPECT_EQ(Moment::fromCalendar(at(1899, 12, 30)).days, 0);
    EXPECT_EQ(Moment::fromCalendar(at(1900, 1, 1)).days, 2);
    EXPECT_EQ(Moment::fromCalendar(at(1970, 1, 1)).days, 25569);
    EXPECT_EQ(Moment::fromCalendar(at(2000, 2, 29, 12)).days, 36585.5);
}

TEST(MomentTest, TimeRunsForwardBeforeDayZeroToo)
{
    expectEqual(Moment{-1.25}.calendar(), at(1899, 12, 29, 6));
    EXPECT_EQ(Moment::fromCalendar(at(1899, 12, 29, 6)).days, -1.25);
}

TEST(MomentTest, EveryDayComesBack)
{
    for (double day = -657434; day <= 2958465; day += 97) {
        ASSERT_EQ(Moment::fromCalendar(Moment{day}.calendar()).days, day);
    }
}

TEST(MomentTest, EverySecondOfADayComesBack)
{
    const double day = Moment::fromCalendar(at(2024, 2, 29)).days;
    for (int second = 0; second < 86400; second += 7) {
        const CalendarTime fields = Moment{day + second / 86400.0}.calendar();
        ASSERT_EQ((fields.hour * 60 + fields.minute) * 60 + fields.second, second);
    }
}

TEST(MomentTest, ATimeJustBeforeMidnightIsRoundedToTheNextDay)
{
    expectEqual(Moment{36584.9999999}.calendar(), at(2000, 2, 29));
}

TEST(MomentTest, FieldsOutsideTheCalendarRaise)
{
    for (const CalendarTime& fields : {at(2023, 2, 29), at(1900, 2, 29), at(2024, 13, 1), at(2024, 0, 1),
                                       at(2024, 4, 31), at(2024, 1, 0), at(99, 12, 31), at(10000, 1, 1),
                                       at(2024, 1, 1, 24), at(2024, 1, 1, 0, 60), at(2024, 1, 1, 0, 0, 60)}) {
        EXPECT_RAISES(Moment::fromCalendar(fields), InvalidArgument);
    }
}

TEST(MomentTest, DaysOutsideTheCalendarRaise)
{
    EXPECT_RAISES(Moment{3000000}.calendar(), InvalidArgument);
    EXPECT_RAISES(Moment{-700000}.calendar(), InvalidArgument);
}

} // namespace
} // namespace phial
