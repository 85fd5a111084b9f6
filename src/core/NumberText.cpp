#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace phial
{

namespace
{

constexpr int SignificantDigits = 15;

String fromAscii(std::string_view ascii)
{
    return String(ascii.begin(), ascii.end());
}

/// A positive number as digits without trailing zeros; the decimal sign stands behind the first, and the
/// whole counts times ten to the exponent.
struct Decimal {
    std::string digits;
    int exponent = 0;
};

Decimal parsedScientific(std::string_view text)
{
    const std::size_t e = text.find('e');
    Decimal decimal;
    for (const char unit : text.substr(0, e)) {
        if (unit != '.') {
            decimal.digits += unit;
        }
    }
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    const std::string_view exponent = text.substr(e + (text[e + 1] == '+' ? 2 : 1));
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
    return decimal;
}

/// The decimal with at most 15 significant digits that is nearest to a positive number.
Decimal nearestDecimal(double value)
{
    std::array<char, 32> buffer{};
    const auto scientific = [&](auto... precision) {
        const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::scientific, precision...);
        return parsedScientific({buffer.data(), end.ptr});
    };
    // The shortest text that reads back as the same number is found faster, and if it needs no more digits it
    // is the answer. Numbers of reduced precision are the exception.
    if (value >= std::numeric_limits<double>::min()) {
        Decimal shortest = scientific();
        if (shortest.digits.size() <= SignificantDigits) {
            return shortest;
        }
    }
    return scientific(SignificantDigits - 1);
}

String fixedNotation(const Decimal& decimal, char16_t decimalSign)
{
    const String digits = fromAscii(decimal.digits);
    if (decimal.exponent < 0) {
        return String(u"0") + decimalSign + String(static_cast<std::size_t>(-decimal.exponent - 1), u'0') +
               digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
    if (digits.size() <= whole) {
        return digits + String(whole - digits.size(), u'0');
    }
    return digits.substr(0, whole) + decimalSign + digits.substr(whole);
}

String exponentNotation(const Decimal& decimal, char16_t decimalSign)
{
    String text = fromAscii(decimal.digits.substr(0, 1));
    if (decimal.digits.size() > 1) {
        text += decimalSign + fromAscii(decimal.digits.substr(1));
    }
    const int magnitude = std::abs(decimal.exponent);
    text += decimal.exponent < 0 ? u"E-" : u"E+";
    if (magnitude < 10) {
        text += u'0';
    }
    return text + plainText(magnitude);
}

/// Which signs a reader of numbers understands.
struct Notation {
    char16_t decimalSign = u'.';
    char16_t groupSign = 0; ///< skipped before the decimal sign; 0 for none
    bool lettersInExponent = false;
};

/// Reads the number at a text's beginning and puts it into the form that std::from_chars reads.
class NumberReader
{
public:
    NumberReader(StringView text, const Notation& notation) : text_(text), notation_(notation) {}

    NumberAtStart read()
    {
        while (current() == u' ') {
            ++at_;
        }
        if (current() == u'+' || current() == u'-') {
            negative_ = current() == u'-';
            ++at_;
        }
        readMantissa();
        if (digits_ == 0) {
            return {};
        }
        readExponent();
        return converted();
    }

private:
    // 0 stands for the end; within a text it ends a number like every other sign.
    char16_t current() const { return at_ < text_.size() ? text_[at_] : u'\0'; }

    void takeDigits()
    {
        for (; isDigit(current()); ++at_) {
            ascii_ += static_cast<char>(current());
            ++digits_;
        }
    }

    void readMantissa()
    {
        takeDigits();
        while (notation_.groupSign != 0 && current() == notation_.groupSign) {
            ++at_;
            takeDigits();
        }
        if (current() == notation_.decimalSign) {
            ++at_;
            ascii_ += '.';
            takeDigits();
        }
    }

    void readExponent()
    {
        if (current() != u'E' && current() != u'e') {
            return;
        }
        std::size_t ahead = at_ + 1;
        char sign = '+';
        if (ahead < text_.size()) {
            const char16_t unit = upperCase(text_[ahead]);
            const bool plus = unit == u'+' || (notation_.lettersInExponent && unit == u'P');
            const bool minus = unit == u'-' || (notation_.lettersInExponent && unit == u'M');
            sign = minus ? '-' : '+';
            ahead += plus || minus ? 1 : 0;
        }
        if (ahead >= text_.size() || !isDigit(text_[ahead])) {
            return;
        }
        ascii_ += 'e';
        ascii_ += sign;
        at_ = ahead;
        takeDigits();
    }

    NumberAtStart converted() const
    {
        NumberAtStart number;
        number.length = at_;
        const auto result = std::from_chars(ascii_.data(), ascii_.data() + ascii_.size(), number.value);
        const bool outside = result.ec == std::errc::result_out_of_range || std::isinf(number.value);
        if (outside) {
            number.value = 0;
            number.overflow = isAboveOne();
        }
        number.value = negative_ ? -number.value : number.value;
        return number;
    }

    /// Tells a number too large from one too small: whether its first digit other than 0 stands before the
    /// decimal sign, exponent included.
    bool isAboveOne() const
    {
        const std::string_view all = ascii_;
        const std::string_view mantissa = all.substr(0, all.find('e'));
        const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
        const std::size_t first = mantissa.find_first_not_of("0.");
        if (first == std::string_view::npos) {
            return false;
        }
        std::int64_t exponent = 0;
        if (mantissa.size() < all.size()) {
            const bool negative = all[mantissa.size() + 1] == '-';
            const std::string_view digits = all.substr(mantissa.size() + 2);
            const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
            if (read.ec == std::errc::result_out_of_range) {
                return !negative;
            }
            exponent = negative ? -exponent : exponent;
        }
        return point - static_cast<std::int64_t>(first) + exponent > 0;
    }

    StringView text_;
    Notation notation_;
    std::size_t at_ = 0;
    std::size_t digits_ = 0;
    bool negative_ = false;
    std::string ascii_;
};

/// Comma and point by their places in the number: the last of them is the decimal sign.
Notation typedNotation(StringView text)
{
    constexpr StringView Mantissa = u" +-0123456789.,";
    const StringView number = text.substr(0, std::min(text.find_first_not_of(Mantissa), text.size()));
    const std::size_t sign = number.find_last_of(u".,");
    Notation notation;
    notation.lettersInExponent = true;
    if (sign != StringView::npos) {
        const char16_t other = number[sign] == u'.' ? u',' : u'.';
        notation.decimalSign = number[sign];
        notation.groupSign = number.find(other) != StringView::npos ? other : u'\0';
    }
    return notation;
}

} // namespace

String plainText(double value, char16_t decimalSign)
{
    if (std::isnan(value)) {
        return u"nan";
    }
    const StringView sign = value < 0 ? u"-" : u"";
    if (std::isinf(value)) {
        return String(sign) + u"inf";
    }
    if (value == 0) {
        return u"0";
    }
    const Decimal decimal = nearestDecimal(std::fabs(value));
    const bool fixed = decimal.exponent >= -5 && decimal.exponent < SignificantDigits;
    return String(sign) +
           (fixed ? fixedNotation(decimal, decimalSign) : exponentNotation(decimal, decimalSign));
}

String plainText(std::int32_t value)
{
    std::array<char, 16> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return fromAscii({buffer.data(), end.ptr});
}

NumberAtStart numberAtStart(StringView text)
{
    return NumberReader(text, Notation()).read();
}

NumberAtStart typedNumberAtStart(StringView text)
{
    return NumberReader(text, typedNotation(text)).read();
}

} // namespace phial
