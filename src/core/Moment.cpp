#include "core/Moment.h"

#include "core/RuntimeError.h"

#include <cmath>
#include <cstdint>

namespace phial
{

namespace
{

constexpr int SecondsPerDay = 86400;
constexpr int FirstYear = 100;
constexpr int LastYear = 9999;

struct Date {
    int year;
    int month;
    int day;
};

bool isLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysInMonth(int year, int month)
{
    constexpr int Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : Days[month - 1];
}

// Days are counted in years that begin in March, so that the leap day comes last, and in eras of 400 years,
// which all have the same number of days. The calendar is the Gregorian one throughout.
constexpr std::int64_t DaysPerEra = 146097;
constexpr std::int64_t DayZero = 693899; // 1899-12-30, counted from 0000-03-01

std::int64_t dayNumber(const Date& date)
{
    const std::int64_t year = date.month > 2 ? date.year : date.year - 1;
    const std::int64_t era = year / 400;
    const std::int64_t yearOfEra = year % 400;
    const std::int64_t month = (date.month + 9) % 12; // March is 0
    const std::int64_t dayOfYear = (153 * month + 2) / 5 + date.day - 1;
    return era * DaysPerEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - DayZero;
}

Date dateOf(std::int64_t day)
{
    const std::int64_t count = day + DayZero;
    const std::int64_t era = count / DaysPerEra;
    const std::int64_t dayOfEra = count % DaysPerEra;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const auto month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    const auto year = static_cast<int>(era * 400 + yearOfEra + (month <= 2 ? 1 : 0));
    return {year, month, static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1)};
}

bool isWithin(int value, int least, int greatest)
{
    return value >= least && value <= greatest;
}

} // namespace

Moment Moment::fromCalendar(const CalendarTime& fields)
{
    const bool valid = isWithin(fields.year, FirstYear, LastYear) && isWithin(fields.month, 1, 12) &&
                       isWithin(fields.day, 1, daysInMonth(fields.year, fields.month)) &&
                       isWithin(fields.hour, 0, 23) && isWithin(fields.minute, 0, 59) &&
                       isWithin(fields.second, 0, 59);
    if (!valid) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const auto day = static_cast<double>(dayNumber({fields.year, fields.month, fields.day}));
    const int seconds = (fields.hour * 60 + fields.minute) * 60 + fields.second;
    const double time = static_cast<double>(seconds) / SecondsPerDay;
    return Moment{day < 0 ? day - time : day + time};
}

CalendarTime Moment::calendar() const
{
    static const auto First = static_cast<double>(dayNumber({FirstYear, 1, 1}));
    static const auto Last = static_cast<double>(dayNumber({LastYear, 12, 31}));

    const double wholeDays = std::trunc(days);
    if (!(wholeDays >= First && wholeDays <= Last)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    auto day = static_cast<std::int64_t>(wholeDays);
    auto seconds = static_cast<int>(std::lround(std::fabs(days - wholeDays) * SecondsPerDay));
    if (seconds == SecondsPerDay) {
        seconds = 0;
        ++day;
    }
    const Date date = dateOf(day);
    return {date.year, date.month, date.day, seconds / 3600, seconds / 60 % 60, seconds % 60};
}

} // namespace phial
