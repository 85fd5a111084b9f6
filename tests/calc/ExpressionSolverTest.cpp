#include "calc/ExpressionSolver.h"

#include "core/RuntimeError.h"
#include "headless/FixedRandom.h"

#include <gtest/gtest.h>
#include <string>

namespace phial::test
{
namespace
{

std::shared_ptr<RandomSource> quarterSteps()
{
    auto random = std::make_shared<headless::FixedRandom>();
    random->numbers({0.25, 0.5, 0.75});
    return random;
}

Locale englishNumbers()
{
    Locale locale;
    locale.decimalSign = u'.';
    return locale;
}

double solved(ExpressionSolver& rSolver, StringView term, const std::vector<Variant>& variables = {})
{
    double result = -99;
    rSolver.SOLVE(term, variables, result);
    return result;
}

std::int32_t errorOf(ExpressionSolver& rSolver, StringView term, const std::vector<Variant>& variables)
{
    try {
        solved(rSolver, term, variables);
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

TEST(ExpressionSolver, TermOfBlanksIsZeroWithoutError)
{
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"   "), 0);
    EXPECT_EQ(solver.SolveError(), u"");
}

TEST(ExpressionSolver, NextTermForgetsTheError)
{
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"1/0"), 0);
    EXPECT_NE(solver.SolveError(), u"");
    EXPECT_EQ(solved(solver, u"1/2"), 0.5);
    EXPECT_EQ(solver.SolveError(), u"");
}

TEST(ExpressionSolver, RaisedVariableErrorLeavesResultAlone)
{
    ExpressionSolver solver;
    double result = 17;
    const std::vector<Variant> variables{u"A", u"no number"};
    EXPECT_THROW(solver.SOLVE(u"A+1", variables, result), RuntimeError);
    EXPECT_EQ(result, 17);
    EXPECT_EQ(solver.SolveError(), u"");
}

TEST(ExpressionSolver, RandomNumberIsScaled)
{
    ExpressionSolver solver(quarterSteps());
    EXPECT_EQ(solved(solver, u"rnd(6)"), 1.5);
    EXPECT_EQ(solved(solver, u"rnd(10)+RND(100)"), 5 + 75);
}

TEST(ExpressionSolver, FailedBracketDrawsNoFurtherRandomNumbers)
{
    ExpressionSolver solver(quarterSteps());
    EXPECT_EQ(solved(solver, u"(log(0)+rnd(1))+rnd(4)"), 1);
}

TEST(ExpressionSolver, LocaleInForceIsTheDefault)
{
    const Locale english = englishNumbers();
    const LocaleBinding binding(english);
    ExpressionSolver solver;
    solved(solver, u"(1/4)/0");
    EXPECT_EQ(solver.SolveError(), u"Error executing 0.25 / 0:  Division by zero");
}

TEST(ExpressionSolver, VariableValueMayBeATextOrAWholeNumber)
{
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"A+B", {u"A", u"2", u"B", std::int32_t{40}}), 42);
}

TEST(ExpressionSolver, VariableNameMayBeAWholeNumber)
{
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"7*x", {std::int32_t{7}, 2.0, u"x", 3.0}), 6);
}

TEST(ExpressionSolver, VariableThatIsNoNumberRaises)
{
    ExpressionSolver solver;
    EXPECT_EQ(errorOf(solver, u"A+1", {u"A", u"two"}), 13);
}

TEST(ExpressionSolver, VariableThatIsNotUsedDoesNotMatter)
{
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"B+1", {u"B", 2.0, u"A", u"two"}), 3);
}

TEST(ExpressionSolver, NameWithoutValueRaisesWhenItIsUsed)
{
    ExpressionSolver solver;
    EXPECT_EQ(errorOf(solver, u"A+1", {u"B", 1.0, u"A"}), 9);
    EXPECT_EQ(solved(solver, u"B+1", {u"B", 1.0, u"A"}), 2);
}

TEST(ExpressionSolver, ExclamationMarkKeepsWordsThatCannotBePutIn)
{
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"!A+B", {u"A", u"two", u"B", 2.0}), 2);
    EXPECT_EQ(solved(solver, u"!B+A", {u"B", 1.0, u"A"}), 1);
    EXPECT_EQ(solver.SolveError(), u"");
}

TEST(ExpressionSolver, VariablesThatPutEachOtherInWithoutEndRaise)
{
    // The walk reads each value again from its third character on, and finds the other name at its end.
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"7+11", {u"11", 99922.0, u"22", 5.0}), 7 + 9995);
    EXPECT_EQ(errorOf(solver, u"7+11", {u"11", 99922.0, u"22", 99911.0}), 5);
    EXPECT_EQ(solved(solver, u"!7+11", {u"11", 99922.0, u"22", 99911.0}), 7 + 99999911);
}

TEST(ExpressionSolver, SolveTermTellsThatAnEmptyTermHasNoToken)
{
    ExpressionSolver solver;
    EXPECT_EQ(solver.SolveTerm(u""), -1);
    EXPECT_EQ(solver.SolveError(), u"Term coul not be parsed: Index out of bounds");
}

TEST(ExpressionSolver, SolveTermTellsThatAnOperandIsMissing)
{
    ExpressionSolver solver;
    for (const StringView term : {u"3*", u"3+", u"2^", u"-", u"2*-"}) {
        EXPECT_EQ(solver.SolveTerm(term), -1) << toUtf8(term);
        EXPECT_EQ(solver.SolveError(), u"Term coul not be parsed: Index out of bounds") << toUtf8(term);
    }
}

TEST(ExpressionSolver, SolveTermNamesTheEmptyTokenInFront)
{
    ExpressionSolver solver;
    EXPECT_EQ(solver.SolveTerm(u"/0"), 0);
    EXPECT_EQ(solver.SolveError(), u"Error executing  / 0:  Division by zero");
}

TEST(ExpressionSolver, SolveTermKeepsASingleTokenAsTyped)
{
    ExpressionSolver solver;
    EXPECT_EQ(solver.SolveTerm(u"0.12345678901234567"), 0.12345678901234567);
    EXPECT_EQ(solver.SolveTerm(u"*"), 0);
    EXPECT_EQ(solver.SolveError(), u"");
}

TEST(ExpressionSolver, CharactersOutsideLatinAreSkipped)
{
    ExpressionSolver solver;
    EXPECT_EQ(solved(solver, u"2\u2212\u03C0\u0130+\U0001F9EA3"), 5);
    const String withNul(u"1\0+\xD800\x32", 5);
    EXPECT_EQ(solved(solver, withNul), 3);
}

} // namespace
} // namespace phial::test
