// How soon a tile that is dragged across the periodic table follows the hand, in a real window with cells of
// 64 pixels: from the pointer's event to the end of the painting that it brings, three hundred times. Prints
// the share of steps within a frame of 16 milliseconds, and the slowest. Wants a display, such as
// tests/support/with_desktop.py gives.

#include "app/Session.h"
#include "core/MemorySettingsStore.h"
#include "core/NativePath.h"
#include "periodic/ctl_PSE.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/Form.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

namespace
{

constexpr double Edge = 64; ///< of a cell
constexpr int Steps = 300;
constexpr double Frame = 16; // milliseconds

/// Notes when a widget has been painted.
class PaintEnd final : public QObject
{
public:
    explicit PaintEnd(QWidget& widget) { widget.installEventFilter(this); }

    bool isPainted = false;

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

void send(QWidget& widget, QEvent::Type type, QPointF place, Qt::MouseButton button)
{
    QMouseEvent event(type, place, widget.mapToGlobal(place), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// Milliseconds from each step to its painting.
std::vector<double> drag(QWidget& table)
{
    PaintEnd end(table);
    std::vector<double> times;
    send(table, QEvent::MouseButtonPress, {3.5 * Edge, 9.5 * Edge}, Qt::LeftButton);
    for (int step = 0; step < Steps; ++step) {
        const double angle = 2 * std::numbers::pi * step / Steps;
        const QPointF place(9 * Edge + 6 * Edge * std::cos(angle), 5 * Edge + 4 * Edge * std::sin(angle));
        end.isPainted = false;
        QElapsedTimer clock;
        clock.start();
        send(table, QEvent::MouseMove, place, Qt::NoButton);
        while (!end.isPainted) {
            QApplication::processEvents();
        }
        times.push_back(static_cast<double>(clock.nsecsElapsed()) * 1e-6);
    }
    send(table, QEvent::MouseButtonRelease, {9 * Edge, 5 * Edge}, Qt::LeftButton);
    return times;
}

} // namespace

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"TableDragged");
    phial::Platform platform = application.platform();
    platform.settings = std::make_shared<phial::MemorySettingsStore>();
    const phial::Session session(platform);
    const auto form = std::make_shared<phial::Form>(u"frm_Dragged");
    form->ScaleMode(phial::ScaleUnit::Pixels);
    const phial::PixelSize size{(Edge + 1) * phial::TableGrid::Columns, (Edge + 1) * phial::TableGrid::Rows};
    form->innerSize(size);
    const auto table = form->add<phial::ctl_PSE>(u"pse_Dragged");
    table->FIXEDSIZE(true);
    table->Move(0, 0, size.width, size.height);
    table->LOAD(phial::systemPath(std::filesystem::path(PHIAL_BENCH_DATA).parent_path() / "resources" /
                                  "data" / "elements2.dat"));
    table->MODE(phial::enm_PSEMode::ID_PSEMode_Place);
    table->DRAGADD(u"Cl");
    form->Show();
    QApplication::processEvents();
    std::vector<double> times = drag(*phial::qt::widgetOf(table->hWnd()));
    std::sort(times.begin(), times.end());
    const auto inTime = std::upper_bound(times.begin(), times.end(), Frame) - times.begin();
    std::printf("%.1f %% of %d steps within %g ms, median %.2f ms, slowest %.2f ms\n",
                100.0 * static_cast<double>(inTime) / Steps, Steps, Frame, times[times.size() / 2],
                times.back());
    form->discard();
    return 0;
}
