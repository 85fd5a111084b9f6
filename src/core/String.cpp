#include "core/String.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace phial
{

namespace
{

constexpr char16_t ReplacementCharacter = 0xFFFD;

/// A well-formed sequence at the beginning of some bytes; length 0 when there is none.
struct Sequence {
    char32_t code = 0;
    std::size_t length = 0;
};

Sequence readSequence(std::string_view bytes)
{
    const auto lead = static_cast<unsigned char>(bytes[0]);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) {
        return {};
    }
    char32_t code = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if ((byte & 0xC0U) != 0x80) {
            return {};
        }
        code = (code << 6U) | (byte & 0x3FU);
    }
    constexpr std::array<char32_t, 5> Least = {0, 0, 0x80, 0x800, 0x10000};
    if (code < Least[length] || code > 0x10FFFF) {
        return {};
    }
    return {code, length};
}

void appendCode(String& text, char32_t code)
{
    if (code < 0x10000) {
        text += static_cast<char16_t>(code);
    } else {
        text += static_cast<char16_t>(0xD7C0 + (code >> 10U));
        text += static_cast<char16_t>(0xDC00 | (code & 0x3FFU));
    }
}

void appendUtf8(std::string& bytes, char32_t code)
{
    const auto tail = [&](unsigned shift) { bytes += static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80) {
        bytes += static_cast<char>(code);
    } else if (code < 0x800) {
        bytes += static_cast<char>(0xC0U | (code >> 6U));
        tail(0);
    } else if (code < 0x10000) {
        bytes += static_cast<char>(0xE0U | (code >> 12U));
        tail(6);
        tail(0);
    } else {
        bytes += static_cast<char>(0xF0U | (code >> 18U));
        tail(12);
        tail(6);
        tail(0);
    }
}

template <typename View>
bool isAscii(View text)
{
    std::uint32_t bits = 0;
    for (const auto unit : text) {
        bits |= static_cast<char16_t>(unit); // a negative char is large
    }
    return bits < 0x80;
}

/// How much of the text's beginning is ASCII: looks at many units at once as long as they are.
template <typename View>
std::size_t asciiLength(View text)
{
    constexpr std::size_t Block = 32;
    std::size_t length = 0;
    while (text.size() - length >= Block && isAscii(text.substr(length, Block))) {
        length += Block;
    }
    while (length < text.size() && isAscii(text.substr(length, 1))) {
        ++length;
    }
    return length;
}

/// Moves the ASCII at the beginning of a text behind another one, all at once: most texts hold little else.
template <typename View, typename Text>
void moveAscii(View& rFrom, Text& rTo)
{
    const std::size_t length = asciiLength(rFrom);
    const std::size_t before = rTo.size();
    rTo.resize(before + length);
    std::transform(rFrom.begin(), rFrom.begin() + static_cast<std::ptrdiff_t>(length),
                   rTo.begin() + static_cast<std::ptrdiff_t>(before),
                   [](auto unit) { return static_cast<typename Text::value_type>(unit); });
    rFrom.remove_prefix(length);
}

/// Where capitals and small letters lie in a stretch of the alphabet.
enum class Pairing {
    Distance,     ///< the small letters `first` to `last` lie `distance` above their capitals
    EvenCapitals, ///< capital and small letter alternate, capitals at even codes
    OddCapitals,  ///< the same with capitals at odd codes
};

struct Stretch {
    char16_t first;
    char16_t last;
    Pairing pairing;
    char16_t distance = 1;
};

// Latin, Greek and Cyrillic, ascending by `first`. Left out are letters whose other case is not one unit or
// lies elsewhere for one language only (sharp s, the Turkish i, long s).
constexpr Stretch Stretches[] = {
    {u'a', u'z', Pairing::Distance, 0x20},     {0x00E0, 0x00F6, Pairing::Distance, 0x20},
    {0x00F8, 0x00FE, Pairing::Distance, 0x20}, {0x0100, 0x012F, Pairing::EvenCapitals},
    {0x0132, 0x0137, Pairing::EvenCapitals},   {0x0139, 0x0148, Pairing::OddCapitals},
    {0x014A, 0x0177, Pairing::EvenCapitals},   {0x0179, 0x017E, Pairing::OddCapitals},
    {0x01CD, 0x01DC, Pairing::OddCapitals},    {0x01DE, 0x01EF, Pairing::EvenCapitals},
    {0x01F8, 0x021F, Pairing::EvenCapitals},   {0x0222, 0x0233, Pairing::EvenCapitals},
    {0x03AC, 0x03AC, Pairing::Distance, 0x26}, {0x03AD, 0x03AF, Pairing::Distance, 0x25},
    {0x03B1, 0x03C1, Pairing::Distance, 0x20}, {0x03C2, 0x03C2, Pairing::Distance, 0x1F},
    {0x03C3, 0x03CB, Pairing::Distance, 0x20}, {0x03CC, 0x03CC, Pairing::Distance, 0x40},
    {0x03CD, 0x03CE, Pairing::Distance, 0x3F}, {0x0430, 0x044F, Pairing::Distance, 0x20},
    {0x0450, 0x045F, Pairing::Distance, 0x50}, {0x0460, 0x0481, Pairing::EvenCapitals},
    {0x048A, 0x04BF, Pairing::EvenCapitals},   {0x04C1, 0x04CE, Pairing::OddCapitals},
    {0x04D0, 0x052F, Pairing::EvenCapitals},   {0x1E00, 0x1E95, Pairing::EvenCapitals},
    {0x1EA0, 0x1EFF, Pairing::EvenCapitals},
};

constexpr char16_t FinalSigma = 0x03C2;
constexpr char16_t SmallYDiaeresis = 0x00FF;
constexpr char16_t CapitalYDiaeresis = 0x0178;

bool isCapitalOf(const Stretch& stretch, char16_t unit)
{
    const bool odd = (unit & 1U) != 0;
    return odd == (stretch.pairing == Pairing::OddCapitals);
}

char16_t upperBeyondAscii(char16_t unit)
{
    if (unit == SmallYDiaeresis) {
        return CapitalYDiaeresis;
    }
    for (const Stretch& stretch : Stretches) {
        if (unit < stretch.first) {
            break;
        }
        if (unit > stretch.last) {
            continue;
        }
        const bool isSmall = stretch.pairing == Pairing::Distance || !isCapitalOf(stretch, unit);
        return isSmall ? static_cast<char16_t>(unit - stretch.distance) : unit;
    }
    return unit;
}

char16_t lowerBeyondAscii(char16_t unit)
{
    if (unit == CapitalYDiaeresis) {
        return SmallYDiaeresis;
    }
    for (const Stretch& stretch : Stretches) {
        if (stretch.pairing == Pairing::Distance) {
            const auto small = static_cast<char16_t>(unit + stretch.distance);
            if (small >= stretch.first && small <= stretch.last && small != FinalSigma) {
                return small;
            }
        } else if (unit >= stretch.first && unit <= stretch.last) {
            return isCapitalOf(stretch, unit) ? static_cast<char16_t>(unit + 1) : unit;
        }
    }
    return unit;
}

} // namespace

String fromUtf8(std::string_view bytes)
{
    String text;
    text.reserve(bytes.size());
    for (moveAscii(bytes, text); !bytes.empty(); moveAscii(bytes, text)) {
        const Sequence sequence = readSequence(bytes);
        if (sequence.length == 0) {
            text += ReplacementCharacter;
            bytes.remove_prefix(1);
        } else {
            appendCode(text, sequence.code);
            bytes.remove_prefix(sequence.length);
        }
    }
    return text;
}

std::string toUtf8(StringView text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (moveAscii(text, bytes); !text.empty(); moveAscii(text, bytes)) {
        char32_t code = text[0];
        const bool isPair = isHighSurrogate(code) && text.size() > 1 && isLowSurrogate(text[1]);
        if (isPair) {
            code = 0x10000 + ((code - 0xD800) << 10U) + (text[1] - 0xDC00U);
        }
        appendUtf8(bytes, code);
        text.remove_prefix(isPair ? 2 : 1);
    }
    return bytes;
}

char16_t upperCase(char16_t unit)
{
    if (unit < 0x80) {
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
    }
    return upperBeyondAscii(unit);
}

char16_t lowerCase(char16_t unit)
{
    if (unit < 0x80) {
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    }
    return lowerBeyondAscii(unit);
}

String upperCase(StringView text)
{
    String result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char16_t unit) { return upperCase(unit); });
    return result;
}

String lowerCase(StringView text)
{
    String result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char16_t unit) { return lowerCase(unit); });
    return result;
}

bool equalsIgnoringCase(StringView left, StringView right)
{
    if (left.size() != right.size()) {
        return false;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] != right[i] && upperCase(left[i]) != upperCase(right[i])) {
            return false;
        }
    }
    return true;
}

int compareIgnoringCase(StringView left, StringView right)
{
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (left[i] == right[i]) {
            continue;
        }
        const int difference = int{upperCase(left[i])} - int{upperCase(right[i])};
        if (difference != 0) {
            return difference;
        }
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

String trimmed(StringView text)
{
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == StringView::npos) {
        return {};
    }
    return String(text.substr(first, text.find_last_not_of(u' ') - first + 1));
}

String replaced(StringView text, StringView find, StringView with)
{
    if (find.empty()) {
        return String(text);
    }
    String result;
    result.reserve(text.size());
    std::size_t from = 0;
    for (std::size_t hit; (hit = text.find(find, from)) != StringView::npos; from = hit + find.size()) {
        result += text.substr(from, hit - from);
        result += with;
    }
    result += text.substr(from);
    return result;
}

std::vector<StringView> split(StringView text, StringView separator)
{
    std::vector<StringView> pieces;
    if (text.empty()) {
        return pieces;
    }
    std::size_t from = 0;
    if (!separator.empty()) {
        for (std::size_t hit; (hit = text.find(separator, from)) != StringView::npos;
             from = hit + separator.size()) {
            pieces.push_back(text.substr(from, hit - from));
        }
    }
    pieces.push_back(text.substr(from));
    return pieces;
}

} // namespace phial
