// Formula analysis, the formula kernel and the import of the element table. `items_per_second` of those that
// work on the school formulas stands beside the figures of bench/peers/chemical-formula and mf-parser.

#include "chem/cls_DataElements.h"
#include "chem/formula/EquationBalance.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/OxidationNumbers.h"
#include "core/NativePath.h"
#include "core/SessionState.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using namespace phial;

std::vector<String> linesOf(const std::string& name)
{
    std::ifstream file(PHIAL_BENCH_DATA "/" + name);
    std::vector<String> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(fromUtf8(line));
    }
    if (lines.empty()) {
        throw std::runtime_error(name + " is missing");
    }
    return lines;
}

std::vector<String> schoolFormulas()
{
    return linesOf("school_formulas.txt");
}

String elementFile()
{
    return systemPath(PHIAL_BENCH_TREE "/Resources/data/elements2.dat");
}

// Runs `work` on each school formula in turn, many times.
template <typename Work>
void onSchoolFormulas(benchmark::State& state, Work&& work)
{
    const auto formulas = schoolFormulas();
    for (auto step : state) {
        for (const String& formula : formulas) {
            benchmark::DoNotOptimize(work(formula));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(formulas.size()));
}

void ELEMENTSCOUNT(benchmark::State& state)
{
    const cls_DataElements table;
    onSchoolFormulas(state, [&](const String& formula) { return table.ELEMENTSCOUNT(formula); });
}
BENCHMARK(ELEMENTSCOUNT);

void MOL(benchmark::State& state)
{
    const SessionState session{Platform()};
    cls_DataElements table;
    table.IMPORT2(elementFile());
    onSchoolFormulas(state, [&](const String& formula) { return table.MOL(formula); });
}
BENCHMARK(MOL);

void FormulaTreeRead(benchmark::State& state)
{
    onSchoolFormulas(state, [](const String& formula) { return readFormula(formula); });
}
BENCHMARK(FormulaTreeRead);

void FormulaTreeAtoms(benchmark::State& state)
{
    onSchoolFormulas(state, [](const String& formula) {
        const FormulaReading reading = readFormula(formula);
        return atomsIn(reading.tree, reading.tree.species.front());
    });
}
BENCHMARK(FormulaTreeAtoms);

void FormulaOxidationNumbers(benchmark::State& state)
{
    onSchoolFormulas(state, [](const String& formula) {
        const FormulaReading reading = readFormula(formula);
        return oxidationNumbersOf(reading.tree, reading.tree.species.front());
    });
}
BENCHMARK(FormulaOxidationNumbers);

// Reads and balances each school equation; `slowest_us` is what the slowest of a whole round took at best.
void EquationBalanced(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    const auto equations = linesOf("school_equations.txt");
    std::vector<double> best(equations.size(), 1e9);
    for (auto step : state) {
        for (std::size_t at = 0; at < equations.size(); ++at) {
            const auto begin = Clock::now();
            const EquationSolution solution = balance(readEquation(equations[at]).tree);
            const std::chrono::duration<double, std::micro> taken = Clock::now() - begin;
            best[at] = std::min(best[at], taken.count());
            if (solution.kind != EquationSolution::Kind::One) {
                state.SkipWithError(toUtf8(equations[at]).c_str());
                return;
            }
        }
    }
    state.counters["slowest_us"] = *std::ranges::max_element(best);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(equations.size()));
}
BENCHMARK(EquationBalanced);

// Brackets in brackets: items are characters.
void FormulaBrackets(benchmark::State& state)
{
    const auto depth = static_cast<std::size_t>(state.range(0) / 2);
    const String text = String(depth, u'(') + u"H" + String(depth, u')');
    for (auto step : state) {
        const FormulaReading reading = readFormula(text);
        benchmark::DoNotOptimize(atomsIn(reading.tree, reading.tree.species.front()));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(FormulaBrackets)->Arg(2'000)->Arg(20'000)->Arg(200'000);

void IMPORT2(benchmark::State& state)
{
    const SessionState session{Platform()};
    const String file = elementFile();
    for (auto step : state) {
        cls_DataElements table;
        benchmark::DoNotOptimize(table.IMPORT2(file));
    }
}
BENCHMARK(IMPORT2)->Unit(benchmark::kMicrosecond);

} // namespace
