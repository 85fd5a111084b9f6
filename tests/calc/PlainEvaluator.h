#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace phial::test
{

/// A number with a bound of its error.
struct Measured {
    double value = 0;
    double error = 0;
};

/// A second evaluator, written without regard to the solver: recursive descent over the text, in ordinary
/// floating point, with functions as the standard library has them. It knows the solver's precedence (signs,
/// then powers from the left, products, sums) and none of its oddities.
///
/// Every result carries the error that the solver may make against it: each of the solver's values goes
/// through a text of 15 significant digits, which changes it by up to half a unit of the last one, 5E-15 of
/// its size at most; to that come some rounding errors of a double, 1E-15, on both sides. Operators and
/// functions pass the errors of their operands on.
class PlainEvaluator
{
public:
    /// The term has no value, or none that a tolerance can be told for (a step near a jump or a pole).
    struct NoValue : std::runtime_error {
        using std::runtime_error::runtime_error;
    };

    explicit PlainEvaluator(std::map<char, double> variables = {}) : variables_(std::move(variables)) {}

    Measured evaluate(std::string_view term);

private:
    Measured sum();
    Measured product();
    Measured power();
    Measured signedValue();
    Measured primary();
    Measured number();
    Measured call(const std::string& name);
    char peek();
    bool take(char unit);

    std::map<char, double> variables_;
    std::string_view term_;
    std::size_t position_ = 0;
};

} // namespace phial::test
