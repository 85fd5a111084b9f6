#include "calc/LiteralSolver.h"

#include "calc/SolverFunctions.h"
#include "core/Arithmetic.h"
#include "core/CoreNumbers.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"

#include <algorithm>

namespace phial::test
{

namespace
{

bool contains(StringView text, StringView part)
{
    return text.find(part) != StringView::npos;
}

bool isLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

double numberOf(StringView token)
{
    double value = 0;
    CoreNumbers::ToDouble(token, value);
    return value;
}

const String& tokenAt(const std::vector<String>& tokens, std::size_t index)
{
    if (index >= tokens.size()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return tokens[index];
}

/// Removes the empty tokens from index 1 on.
void removeEmpty(std::vector<String>& rTokens)
{
    rTokens.erase(std::remove(rTokens.begin() + 1, rTokens.end(), String()), rTokens.end());
}

/// The index of the first token that is part of the text, from 1 on; 0 if there is none.
std::size_t firstOf(const std::vector<String>& tokens, StringView operators)
{
    for (std::size_t index = 1; index < tokens.size(); ++index) {
        if (contains(operators, tokens[index])) {
            return index;
        }
    }
    return 0;
}

/// The text up to the bracket that matches one just before `begin`; `rNext` is the position behind that
/// bracket.
String bracketText(StringView term, std::size_t begin, std::size_t& rNext)
{
    int depth = 1;
    std::size_t position = begin;
    for (; position < term.size(); ++position) {
        if (term[position] == u'(') {
            ++depth;
        } else if (term[position] == u')' && --depth == 0) {
            break;
        }
    }
    rNext = position + 1;
    return String(term.substr(begin, position - begin));
}

void putIn(String& rTerm, std::size_t position, StringView word, std::span<const Variant> variables)
{
    for (std::size_t name = 0; name < variables.size(); name += 2) {
        if (upperCase(variables[name].toText()) != upperCase(word)) {
            continue;
        }
        if (name + 1 == variables.size()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        rTerm = rTerm.substr(0, position - word.size()) +
                CoreInvariant::Format(variables[name + 1].toReal()) + rTerm.substr(position);
        return;
    }
}

} // namespace

double LiteralSolver::solve(StringView term, std::span<const Variant> variables)
{
    const bool ignoring = term.size() > 1 && term.front() == u'!';
    if (ignoring) {
        term.remove_prefix(1);
    }
    String sum = replaced(u"0+" + String(term) + u"+0", u"--", u"+");
    error_.clear();
    if (!variables.empty()) {
        String word;
        for (std::size_t position = 0; position < sum.size(); ++position) {
            if (contains(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890.",
                         upperCase(StringView(&sum[position], 1)))) {
                word += sum[position];
                continue;
            }
            if (!word.empty() && ignoring) {
                ignoringErrors([&] { putIn(sum, position, word, variables); });
            } else if (!word.empty()) {
                putIn(sum, position, word, variables);
            }
            word.clear();
        }
    }
    return solveTerm(sum);
}

double LiteralSolver::solveTerm(String term)
{
    try {
        return solveTokens(std::move(term));
    } catch (const End& end) {
        return end.result;
    } catch (const RuntimeError& error) {
        error_ = u"Term coul not be parsed: " + error.Description();
        return -1;
    }
}

double LiteralSolver::solveTokens(String term)
{
    error_.clear();
    term = replaced(replaced(term, u"E+", u"EP"), u"E-", u"EM");
    Tokens tokens = tokensOf(term);
    removeEmpty(tokens);
    applySigns(tokens);
    error_.clear();
    if (tokens.size() > 2) {
        reduce(tokens);
    }
    return numberOf(tokenAt(tokens, 1));
}

LiteralSolver::Tokens LiteralSolver::tokensOf(StringView term)
{
    Tokens tokens(2);
    for (std::size_t position = 0; position < term.size();) {
        const char16_t unit = term[position++];
        if (unit == u'(') {
            const double x = solveTerm(bracketText(term, position, position));
            const String& token = tokens.back();
            const bool isFunction = !token.empty() && !contains(u"1234567890,.", token.substr(0, 1));
            tokens.back() = isFunction ? functionValue(token, x) : textOf(x);
            tokens.emplace_back();
        } else if (isLetter(unit) || contains(u"0123456789.,", StringView(&unit, 1))) {
            tokens.back() += unit;
        } else if (contains(u"+-*/%^:<>?~#!°|;$&", StringView(&unit, 1))) {
            tokens.emplace_back(1, unit);
            tokens.emplace_back();
        }
    }
    return tokens;
}

String LiteralSolver::functionValue(const String& token, double x)
{
    const SolverFunction* function = findSolverFunction(token);
    if (function == nullptr) {
        error_ = u"Invalid function: " + token;
        return textOf(x);
    }
    try {
        return textOf(function->value(x, nullptr));
    } catch (const RuntimeError& error) {
        error_ = u"Error executing " + upperCase(token) + u" (" + textOf(x) + u"): " + error.Description();
        throw End{0};
    }
}

void LiteralSolver::applySigns(Tokens& rTokens) const
{
    for (bool changed = true; changed;) {
        changed = false;
        for (std::size_t index = 1; index < rTokens.size(); ++index) {
            const String sign = rTokens[index];
            if ((sign != u"-" && sign != u"+") || !contains(u"*/+-^", rTokens[index - 1])) {
                continue;
            }
            const double value = numberOf(tokenAt(rTokens, index + 1));
            rTokens[index + 1] = textOf(value * numberOf(sign + u"1"));
            rTokens[index].clear();
            changed = true;
        }
    }
}

void LiteralSolver::reduce(Tokens& rTokens)
{
    while (removeEmpty(rTokens), rTokens.size() > 2) {
        std::size_t index = firstOf(rTokens, u"^");
        if (index == 0) {
            index = firstOf(rTokens, u"*/%\\");
        }
        if (index == 0) {
            index = firstOf(rTokens, u"+-");
        }
        if (index == 0) {
            error_ = u"Could not solve term";
            throw End{0};
        }
        rTokens[index] = operate(rTokens, index);
        rTokens[index - 1].clear();
        rTokens[index + 1].clear();
    }
}

String LiteralSolver::operate(const Tokens& tokens, std::size_t index)
{
    const double a = numberOf(tokens[index - 1]);
    const double b = numberOf(tokenAt(tokens, index + 1));
    try {
        switch (tokens[index].front()) {
        case u'^':
            return textOf(checkedPower(a, b));
        case u'*':
            return textOf(checkedMultiply(a, b));
        case u'/':
            return textOf(checkedDivide(a, b));
        case u'%':
            return plainText(wholeRemainder(toWhole(a), toWhole(b)));
        case u'+':
            return textOf(checkedAdd(a, b));
        default:
            return textOf(checkedSubtract(a, b));
        }
    } catch (const RuntimeError& error) {
        error_ = u"Error executing " + tokens[index - 1] + u" " + tokens[index] + u" " + tokens[index + 1] +
                 u":  " + error.Description();
        throw End{0};
    }
}

String LiteralSolver::textOf(double value) const
{
    return plainText(value, decimalSign_);
}

} // namespace phial::test
