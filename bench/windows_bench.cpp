// A window with holes that is dragged, beside a bare window of the toolkit with the same holes and children;
// and the cells of a periodic table with their gradients. Each step of a drag ends when its events are over.

#include "core/CoreColors.h"
#include "core/MemorySettingsStore.h"
#include "core/NumberText.h"
#include "core/SessionState.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/Theme.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/DrawDevice.h"
#include "visual/Form.h"
#include "visual/PictureBox.h"
#include "visual/VisualHost.h"

#include <QApplication>
#include <QBitmap>
#include <QWidget>

#include <benchmark/benchmark.h>

namespace
{

using namespace phial;

// A keyboard on the screen: round corners and gaps between its keys.
constexpr int Width = 750;
constexpr int Height = 340;
constexpr int Keys = 60;
constexpr int KeysInRow = 15;
constexpr int KeySize = 44;
constexpr int KeyStep = 48;
constexpr Colour Key = RGB(255, 0, 255);

QRect keyPlace(int number)
{
    return {15 + number % KeysInRow * KeyStep, 80 + number / KeysInRow * KeyStep, KeySize, KeySize};
}

/// Somewhere else at each step.
QPoint placeAt(int step)
{
    return {100 + step % 300, 100 + step % 170};
}

class Keyboard
{
public:
    Keyboard()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->BorderStyle(BorderStyle::None);
        form_->BackColor(Key);
        form_->innerSize({Width, Height});
        form_->translucency({255, Key, nullptr});
        for (int number = 0; number < Keys; ++number) {
            const QRect place = keyPlace(number);
            const auto face = form_->add<PictureBox>(u"pic_" + plainText(number));
            face->Move(place.x(), place.y(), place.width(), place.height());
            face->BackColor(QBColor(7));
        }
        form_->Show();
        QApplication::processEvents();
    }
    ~Keyboard() { form_->discard(); }
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;

    Form& form() { return *form_; }

private:
    const std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Keyboard");
};

void DragStepByHand(benchmark::State& state)
{
    QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window.resize(Width, Height);
    QRegion solid;
    for (int number = 0; number < Keys; ++number) {
        auto* face = new QWidget(&window);
        face->setGeometry(keyPlace(number));
        face->setAutoFillBackground(true);
        solid += keyPlace(number);
    }
    window.setMask(solid);
    window.show();
    QApplication::processEvents();
    int step = 0;
    for (auto moved : state) {
        window.move(placeAt(++step));
        QApplication::processEvents();
    }
}
BENCHMARK(DragStepByHand)->Unit(benchmark::kMicrosecond);

void DragStep(benchmark::State& state)
{
    Keyboard keyboard;
    int step = 0;
    for (auto moved : state) {
        const QPoint place = placeAt(++step);
        keyboard.form().Move(place.x() * TwipsPerPixel, place.y() * TwipsPerPixel);
        QApplication::processEvents();
    }
}
BENCHMARK(DragStep)->Unit(benchmark::kMicrosecond);

/// The 118 cells of a table, from the colours of seven shells to a dark one; `edge` is a cell's in pixels.
void drawCells(DrawDevice& device, double edge, Colour dark = QBColor(0))
{
    constexpr int Cells = 118;
    constexpr int InRow = 18;
    constexpr int Shells = 7;
    for (int cell = 0; cell < Cells; ++cell) {
        const Colour base = QBColor(cell % Shells + 8);
        CoreColors::Gradient(device, cell % InRow * edge, cell / InRow * edge, edge, edge,
                             CoreColors::Lighten(base, 20), dark, 45, 256);
    }
}

void Gradients118(benchmark::State& state)
{
    const double edge = static_cast<double>(state.range(0));
    const double ratio = static_cast<double>(state.range(1));
    DrawDevice device(visualHost().createSurface({18 * edge, 7 * edge}, ratio));
    for (auto drawn : state) {
        drawCells(device, edge);
    }
}
BENCHMARK(Gradients118)
    ->ArgNames({"cell", "ratio"})
    ->ArgsProduct({{32, 56}, {1, 2}})
    ->Unit(benchmark::kMillisecond);

/// The same when none of them has been drawn before: each round has other colours.
void Gradients118AtFirst(benchmark::State& state)
{
    const double edge = static_cast<double>(state.range(0));
    DrawDevice device(visualHost().createSurface({18 * edge, 7 * edge}, 1));
    int round = 0;
    for (auto drawn : state) {
        ++round;
        drawCells(device, edge, RGB(round % 256, round / 256 % 256, 0));
    }
}
BENCHMARK(Gradients118AtFirst)->ArgName("cell")->Arg(32)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const qt::DesktopApplication application(argc, argv, u"Windows");
    Platform platform = application.platform();
    platform.settings = std::make_shared<MemorySettingsStore>();
    const SessionState session(platform);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
