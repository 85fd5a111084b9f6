// A form and its controls by name: the search for a control among 120, a property through its member's name
// and through its setter, and what a form of that size costs to make.

#include "app/Session.h"
#include "core/Variant.h"
#include "headless/HeadlessPlatform.h"
#include "visual/FormDesign.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <benchmark/benchmark.h>

namespace
{

using namespace phial;

constexpr ControlDesign Controls[] = {
    design<ctl_Label>(u"lab_Title", {0, 0, 200, 30}, u"Eins|One"),
    design<ctl_Button>(u"but_Key", {0, 40, 30, 30}, u"1").repeated(58, 10, 32, 32),
    design<ctl_Label>(u"lab_Key", {0, 40, 30, 30}, u"1").repeated(58, 10, 32, 32).font(11).ink(Palette::Ink),
    design<TextBox>(u"txt_Input", {0, 240, 200, 30}),
    design<ctl_Button>(u"but_Enter", {0, 280, 90, 30}, u"Weiter|Next"),
    design<ctl_Label>(u"lab_Description", {0, 320, 200, 30}),
};
constexpr FormDesign Design{.name = u"frm_Bench", .controls = Controls};

/// An open session without a screen.
class Screenless
{
public:
    Screenless() : outside_(u"\\nowhere\\"), session_(outside_.platform()) {}

private:
    headless::HeadlessPlatform outside_;
    Session session_;
};

void findByName(benchmark::State& state, StringView name, std::int32_t index, bool isThere)
{
    const Screenless screenless;
    const auto form = makeForm(Design);
    if (form->controlCount() != 120 || (form->find(name, index) != nullptr) != isThere) {
        state.SkipWithError("the form is not as it should be");
    }
    for (auto round : state) {
        benchmark::DoNotOptimize(form->find(name, index));
    }
}

void FindFirst(benchmark::State& state)
{
    findByName(state, u"lab_Title", -1, true);
}

void FindInAnArray(benchmark::State& state)
{
    findByName(state, u"lab_Key", 57, true);
}

void FindLast(benchmark::State& state)
{
    findByName(state, u"lab_Description", -1, true);
}

void FindNothing(benchmark::State& state)
{
    findByName(state, u"lab_Descriptive", -1, false);
}

void SetByName(benchmark::State& state)
{
    const Screenless screenless;
    ctl_Label label;
    std::int32_t colour = 0;
    for (auto round : state) {
        trySet(label, u"ForeColor", Variant(++colour & 0xFFFFFF));
    }
}

void GetByName(benchmark::State& state)
{
    const Screenless screenless;
    ctl_Label label;
    for (auto round : state) {
        benchmark::DoNotOptimize(tryGet(label, u"Flat"));
    }
}

void SetBySetter(benchmark::State& state)
{
    const Screenless screenless;
    ctl_Label label;
    std::uint32_t colour = 0;
    for (auto round : state) {
        label.ForeColor(Colour{++colour & 0xFFFFFFU});
    }
}

void MakeForm(benchmark::State& state)
{
    const Screenless screenless;
    for (auto round : state) {
        benchmark::DoNotOptimize(makeForm(Design));
    }
}

BENCHMARK(FindFirst);
BENCHMARK(FindInAnArray);
BENCHMARK(FindLast);
BENCHMARK(FindNothing);
BENCHMARK(GetByName);
BENCHMARK(SetByName);
BENCHMARK(SetBySetter);
BENCHMARK(MakeForm)->Unit(benchmark::kMicrosecond);

} // namespace
