#include "term/TermHtml.h"

namespace phial
{

namespace
{

enum class Mode { Superscript, Normal, Subscript };

StringView openingTag(Mode mode)
{
    switch (mode) {
    case Mode::Superscript:
        return u"<sup>";
    case Mode::Subscript:
        return u"<sub>";
    case Mode::Normal:
        break;
    }
    return {};
}

StringView closingTag(Mode mode)
{
    switch (mode) {
    case Mode::Superscript:
        return u"</sup>";
    case Mode::Subscript:
        return u"</sub>";
    case Mode::Normal:
        break;
    }
    return {};
}

/// The mode that a character is written in, given the mode of the one before it.
Mode modeOf(char16_t c, Mode before)
{
    if (c == u'+' || c == u'-') {
        return Mode::Superscript;
    }
    if (StringView(u"0123456789,.").find(c) != StringView::npos) {
        return before == Mode::Normal ? Mode::Subscript : before;
    }
    return Mode::Normal;
}

} // namespace

String termToHtml(StringView term)
{
    const String walked = String(term) + u' ';
    String html;
    html.reserve(walked.size() * 4);
    Mode mode = Mode::Normal;
    for (std::size_t i = 0; i < walked.size(); ++i) {
        const char16_t c = walked[i];
        if (c == u'^' || c == u'µ') {
            const Mode single = c == u'^' ? Mode::Superscript : Mode::Subscript;
            ++i; // a blank stands behind the term, so there is a next character
            html.append(openingTag(single)).append(1, walked[i]).append(closingTag(single));
            continue;
        }
        const Mode next = modeOf(c, mode);
        if (next != mode) {
            html.append(closingTag(mode)).append(openingTag(next));
            mode = next;
        }
        html += c;
    }
    return html;
}

} // namespace phial
