// Another set of colours and another zoom of the trainer's whole window of 1920 by 1080 pixels, beside a
// window with as many of the toolkit's widgets that does the same by hand. The windows are real ones, drawn
// into memory; each round ends when all is painted.

#include "PaintWatch.h"
#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "core/CoreTheme.h"
#include "core/MemorySettingsStore.h"
#include "core/NativePath.h"
#include "molmasse/Trainer.h"
#include "qt/base/QtText.h"
#include "qt/desktop/DesktopApplication.h"
#include "visual/Form.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <benchmark/benchmark.h>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace
{

using namespace phial;

constexpr QSize ScreenSize(1920, 1080);
/// The window as it fills the screen, and a little smaller.
constexpr double Sizes[] = {1.0, 0.9};

/// The trainer, in the middle of a round.
class TrainerWindow
{
public:
    TrainerWindow() : window_(std::make_unique<molmasse::Trainer>(molmasse::loadTrainerData()), {})
    {
        window_.Show();
        resize(1);
        form().control<ctl_Button>(u"but_Level", 0)->click();
        QApplication::processEvents();
        if (!form().control<Control>(u"pan_Task")->frame().Visible()) {
            throw std::runtime_error("the trainer has no tasks");
        }
    }
    ~TrainerWindow() { form().discard(); }
    TrainerWindow(const TrainerWindow&) = delete;
    TrainerWindow& operator=(const TrainerWindow&) = delete;

    /// The zoom follows the size.
    void resize(double share)
    {
        form().Width(std::round(ScreenSize.width() * share) * TwipsPerPixel);
        form().Height(std::round(ScreenSize.height() * share) * TwipsPerPixel);
    }

    /// How many widgets of each kind are seen.
    static int seen(const Container& container, bool buttons)
    {
        int count = 0;
        for (const ControlPtr& control : container.controls()) {
            if (!control->frame().Visible()) {
                continue;
            }
            const bool isButton = dynamic_cast<const ctl_Button*>(control.get()) != nullptr;
            count += isButton == buttons ? 1 : 0;
            if (const Container* within = control->container()) {
                count += seen(*within, buttons);
            }
        }
        return count;
    }
    Form& form() { return window_.form(); }

private:
    learning::frm_LearningApp window_;
};

/// As many buttons and labels by hand, placed in rows, with a field.
class HandmadeWindow
{
public:
    HandmadeWindow(int buttons, int labels)
    {
        for (int number = 0; number < buttons; ++number) {
            parts_.push_back(new QPushButton(QStringLiteral("Prüfen"), &window_));
        }
        for (int number = 0; number < labels; ++number) {
            auto* label = new QLabel(QStringLiteral("Calciumdihydrogenphosphat"), &window_);
            label->setAutoFillBackground(true);
            parts_.push_back(label);
        }
        parts_.push_back(new QLineEdit(QStringLiteral("40,1"), &window_));
        resize(1);
        window_.show();
        QApplication::processEvents();
    }

    void resize(double share)
    {
        constexpr int Columns = 8;
        constexpr int CellWidth = 240;
        constexpr int CellHeight = 120;
        window_.resize(ScreenSize * share);
        QFont font = QApplication::font();
        font.setPointSizeF(20 * share);
        int number = 0;
        for (QWidget* part : parts_) {
            const QPoint corner(number % Columns * CellWidth, number / Columns * CellHeight);
            part->setGeometry(QRect(corner * share, QSize(CellWidth - 12, CellHeight - 12) * share));
            part->setFont(font);
            ++number;
        }
    }

private:
    QWidget window_;
    std::vector<QWidget*> parts_;
};

std::pair<int, int> partsOfTheTrainer()
{
    TrainerWindow trainer;
    const Container& all = trainer.form().container();
    return {TrainerWindow::seen(all, true), TrainerWindow::seen(all, false)};
}

QPalette paletteOf(const QColor& ground, const QColor& text)
{
    QPalette palette;
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        palette.setColor(role, ground);
    }
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    return palette;
}

void ColoursByHand(benchmark::State& state)
{
    const auto [buttons, labels] = partsOfTheTrainer();
    const QPalette before = QApplication::palette();
    {
        HandmadeWindow window(buttons, labels);
        PaintWatch watch;
        bool dark = false;
        for (auto changed : state) {
            dark = !dark;
            QApplication::setPalette(dark ? paletteOf(QColor(0x18, 0x29, 0x38), Qt::white)
                                          : paletteOf(Qt::white, Qt::black));
            watch.finish();
        }
    }
    QApplication::setPalette(before);
}
BENCHMARK(ColoursByHand)->Unit(benchmark::kMillisecond);

void Colours(benchmark::State& state)
{
    TrainerWindow trainer;
    PaintWatch watch;
    bool dark = false;
    for (auto changed : state) {
        dark = !dark;
        coreTheme().SetColours(dark ? ColourSet::Dark : ColourSet::Light);
        watch.finish();
    }
    coreTheme().SetColours(std::nullopt);
}
BENCHMARK(Colours)->Unit(benchmark::kMillisecond);

void ZoomByHand(benchmark::State& state)
{
    const auto [buttons, labels] = partsOfTheTrainer();
    HandmadeWindow window(buttons, labels);
    PaintWatch watch;
    std::size_t round = 0;
    for (auto changed : state) {
        window.resize(Sizes[++round % std::size(Sizes)]);
        watch.finish();
    }
}
BENCHMARK(ZoomByHand)->Unit(benchmark::kMillisecond);

void Zoom(benchmark::State& state)
{
    TrainerWindow trainer;
    PaintWatch watch;
    std::size_t round = 0;
    for (auto changed : state) {
        trainer.resize(Sizes[++round % std::size(Sizes)]);
        watch.finish();
    }
}
BENCHMARK(Zoom)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const qt::DesktopApplication application(argc, argv, u"Molmasse");
    Platform platform = application.platform();
    platform.settings = std::make_shared<MemorySettingsStore>();
    const Session session(platform);
    QVAPP()->CONFIG()->IDENT(u"Molmasse");
    QVAPP()->URL()->INITROOT(systemPath(qt::fromQt(QStringLiteral(PHIAL_BENCH_TREE))) + u"\\");
    QVAPP()->INIT(u"NONETWORK NOSOUND");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
