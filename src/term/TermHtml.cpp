#include "term/TermHtml.h"

namespace phial
{

namespace
{

/// The tag in which a character stands; none for one in the line.
using Tag = StringView;
constexpr Tag InTheLine;
constexpr Tag SupTag = u"sup";
constexpr Tag SubTag = u"sub";

void openTag(String& html, Tag tag)
{
    if (tag != InTheLine) {
        html.append(u"<").append(tag).append(u">");
    }
}

void closeTag(String& html, Tag tag)
{
    if (tag != InTheLine) {
        html.append(u"</").append(tag).append(u">");
    }
}

/// The tag of a character, given that of the one before it.
Tag tagOf(char16_t c, Tag before)
{
    if (c == u'+' || c == u'-') {
        return SupTag;
    }
    if (StringView(u"0123456789,.").find(c) != StringView::npos) {
        return before == InTheLine ? SubTag : before;
    }
    return InTheLine;
}

} // namespace

String termToHtml(StringView term)
{
    const String walked = String(term) + u' ';
    String html;
    Tag tag = InTheLine;
    for (std::size_t i = 0; i < walked.size(); ++i) {
        const char16_t c = walked[i];
        if (c == u'^' || c == u'µ') {
            const Tag single = c == u'^' ? SupTag : SubTag;
            ++i; // a blank stands behind the term, so there is a next character
            openTag(html, single);
            html += walked[i];
            closeTag(html, single);
            continue;
        }
        const Tag next = tagOf(c, tag);
        if (next != tag) {
            closeTag(html, tag);
            openTag(html, next);
            tag = next;
        }
        html += c;
    }
    return html;
}

} // namespace phial
