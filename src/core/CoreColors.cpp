#include "core/CoreColors.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

constexpr Colour White = RGB(255, 255, 255);
constexpr Colour Black = RGB(0, 0, 0);

void appendHexPair(String& text, std::uint8_t part)
{
    constexpr StringView Digits = u"0123456789ABCDEF";
    text += Digits[part >> 4U];
    text += Digits[part & 0xFU];
}

} // namespace

Colour CoreColors::Blend(Colour pColour, double pPercentage, Colour pSecond)
{
    const Colour first = defaultColour(pColour);
    const Colour second = defaultColour(pSecond);
    const double share = std::clamp(pPercentage, 0.0, 100.0) / 100;
    const auto mixed = [share](std::uint8_t from, std::uint8_t to) {
        return static_cast<int>(std::nearbyint(from + (to - from) * share));
    };
    return RGB(mixed(first.red(), second.red()), mixed(first.green(), second.green()),
               mixed(first.blue(), second.blue()));
}

String CoreColors::ToHtml(Colour pColour)
{
    const Colour colour = defaultColour(pColour);
    String text = u"#";
    appendHexPair(text, colour.red());
    appendHexPair(text, colour.green());
    appendHexPair(text, colour.blue());
    return text;
}

Colour CoreColors::Lighten(Colour pColour, double pAmount)
{
    return Blend(pColour, pAmount, White);
}

Colour CoreColors::Darken(Colour pColour, double pAmount)
{
    return Blend(pColour, pAmount, Black);
}

} // namespace phial
