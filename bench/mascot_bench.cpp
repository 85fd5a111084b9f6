// The mascot and its balloon beside the same pictures made in other ways: a frame of the mascot beside the
// same shapes drawn by a plain QPainter, the balloon beside one whose shadow has no hatch, and a text from
// BUBBLESAY to its picture. All at the ratio 2; what `new` hands out for a frame stands beside its time.

#include "BenchSession.h"
#include "CountedMemory.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "qt/base/QtText.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>
#include <cmath>
#include <stdexcept>

namespace
{

using namespace phial;

constexpr double Ratio = 2;
constexpr int Side = 200; // of the mascot's picture in its own pixels

const String Sentence = u"Denk an die kleine Zahl hinter der Klammer: Sie gilt f\u00FCr alles, was in der "
                        u"Klammer steht, also auch "
                        u"f\u00FCr jeden Sauerstoff.";

/// A form that is not shown, with a mascot and its balloon.
struct MascotOnForm {
    MascotOnForm()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        atom->BUBBLE(bubble->NAME());
        bubble->Move(120, 0, 240, 90);
    }
    ~MascotOnForm() { form->discard(); }
    MascotOnForm(const MascotOnForm&) = delete;
    MascotOnForm& operator=(const MascotOnForm&) = delete;

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Bench");
    std::shared_ptr<ctl_Bubble> bubble = form->add<ctl_Bubble>(u"bub_Bench");
    std::shared_ptr<ctl_DrAtom> atom = form->add<ctl_DrAtom>(u"dra_Bench");
};

void mascotFrame(benchmark::State& state)
{
    const MascotOnForm shown;
    shown.atom->surface().image(Ratio);
    for (auto _ : state) {
        shown.atom->REDRAW();
        benchmark::DoNotOptimize(shown.atom->surface().image(Ratio));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(mascotFrame)->Name("MascotFrame");

void mascotFrameByPainter(benchmark::State& state)
{
    const QString gfx = QStringLiteral(PHIAL_BENCH_TREE "/Resources/gfx/");
    const QImage head = QImage(gfx + "atom_head@2x.png").convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage electron =
        QImage(gfx + "atom_electron@2x.png").convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (head.isNull() || electron.isNull()) {
        throw std::runtime_error("the pictures are missing");
    }
    QImage canvas(Side, Side, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawImage(0, 0, head);
        for (int each = 0; each < 8; ++each) {
            const double angle = each * 0.785;
            painter.drawImage(QPoint(static_cast<int>(89 + 80 * std::cos(angle)),
                                     static_cast<int>(79 + 80 * std::sin(angle))),
                              electron);
        }
        painter.setPen(QPen(Qt::black, Ratio));
        painter.setBrush(Qt::black);
        painter.drawEllipse(QPointF(77, 63), 8, 8);
        painter.drawEllipse(QPointF(141, 63), 8, 8);
        painter.setPen(QPen(QColor(50, 0, 0), Ratio));
        painter.setBrush(QColor(50, 0, 0));
        painter.drawPie(QRectF(83, 119, 40, 12), 180 * 16, 180 * 16);
        painter.setPen(QPen(Qt::red, Ratio));
        painter.setBrush(Qt::red);
        painter.drawPie(QRectF(83, 123, 40, 4), 180 * 16, 180 * 16);
        painter.setPen(QPen(QColor(50, 0, 0), Ratio));
        painter.drawArc(QRectF(83, 119, 40, 12), 180 * 16, 180 * 16);
        painter.end();
        benchmark::DoNotOptimize(canvas.constBits());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(mascotFrameByPainter)->Name("MascotFrameByPainter");

void balloon(benchmark::State& state)
{
    const MascotOnForm shown;
    shown.bubble->TEXT(Sentence);
    for (auto _ : state) {
        shown.bubble->surface().invalidate();
        benchmark::DoNotOptimize(shown.bubble->surface().image(Ratio));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(balloon)->Name("Balloon");

void balloonWithoutHatch(benchmark::State& state)
{
    const auto surface = visualHost().createSurface({240, 90}, Ratio);
    DrawDevice device(surface);
    device.transparent(true);
    const BalloonTail tail{enm_BallonZipSide::ID_BallonZipSide_LeftTop, 20, 30};
    const BalloonBox body{20, 0, 215, 85};
    for (auto _ : state) {
        device.Cls();
        BalloonLook{tail, 5, QBColor(6), QBColor(0)}.paintShadow(device, body.movedBy(5, 5));
        BalloonLook{tail, 5, QBColor(6), RGB(255, 255, 150)}.paint(device, body);
        benchmark::DoNotOptimize(surface->picture());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(balloonWithoutHatch)->Name("BalloonWithoutHatch");

/// A text of 120 letters from the call to the picture of the balloon, fitted and with its label.
void bubbleSay(benchmark::State& state)
{
    const MascotOnForm shown;
    shown.bubble->AUTOSIZE(true);
    const auto label = shown.bubble->container()->controls().front();
    for (auto _ : state) {
        shown.atom->BUBBLESAY(nullptr, Sentence);
        benchmark::DoNotOptimize(shown.bubble->surface().image(Ratio));
        benchmark::DoNotOptimize(label->painted()->surface().image(Ratio));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(bubbleSay)->Name("BUBBLESAY, 120 letters")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const BenchSession session(argc, argv);
    phial::QVAPP()->URL()->RESOURCEGFX(
        phial::qt::fromQt(QStringLiteral(PHIAL_BENCH_TREE "/Resources/gfx/").replace('/', '\\')));
    bench::CountedMemory memory;
    benchmark::RegisterMemoryManager(&memory);
    const int exitCode = runBenchmarks(argc, argv);
    benchmark::RegisterMemoryManager(nullptr);
    return exitCode;
}
