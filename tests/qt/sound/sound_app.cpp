// A program with windows on the desktop's loudspeakers that does as it is told, an order a line, and answers
// with a line for each:
//   play FILE     PLAYWAVE without wait; the steady clock's seconds at the call
//   burst FILE|…  the same with all of them in a row; the time at the first call
//   praise FILE   the praise window with that sound; for how many seconds it stood
//   leave FILE    the same, and Escape is pressed in it as soon as the sound plays
//   gap           for how many seconds at most its events have stood still since it was asked last
//   end           ends; no answer
// It says "ready" first. FILE is a path of the system (\).

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "media/cls_AppMedia.h"
#include "media/frm_AppMCI.h"
#include "media/frm_DialogSound.h"
#include "qt/base/QtClock.h"
#include "qt/desktop/DesktopApplication.h"
#include "visual/Form.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <memory>
#include <string>
#include <unistd.h>
#include <utility>

namespace
{

using namespace phial;

double now()
{
    return qt::QtClock().seconds();
}

void answer(double seconds)
{
    std::printf("%.4f\n", seconds);
    std::fflush(stdout);
}

/// The longest time between two ticks of a short timer.
class Gap
{
public:
    Gap()
    {
        constexpr int Tick = 5;
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tick(); });
        timer_.start(Tick);
    }

    double take()
    {
        tick();
        return std::exchange(longest_, 0);
    }

private:
    void tick() { longest_ = std::max(longest_, now() - std::exchange(last_, now())); }

    QTimer timer_;
    double last_ = now();
    double longest_ = 0;
};

double praise(const String& file)
{
    const double begin = now();
    frm_DialogSound window;
    window.SoundText(u"Bravo!");
    window.SoundFile(file);
    window.Show();
    return now() - begin;
}

double leave(const String& file)
{
    QTimer leaving;
    QObject::connect(&leaving, &QTimer::timeout, &leaving, [] {
        if (Session::current().sharedForm<frm_AppMCI>()->mci()->isPlaying()) {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(QApplication::activeWindow(), &escape);
        }
    });
    leaving.start(50);
    return praise(file);
}

void obey(const std::string& line, Gap& gap)
{
    const String file = fromUtf8(std::string_view(line).substr(std::min(line.size(), line.find(' ') + 1)));
    if (line.starts_with("play ")) {
        answer(now());
        QVAPP()->MEDIA()->PLAYWAVE(file, false);
    } else if (line.starts_with("burst ")) {
        answer(now());
        for (std::size_t at = 0, end = 0; end != String::npos; at = end + 1) {
            end = file.find(u'|', at);
            QVAPP()->MEDIA()->PLAYWAVE(file.substr(at, end - at), false);
        }
    } else if (line.starts_with("praise ")) {
        answer(praise(file));
    } else if (line.starts_with("leave ")) {
        answer(leave(file));
    } else if (line == "gap") {
        answer(gap.take());
    } else {
        QCoreApplication::quit();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Sound");
    const phial::Session session(application.platform());
    QVAPP()->URL()->INITROOT(systemPath(argv[1]) + u"\\");
    QVAPP()->CONFIG()->SOUNDMODE(ID_SoundMode_AllOn);
    const auto window = std::make_shared<Form>(u"frm_Main");
    window->innerSize({640, 480});
    window->Show();
    Gap gap;
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&gap] {
        std::string line;
        std::getline(std::cin, line);
        obey(line, gap);
    });
    std::puts("ready");
    std::fflush(stdout);
    return application.run();
}
