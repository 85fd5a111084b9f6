#include "core/ExactNumber.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <string>

namespace phial
{

namespace
{

constexpr char16_t BitsSign = u'#';
constexpr std::size_t BitsDigits = 16;

/// The ASCII form of a short number; empty, which is no number, for anything else.
std::string toAscii(StringView text)
{
    constexpr std::size_t Longest = 32;
    std::string ascii;
    if (text.size() > Longest) {
        return ascii;
    }
    for (const char16_t unit : text) {
        if (unit >= 0x80) {
            return {};
        }
        ascii += static_cast<char>(unit);
    }
    return ascii;
}

template <typename Number, typename... Format>
std::optional<Number> readExactly(StringView text, Format... format)
{
    const std::string ascii = toAscii(text);
    const char* const textEnd = ascii.data() + ascii.size();
    Number number{};
    const auto [end, error] = std::from_chars(ascii.data(), textEnd, number, format...);
    if (error != std::errc() || end != textEnd) {
        return std::nullopt;
    }
    return number;
}

} // namespace

String exactText(double number)
{
    std::array<char, 32> buffer{};
    char* const bufferEnd = buffer.data() + buffer.size();
    if (std::isfinite(number)) {
        return {buffer.data(), std::to_chars(buffer.data(), bufferEnd, number).ptr};
    }
    const auto bits = std::to_chars(buffer.data(), bufferEnd, std::bit_cast<std::uint64_t>(number), 16);
    return BitsSign + upperCase(String(buffer.data(), bits.ptr));
}

std::optional<double> exactReal(StringView text)
{
    if (text.starts_with(BitsSign)) {
        const auto bits = text.size() == 1 + BitsDigits ? readExactly<std::uint64_t>(text.substr(1), 16)
                                                        : std::optional<std::uint64_t>();
        return bits ? std::optional(std::bit_cast<double>(*bits)) : std::nullopt;
    }
    const auto number = readExactly<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::int32_t> exactWhole(StringView text)
{
    return readExactly<std::int32_t>(text);
}

std::optional<std::uint32_t> exactCount(StringView text)
{
    return readExactly<std::uint32_t>(text);
}

} // namespace phial
