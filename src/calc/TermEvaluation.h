#pragma once

#include "core/String.h"

#include <cstddef>
#include <vector>

namespace phial
{

class RandomSource;

/// Works out one term without variables: takes it to tokens, and the tokens of each bracket to one value.
///
/// A term is read once from left to right. The tokens of all open brackets lie on one stack, the outermost
/// first, and a bracket that closes is reduced to a value at once; no call nests by the term's depth, and
/// time and memory grow with its length. Each bracket counts as a call of its own, whose errors the call
/// around it forgets: only its value, then 0 or -1, goes on. The object may be used again and keeps its
/// memory for that.
class TermEvaluation
{
public:
    struct Result {
        double value = 0;
        /// What went wrong in the outermost call, or the empty text.
        String error;
    };

    /// The value of a term. Numbers in error texts have the given decimal sign; `random` may be null (see
    /// SolverFunction).
    Result evaluate(StringView term, char16_t decimalSign, RandomSource* random);

private:
    struct Token {
        /// What CoreNumbers.ToDouble makes of the token: 0 for an operator.
        double value = 0;
        /// The operator; NUL for a value.
        char16_t sign = 0;
        /// Whether it stands as typed, with its text in texts_; a computed value has the text of its number.
        bool typed = false;
        std::size_t textBegin = 0;
        std::size_t textLength = 0;
    };
    /// An open bracket, or the term itself.
    struct Call {
        std::size_t firstToken = 0;
        /// Where the word in front of the bracket begins in texts_; it ends where the bracket's texts begin.
        std::size_t wordBegin = 0;
        std::size_t textsBegin = 0;
        /// A function failed: the rest up to the closing bracket is passed over, and the value is 0.
        bool failed = false;
        std::size_t passedBrackets = 0;
    };
    /// What stands left of a call's first token.
    static constexpr Token emptyToken() { return {.typed = true}; }

    enum class Level : unsigned char { None, Power, Product, Sum };

    void makeRoomFor(StringView term);
    void readTerm(StringView term);
    void readUnit(char16_t unit);
    void passOver(char16_t unit);
    void openBracket();
    void closeBracket();
    void endWord();
    void takeBracketValue(double value);

    double valueOfCall();
    double valueOfTokens(std::size_t first);
    void applySigns(std::size_t first);
    bool reduce(std::size_t first, Level level);
    bool operate(const Token& left, char16_t sign, const Token& right, double& rResult);
    static double operated(double left, char16_t sign, double right);

    static Level levelOf(char16_t sign);
    bool isOutermost() const { return calls_.size() == 1; }
    String textOf(const Token& token) const;

    std::vector<Token> tokens_;
    std::vector<Call> calls_;
    /// The typed tokens of the open calls one behind the other; the one being read is last.
    String texts_;
    std::size_t wordBegin_ = 0;
    String error_;
    char16_t decimalSign_ = u',';
    RandomSource* random_ = nullptr;
};

} // namespace phial
