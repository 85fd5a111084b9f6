#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <cstdint>
#include <optional>
#include <span>

namespace phial
{

class ExpressionSolver;

/// What is wrong with a calculator's term, or worth a word because the solver reads it otherwise than people
/// do: "2(3)" is 3, and "3*" is 0.
struct TermFlaw {
    enum class Kind : std::uint8_t {
        NumberMissingBehind,
        NumberMissingBefore,
        OperatorMissing, ///< between two signs, told by `detail` and `other`
        FactorDropped,   ///< likewise; what stands before is not multiplied but forgotten
        EmptyBrackets,
        BracketTooMany,
        UnknownName,
        TwoDecimalSigns,
        DivisionByZero,
        NoLogarithm,
        NoSuchPower,
        TooLarge,
    };

    Kind kind{};
    std::size_t place = 0; ///< in the term, in units
    String detail{};       ///< what is there
    String other{};        ///< and what comes behind it

    friend bool operator==(const TermFlaw&, const TermFlaw&) = default;
};

/// The first thing that is wrong with a term by its signs alone; none for one that means what it says.
/// `names` are those of variables.
std::optional<TermFlaw> flawIn(StringView term, std::span<const String> names);

/// The same, and behind it what cannot be worked out: the solver is asked about each pair of brackets, from
/// the inside to the outside, and last about the whole term.
std::optional<TermFlaw> flawIn(StringView term, std::span<const String> names, ExpressionSolver& solver,
                               std::span<const Variant> variables);

/// A sentence for pupils, "German|English".
String adviceOn(const TermFlaw& flaw);

} // namespace phial
