#include "calc/PlainEvaluator.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <functional>

namespace phial::test
{

namespace
{

constexpr double TextError = 5e-15;
constexpr double ArithmeticError = 1e-15;
/// Where an operand is uncertain by more than this part of itself, no tolerance is told.
constexpr double UsableError = 1e-6;
/// A function may change by this part of its value over the error of its argument, which is no longer itself.
constexpr double UsableStretch = 1e-3;
/// e to the power of larger numbers is beyond the range of a double.
constexpr double LargestExponent = 700;

/// A result with the error of its operands, rounded once more.
Measured rounded(double value, double inheritedError)
{
    if (!std::isfinite(value) || !std::isfinite(inheritedError)) {
        throw PlainEvaluator::NoValue("out of range");
    }
    return {value, inheritedError + std::fabs(value) * (TextError + ArithmeticError)};
}

Measured add(Measured left, Measured right)
{
    return rounded(left.value + right.value, left.error + right.error);
}

Measured negated(Measured operand)
{
    return rounded(-operand.value, operand.error);
}

Measured multiply(Measured left, Measured right)
{
    return rounded(left.value * right.value, std::fabs(left.value) * right.error +
                                                 std::fabs(right.value) * left.error +
                                                 left.error * right.error);
}

Measured divide(Measured left, Measured right)
{
    if (right.error >= UsableError * std::fabs(right.value)) {
        throw PlainEvaluator::NoValue("divisor near zero");
    }
    const double quotient = left.value / right.value;
    const double inherited = (left.error + std::fabs(quotient) * right.error) / std::fabs(right.value);
    return rounded(quotient, inherited * (1 + 2 * UsableError));
}

Measured remainder(Measured left, Measured right)
{
    if (left.error != 0 || right.error != 0 || right.value == 0) {
        throw PlainEvaluator::NoValue("remainder of uncertain numbers");
    }
    return {std::fmod(left.value, right.value), 0};
}

/// A function of a smooth stretch: the error of the argument shows in how the function changes over it.
Measured smooth(const std::function<double(double)>& function, Measured x)
{
    const double value = function(x.value);
    const double reach = x.error + std::fabs(x.value) * ArithmeticError;
    const double change =
        std::max(std::fabs(function(x.value + reach) - value), std::fabs(function(x.value - reach) - value));
    if (!(change < UsableStretch * (1 + std::fabs(value)))) { // a pole may be near
        throw PlainEvaluator::NoValue("a function that changes too much");
    }
    return rounded(value, 2 * change);
}

Measured raise(Measured base, Measured exponent)
{
    if (base.value < 0 && (exponent.error != 0 || std::trunc(exponent.value) != exponent.value)) {
        throw PlainEvaluator::NoValue("root of a negative number");
    }
    if (base.error >= UsableError * std::fabs(base.value) && base.error != 0) {
        throw PlainEvaluator::NoValue("base near zero");
    }
    const Measured byBase = smooth([&](double x) { return std::pow(x, exponent.value); }, base);
    if (exponent.error == 0) {
        return byBase;
    }
    const Measured byExponent = smooth([&](double x) { return std::pow(base.value, x); }, exponent);
    return {byBase.value, byBase.error + byExponent.error};
}

/// A function that jumps: the argument must be clearly off the whole numbers, or be exact.
Measured stepped(double (*function)(double), Measured x)
{
    if (x.error != 0 && std::fabs(x.value - std::round(x.value)) <= 2 * x.error) {
        throw PlainEvaluator::NoValue("near a jump");
    }
    return {function(x.value), 0};
}

double signOf(double x)
{
    return (x > 0) - (x < 0);
}

struct Function {
    std::function<double(double)> value;
    /// The solver reaches the value over numbers up to this size (when it adds 1 to a square, say, or takes
    /// the difference of two powers of e), and their rounding is an error of the result.
    std::function<double(double)> detourError = [](double) { return 0.0; };
};

/// Errors of formulas that lose digits: relative to the result, as multiples of the rounding error of a
/// double.
constexpr double Epsilon = 2.3e-16;

double squareDetour(double x)
{
    return 8 * Epsilon * (1 + x * x) / std::max(std::fabs(1 - x * x), 1e-12);
}

double exponentialDetour(double x)
{
    return 8 * Epsilon * std::cosh(x) / std::max(std::fabs(std::sinh(x)), 1e-12) *
           std::max(1.0, std::fabs(1 / std::tanh(x)));
}

/// The logarithm of a number that differs from 1 by about as much as the result does from 0.
double aroundOneDetour(double x)
{
    return 8 * Epsilon / std::max(std::fabs(x), 1e-12);
}

const std::map<std::string, Function>& functions()
{
    static const double quarterTurn = std::acos(0.0);
    static const std::map<std::string, Function> table{
        {"sin", {[](double x) { return std::sin(x); }}},
        {"cos", {[](double x) { return std::cos(x); }}},
        {"tan", {[](double x) { return std::tan(x); }}},
        {"arcsin", {[](double x) { return std::asin(x); }, squareDetour}},
        {"arccos", {[](double x) { return std::acos(x); }, squareDetour}},
        {"abs", {[](double x) { return std::fabs(x); }}},
        {"log", {[](double x) { return std::log10(x); }}},
        {"ln", {[](double x) { return std::log(x); }}},
        {"atn", {[](double x) { return std::atan(x); }}},
        {"exp", {[](double x) { return std::exp(x); }}},
        {"sqr", {[](double x) { return std::sqrt(x); }}},
        {"sec", {[](double x) { return 1 / std::cos(x); }}},
        {"cosec", {[](double x) { return 1 / std::sin(x); }}},
        {"cotan", {[](double x) { return 1 / std::tan(x); }}},
        {"arccotan", {[](double x) { return std::atan(x) + quarterTurn; }}},
        {"hypsin", {[](double x) { return std::sinh(x); }, exponentialDetour}},
        {"hypcos", {[](double x) { return std::cosh(x); }}},
        {"hyptan", {[](double x) { return std::tanh(x); }, exponentialDetour}},
        {"hypsec", {[](double x) { return 1 / std::cosh(x); }}},
        {"hypcosec", {[](double x) { return 1 / std::sinh(x); }, exponentialDetour}},
        {"hypcotan", {[](double x) { return 1 / std::tanh(x); }, exponentialDetour}},
        {"hyparcsin",
         {[](double x) { return std::asinh(x); },
          [](double x) { return 8 * Epsilon * (1 + x * x) + aroundOneDetour(x); }}},
        {"hyparccos", {[](double x) { return std::acosh(x); }, squareDetour}},
        {"hyparctan",
         {[](double x) { return std::atanh(x); },
          [](double x) { return squareDetour(x) + aroundOneDetour(x); }}},
        {"hyparccotan",
         {[](double x) { return std::atanh(1 / x); },
          [](double x) { return squareDetour(x) * (1 + std::fabs(x)); }}},
    };
    return table;
}

} // namespace

Measured PlainEvaluator::evaluate(std::string_view term)
{
    term_ = term;
    position_ = 0;
    const Measured result = sum();
    if (peek() != '\0') {
        throw std::logic_error("the generator wrote a term that is none: " + std::string(term));
    }
    return rounded(result.value, result.error);
}

Measured PlainEvaluator::sum()
{
    Measured result = product();
    for (;;) {
        if (take('+')) {
            result = add(result, product());
        } else if (take('-')) {
            result = add(result, negated(product()));
        } else {
            return result;
        }
    }
}

Measured PlainEvaluator::product()
{
    Measured result = power();
    for (;;) {
        if (take('*')) {
            result = multiply(result, power());
        } else if (take('/')) {
            result = divide(result, power());
        } else if (take('%')) {
            result = remainder(result, power());
        } else {
            return result;
        }
    }
}

Measured PlainEvaluator::power()
{
    Measured result = signedValue();
    while (take('^')) {
        result = raise(result, signedValue());
    }
    return result;
}

Measured PlainEvaluator::signedValue()
{
    if (take('-')) {
        return negated(primary());
    }
    take('+');
    return primary();
}

Measured PlainEvaluator::primary()
{
    if (take('(')) {
        const Measured inner = sum();
        take(')');
        return inner;
    }
    if (std::isalpha(static_cast<unsigned char>(peek())) == 0) {
        return number();
    }
    std::string name;
    while (std::isalpha(static_cast<unsigned char>(peek())) != 0) {
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(term_[position_++])));
    }
    if (take('(')) {
        return call(name);
    }
    return {variables_.at(name.front()), 0};
}

Measured PlainEvaluator::number()
{
    peek();
    std::string digits;
    while (position_ < term_.size() && (std::isdigit(static_cast<unsigned char>(term_[position_])) != 0 ||
                                        term_[position_] == ',' || term_[position_] == '.')) {
        digits += term_[position_] == ',' ? '.' : term_[position_], ++position_;
    }
    if (position_ + 1 < term_.size() && term_[position_] == 'E') {
        digits += term_.substr(position_, 2);
        for (position_ += 2;
             position_ < term_.size() && std::isdigit(static_cast<unsigned char>(term_[position_])) != 0;) {
            digits += term_[position_++];
        }
    }
    return {std::stod(digits), 0};
}

Measured PlainEvaluator::call(const std::string& name)
{
    const Measured x = sum();
    take(')');
    if (name == "fix") {
        return stepped(std::trunc, x);
    }
    if (name == "int") {
        return stepped(std::floor, x);
    }
    if (name == "sgn") {
        return stepped(signOf, x);
    }
    if (name.starts_with("hyp") && !name.starts_with("hyparc") && std::fabs(x.value) > LargestExponent) {
        throw NoValue("a power of e beyond the range");
    }
    if (x.error >= UsableStretch) { // which may hold whole periods
        throw NoValue("a function of an uncertain number");
    }
    const Function& function = functions().at(name);
    const double detourError = function.detourError(x.value);
    if (!(detourError < UsableError)) {
        throw NoValue("a detour that loses too many digits");
    }
    Measured result = smooth(function.value, x);
    result.error += std::fabs(result.value) * detourError;
    return rounded(result.value, result.error);
}

char PlainEvaluator::peek()
{
    while (position_ < term_.size() && term_[position_] == ' ') {
        ++position_;
    }
    return position_ < term_.size() ? term_[position_] : '\0';
}

bool PlainEvaluator::take(char unit)
{
    if (peek() != unit) {
        return false;
    }
    ++position_;
    return true;
}

} // namespace phial::test
