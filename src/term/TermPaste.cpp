#include "term/TermPaste.h"

#include "visual/Input.h"

namespace phial
{

namespace
{

bool isWholePair(StringView text, std::size_t at)
{
    return isHighSurrogate(text[at]) && at + 1 < text.size() && isLowSurrogate(text[at + 1]);
}

bool endsLineOrWord(char16_t unit)
{
    return StringView(u"\t\n\v\f\r\u0085\u2028\u2029").find(unit) != StringView::npos;
}

/// The text without what no line can hold.
String oneLineOf(StringView text)
{
    String line;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        if (isWholePair(text, at)) {
            line += text.substr(at++, 2);
        } else if (endsLineOrWord(unit)) {
            line += line.ends_with(u' ') ? u"" : u" ";
        } else if (isPrintable(unit) && !isHighSurrogate(unit) && !isLowSurrogate(unit)) {
            line += unit;
        }
    }
    return trimmed(line);
}

} // namespace

String termOfText(StringView text)
{
    constexpr std::size_t LongestRead = 100'000; // far more than a term can hold
    return oneLineOf(text.substr(0, LongestRead));
}

} // namespace phial
