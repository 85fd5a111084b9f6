#include "term/TermRules.h"

namespace phial
{

namespace
{

using Kind = TermSign::Kind;

constexpr char16_t NoNeighbour = u'\uFFFF'; // no character has this code

char16_t unitBefore(StringView part, std::size_t position)
{
    return position > 0 ? part[position - 1] : NoNeighbour;
}

char16_t unitBehind(StringView part, std::size_t position)
{
    return position + 1 < part.size() ? part[position + 1] : NoNeighbour;
}

bool isIndexSign(char16_t unit)
{
    return StringView(u"0123456789,.").find(unit) != StringView::npos;
}

/// A sign is a charge when nothing of the formula follows it, and never behind a blank.
bool isCharge(StringView part, std::size_t position)
{
    const char16_t next = unitBehind(part, position);
    const bool formulaFollows =
        next != NoNeighbour && next != u' ' && next != u'|' && next != u')' && !isIndexSign(next);
    return !formulaFollows && unitBefore(part, position) != u' ';
}

} // namespace

/// By the first rule that fits.
TermSign TermRules::read(StringView part, std::size_t position)
{
    const char16_t next = unitBehind(part, position);
    switch (part[position]) {
    case u'§':
        return {.kind = Kind::Red};
    case u' ':
        mode_ = ScriptLevel::Normal;
        return plainSign({});
    case u'^':
        return jump(Kind::Raise, ScriptLevel::Superscript);
    case u'µ':
        return jump(Kind::Lower, ScriptLevel::Subscript);
    case u'#':
        mode_ = ScriptLevel::Normal;
        return {.kind = Kind::EndLevel};
    case u'|':
        return next == NoNeighbour ? plainSign({}) : TermSign{.kind = Kind::Stroke};
    case u'~':
        return next == u'~' ? plainSign({.kind = Kind::Approximately, .length = 2}) : indexed(part, position);
    case u'*':
        return plainSign({.kind = Kind::MiddleDot});
    case u',':
    case u'(':
    case u'/':
        return plainSign({});
    case u'+':
        return mode_ != ScriptLevel::Superscript && next != NoNeighbour && next != u')'
                   ? plainSign({})
                   : indexed(part, position);
    case u')':
        plain_ = false;
        return {};
    case u'=':
        return next == u'^' ? plainSign({.kind = Kind::Correspondence, .length = 2})
                            : indexed(part, position);
    case u'-':
        return next == u'>' ? plainSign({.kind = Kind::RightArrow, .length = 2}) : indexed(part, position);
    case u'<':
        return next == u'-' ? plainSign({.kind = Kind::LeftArrow, .length = 2}) : indexed(part, position);
    default:
        return indexed(part, position);
    }
}

TermSign TermRules::plainSign(TermSign sign)
{
    plain_ = true;
    return sign;
}

TermSign TermRules::jump(Kind kind, ScriptLevel level)
{
    mode_ = level;
    forced_ = true;
    return {.kind = kind};
}

TermSign TermRules::indexed(StringView part, std::size_t position)
{
    const char16_t unit = part[position];
    bool isIndex = isIndexSign(unit);
    if (!isIndex) {
        plain_ = false;
    }
    if (plain_) {
        isIndex = false;
    }
    if ((unit == u'+' || unit == u'-') && isCharge(part, position)) {
        mode_ = ScriptLevel::Superscript;
        isIndex = true;
    }
    if (forced_) {
        forced_ = false;
    } else if (mode_ == ScriptLevel::Normal && isIndex) {
        mode_ = ScriptLevel::Subscript;
    } else if (mode_ != ScriptLevel::Normal && !isIndex) {
        mode_ = ScriptLevel::Normal;
    }
    const bool isPair = isHighSurrogate(unit) && isLowSurrogate(unitBehind(part, position));
    return {.level = mode_,
            .isAnchor = mode_ == ScriptLevel::Normal,
            .length = static_cast<std::size_t>(isPair ? 2 : 1)};
}

} // namespace phial
