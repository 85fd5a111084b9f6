#include "core/CoreTheme.h"

#include "core/RuntimeError.h"

#include <algorithm>

namespace phial
{

namespace
{

int hexadecimalDigit(char16_t unit)
{
    constexpr StringView Digits = u"0123456789ABCDEF";
    const std::size_t digit = Digits.find(upperCase(unit));
    if (digit == StringView::npos) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return static_cast<int>(digit);
}

Colour colourFromHtml(StringView html)
{
    if (html.size() != 7 || html.front() != u'#') {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const auto part = [&](std::size_t at) {
        return 16 * hexadecimalDigit(html[at]) + hexadecimalDigit(html[at + 1]);
    };
    return RGB(part(1), part(3), part(5));
}

std::size_t indexOf(ThemeSlot slot)
{
    return static_cast<std::size_t>(slot);
}

} // namespace

CoreTheme::CoreTheme() : colours_{SystemColour::Highlight, SystemColour::ButtonFace, SystemColour::ButtonText}
{
}

phial::Colour CoreTheme::Colour(ThemeSlot pSlot) const
{
    return colours_.at(indexOf(pSlot));
}

void CoreTheme::SetColour(ThemeSlot pSlot, phial::Colour pColour)
{
    phial::Colour& colour = colours_.at(indexOf(pSlot));
    if (colour == pColour) {
        return;
    }
    colour = pColour;
    ++changes_;
    CHANGED.raise(pSlot);
}

void CoreTheme::SetColour(ThemeSlot pSlot, StringView pHtml)
{
    SetColour(pSlot, colourFromHtml(pHtml));
}

void CoreTheme::SetColours(std::optional<ColourSet> pChosen)
{
    const ColourSet before = Colours();
    chosen_ = pChosen;
    tellFrom(before);
}

void CoreTheme::desktopColours(ColourSet pSet)
{
    const ColourSet before = Colours();
    desktop_ = pSet;
    tellFrom(before);
}

void CoreTheme::tellFrom(ColourSet before)
{
    if (Colours() != before) {
        ++changes_;
        COLOURSCHANGED.raise(Colours());
    }
}

} // namespace phial
