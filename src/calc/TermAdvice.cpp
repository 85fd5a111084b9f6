#include "calc/TermAdvice.h"

#include "calc/ExpressionSolver.h"
#include "calc/SolverFunctions.h"
#include "calc/TermPieces.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <vector>

namespace phial
{

namespace
{

bool isAmong(StringView name, std::span<const String> names)
{
    return std::ranges::any_of(names, [&](const String& known) { return equalsIgnoringCase(known, name); });
}

/// A number's decimal sign is the one that stands last in it; one that stands in it twice is no number.
bool hasTwoDecimalSigns(StringView number)
{
    const std::size_t last = number.find_last_of(u",.");
    return last != StringView::npos && number.find(number[last]) != last;
}

/// Goes over the pieces of a term once, from left to right.
class FlawSearch
{
public:
    FlawSearch(StringView term, std::span<const String> names) : pieces_(piecesOf(term)), names_(names) {}

    std::optional<TermFlaw> run()
    {
        for (at_ = 0; at_ < pieces_.size(); ++at_) {
            if (auto flaw = atPiece()) {
                return flaw;
            }
        }
        return pieces_.empty() || !isValueExpected_ || pieces_.back().kind == Kind::Opening
                   ? std::nullopt
                   : std::optional(flaw(TermFlaw::Kind::NumberMissingBehind, pieces_.back()));
    }

private:
    using Kind = TermPiece::Kind;

    static TermFlaw flaw(TermFlaw::Kind kind, const TermPiece& piece)
    {
        return {kind, piece.start, String(piece.text)};
    }
    TermFlaw between(TermFlaw::Kind kind) const
    {
        return {kind, piece().start, String(before()->text), String(piece().text)};
    }
    const TermPiece& piece() const { return pieces_[at_]; }
    const TermPiece* before() const { return at_ > 0 ? &pieces_[at_ - 1] : nullptr; }
    bool isBehind(Kind kind) const { return before() && before()->kind == kind; }
    bool opensFunction() const
    {
        return at_ + 1 < pieces_.size() && pieces_[at_ + 1].kind == Kind::Opening &&
               findSolverFunction(piece().text);
    }

    std::optional<TermFlaw> atPiece()
    {
        switch (piece().kind) {
        case Kind::Operator:
            return atOperator();
        case Kind::Opening:
            return atOpening();
        case Kind::Closing:
            return atClosing();
        default:
            return atValue();
        }
    }

    std::optional<TermFlaw> atOperator()
    {
        if (isValueExpected_ && !piece().isSign()) {
            return isBehind(Kind::Operator) ? flaw(TermFlaw::Kind::NumberMissingBehind, *before())
                                            : flaw(TermFlaw::Kind::NumberMissingBefore, piece());
        }
        isValueExpected_ = true;
        return std::nullopt;
    }

    std::optional<TermFlaw> atOpening()
    {
        const bool isArgument = isBehind(Kind::Name) && findSolverFunction(before()->text);
        if (!isValueExpected_ && !isArgument) {
            return between(isBehind(Kind::Closing) ? TermFlaw::Kind::OperatorMissing
                                                   : TermFlaw::Kind::FactorDropped);
        }
        ++depth_;
        isValueExpected_ = true;
        return std::nullopt;
    }

    std::optional<TermFlaw> atClosing()
    {
        if (isBehind(Kind::Opening)) {
            return flaw(TermFlaw::Kind::EmptyBrackets, piece());
        }
        if (depth_ == 0) {
            return flaw(TermFlaw::Kind::BracketTooMany, piece());
        }
        if (isValueExpected_) {
            return flaw(TermFlaw::Kind::NumberMissingBehind, *before());
        }
        --depth_;
        return std::nullopt;
    }

    /// Numbers and names stand side by side only where one of them begins as the other cannot go on: "2A".
    std::optional<TermFlaw> atValue()
    {
        if (!isValueExpected_) {
            return between(isBehind(Kind::Closing) ? TermFlaw::Kind::OperatorMissing
                                                   : TermFlaw::Kind::FactorDropped);
        }
        isValueExpected_ = false;
        if (piece().kind == Kind::Number) {
            return hasTwoDecimalSigns(piece().text)
                       ? std::optional(flaw(TermFlaw::Kind::TwoDecimalSigns, piece()))
                       : std::nullopt;
        }
        return isAmong(piece().text, names_) || opensFunction()
                   ? std::nullopt
                   : std::optional(flaw(TermFlaw::Kind::UnknownName, piece()));
    }

    std::vector<TermPiece> pieces_;
    std::span<const String> names_;
    std::size_t at_ = 0;
    std::size_t depth_ = 0;
    bool isValueExpected_ = true;
};

/// The parts of a term that the solver forgets errors of: what stands in brackets, with the name of a
/// function before it, from the inside to the outside.
std::vector<TermPiece> bracketsIn(StringView term)
{
    std::vector<TermPiece> found;
    std::vector<std::size_t> open;
    for (std::size_t at = 0; at < term.size(); ++at) {
        if (term[at] == u'(') {
            open.push_back(at);
        } else if (term[at] == u')' && !open.empty()) {
            found.push_back(
                {TermPiece::Kind::Opening, open.back(), term.substr(open.back(), at + 1 - open.back())});
            open.pop_back();
        }
    }
    for (; !open.empty(); open.pop_back()) {
        found.push_back({TermPiece::Kind::Opening, open.back(), term.substr(open.back())});
    }
    for (TermPiece& piece : found) {
        std::size_t start = piece.start;
        while (start > 0 && isNameSign(term[start - 1])) {
            --start;
        }
        piece.text = start == piece.start
                         ? piece.text.substr(1, piece.text.size() - (piece.text.ends_with(u')') ? 2 : 1))
                         : term.substr(start, piece.start - start + piece.text.size());
    }
    return found;
}

std::optional<TermFlaw::Kind> kindOf(const String& solveError)
{
    if (solveError.empty()) {
        return std::nullopt;
    }
    const auto tells = [&](ErrorNumber number) {
        return solveError.ends_with(errorDescription(static_cast<std::int32_t>(number)));
    };
    if (tells(ErrorNumber::DivisionByZero)) {
        return TermFlaw::Kind::DivisionByZero;
    }
    if (tells(ErrorNumber::Overflow)) {
        return TermFlaw::Kind::TooLarge;
    }
    if (tells(ErrorNumber::InvalidArgument)) {
        return StringView(solveError).starts_with(u"Error executing L") ? TermFlaw::Kind::NoLogarithm
                                                                        : TermFlaw::Kind::NoSuchPower;
    }
    return std::nullopt;
}

/// A sentence with the flaw's two signs at the places of "[" and "]".
String filled(StringView sentence, const TermFlaw& flaw)
{
    String text;
    for (const char16_t unit : sentence) {
        text += unit == u'[' ? flaw.detail : unit == u']' ? flaw.other : String(1, unit);
    }
    return text;
}

} // namespace

std::optional<TermFlaw> flawIn(StringView term, std::span<const String> names)
{
    return FlawSearch(term, names).run();
}

std::optional<TermFlaw> flawIn(StringView term, std::span<const String> names, ExpressionSolver& solver,
                               std::span<const Variant> variables)
{
    if (auto flaw = flawIn(term, names)) {
        return flaw;
    }
    std::vector<TermPiece> parts = bracketsIn(term);
    parts.push_back({TermPiece::Kind::Opening, 0, term});
    for (const TermPiece& part : parts) {
        double value = 0;
        ignoringErrors([&] { solver.SOLVE(part.text, variables, value); });
        if (const auto kind = kindOf(solver.SolveError())) {
            return TermFlaw{*kind, part.start, String(part.text)};
        }
    }
    return std::nullopt;
}

String adviceOn(const TermFlaw& flaw)
{
    switch (flaw.kind) {
    case TermFlaw::Kind::NumberMissingBehind:
        return filled(u"Hinter [ fehlt eine Zahl.|A number is missing after [.", flaw);
    case TermFlaw::Kind::NumberMissingBefore:
        return filled(u"Vor [ fehlt eine Zahl.|A number is missing before [.", flaw);
    case TermFlaw::Kind::OperatorMissing:
        return filled(u"Zwischen [ und ] fehlt ein Rechenzeichen.|An operator is missing between [ and ].",
                      flaw);
    case TermFlaw::Kind::FactorDropped:
        return filled(u"Zwischen [ und ] fehlt ein Malzeichen, deshalb zählt [ nicht.|"
                      u"A times sign is missing between [ and ], so [ does not count.",
                      flaw);
    case TermFlaw::Kind::EmptyBrackets:
        return u"In der Klammer steht nichts.|There is nothing in the brackets.";
    case TermFlaw::Kind::BracketTooMany:
        return u"Zu dieser ) gehört keine (.|This ) has no ( before it.";
    case TermFlaw::Kind::UnknownName:
        return filled(u"[ kenne ich nicht.|I do not know [.", flaw);
    case TermFlaw::Kind::TwoDecimalSigns:
        return filled(u"[ hat zu viele Kommas.|[ has too many decimal signs.", flaw);
    case TermFlaw::Kind::DivisionByZero:
        return u"Durch null kann man nicht teilen.|Nothing can be divided by zero.";
    case TermFlaw::Kind::NoLogarithm:
        return u"Einen Logarithmus gibt es nur von Zahlen über null.|Only numbers above zero have a "
               u"logarithm.";
    case TermFlaw::Kind::NoSuchPower:
        return u"Diese Potenz gibt es nicht.|There is no such power.";
    case TermFlaw::Kind::TooLarge:
        return u"Das Ergebnis ist zu groß.|The result is too large.";
    }
    return {};
}

} // namespace phial
