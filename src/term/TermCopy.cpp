#include "term/TermCopy.h"

#include "term/TermBrackets.h"
#include "term/TermRules.h"

#include <optional>
#include <utility>
#include <vector>

namespace phial
{

namespace
{

/// Reads a term sign by sign, fractions as what stands in their brackets.
class TermReader
{
public:
    explicit TermReader(StringView term) : term_(term), brackets_(term)
    {
        parts_.push_back({{0, term.size()}, 0, {}});
    }

    bool atEnd() const { return position_ == term_.size(); }

    /// The next sign and the units that make it.
    std::pair<TermSign, StringView> next()
    {
        const std::size_t at = position_;
        if (closePart(at) || openFraction(at)) {
            return {{}, term_.substr(position_++, 1)};
        }
        Part& part = parts_.back();
        const StringView units = term_.substr(part.range.begin, part.range.end - part.range.begin);
        const TermSign sign = part.rules.read(units, at - part.range.begin);
        position_ += sign.length;
        return {sign, term_.substr(at, sign.length)};
    }

private:
    /// The term, or a numerator or denominator: what ends at `range` is read by rules of its own.
    struct Part {
        TermRange range;
        std::size_t numeratorOf; ///< where the denominator begins; 0 for all but a numerator
        TermRules rules;
        std::size_t denominatorEnd = 0;
    };

    bool openFraction(std::size_t at)
    {
        if (term_[at] != u'(') {
            return false;
        }
        const TermFraction fraction = brackets_.fractionAt(at, parts_.back().range.end);
        if (!fraction.found) {
            return false;
        }
        parts_.push_back({fraction.numerator, fraction.denominator.begin, {}, fraction.denominator.end});
        return true;
    }

    /// The bracket behind a numerator or denominator, and what parts both.
    bool closePart(std::size_t at)
    {
        if (parts_.size() == 1) {
            return false;
        }
        Part& part = parts_.back();
        if (part.numeratorOf != 0 && at >= part.range.end) {
            if (at + 1 == part.numeratorOf) {
                part = {{part.numeratorOf, part.denominatorEnd}, 0, {}};
            }
            return true;
        }
        if (part.numeratorOf == 0 && at == part.range.end) {
            parts_.pop_back();
            return true;
        }
        return false;
    }

    StringView term_;
    TermBrackets brackets_;
    std::vector<Part> parts_;
    std::size_t position_ = 0;
};

/// The usual sign for what the notation writes otherwise; empty for what is not seen by itself.
StringView usualSign(TermSign::Kind kind)
{
    switch (kind) {
    case TermSign::Kind::Approximately:
        return u"\u2248";
    case TermSign::Kind::MiddleDot:
        return u"\u00B7";
    case TermSign::Kind::RightArrow:
        return u"\u2192";
    case TermSign::Kind::LeftArrow:
        return u"\u2190";
    case TermSign::Kind::Correspondence:
        return u"\u2259";
    case TermSign::Kind::Character:
    case TermSign::Kind::Red:
    case TermSign::Kind::Raise:
    case TermSign::Kind::Lower:
    case TermSign::Kind::EndLevel:
    case TermSign::Kind::Stroke:
        break;
    }
    return {};
}

String smallForm(StringView units, ScriptLevel level)
{
    if (level == ScriptLevel::Normal) {
        return String(units);
    }
    if (const auto form = scriptForm(units.front(), level)) {
        return {*form};
    }
    return String(1, level == ScriptLevel::Superscript ? u'^' : u'µ') += units;
}

String escaped(StringView text)
{
    String result;
    for (const char16_t unit : text) {
        switch (unit) {
        case u'&':
            result += u"&amp;";
            break;
        case u'<':
            result += u"&lt;";
            break;
        case u'>':
            result += u"&gt;";
            break;
        case u'"':
            result += u"&quot;";
            break;
        default:
            result += unit;
        }
    }
    return result;
}

StringView levelTag(ScriptLevel level, bool closes)
{
    switch (level) {
    case ScriptLevel::Superscript:
        return closes ? u"</sup>" : u"<sup>";
    case ScriptLevel::Subscript:
        return closes ? u"</sub>" : u"<sub>";
    case ScriptLevel::Normal:
        break;
    }
    return {};
}

} // namespace

String textOfTerm(StringView term)
{
    String text;
    for (TermReader reader(term); !reader.atEnd();) {
        const auto [sign, units] = reader.next();
        text += sign.kind == TermSign::Kind::Character ? smallForm(units, sign.level)
                                                       : String(usualSign(sign.kind));
    }
    return text;
}

String htmlOfTerm(StringView term)
{
    String html = u"<span data-term=\"" + escaped(term) + u"\">";
    ScriptLevel open = ScriptLevel::Normal;
    const auto change = [&](ScriptLevel level) {
        if (level != open) {
            html += levelTag(open, true);
            html += levelTag(level, false);
            open = level;
        }
    };
    for (TermReader reader(term); !reader.atEnd();) {
        const auto [sign, units] = reader.next();
        change(sign.level);
        html += sign.kind == TermSign::Kind::Character ? escaped(units) : String(usualSign(sign.kind));
    }
    change(ScriptLevel::Normal);
    return html + u"</span>";
}

} // namespace phial
