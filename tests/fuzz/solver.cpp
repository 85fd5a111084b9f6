// Any text is a term: the solver answers with a number, raises nothing but what a variable raises, and gives
// for short terms what the literal procedure gives. The first line is the term; each further line,
// `name=value`, a variable.

#include "calc/ExpressionSolver.h"
#include "calc/LiteralSolver.h"
#include "core/CoreNumbers.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace
{

using namespace phial;

constexpr std::size_t LongestForLiteral = 300;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

std::vector<Variant> variablesOf(const std::vector<StringView>& lines)
{
    std::vector<Variant> variables;
    for (std::size_t line = 1; line < lines.size(); ++line) {
        const std::size_t equals = std::min(lines[line].find(u'='), lines[line].size());
        double value = 0;
        CoreNumbers::ToDouble(lines[line].substr(std::min(equals + 1, lines[line].size())), value);
        variables.emplace_back(lines[line].substr(0, equals));
        variables.emplace_back(value);
    }
    return variables;
}

/// Whether a name could be found in a value that was put in; the literal procedure might then go on without
/// end.
bool mayBePartOfNumber(StringView name)
{
    return name.find_first_not_of(u"0123456789.eE") == StringView::npos;
}

bool suitsLiteral(StringView term, const std::vector<Variant>& variables)
{
    for (std::size_t name = 0; name < variables.size(); name += 2) {
        if (mayBePartOfNumber(variables[name].text())) {
            return false;
        }
    }
    return term.size() <= LongestForLiteral;
}

/// No value when a variable raised.
std::optional<double> solved(ExpressionSolver& rSolver, StringView term,
                             const std::vector<Variant>& variables)
{
    double result = 0;
    try {
        rSolver.SOLVE(term, variables, result);
    } catch (const RuntimeError& error) {
        require(!variables.empty());
        require(error.Number() == static_cast<std::int32_t>(ErrorNumber::InvalidArgument));
        return std::nullopt;
    }
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const String text = fromUtf8({reinterpret_cast<const char*>(data), size});
    const std::vector<StringView> lines = split(text, u"\n");
    const StringView term = lines.empty() ? StringView() : lines.front();
    const std::vector<Variant> variables = variablesOf(lines);

    ExpressionSolver solver;
    const auto result = solved(solver, term, variables);
    require(!result || std::isfinite(*result));
    if (suitsLiteral(term, variables)) {
        test::LiteralSolver literal(u',');
        require(result.has_value() && literal.solve(term, variables) == *result);
        require(literal.error() == solver.SolveError());
    }
    return 0;
}
