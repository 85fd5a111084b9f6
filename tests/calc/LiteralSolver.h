#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <span>

namespace phial::test
{

/// The solver's procedure written down step by step, with an array of texts that is searched again for every
/// operator, one nested call per bracket, and every intermediate value really written and read. It is slow
/// and needs stack for each bracket; the product must agree with it in value and error text on every term.
class LiteralSolver
{
public:
    explicit LiteralSolver(char16_t decimalSign) : decimalSign_(decimalSign) {}

    /// Raises what a variable raises that cannot be put in; a term with a leading "!" keeps such a word.
    double solve(StringView term, std::span<const Variant> variables);
    double solveTerm(String term);
    const String& error() const { return error_; }

private:
    /// Tokens from index 0 on; index 0 stays empty.
    using Tokens = std::vector<String>;
    /// Ends the present call with this result; the error text is set.
    struct End {
        double result;
    };

    double solveTokens(String term);
    Tokens tokensOf(StringView term);
    String functionValue(const String& token, double x);
    void applySigns(Tokens& rTokens) const;
    void reduce(Tokens& rTokens);
    String operate(const Tokens& tokens, std::size_t index);
    String textOf(double value) const;

    char16_t decimalSign_;
    String error_;
};

} // namespace phial::test
