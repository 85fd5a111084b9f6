#include "calc/SignificantDigits.h"

#include "calc/TermPieces.h"
#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace phial
{

namespace
{

struct Precision {
    int digits = 0;   ///< significant ones
    int decimals = 0; ///< behind the decimal sign
};

/// None for a number without a decimal sign.
std::optional<Precision> precisionOf(StringView number)
{
    const StringView mantissa = number.substr(0, number.find_first_of(u"Ee"));
    const std::size_t sign = mantissa.find_last_of(u",.");
    if (sign == StringView::npos) {
        return std::nullopt;
    }
    const std::size_t first = mantissa.find_first_of(u"123456789");
    const StringView significant = first == StringView::npos ? mantissa.substr(sign) : mantissa.substr(first);
    const auto digits = std::ranges::count_if(significant, [](char16_t unit) { return isDigit(unit); });
    return Precision{std::max(static_cast<int>(digits), 1), static_cast<int>(mantissa.size() - sign - 1)};
}

bool isExponent(const std::vector<TermPiece>& pieces, std::size_t at)
{
    if (at > 1 && pieces[at - 1].isSign()) {
        --at;
    }
    return at > 0 && pieces[at - 1].text == u"^";
}

String written(double value, std::chars_format format, int decimals, char16_t decimalSign)
{
    std::array<char, 400> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, decimals).ptr;
    String text(buffer.data(), end);
    std::ranges::replace(text, u'.', decimalSign);
    std::ranges::replace(text, u'e', u'E');
    return text;
}

int magnitudeOf(double value, int digits)
{
    const String text = written(value, std::chars_format::scientific, digits - 1, u'.');
    return std::stoi(toUtf8(text.substr(text.find(u'E') + 1)));
}

String withDigits(double value, int digits, char16_t decimalSign)
{
    constexpr int LeastMagnitude = -4;
    const int magnitude = value == 0 ? 0 : magnitudeOf(value, digits);
    return magnitude >= digits || magnitude < LeastMagnitude
               ? written(value, std::chars_format::scientific, digits - 1, decimalSign)
               : written(value, std::chars_format::fixed, digits - 1 - magnitude, decimalSign);
}

/// The nearest number of so many significant digits.
double roundedToDigits(double value, int digits)
{
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::scientific, digits - 1);
    std::from_chars(buffer.data(), written.ptr, value);
    return value;
}

} // namespace

std::optional<String> inSignificantDigits(double value, StringView term, char16_t decimalSign)
{
    constexpr int Unlimited = 99;
    constexpr int AllDigits = 15;
    Precision least{Unlimited, Unlimited};
    bool isSum = true;
    const std::vector<TermPiece> pieces = piecesOf(term);
    for (std::size_t at = 0; at < pieces.size(); ++at) {
        const TermPiece& piece = pieces[at];
        if (piece.kind == TermPiece::Kind::Name) {
            return std::nullopt;
        }
        isSum = isSum && (piece.kind != TermPiece::Kind::Operator || piece.isSign());
        const auto precision = piece.kind == TermPiece::Kind::Number && !isExponent(pieces, at)
                                   ? precisionOf(piece.text)
                                   : std::nullopt;
        if (precision) {
            least.digits = std::min(least.digits, precision->digits);
            least.decimals = std::min(least.decimals, precision->decimals);
        }
    }
    if (least.digits == Unlimited) {
        return std::nullopt;
    }
    return isSum ? written(value, std::chars_format::fixed, std::min(least.decimals, AllDigits), decimalSign)
                 : withDigits(value, std::min(least.digits, AllDigits), decimalSign);
}

String textInRoom(double value, std::size_t room, char16_t decimalSign)
{
    constexpr int AllDigits = 15;
    String text = plainText(value, decimalSign);
    for (int digits = AllDigits - 1; text.size() > room && digits > 0; --digits) {
        text = plainText(roundedToDigits(value, digits), decimalSign);
    }
    return text;
}

} // namespace phial
