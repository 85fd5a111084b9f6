// Formula analysis and the import of the element table. `items_per_second` of the first two stands beside the
// figure of bench/peers/chemical-formula, which counts the same formulas.

#include "chem/cls_DataElements.h"
#include "core/NativePath.h"
#include "core/SessionState.h"

#include <benchmark/benchmark.h>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using namespace phial;

std::vector<String> schoolFormulas()
{
    std::ifstream file(PHIAL_BENCH_DATA "/school_formulas.txt");
    std::vector<String> formulas;
    for (std::string line; std::getline(file, line);) {
        formulas.push_back(fromUtf8(line));
    }
    if (formulas.empty()) {
        throw std::runtime_error("school_formulas.txt is missing");
    }
    return formulas;
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
