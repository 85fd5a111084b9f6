// The solver beside muParser on the terms of school_expressions.txt, parsing and evaluating each time on both
// sides, and the solver's growth with the length of the term.

#include "KeptMemory.h"
#include "calc/ExpressionSolver.h"
#include "core/CoreNumbers.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <iostream>
#include <muParser.h>
#include <string>
#include <vector>

namespace
{

using namespace phial;

struct SchoolTerm {
    std::string solverTerm;
    std::string otherTerm;
    std::vector<Variant> variables;
};

/// What muParser holds a variable by must stay where it is.
struct OtherParser {
    mu::Parser parser;
    std::deque<double> values;
};

String asciiText(const std::string& text)
{
    return String(text.begin(), text.end());
}

SchoolTerm schoolTerm(const std::string& line)
{
    const String text = asciiText(line);
    const std::vector<StringView> columns = split(text, u" | ");
    SchoolTerm term{toUtf8(columns[0]), toUtf8(columns[0]), {}};
    if (columns.size() > 1) {
        term.otherTerm = toUtf8(columns[1]);
    }
    if (columns.size() > 2) {
        for (const StringView pair : split(columns[2], u", ")) {
            const std::size_t equals = pair.find(u'=');
            term.variables.emplace_back(pair.substr(0, equals));
            term.variables.emplace_back(CoreInvariant::Parse(pair.substr(equals + 1)));
        }
    }
    return term;
}

std::vector<SchoolTerm> readSchoolTerms()
{
    std::ifstream file(std::string(PHIAL_BENCH_DATA) + "/school_expressions.txt");
    std::vector<SchoolTerm> terms;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.front() != '#') {
            terms.push_back(schoolTerm(line));
        }
    }
    return terms;
}

void defineVariables(OtherParser& rOther, const SchoolTerm& term)
{
    for (std::size_t name = 0; name < term.variables.size(); name += 2) {
        rOther.values.push_back(term.variables[name + 1].toReal());
        rOther.parser.DefineVar(toUtf8(term.variables[name].text()), &rOther.values.back());
    }
}

/// Figures of two programs that do not agree on the value would mean nothing.
void requireAgreement(const SchoolTerm& term)
{
    ExpressionSolver solver;
    double value = 0;
    solver.SOLVE(asciiText(term.solverTerm), term.variables, value);
    OtherParser other;
    defineVariables(other, term);
    other.parser.SetExpr(term.otherTerm);
    const double expected = other.parser.Eval();
    if (!(std::fabs(value - expected) <= 1e-12 * std::fabs(expected)) || !solver.SolveError().empty()) {
        std::cerr << term.solverTerm << ": " << value << " instead of " << expected << '\n';
        std::exit(EXIT_FAILURE);
    }
}

void solveSchoolTerm(benchmark::State& rState, const SchoolTerm& term)
{
    const String text = asciiText(term.solverTerm);
    ExpressionSolver solver;
    double value = 0;
    for (auto _ : rState) {
        solver.SOLVE(text, term.variables, value);
        benchmark::DoNotOptimize(value);
    }
}

void muParserSchoolTerm(benchmark::State& rState, const SchoolTerm& term)
{
    OtherParser other;
    defineVariables(other, term);
    // An expression equal to the last one would be parsed all the same; the blank makes sure of it.
    const std::string texts[] = {term.otherTerm, term.otherTerm + " "};
    std::size_t turn = 0;
    for (auto _ : rState) {
        other.parser.SetExpr(texts[++turn % 2]);
        double value = other.parser.Eval();
        benchmark::DoNotOptimize(value);
    }
}

String repeated(StringView part, std::size_t count)
{
    String text;
    text.reserve(part.size() * count);
    for (std::size_t index = 0; index < count; ++index) {
        text += part;
    }
    return text;
}

/// Measures a term that grows with the argument, with its length as the complexity's N.
template <typename MakeTerm>
void solveGrowing(benchmark::State& rState, MakeTerm makeTerm, const std::vector<Variant>& variables = {})
{
    const String term = makeTerm(static_cast<std::size_t>(rState.range(0)));
    ExpressionSolver solver;
    double value = 0;
    solver.SOLVE(term, variables, value); // the memory that the solver keeps is touched for the first time
    for (auto _ : rState) {
        solver.SOLVE(term, variables, value);
        benchmark::DoNotOptimize(value);
    }
    rState.SetItemsProcessed(rState.iterations() * static_cast<std::int64_t>(term.size()));
}

void nestedBrackets(benchmark::State& rState)
{
    solveGrowing(rState, [](std::size_t size) { return repeated(u"(", size) + u"7" + repeated(u")", size); });
}

void decimals(benchmark::State& rState)
{
    solveGrowing(rState, [](std::size_t size) { return u"0." + repeated(u"3", size); });
}

void sums(benchmark::State& rState)
{
    solveGrowing(rState, [](std::size_t size) { return repeated(u"1.5+", size) + u"1"; });
}

void mixedOperators(benchmark::State& rState)
{
    solveGrowing(rState, [](std::size_t size) { return repeated(u"2*3^2-4/5+", size / 4) + u"1"; });
}

void functionCalls(benchmark::State& rState)
{
    solveGrowing(rState, [](std::size_t size) { return repeated(u"sin(0.5)+", size) + u"1"; });
}

void variables(benchmark::State& rState)
{
    solveGrowing(rState, [](std::size_t size) { return repeated(u"A+", size) + u"1"; }, {u"A", 2.5});
}

void grow(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1000, 1'000'000);
}

BENCHMARK(nestedBrackets)->Apply(grow);
BENCHMARK(decimals)->Apply(grow);
BENCHMARK(sums)->Apply(grow);
BENCHMARK(mixedOperators)->Apply(grow);
BENCHMARK(functionCalls)->Apply(grow);
BENCHMARK(variables)->Apply(grow);

} // namespace

int main(int argumentCount, char** arguments)
{
    const std::vector<SchoolTerm> terms = readSchoolTerms();
    for (const SchoolTerm& term : terms) {
        requireAgreement(term);
        benchmark::RegisterBenchmark(("solver: " + term.solverTerm).c_str(), solveSchoolTerm, term);
        benchmark::RegisterBenchmark(("muParser: " + term.solverTerm).c_str(), muParserSchoolTerm, term);
    }
    bench::keepFreedMemory();
    benchmark::Initialize(&argumentCount, arguments);
    if (terms.empty() || benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) {
        return EXIT_FAILURE;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
