#include "calc/TermEvaluation.h"

#include "calc/NumberThroughText.h"
#include "calc/SolverFunctions.h"
#include "core/Arithmetic.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

/// What a unit means where a term is read.
enum class UnitKind : unsigned char { Skipped, Word, Operator, Open, Close };

constexpr std::size_t LatinUnits = 256;

constexpr auto UnitKinds = [] {
    std::array<UnitKind, LatinUnits> kinds{};
    for (const char16_t unit :
         StringView(u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.,")) {
        kinds[unit] = UnitKind::Word;
    }
    for (const char16_t unit : StringView(u"+-*/%^:<>?~#!\u00B0|;$&")) {
        kinds[unit] = UnitKind::Operator;
    }
    kinds[u'('] = UnitKind::Open;
    kinds[u')'] = UnitKind::Close;
    return kinds;
}();

UnitKind kindOf(char16_t unit)
{
    return unit < LatinUnits ? UnitKinds[unit] : UnitKind::Skipped;
}

/// Whether a word in front of a bracket is thrown away instead of naming a function.
bool beginsNumber(char16_t unit)
{
    return (unit >= u'0' && unit <= u'9') || unit == u',' || unit == u'.';
}

bool isSign(char16_t sign)
{
    return sign == u'-' || sign == u'+';
}

/// Whether a sign behind this operator belongs to the value that follows.
bool letsSignFollow(char16_t sign)
{
    return sign == u'*' || sign == u'/' || sign == u'+' || sign == u'-' || sign == u'^';
}

} // namespace

TermEvaluation::Result TermEvaluation::evaluate(StringView term, char16_t decimalSign, RandomSource* random)
{
    decimalSign_ = decimalSign;
    random_ = random;
    error_.clear();
    tokens_.clear();
    texts_.clear();
    wordBegin_ = 0;
    calls_.assign(1, {});

    makeRoomFor(term);
    readTerm(term);
    while (!isOutermost()) {
        closeBracket();
    }
    endWord();
    const double value = valueOfCall();
    return {value, std::move(error_)};
}

/// The tokens of a long term take far more memory than the term, and a list that grows while it is filled
/// touches several times as much as it holds in the end. So they are counted first: an operator has a value
/// on each side.
void TermEvaluation::makeRoomFor(StringView term)
{
    constexpr std::size_t LongTerm = 1024;
    if (term.size() >= LongTerm) {
        const auto operators =
            std::ranges::count_if(term, [](char16_t unit) { return kindOf(unit) == UnitKind::Operator; });
        tokens_.reserve(2 * static_cast<std::size_t>(operators) + 1);
    }
}

void TermEvaluation::readTerm(StringView term)
{
    char16_t previous = 0;
    for (const char16_t unit : term) {
        // A sign right behind a capital E belongs to an exponent, which is kept inside one token.
        if (previous == u'E' && isSign(unit)) {
            readUnit(unit == u'+' ? u'P' : u'M');
        } else {
            readUnit(unit);
        }
        previous = unit;
    }
}

void TermEvaluation::readUnit(char16_t unit)
{
    if (calls_.back().failed) {
        passOver(unit);
        return;
    }
    switch (kindOf(unit)) {
    case UnitKind::Word:
        texts_.push_back(unit);
        break;
    case UnitKind::Operator:
        endWord();
        tokens_.push_back({.sign = unit});
        break;
    case UnitKind::Open:
        openBracket();
        break;
    case UnitKind::Close:
        if (!isOutermost()) {
            closeBracket();
        }
        break;
    case UnitKind::Skipped:
        break;
    }
}

void TermEvaluation::passOver(char16_t unit)
{
    Call& call = calls_.back();
    if (unit == u'(') {
        ++call.passedBrackets;
    } else if (unit == u')' && call.passedBrackets > 0) {
        --call.passedBrackets;
    } else if (unit == u')' && !isOutermost()) {
        closeBracket();
    }
}

void TermEvaluation::openBracket()
{
    calls_.push_back({.firstToken = tokens_.size(), .wordBegin = wordBegin_, .textsBegin = texts_.size()});
    wordBegin_ = texts_.size();
}

void TermEvaluation::closeBracket()
{
    endWord();
    const double value = valueOfCall();
    const Call closed = calls_.back();
    calls_.pop_back();
    tokens_.resize(closed.firstToken);
    texts_.resize(closed.textsBegin);
    wordBegin_ = closed.wordBegin;
    takeBracketValue(value);
}

void TermEvaluation::endWord()
{
    const StringView word = StringView(texts_).substr(wordBegin_);
    if (word.empty()) {
        return;
    }
    tokens_.push_back(
        {.value = numberOfToken(word), .typed = true, .textBegin = wordBegin_, .textLength = word.size()});
    wordBegin_ = texts_.size();
}

/// The word in front of the bracket, if there is one, gives way to the value, or to the function of it that
/// the word names. A word that names no function leaves the value as it is.
void TermEvaluation::takeBracketValue(double value)
{
    const StringView word = StringView(texts_).substr(wordBegin_);
    if (!word.empty() && !beginsNumber(word.front())) {
        if (const SolverFunction* function = findSolverFunction(word)) {
            try {
                value = function->value(value, random_);
            } catch (const RuntimeError& error) {
                if (isOutermost()) {
                    error_ = String(u"Error executing ").append(function->name) + u" (" +
                             plainText(value, decimalSign_) + u"): " + error.Description();
                }
                calls_.back().failed = true;
            }
        }
    }
    texts_.resize(wordBegin_);
    tokens_.push_back({.value = numberThroughText(value)});
}

double TermEvaluation::valueOfCall()
{
    const Call& call = calls_.back();
    if (call.failed) {
        return 0;
    }
    try {
        return valueOfTokens(call.firstToken);
    } catch (const RuntimeError& error) {
        if (isOutermost()) {
            error_ = u"Term coul not be parsed: " + error.Description();
        }
        return -1;
    }
}

double TermEvaluation::valueOfTokens(std::size_t first)
{
    applySigns(first);
    if (tokens_.size() - first > 1) {
        for (const Level level : {Level::Power, Level::Product, Level::Sum}) {
            if (!reduce(first, level)) {
                return 0;
            }
        }
        if (tokens_.size() - first > 1) {
            if (isOutermost()) {
                error_ = u"Could not solve term";
            }
            return 0;
        }
    }
    if (tokens_.size() == first) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return tokens_[first].value;
}

/// Takes unary signs into the token behind them, whatever that is.
void TermEvaluation::applySigns(std::size_t first)
{
    std::size_t kept = first;
    for (std::size_t next = first; next < tokens_.size(); ++next) {
        const char16_t sign = tokens_[next].sign;
        const bool unary = isSign(sign) && (kept == first || letsSignFollow(tokens_[kept - 1].sign));
        if (unary && ++next == tokens_.size()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        const double value = tokens_[next].value;
        tokens_[kept++] =
            unary ? Token{.value = numberThroughText(sign == u'-' ? -value : value)} : tokens_[next];
    }
    tokens_.resize(kept);
}

/// Applies all operators of a level from left to right, each to the tokens beside it, operators included.
/// Gives whether none failed.
bool TermEvaluation::reduce(std::size_t first, Level level)
{
    // One pass is enough: a result is never an operator, so what lies left of the present one is settled.
    std::size_t kept = first;
    for (std::size_t next = first; next < tokens_.size(); ++next) {
        const char16_t sign = tokens_[next].sign;
        if (levelOf(sign) != level) {
            tokens_[kept++] = tokens_[next];
            continue;
        }
        if (++next == tokens_.size()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        const Token left = kept > first ? tokens_[--kept] : emptyToken();
        double result = 0;
        if (!operate(left, sign, tokens_[next], result)) {
            return false;
        }
        tokens_[kept++] = {.value = result};
    }
    tokens_.resize(kept);
    return true;
}

bool TermEvaluation::operate(const Token& left, char16_t sign, const Token& right, double& rResult)
{
    try {
        rResult = numberThroughText(operated(left.value, sign, right.value));
        return true;
    } catch (const RuntimeError& error) {
        if (isOutermost()) {
            error_ = u"Error executing " + textOf(left) + u" " + sign + u" " + textOf(right) + u":  " +
                     error.Description();
        }
        return false;
    }
}

double TermEvaluation::operated(double left, char16_t sign, double right)
{
    switch (sign) {
    case u'^':
        return checkedPower(left, right);
    case u'*':
        return checkedMultiply(left, right);
    case u'/':
        return checkedDivide(left, right);
    case u'%':
        return wholeRemainder(toWhole(left), toWhole(right));
    case u'+':
        return checkedAdd(left, right);
    default:
        return checkedSubtract(left, right);
    }
}

TermEvaluation::Level TermEvaluation::levelOf(char16_t sign)
{
    switch (sign) {
    case u'^':
        return Level::Power;
    case u'*':
    case u'/':
    case u'%':
        return Level::Product;
    case u'+':
    case u'-':
        return Level::Sum;
    default:
        return Level::None;
    }
}

String TermEvaluation::textOf(const Token& token) const
{
    if (token.sign != 0) {
        return String(1, token.sign);
    }
    if (token.typed) {
        return texts_.substr(token.textBegin, token.textLength);
    }
    return plainText(token.value, decimalSign_);
}

} // namespace phial
