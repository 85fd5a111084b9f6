#include "calc/ExpressionSolver.h"
#include "core/CoreNumbers.h"
#include "support/CaseTable.h"

#include <gtest/gtest.h>
#include <set>

namespace phial::test
{
namespace
{

std::vector<Variant> variablesOf(StringView column)
{
    std::vector<Variant> variables;
    for (const StringView pair : split(column, u", ")) {
        const std::size_t equals = pair.find(u'=');
        variables.emplace_back(pair.substr(0, equals));
        variables.emplace_back(CoreInvariant::Parse(pair.substr(equals + 1)));
    }
    return variables;
}

Locale localeOf(StringView language)
{
    Locale locale;
    locale.decimalSign = language == u"en" ? u'.' : u',';
    return locale;
}

TEST(SolverTable, EveryTermGivesItsValueAndErrorText)
{
    for (const CaseRow& row : readCaseTable("solver.txt", 5)) {
        SCOPED_TRACE(row.name + ": " + toUtf8(row.columns[0]));
        ExpressionSolver solver(nullptr, localeOf(row.columns[2]));
        double result = 0;
        solver.SOLVE(row.columns[0], variablesOf(row.columns[1]), result);
        EXPECT_EQ(result, CoreInvariant::Parse(row.columns[3]));
        EXPECT_EQ(toUtf8(solver.SolveError()), toUtf8(row.columns[4]));
    }
}

TEST(SolverTable, NamesAreUnique)
{
    std::set<std::string> names;
    for (const CaseRow& row : readCaseTable("solver.txt", 5)) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
}

} // namespace
} // namespace phial::test
