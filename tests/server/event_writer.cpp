// A program without a master that records events "<name>0", "<name>1" and so on, and says "done". Arguments:
// the folder for its files, as the system writes it, the name, the number of events.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "headless/HeadlessPlatform.h"
#include "server/cls_AppServer.h"

#include <cstdio>
#include <exception>
#include <string>

int main(int argc, char** argv)
try {
    using namespace phial;
    if (argc != 4) {
        return 2;
    }
    const String folder = fromUtf8(argv[1]);
    const String name = fromUtf8(argv[2]);
    const headless::HeadlessPlatform outside(folder);
    Platform platform = outside.platform();
    platform.clock = nullptr; // the programs wait for each other in real time
    platform.pump = nullptr;
    const Session session(platform);
    QVAPP()->URL()->DATAHIGHSCORES(folder + u"highscores\\");
    QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", u"");
    for (int event = 0; event < std::stoi(argv[3]); ++event) {
        QVAPP()->SERVER()->ACTION(name + fromUtf8(std::to_string(event)));
    }
    std::puts("done");
    return 0;
} catch (const std::exception& error) {
    std::fputs(error.what(), stderr);
    return 1;
}
