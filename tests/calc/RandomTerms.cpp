#include "calc/RandomTerms.h"

#include <array>
#include <cctype>
#include <string_view>

namespace phial::test
{

namespace
{

constexpr int DeepestNesting = 4;

constexpr std::array<std::string_view, 28> FunctionNames{
    "sin",    "cos",      "tan",      "arcsin",    "arccos",    "fix",       "int",
    "abs",    "log",      "ln",       "atn",       "exp",       "sgn",       "sqr",
    "sec",    "cosec",    "cotan",    "arccotan",  "hypsin",    "hypcos",    "hyptan",
    "hypsec", "hypcosec", "hypcotan", "hyparcsin", "hyparccos", "hyparctan", "hyparccotan"};

constexpr std::array<std::string_view, 49> Pieces{
    "1",    "2",    "3",    "0",    "10",   "1.5",  "2,5",  "7",   "E",     "e",      "E+", "E-", "+",
    "-",    "+",    "-",    "*",    "/",    "^",    "%",    "(",   ")",     "(",      ")",  "--", " ",
    "sin(", "LOG(", "sqr(", "foo(", "ln(",  "A",    "BC",   "x",   ":",     "!",      "|",  "#",  "°",
    "ä",    "\\",   "abs(", "int(", "exp(", "1E+3", "1EM2", "0.1", "99999", "1,000.5"};

} // namespace

std::string RandomTerms::orderly()
{
    return operation(DeepestNesting);
}

std::string RandomTerms::disorderly()
{
    std::string term;
    for (std::size_t count = below(14); count > 0; --count) {
        term += Pieces[below(Pieces.size())];
    }
    return term;
}

std::string RandomTerms::operation(int depth)
{
    std::string term = value(depth, true);
    for (std::size_t count = below(4); count > 0; --count) {
        const char sign = "+-*/^"[below(5)];
        if (oneIn(12)) {
            // Whole numbers on both sides, so that the remainder does not jump by a lost digit.
            term += "+(" + std::to_string(below(1000)) + spaced("%") + std::to_string(1 + below(50)) + ")";
        }
        // The blank keeps two minus signs apart.
        term += spaced(std::string(1, sign)) + (sign == '-' ? " " : "") + value(depth, true);
    }
    return term;
}

std::string RandomTerms::value(int depth, bool signAllowed)
{
    if (signAllowed && oneIn(6)) {
        return (oneIn(4) ? "+" : "-") + unsignedValue(depth);
    }
    return unsignedValue(depth);
}

std::string RandomTerms::unsignedValue(int depth)
{
    if (depth == 0 || oneIn(2)) {
        return oneIn(8) ? std::string(1, "AbC"[below(3)]) : number();
    }
    return oneIn(3) ? functionCall(depth - 1) : "(" + operation(depth - 1) + ")";
}

std::string RandomTerms::number()
{
    std::string digits = std::to_string(below(oneIn(3) ? 100000 : 10));
    if (oneIn(2)) {
        digits += (oneIn(2) ? "," : ".") + std::to_string(below(1000));
    }
    if (oneIn(15)) {
        digits += (oneIn(2) ? "E+" : "E-") + std::to_string(below(12));
    }
    return digits;
}

std::string RandomTerms::functionCall(int depth)
{
    std::string name(FunctionNames[below(FunctionNames.size())]);
    for (char& letter : name) {
        if (oneIn(3)) {
            letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        }
    }
    return name + spaced("(") + operation(depth) + ")";
}

std::string RandomTerms::spaced(std::string text)
{
    if (oneIn(5)) {
        text.insert(0, " ");
    }
    if (oneIn(5)) {
        text += ' ';
    }
    return text;
}

} // namespace phial::test
