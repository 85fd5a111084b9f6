#include "visual/OneLine.h"

#include "visual/DrawDevice.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

/// Controls and the separators of lines and paragraphs.
bool isControl(char16_t unit)
{
    return unit < u' ' || (unit >= u'\u007F' && unit <= u'\u009F') || unit == u'\u2028' || unit == u'\u2029';
}

} // namespace

String oneLine(String text)
{
    constexpr char16_t Blank = u' ';
    std::ranges::replace_if(text, isControl, Blank);
    return text;
}

String fittedLine(DrawDevice& device, String text, double room)
{
    constexpr std::size_t MostShown = 200; // no control is wider than that many letters
    if (text.size() <= MostShown && device.TextWidth(text) <= room) {
        return text;
    }
    text.resize(std::min(text.size(), MostShown));
    while (!text.empty() && device.TextWidth(text + u"\u2026") > room) {
        const bool isPair = isLowSurrogate(text.back());
        text.pop_back();
        if (isPair && !text.empty()) {
            text.pop_back();
        }
    }
    return text + u"\u2026";
}

PixelSize fieldSize(const FontSpec& font)
{
    constexpr double Space = 12; // of both sides together
    const auto face = visualHost().metrics().face(font);
    return {std::ceil(face->width(u"0000000000") + Space), std::ceil(face->height() + Space)};
}

} // namespace phial
