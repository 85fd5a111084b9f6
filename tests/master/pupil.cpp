// A pupil's program without a window: pupil PORT NAME COUNT. Logs on to the master at that port of this
// computer and submits so many results, by turns to the results and to a highscore, each again and again
// until it is answered. For each answer it writes a line "exercise answer".

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/CoreTiming.h"
#include "core/CoreValuePacker.h"
#include "core/NumberText.h"
#include "core/RandomSource.h"
#include "core/SessionState.h"
#include "qt/base/BasePlatform.h"
#include "server/cls_AppServer.h"
#include "server/cls_AppServerConfig.h"

#include <QCoreApplication>

#include <cstdlib>
#include <iostream>

namespace
{

using namespace phial;

void logOn(std::int32_t port, String name)
{
    QVAPP()->USER()->SCREENNAME(std::move(name));
    const auto server = QVAPP()->SERVER();
    server->CONFIG()->SERVERIP(u"127.0.0.1");
    server->CONFIG()->SERVERPORT(port);
    server->CONFIG()->CLIENTPORT(0); // any free one, since so many share this computer
    server->CONFIG()->AUTOEVENTS(false);
    server->INIT();
    while (!server->CONNECT()) {
        server->RECHECK();
    }
}

String submit(StringView module, StringView exercise, double points, StringView name)
{
    const String package =
        CoreValuePacker::Pack({points, 100.0, exercise, CoreParameters().Pack(), name, u"PC", u"login"});
    while (true) {
        const String answer = QVAPP()->SERVER()->REQUEST(module, u"SUBMIT", package).toText();
        if (!answer.empty()) {
            return answer;
        }
    }
}

void submitAll(int count, const String& name)
{
    const auto random = SessionState::current().platform().random;
    for (int round = 1; round <= count; ++round) {
        const String exercise = plainText(round);
        const StringView module = round % 2 == 0 ? u"RESULTS" : u"SALZE";
        const String answer = submit(module, exercise, round, name);
        std::cout << toUtf8(exercise) << ' ' << toUtf8(answer) << std::endl;
        coreRoot().CoreTiming().Wait(0.1 * random->next(), true);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 4) {
        return 2;
    }
    Platform platform = qt::basePlatform(std::make_shared<qt::DispatchGuard>());
    platform.settings.reset(); // nothing of this run is kept
    const Session session(platform);
    const String name = fromUtf8(argv[2]);
    logOn(std::atoi(argv[1]), name);
    submitAll(std::atoi(argv[3]), name);
    return 0;
}
