#include "core/Format.h"

#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <vector>

namespace phial
{

namespace
{

constexpr std::array<StringView, 12> GermanMonths = {u"Januar",    u"Februar", u"M\u00E4rz", u"April",
                                                     u"Mai",       u"Juni",    u"Juli",      u"August",
                                                     u"September", u"Oktober", u"November",  u"Dezember"};
constexpr std::array<StringView, 12> EnglishMonths = {u"January",   u"February", u"March",    u"April",
                                                      u"May",       u"June",     u"July",     u"August",
                                                      u"September", u"October",  u"November", u"December"};
constexpr std::array<StringView, 12> GermanShortMonths = {u"Jan", u"Feb", u"Mrz", u"Apr", u"Mai", u"Jun",
                                                          u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"};
constexpr std::array<StringView, 12> EnglishShortMonths = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                                           u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
// Weeks begin on the day of the week of day 0, a Saturday.
constexpr std::array<StringView, 7> GermanDays = {u"Samstag",  u"Sonntag",    u"Montag", u"Dienstag",
                                                  u"Mittwoch", u"Donnerstag", u"Freitag"};
constexpr std::array<StringView, 7> EnglishDays = {u"Saturday",  u"Sunday",   u"Monday", u"Tuesday",
                                                   u"Wednesday", u"Thursday", u"Friday"};
constexpr std::size_t GermanShortDay = 2;
constexpr std::size_t EnglishShortDay = 3;

/// A pattern's unit; one that is quoted or behind a backslash stands for itself.
struct Sign {
    char16_t unit;
    bool literal;

    bool is(char16_t other) const { return !literal && unit == other; }
    bool isDigitPlace() const { return is(u'0') || is(u'#'); }
};

std::vector<Sign> readPattern(StringView pattern)
{
    std::vector<Sign> signs;
    bool quoted = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == u'"') {
            quoted = !quoted;
        } else if (!quoted && pattern[i] == u'\\' && i + 1 < pattern.size()) {
            signs.push_back({pattern[++i], true});
        } else {
            signs.push_back({pattern[i], quoted});
        }
    }
    return signs;
}

String padded(int number, std::size_t digits)
{
    const String text = plainText(number);
    return String(digits > text.size() ? digits - text.size() : 0, u'0') + text;
}

/// Formats one number: the places of the pattern are counted first, then filled from left to right.
class NumberFormat
{
public:
    NumberFormat(const std::vector<Sign>& signs, const Locale& locale) : signs_(signs), locale_(locale)
    {
        bool behindPoint = false;
        for (const Sign& sign : signs) {
            if (sign.is(u'.')) {
                behindPoint = true;
            } else if (sign.isDigitPlace() && behindPoint) {
                ++decimals_;
                leastDecimals_ = sign.is(u'0') ? decimals_ : leastDecimals_;
            } else if (sign.is(u'0')) {
                ++leastWhole_;
            }
        }
    }

    String text(double value) const
    {
        if (!std::isfinite(value)) {
            return plainText(value, locale_.decimalSign);
        }
        const Digits digits = split(std::fabs(value));
        const bool negative = value < 0 && !digits.allZero();
        return (negative ? u"-" : u"") + filled(digits);
    }

private:
    struct Digits {
        String whole;
        String decimals;

        bool allZero() const { return (whole + decimals).find_first_not_of(u'0') == String::npos; }
    };

    Digits split(double magnitude) const
    {
        constexpr std::size_t LongestWhole = 310;
        std::string buffer(LongestWhole + decimals_, '\0');
        const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                       std::chars_format::fixed, static_cast<int>(decimals_));
        buffer.resize(static_cast<std::size_t>(end.ptr - buffer.data()));
        const std::size_t point = std::min(buffer.find('.'), buffer.size());

        Digits digits;
        digits.whole.assign(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(point));
        digits.whole.erase(0, digits.whole.find_first_not_of(u'0'));
        if (digits.whole.size() < leastWhole_) {
            digits.whole.insert(0, leastWhole_ - digits.whole.size(), u'0');
        }
        if (point < buffer.size()) {
            digits.decimals.assign(buffer.begin() + static_cast<std::ptrdiff_t>(point) + 1, buffer.end());
        }
        while (digits.decimals.size() > leastDecimals_ && digits.decimals.back() == u'0') {
            digits.decimals.pop_back();
        }
        return digits;
    }

    String filled(const Digits& digits) const
    {
        String result;
        bool wholeDone = false;
        bool behindPoint = false;
        std::size_t decimal = 0;
        for (const Sign& sign : signs_) {
            const bool point = sign.is(u'.') && !behindPoint;
            if (!wholeDone && (point || sign.isDigitPlace())) {
                result += digits.whole;
                wholeDone = true;
            }
            if (point) {
                behindPoint = true;
                result += digits.decimals.empty() ? String() : String(1, locale_.decimalSign);
            } else if (!sign.isDigitPlace()) {
                result += sign.unit;
            } else if (behindPoint && decimal < digits.decimals.size()) {
                result += digits.decimals[decimal++];
            }
        }
        return result;
    }

    const std::vector<Sign>& signs_;
    const Locale& locale_;
    std::size_t leastWhole_ = 0;
    std::size_t decimals_ = 0;
    std::size_t leastDecimals_ = 0;
};

/// Formats one moment, run by run of equal letters.
class MomentFormat
{
public:
    MomentFormat(Moment moment, const Locale& locale)
        : time_(moment.calendar()), german_(locale.language == LanguageGerman)
    {
    }

    String text(const std::vector<Sign>& signs) const
    {
        String result;
        bool behindHour = false;
        for (std::size_t i = 0; i < signs.size();) {
            const char16_t letter = lowerCase(signs[i].unit);
            if (signs[i].literal || StringView(u"dmyhns").find(letter) == StringView::npos) {
                result += signs[i++].unit;
                continue;
            }
            std::size_t length = 0;
            while (i < signs.size() && !signs[i].literal && lowerCase(signs[i].unit) == letter) {
                ++length;
                ++i;
            }
            result += letter == u'm' && behindHour && length <= 2 ? padded(time_.minute, length)
                                                                  : field(letter, length);
            behindHour = letter == u'h';
        }
        return result;
    }

private:
    String field(char16_t letter, std::size_t length) const
    {
        switch (letter) {
        case u'd':
            return length <= 2 ? padded(time_.day, length) : dayName(length);
        case u'm':
            return length <= 2 ? padded(time_.month, length) : monthName(length);
        case u'y':
            return length <= 2 ? padded(time_.year % 100, 2) : padded(time_.year, 4);
        case u'h':
            return padded(time_.hour, length);
        case u'n':
            return padded(time_.minute, length);
        default:
            return padded(time_.second, length);
        }
    }

    String monthName(std::size_t length) const
    {
        const auto& names = length == 3 ? (german_ ? GermanShortMonths : EnglishShortMonths)
                                        : (german_ ? GermanMonths : EnglishMonths);
        return String(names[static_cast<std::size_t>(time_.month - 1)]);
    }

    String dayName(std::size_t length) const
    {
        CalendarTime midnight = time_;
        midnight.hour = midnight.minute = midnight.second = 0;
        const int days = static_cast<int>(Moment::fromCalendar(midnight).days) % 7;
        const StringView name =
            (german_ ? GermanDays : EnglishDays)[static_cast<std::size_t>((days + 7) % 7)];
        return String(length > 3 ? name : name.substr(0, german_ ? GermanShortDay : EnglishShortDay));
    }

    CalendarTime time_;
    bool german_;
};

} // namespace

String formatPattern(const Variant& value, StringView pattern, const Locale& locale)
{
    const std::vector<Sign> signs = readPattern(pattern);
    const bool isNumber =
        std::any_of(signs.begin(), signs.end(), [](const Sign& sign) { return sign.isDigitPlace(); });
    return isNumber ? NumberFormat(signs, locale).text(value.toReal())
                    : MomentFormat(value.toMoment(), locale).text(signs);
}

} // namespace phial
