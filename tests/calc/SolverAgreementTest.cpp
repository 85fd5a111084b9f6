#include "calc/ExpressionSolver.h"
#include "calc/LiteralSolver.h"
#include "calc/NumberThroughText.h"
#include "calc/PlainEvaluator.h"
#include "calc/RandomTerms.h"
#include "core/CoreNumbers.h"
#include "core/NumberText.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace phial::test
{
namespace
{

Locale localeWith(char16_t decimalSign)
{
    Locale locale;
    locale.decimalSign = decimalSign;
    return locale;
}

double throughWrittenText(double value)
{
    double read = 0;
    CoreNumbers::ToDouble(plainText(value, u','), read);
    return read;
}

/// Equal to the last bit, so that 0 and -0 differ.
void expectSameNumber(double actual, double expected)
{
    EXPECT_EQ(std::bit_cast<std::uint64_t>(actual), std::bit_cast<std::uint64_t>(expected))
        << std::hexfloat << actual << " instead of " << expected;
}

/// Variables with values shorter and longer than their names, negative and with an exponent.
std::vector<Variant> someVariables(RandomTerms& rTerms)
{
    constexpr std::array Values{2.0, 2.5, -3.0, 12345.678, 1e20, 1e-7};
    return {u"a", Values[rTerms.below(Values.size())], u"BC", Values[rTerms.below(Values.size())]};
}

TEST(SolverAgreement, NonsenseGivesWhatTheLiteralProcedureGives)
{
    RandomTerms terms(20240501);
    for (int count = 0; count < 50'000; ++count) {
        const char16_t decimalSign = count % 2 == 0 ? u',' : u'.';
        const String term = fromUtf8(terms.disorderly());
        const std::vector<Variant> variables = count % 3 == 0 ? someVariables(terms) : std::vector<Variant>();
        SCOPED_TRACE(toUtf8(term));

        ExpressionSolver solver(nullptr, localeWith(decimalSign));
        double result = 0;
        solver.SOLVE(term, variables, result);
        LiteralSolver literal(decimalSign);
        expectSameNumber(result, literal.solve(term, variables));
        ASSERT_EQ(toUtf8(solver.SolveError()), toUtf8(literal.error()));
    }
}

TEST(SolverAgreement, UnwrappedNonsenseGivesWhatTheLiteralProcedureGives)
{
    RandomTerms terms(7);
    ExpressionSolver solver(nullptr, localeWith(u','));
    LiteralSolver literal(u',');
    for (int count = 0; count < 25'000; ++count) {
        const String term = fromUtf8(terms.disorderly());
        SCOPED_TRACE(toUtf8(term));
        expectSameNumber(solver.SolveTerm(term), literal.solveTerm(term));
        ASSERT_EQ(toUtf8(solver.SolveError()), toUtf8(literal.error()));
    }
}

TEST(SolverAgreement, LongTermsGiveWhatTheLiteralProcedureGives)
{
    RandomTerms terms(11);
    for (int count = 0; count < 40; ++count) {
        std::string term;
        for (int part = 0; part < 20; ++part) {
            term += terms.orderly() + "+" + terms.disorderly() + ")*";
        }
        SCOPED_TRACE(term);
        ExpressionSolver solver(nullptr, localeWith(u'.'));
        LiteralSolver literal(u'.');
        const String text = fromUtf8(term);
        expectSameNumber(solver.SolveTerm(text), literal.solveTerm(text));
        ASSERT_EQ(toUtf8(solver.SolveError()), toUtf8(literal.error()));
    }
}

TEST(SolverAgreement, OrderlyTermsGiveWhatASecondEvaluatorGives)
{
    const std::map<char, double> values{{'a', 2.5}, {'b', 1234.0}, {'c', 0.0625}};
    const std::vector<Variant> variables{u"A", 2.5, u"B", 1234.0, u"C", 0.0625};
    RandomTerms terms(1955);
    PlainEvaluator plain(values);
    ExpressionSolver solver;
    int compared = 0;
    for (int written = 0; compared < 100'000; ++written) {
        ASSERT_LT(written, 1'000'000) << "too few terms have a value";
        const std::string term = terms.orderly();
        Measured expected;
        try {
            expected = plain.evaluate(term);
        } catch (const PlainEvaluator::NoValue&) {
            continue;
        }
        SCOPED_TRACE(term);
        double result = 0;
        solver.SOLVE(fromUtf8(term), variables, result);
        ASSERT_EQ(toUtf8(solver.SolveError()), "");
        ASSERT_NEAR(result, expected.value, expected.error);
        ++compared;
    }
}

TEST(NumberThroughText, KeepsWhatTheWrittenTextKeeps)
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-30, 30);
    for (int count = 0; count < 100'000; ++count) {
        const double value = mantissa(random) * std::pow(10.0, exponent(random));
        SCOPED_TRACE(value);
        expectSameNumber(numberThroughText(value), throughWrittenText(value));
        const double anyBits = std::bit_cast<double>(random());
        if (std::isfinite(anyBits)) {
            expectSameNumber(numberThroughText(anyBits), throughWrittenText(anyBits));
        }
    }
}

TEST(NumberThroughText, DecidesTiesAndEdgesAsTheWrittenTextDoes)
{
    for (double value : {0.0, -0.0, 0.5, 1e15, 1e15 - 0.5, 1e14 + 0.5, 1e14 + 0.0625, 1e14 - 0.5, 1e-8,
                         9.99999999999999e-9, 99999999999999.95, 999999999999999.5, 0.1 + 0.2, 1.0 / 3, 1e22,
                         1e23, 5e-324, 1.7976931348623157e308}) {
        for (int step = -3; step <= 3; ++step) {
            SCOPED_TRACE(value);
            expectSameNumber(numberThroughText(value), throughWrittenText(value));
            expectSameNumber(numberThroughText(-value), throughWrittenText(-value));
            value = std::nextafter(value, std::numeric_limits<double>::infinity());
            if (!std::isfinite(value)) {
                break;
            }
        }
    }
    for (int exponent = -12; exponent <= 17; ++exponent) {
        double value = std::nextafter(std::pow(10.0, exponent), 0.0);
        for (int step = -1; step <= 1; ++step) {
            expectSameNumber(numberThroughText(value), throughWrittenText(value));
            value = std::nextafter(value, std::numeric_limits<double>::infinity());
        }
    }
    // With 15 digits in front, halves are ties of the last digit.
    for (double whole = 123456789012344; whole < 123456789012364; ++whole) {
        for (const double part : {0.25, 0.5, 0.75}) {
            expectSameNumber(numberThroughText(whole + part), throughWrittenText(whole + part));
            expectSameNumber(numberThroughText((whole + part) / 1024),
                             throughWrittenText((whole + part) / 1024));
        }
    }
}

TEST(NumberThroughText, TokensAreReadAsToDoubleReadsThem)
{
    RandomTerms terms(5);
    for (int count = 0; count < 100'000; ++count) {
        String token;
        for (std::size_t length = terms.below(20); length > 0; --length) {
            token += u"0123456789012345678901234567890123456789..,,EePM"[terms.below(48)];
        }
        double read = 0;
        CoreNumbers::ToDouble(token, read);
        SCOPED_TRACE(toUtf8(token));
        expectSameNumber(numberOfToken(token), read);
    }
}

} // namespace
} // namespace phial::test
