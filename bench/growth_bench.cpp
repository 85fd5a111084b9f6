// How time and memory grow with the length of what is read: long and deeply nested formulas and terms, each
// in three sizes. `items_per_second` are characters, `max_bytes_used` is the peak while working, the text
// itself included in neither.

#include "CountedMemory.h"
#include "KeptMemory.h"
#include "chem/cls_DataElements.h"
#include "qt/desktop/PictureBackend.h"
#include "qt/desktop/QtTextMetrics.h"
#include "term/TermDraw.h"
#include "visual/DrawDevice.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>
#include <memory>

namespace
{

using namespace phial;

String repeated(StringView text, std::int64_t times)
{
    String result;
    for (std::int64_t time = 0; time < times; ++time) {
        result += text;
    }
    return result;
}

void countCharacters(benchmark::State& state, const String& text)
{
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void analyse(benchmark::State& state, const String& formula)
{
    const cls_DataElements table;
    for (auto step : state) {
        benchmark::DoNotOptimize(table.ELEMENTSCOUNT(formula));
    }
    countCharacters(state, formula);
}

void draw(benchmark::State& state, const String& term)
{
    constexpr PixelSize Size{480, 60};
    const auto picture = std::make_shared<Picture>(Size);
    const auto metrics = std::make_shared<qt::QtTextMetrics>();
    DrawDevice device(std::make_shared<qt::PictureBackend>(picture, metrics));
    TermDraw(device, u"(a)/(b)"); // the fonts are made ready
    for (auto step : state) {
        benchmark::DoNotOptimize(TermDraw(device, term, 4, 20, TEXTALIGN::TopLeft));
    }
    countCharacters(state, term);
}

// The argument is the number of characters, in the others the depth.
void LongFormula(benchmark::State& state)
{
    analyse(state, repeated(u"C2H5OH(aq)", state.range(0) / 10));
}
BENCHMARK(LongFormula)->RangeMultiplier(10)->Range(1'000, 100'000);

void NestedGroups(benchmark::State& state)
{
    analyse(state, repeated(u"(H", state.range(0)) + repeated(u")", state.range(0)));
}
BENCHMARK(NestedGroups)->RangeMultiplier(10)->Range(100, 10'000);

void NestedGroupsMultiplied(benchmark::State& state)
{
    analyse(state, repeated(u"(H", state.range(0)) + repeated(u")2", state.range(0)));
}
BENCHMARK(NestedGroupsMultiplied)->RangeMultiplier(10)->Range(100, 10'000);

void OpenBrackets(benchmark::State& state)
{
    draw(state, repeated(u"(", state.range(0)));
}
BENCHMARK(OpenBrackets)->RangeMultiplier(10)->Range(100, 10'000);

void NestedBrackets(benchmark::State& state)
{
    draw(state, repeated(u"(", state.range(0)) + repeated(u")", state.range(0)));
}
BENCHMARK(NestedBrackets)->RangeMultiplier(10)->Range(100, 10'000);

void NestedFractions(benchmark::State& state)
{
    draw(state, repeated(u"(", state.range(0)) + u"a" + repeated(u")/(b)", state.range(0)));
}
BENCHMARK(NestedFractions)->RangeMultiplier(10)->Range(100, 10'000);

} // namespace

int main(int argc, char** argv)
{
    bench::keepFreedMemory();
    const QGuiApplication application(argc, argv);
    bench::CountedMemory memory;
    benchmark::RegisterMemoryManager(&memory);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
