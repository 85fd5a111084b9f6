// What a mascot costs in a real window, for eight seconds each: shown, at rest, and hidden; and beside it a
// QMovie of its pictures, which decodes each one again, and one that keeps them. Prints a line a state: the
// share of a core, how many frames were painted, and how many of them came within 45 to 55 milliseconds.
// Wants a display, such as tests/support/with_desktop.py gives.

#include "Film.h"
#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreRoot.h"
#include "core/CoreTiming.h"
#include "core/MemorySettingsStore.h"
#include "mascot/ctl_DrAtom.h"
#include "qt/base/QtText.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/Form.h"

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QLabel>
#include <QMovie>
#include <QWidget>

#include <cstdio>
#include <ctime>
#include <vector>

namespace
{

constexpr double Seconds = 8;
constexpr qint64 NanosecondsToMillisecond = 1'000'000;

/// Notes when a widget is painted.
class FrameWatch final : public QObject
{
public:
    explicit FrameWatch(QWidget& widget) { widget.installEventFilter(this); }

    void begin()
    {
        times_.clear();
        timer_.start();
        clock_ = std::clock();
    }
    void report(const char* state)
    {
        const double busy = static_cast<double>(std::clock() - clock_) / CLOCKS_PER_SEC;
        const double share = 100 * busy * 1e9 / static_cast<double>(timer_.nsecsElapsed());
        int steady = 0;
        for (std::size_t at = 1; at < times_.size(); ++at) {
            const qint64 gap = (times_[at] - times_[at - 1]) / NanosecondsToMillisecond;
            steady += gap >= 45 && gap <= 55 ? 1 : 0;
        }
        const auto gaps = static_cast<double>(times_.empty() ? 0 : times_.size() - 1);
        std::printf("%-11s %5.2f %% of a core, %zu frames, %.1f %% of them steady\n", state, share,
                    times_.size(), gaps > 0 ? 100 * steady / gaps : 0);
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            times_.push_back(timer_.nsecsElapsed());
        }
        return QObject::eventFilter(watched, event);
    }

    QElapsedTimer timer_;
    std::clock_t clock_ = 0;
    std::vector<qint64> times_;
};

void measure(FrameWatch& watch, const char* state)
{
    phial::coreRoot().CoreTiming().Wait(1, true);
    watch.begin();
    phial::coreRoot().CoreTiming().Wait(Seconds, true);
    watch.report(state);
}

/// The mascot's next frames, in which the electrons come round twice to where they were.
std::vector<QImage> filmed(phial::ctl_DrAtom& atom)
{
    constexpr std::size_t Frames = 25;
    std::vector<QImage> frames;
    while (frames.size() < Frames) {
        phial::coreRoot().CoreTiming().Wait(0.05, true);
        frames.push_back(phial::qt::imageCopy(*atom.surface().image(1)));
    }
    return frames;
}

void measureMovie(QByteArray bytes, QMovie::CacheMode cache, const char* state)
{
    QBuffer file(&bytes);
    QMovie movie(&file, "gif");
    movie.setCacheMode(cache);
    QWidget window;
    window.resize(300, 200);
    QLabel label(&window);
    label.setMovie(&movie);
    label.resize(100, 100);
    movie.start();
    window.show();
    FrameWatch watch(label);
    measure(watch, state);
}

} // namespace

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"MascotShown");
    phial::Platform platform = application.platform();
    platform.settings = std::make_shared<phial::MemorySettingsStore>();
    const phial::Session session(platform);
    phial::QVAPP()->URL()->RESOURCEGFX(
        phial::qt::fromQt(QStringLiteral(PHIAL_BENCH_TREE "/Resources/gfx/").replace('/', '\\')));
    const auto form = std::make_shared<phial::Form>(u"frm_Shown");
    form->ScaleMode(phial::ScaleUnit::Pixels);
    form->innerSize({300, 200});
    const auto atom = form->add<phial::ctl_DrAtom>(u"dra_Shown");
    atom->MOOD(phial::enm_DrAtomMood::ID_DrAtomMood_Neutral);
    form->Show();
    FrameWatch watch(*phial::qt::widgetOf(atom->hWnd()));
    measure(watch, "shown");
    const bench::Film film(filmed(*atom));
    atom->moves(false);
    measure(watch, "at rest");
    atom->moves(true);
    atom->Visible(false);
    measure(watch, "hidden");
    form->discard();
    measureMovie(film.bytes(), QMovie::CacheNone, "movie");
    measureMovie(film.bytes(), QMovie::CacheAll, "movie, kept");
    return 0;
}
