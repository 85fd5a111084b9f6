#include "dialogs/FittingWords.h"

#include "core/SessionState.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr char16_t Ellipsis = u'…';

bool isSecondHalf(char16_t unit)
{
    constexpr char16_t First = 0xDC00;
    constexpr char16_t Last = 0xDFFF;
    return unit >= First && unit <= Last;
}

/// The beginning, without half a character or a blank at its end.
String cutAt(const String& text, std::size_t length)
{
    while (length > 0 && (isSecondHalf(text[length]) || text[length - 1] == u' ')) {
        --length;
    }
    return text.substr(0, length) + Ellipsis;
}

} // namespace

String fittingWords(const String& text, const FontSpec& font, PixelSize room)
{
    const auto fits = [&](const String& words) {
        const MarkupLayout layout(words, font, visualHost().metrics(), room.width, TextForm::Plain);
        return layout.size().height <= room.height;
    };
    if (fits(text)) {
        return text;
    }
    std::size_t shown = 0;
    std::size_t hidden = text.size();
    while (hidden - shown > 1) {
        const std::size_t middle = (shown + hidden) / 2;
        (fits(cutAt(text, middle)) ? shown : hidden) = middle;
    }
    return cutAt(text, shown);
}

} // namespace phial
