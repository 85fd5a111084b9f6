#include "calc/TermPieces.h"

#include <optional>

namespace phial
{

namespace
{

bool isAnyOf(char16_t unit, StringView units)
{
    return units.find(unit) != StringView::npos;
}

bool isNumberSign(char16_t unit)
{
    return isAnyOf(unit, u"0123456789,.");
}

/// Where a number ends, its exponent included: an E with a sign and a digit behind it.
std::size_t endOfNumber(StringView term, std::size_t at)
{
    const auto skip = [&] {
        while (at < term.size() && isNumberSign(term[at])) {
            ++at;
        }
    };
    skip();
    if (at + 2 < term.size() && isAnyOf(term[at], u"Ee") && isAnyOf(term[at + 1], u"+-") &&
        isNumberSign(term[at + 2])) {
        at += 2;
        skip();
    }
    return at;
}

std::size_t endOfName(StringView term, std::size_t at)
{
    while (at < term.size() && (isNameSign(term[at]) || isNumberSign(term[at]))) {
        ++at;
    }
    return at;
}

std::optional<TermPiece::Kind> kindAt(char16_t unit)
{
    using Kind = TermPiece::Kind;
    if (isNumberSign(unit)) {
        return Kind::Number;
    }
    if (isNameSign(unit)) {
        return Kind::Name;
    }
    if (unit == u'(' || unit == u')') {
        return unit == u'(' ? Kind::Opening : Kind::Closing;
    }
    return isAnyOf(unit, u"+-*/^%") ? std::optional(Kind::Operator) : std::nullopt;
}

} // namespace

bool isNameSign(char16_t unit)
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

std::vector<TermPiece> piecesOf(StringView term)
{
    std::vector<TermPiece> pieces;
    std::size_t at = 0;
    while (at < term.size()) {
        const std::size_t start = at;
        const auto kind = kindAt(term[start]);
        at = kind == TermPiece::Kind::Number ? endOfNumber(term, start)
             : kind == TermPiece::Kind::Name ? endOfName(term, start)
                                             : start + 1;
        if (kind) {
            pieces.push_back({*kind, start, term.substr(start, at - start)});
        }
    }
    return pieces;
}

} // namespace phial
