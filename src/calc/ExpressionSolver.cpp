#include "calc/ExpressionSolver.h"

#include "calc/VariableWalk.h"
#include "core/RandomSource.h"

#include <utility>

namespace phial
{

namespace
{

/// The term as a sum with 0 on both sides, two minus signs made one plus.
String wrapped(StringView term)
{
    String sum;
    sum.reserve(term.size() + 4);
    sum.append(u"0+").append(term).append(u"+0");
    return sum.find(u"--") == String::npos ? sum : replaced(sum, u"--", u"+");
}

} // namespace

ExpressionSolver::ExpressionSolver(std::shared_ptr<RandomSource> random, const Locale& locale)
    : random_(std::move(random)), decimalSign_(locale.decimalSign)
{
}

void ExpressionSolver::SOLVE(StringView pTerm, std::span<const Variant> pVars, double& rResult)
{
    auto variableErrors = VariableErrors::Raised;
    if (pTerm.size() > 1 && pTerm.front() == u'!') {
        pTerm.remove_prefix(1);
        variableErrors = VariableErrors::Ignored;
    }
    String term = wrapped(pTerm);
    solveError_.clear();
    if (!pVars.empty()) {
        term = withVariables(term, pVars, variableErrors);
    }
    rResult = SolveTerm(term);
}

double ExpressionSolver::SolveTerm(StringView pTerm)
{
    auto result = evaluation_.evaluate(pTerm, decimalSign_, random_.get());
    solveError_ = std::move(result.error);
    return result.value;
}

} // namespace phial
