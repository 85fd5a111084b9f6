#include "term/OutsideText.h"

#include "visual/Input.h"

#include <algorithm>
#include <optional>

namespace phial
{

namespace
{

constexpr std::size_t LongestTag = 200;    // of <sub> and <sup> in plain text
constexpr std::size_t LongestEntity = 12;  // with "&" and ";"
constexpr std::size_t DeepestLevels = 100; // of <sub> and <sup> within each other

struct Spelling {
    StringView from;
    StringView to;
};

/// Signs that terms alone write in their own way.
constexpr Spelling Signs[] = {{u"\u2248", u"~~"}, {u"\u2259", u"=^"}};

constexpr Spelling Entities[] = {
    {u"amp", u"&"},        {u"lt", u"<"},          {u"gt", u">"},          {u"quot", u"\""},
    {u"apos", u"'"},       {u"nbsp", u" "},        {u"middot", u"\u00B7"}, {u"sdot", u"\u22C5"},
    {u"rarr", u"\u2192"},  {u"larr", u"\u2190"},   {u"asymp", u"\u2248"},  {u"minus", u"\u2212"},
    {u"ndash", u"\u2013"}, {u"thinsp", u"\u2009"}, {u"sup2", u"²"},        {u"sup3", u"³"},
    {u"times", u"×"},      {u"deg", u"°"},         {u"alpha", u"α"},       {u"beta", u"β"},
    {u"gamma", u"γ"},      {u"Delta", u"Δ"},       {u"delta", u"δ"},       {u"auml", u"ä"},
    {u"ouml", u"ö"},       {u"uuml", u"ü"},        {u"Auml", u"Ä"},        {u"Ouml", u"Ö"},
    {u"Uuml", u"Ü"},       {u"szlig", u"ß"},
};

template <std::size_t Count>
std::optional<StringView> spelled(const Spelling (&table)[Count], StringView from)
{
    const auto row = std::ranges::find(table, from, &Spelling::from);
    return row == std::end(table) ? std::nullopt : std::optional(row->to);
}

bool isWholePair(StringView text, std::size_t at)
{
    return isHighSurrogate(text[at]) && at + 1 < text.size() && isLowSurrogate(text[at + 1]);
}

/// A character's number in the digits of a base, as units; empty when it is none.
String characterOf(StringView digits, std::uint32_t base)
{
    constexpr std::uint32_t Last = 0x10FFFF;
    std::uint32_t code = 0;
    for (const char16_t unit : digits) {
        const char16_t letter = lowerCase(unit);
        const std::uint32_t digit = isDigit(unit) ? unit - u'0' : letter >= u'a' ? letter - u'a' + 10U : base;
        if (digit >= base || code > Last) {
            return {};
        }
        code = code * base + digit;
    }
    if (digits.empty() || code > Last || isHighSurrogate(code) || isLowSurrogate(code)) {
        return {};
    }
    constexpr std::uint32_t FirstOfPairs = 0x10000;
    if (code < FirstOfPairs) {
        return {static_cast<char16_t>(code)};
    }
    code -= FirstOfPairs;
    return {static_cast<char16_t>(0xD800 + (code >> 10)), static_cast<char16_t>(0xDC00 + (code & 0x3FF))};
}

/// What an entity without "&" and ";" stands for; empty for an unknown one.
String entityText(StringView name)
{
    if (name.starts_with(u"#x") || name.starts_with(u"#X")) {
        return characterOf(name.substr(2), 16);
    }
    if (name.starts_with(u"#")) {
        return characterOf(name.substr(1), 10);
    }
    return String(spelled(Entities, name).value_or(StringView()));
}

/// A tag, and where it ends.
struct OutsideTag {
    String name; ///< in lower case
    bool closes = false;
    std::size_t end = 0;
};

/// The tag at a "<"; none when it is no tag.
std::optional<OutsideTag> tagAt(StringView text, std::size_t at)
{
    const bool closes = at + 1 < text.size() && text[at + 1] == u'/';
    const std::size_t begin = at + (closes ? 2 : 1);
    std::size_t end = begin;
    while (end < text.size() && end - begin < LongestTag &&
           (isDigit(text[end]) || (lowerCase(text[end]) >= u'a' && lowerCase(text[end]) <= u'z'))) {
        ++end;
    }
    const std::size_t close = text.find(u'>', end);
    if (end == begin || close == StringView::npos) {
        return std::nullopt;
    }
    return OutsideTag{lowerCase(text.substr(begin, end - begin)), closes, close + 1};
}

class OutsideReader
{
public:
    OutsideReader(StringView text, bool isHtml) : text_(text), isHtml_(isHtml) {}

    std::vector<OutsideUnit> read()
    {
        while (at_ < text_.size()) {
            if (!(text_[at_] == u'<' && readMarkup()) && !(isHtml_ && text_[at_] == u'&' && readEntity())) {
                at_ += addCharacter(text_, at_);
            }
        }
        while (!units_.empty() && units_.back().unit == u' ') {
            units_.pop_back();
        }
        return std::move(units_);
    }

private:
    ScriptLevel level() const { return levels_.empty() ? ScriptLevel::Normal : levels_.back(); }

    bool readMarkup()
    {
        if (isHtml_ && text_.substr(at_).starts_with(u"<!--")) {
            skipTo(u"-->");
            return true;
        }
        if (isHtml_ && at_ + 1 < text_.size() && (text_[at_ + 1] == u'!' || text_[at_ + 1] == u'?')) {
            skipTo(u">");
            return true;
        }
        const auto tag = tagAt(isHtml_ ? text_ : text_.substr(0, at_ + LongestTag), at_);
        if (!tag) {
            return false;
        }
        const bool isLevel = tag->name == u"sub" || tag->name == u"sup";
        if (!isLevel && !isHtml_) {
            return false;
        }
        at_ = tag->end;
        if (isLevel) {
            changeLevel(*tag);
        } else {
            passTag(*tag);
        }
        return true;
    }

    void changeLevel(const OutsideTag& tag)
    {
        if (!tag.closes && levels_.size() < DeepestLevels) {
            levels_.push_back(tag.name == u"sup" ? ScriptLevel::Superscript : ScriptLevel::Subscript);
        } else if (tag.closes && !levels_.empty()) {
            levels_.pop_back();
        }
    }

    /// What stands in some tags is not seen; others part words.
    void passTag(const OutsideTag& tag)
    {
        constexpr StringView Unseen[] = {u"head", u"style", u"script", u"title"};
        constexpr StringView Parting[] = {u"p", u"br", u"div", u"tr", u"td", u"th", u"li", u"table"};
        if (!tag.closes && std::ranges::find(Unseen, tag.name) != std::end(Unseen)) {
            skipTo(u"</" + tag.name);
        } else if (std::ranges::find(Parting, tag.name) != std::end(Parting)) {
            add(u' ', ScriptLevel::Normal);
        }
    }

    void skipTo(StringView end)
    {
        const std::size_t found = text_.find(end, at_);
        at_ = found == StringView::npos ? text_.size() : found + end.size();
        if (end.starts_with(u"</")) {
            at_ = std::min(text_.find(u'>', at_), text_.size() - 1) + 1;
        }
    }

    bool readEntity()
    {
        const std::size_t end = text_.substr(0, at_ + LongestEntity).find(u';', at_);
        if (end == StringView::npos) {
            return false;
        }
        const String meant = entityText(text_.substr(at_ + 1, end - at_ - 1));
        if (meant.empty()) {
            return false;
        }
        for (std::size_t at = 0; at < meant.size();) {
            at += addCharacter(meant, at);
        }
        at_ = end + 1;
        return true;
    }

    /// Gives the units used.
    std::size_t addCharacter(StringView text, std::size_t at)
    {
        const char16_t unit = text[at];
        if (isWholePair(text, at)) {
            add(unit, level());
            add(text[at + 1], level());
            return 2;
        }
        const auto typed = typedForm(unit);
        if (const auto sign = typed ? typed : spelled(Signs, text.substr(at, 1))) {
            for (const char16_t written : *sign) {
                add(written, level());
            }
        } else if (const auto small = scriptOf(unit)) {
            add(small->plain, small->level);
        } else if (isPrintable(unit) && !isHighSurrogate(unit) && !isLowSurrogate(unit)) {
            add(unit, level());
        }
        if (unit != u' ' && !units_.empty() && units_.back().unit == u' ') {
            dropDoubleBlank();
        }
        return 1;
    }

    void add(char16_t unit, ScriptLevel level)
    {
        const bool isBlank = unit == u' ';
        if (isBlank && (units_.empty() || (isHtml_ && units_.back().unit == u' '))) {
            return;
        }
        units_.push_back({unit, isBlank ? ScriptLevel::Normal : level});
    }

    /// Of several line ends and tabs one blank is left.
    void dropDoubleBlank()
    {
        if (units_.size() > 1 && units_[units_.size() - 2].unit == u' ') {
            units_.pop_back();
        }
    }

    StringView text_;
    bool isHtml_;
    std::size_t at_ = 0;
    std::vector<ScriptLevel> levels_;
    std::vector<OutsideUnit> units_;
};

} // namespace

std::vector<OutsideUnit> readOutsideText(StringView text)
{
    return OutsideReader(text, false).read();
}

std::vector<OutsideUnit> readOutsideHtml(StringView html)
{
    return OutsideReader(html, true).read();
}

String withoutEntities(StringView html)
{
    String text;
    for (std::size_t at = 0; at < html.size(); ++at) {
        const std::size_t end =
            html[at] == u'&' ? html.substr(0, at + LongestEntity).find(u';', at) : html.npos;
        const String meant = end == html.npos ? String() : entityText(html.substr(at + 1, end - at - 1));
        if (meant.empty()) {
            text += html[at];
        } else {
            text += meant;
            at = end;
        }
    }
    return text;
}

} // namespace phial
