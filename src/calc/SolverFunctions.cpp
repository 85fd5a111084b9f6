#include "calc/SolverFunctions.h"

#include "core/Arithmetic.h"
#include "core/RandomSource.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace phial
{

namespace
{

double sign(double x)
{
    return x > 0 ? 1.0 : x < 0 ? -1.0 : 0.0;
}

double square(double x)
{
    return checkedMultiply(x, x);
}

/// 2·Atn(1), the right angle of the inverse functions.
double rightAngle()
{
    return 2 * std::atan(1.0);
}

double randomNumber(double x, RandomSource* random)
{
    if (random == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return random->next() * x;
}

/// Exp(x) - Exp(-x), twice the hyperbolic sine.
double exponentialDifference(double x)
{
    return checkedExponential(x) - checkedExponential(-x);
}

/// Exp(x) + Exp(-x), twice the hyperbolic cosine.
double exponentialSum(double x)
{
    return checkedAdd(checkedExponential(x), checkedExponential(-x));
}

using Random = RandomSource*;

// The formulas stand as school books of tables gave them, so each fails where one of its steps fails.
constexpr std::array Functions{
    SolverFunction{u"ABS", [](double x, Random) { return std::fabs(x); }},
    SolverFunction{u"ARCCOS",
                   [](double x, Random) {
                       return std::atan(checkedDivide(-x, checkedSquareRoot(-square(x) + 1))) + rightAngle();
                   }},
    SolverFunction{u"ARCCOSEC",
                   [](double x, Random) {
                       return std::atan(checkedDivide(x, checkedSquareRoot(square(x) - 1))) +
                              (sign(x) - 1) * rightAngle();
                   }},
    SolverFunction{u"ARCCOTAN", [](double x, Random) { return std::atan(x) + rightAngle(); }},
    SolverFunction{u"ARCSEC",
                   [](double x, Random) {
                       return std::atan(checkedDivide(x, checkedSquareRoot(square(x) - 1))) +
                              sign(x - 1) * rightAngle();
                   }},
    SolverFunction{
        u"ARCSIN",
        [](double x, Random) { return std::atan(checkedDivide(x, checkedSquareRoot(-square(x) + 1))); }},
    SolverFunction{u"ATN", [](double x, Random) { return std::atan(x); }},
    SolverFunction{u"COS", [](double x, Random) { return std::cos(x); }},
    SolverFunction{u"COSEC", [](double x, Random) { return checkedDivide(1, std::sin(x)); }},
    SolverFunction{u"COTAN", [](double x, Random) { return checkedDivide(1, std::tan(x)); }},
    SolverFunction{u"EXP", [](double x, Random) { return checkedExponential(x); }},
    SolverFunction{u"FIX", [](double x, Random) { return std::trunc(x); }},
    SolverFunction{u"HYPARCCOS",
                   [](double x, Random) { return checkedLogarithm(x + checkedSquareRoot(square(x) - 1)); }},
    SolverFunction{u"HYPARCCOSEC",
                   [](double x, Random) {
                       return checkedLogarithm(
                           checkedDivide(sign(x) * checkedSquareRoot(square(x) + 1) + 1, x));
                   }},
    SolverFunction{u"HYPARCCOTAN",
                   [](double x, Random) { return checkedLogarithm(checkedDivide(x + 1, x - 1)) / 2; }},
    SolverFunction{u"HYPARCSEC",
                   [](double x, Random) {
                       return checkedLogarithm(checkedDivide(checkedSquareRoot(-square(x) + 1) + 1, x));
                   }},
    SolverFunction{u"HYPARCSIN",
                   [](double x, Random) { return checkedLogarithm(x + checkedSquareRoot(square(x) + 1)); }},
    SolverFunction{u"HYPARCTAN",
                   [](double x, Random) { return checkedLogarithm(checkedDivide(1 + x, 1 - x)) / 2; }},
    SolverFunction{u"HYPCOS", [](double x, Random) { return exponentialSum(x) / 2; }},
    SolverFunction{u"HYPCOSEC", [](double x, Random) { return checkedDivide(2, exponentialDifference(x)); }},
    SolverFunction{
        u"HYPCOTAN",
        [](double x, Random) { return checkedDivide(exponentialSum(x), exponentialDifference(x)); }},
    SolverFunction{u"HYPSEC", [](double x, Random) { return checkedDivide(2, exponentialSum(x)); }},
    SolverFunction{u"HYPSIN", [](double x, Random) { return exponentialDifference(x) / 2; }},
    SolverFunction{
        u"HYPTAN",
        [](double x, Random) { return checkedDivide(exponentialDifference(x), exponentialSum(x)); }},
    SolverFunction{u"INT", [](double x, Random) { return std::floor(x); }},
    SolverFunction{u"LN", [](double x, Random) { return checkedLogarithm(x); }},
    SolverFunction{u"LOG", [](double x, Random) { return checkedLogarithm(x) / std::log(10.0); }},
    SolverFunction{u"RND", randomNumber},
    SolverFunction{u"SEC", [](double x, Random) { return checkedDivide(1, std::cos(x)); }},
    SolverFunction{u"SGN", [](double x, Random) { return sign(x); }},
    SolverFunction{u"SIN", [](double x, Random) { return std::sin(x); }},
    SolverFunction{u"SQR", [](double x, Random) { return checkedSquareRoot(x); }},
    SolverFunction{u"TAN", [](double x, Random) { return std::tan(x); }},
};

static_assert(std::ranges::is_sorted(Functions, {}, &SolverFunction::name), "the look-up halves the table");
static_assert(std::ranges::all_of(Functions, [](const SolverFunction& function) {
    return function.name.size() <= LongestSolverFunction;
}));

} // namespace

const SolverFunction* findSolverFunction(StringView name)
{
    if (name.size() > LongestSolverFunction) {
        return nullptr;
    }
    std::array<char16_t, LongestSolverFunction> capitals{};
    std::ranges::transform(name, capitals.begin(), [](char16_t unit) { return upperCase(unit); });
    const StringView wanted(capitals.data(), name.size());

    const auto* found = std::ranges::lower_bound(Functions, wanted, {}, &SolverFunction::name);
    return found != Functions.end() && found->name == wanted ? found : nullptr;
}

} // namespace phial
