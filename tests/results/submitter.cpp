#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "headless/HeadlessPlatform.h"
#include "results/cls_AppRate.h"

#include <cstdlib>

// Plays one of several programs on one computer that submit at the same time: `submitter folder name rounds`
// enters that many results into the list that all of them share.
int main(int argc, char** argv)
{
    using namespace phial;
    if (argc != 4) {
        return 2;
    }
    const String folder = fromUtf8(argv[1]);
    Platform platform = headless::HeadlessPlatform(folder).platform();
    platform.clock.reset(); // locks are waited for in real time
    platform.files.reset();
    const Session session(platform);
    QVAPP()->URL()->DATAHIGHSCORES(folder);
    QVAPP()->USER()->SCREENNAME(fromUtf8(argv[2]));
    QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", true);
    constexpr std::int32_t MoreThanAllRounds = 1'000'000;
    for (int round = std::atoi(argv[3]); round > 0; --round) {
        QVAPP()->RATE()->SUBMIT(round, 100, u"", nullptr, u"HIGHSCORE", false, MoreThanAllRounds);
    }
    return 0;
}
