// An app's sounds on the desktop's loudspeakers, as sound_cost.py asks for them, a word a line:
//   play PATH   by PLAYWAVE; tells the steady clock's seconds at the call
//   voices PATH seconds   four voices of that sound at all times; tells the processor time that it took
// It ends with its input.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/CoreRoot.h"
#include "core/CoreSoundFacet.h"
#include "media/cls_AppMedia.h"
#include "qt/desktop/DesktopApplication.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{

using namespace phial;

double secondsOf(clockid_t id)
{
    timespec now{};
    clock_gettime(id, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

void tell(double value)
{
    std::printf("%.6f\n", value);
    std::fflush(stdout);
}

void playFourVoices(const String& path, double seconds)
{
    CoreSoundFacet& player = coreRoot().CoreSoundFacet();
    const auto sound = player.load(path);
    std::vector<CoreSoundFacet::Voice> voices(4);
    QTimer looking;
    looking.start(50);
    const double begin = secondsOf(CLOCK_MONOTONIC);
    const double used = secondsOf(CLOCK_PROCESS_CPUTIME_ID);
    while (secondsOf(CLOCK_MONOTONIC) < begin + seconds) {
        for (CoreSoundFacet::Voice& voice : voices) {
            if (!player.isPlaying(voice)) {
                voice = player.start(sound);
            }
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    tell(secondsOf(CLOCK_PROCESS_CPUTIME_ID) - used);
}

void obey(const std::string& line)
{
    const String path = fromUtf8(std::string_view(line).substr(line.find(' ') + 1));
    if (line.starts_with("voices ")) {
        playFourVoices(path, 5);
    } else if (line.starts_with("play ")) {
        tell(secondsOf(CLOCK_MONOTONIC));
        QVAPP()->MEDIA()->PLAYWAVE(path, false);
    } else {
        QCoreApplication::quit();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Sound");
    const phial::Session session(application.platform());
    QVAPP()->CONFIG()->IDENT(u"Sound");
    QVAPP()->INIT(application.commandLine());
    QVAPP()->CONFIG()->SOUNDMODE(ID_SoundMode_AllOn);
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [] {
        std::string line;
        std::getline(std::cin, line);
        obey(line);
    });
    tell(0);
    return QCoreApplication::exec();
}
