#include "common/RunLearningApp.h"

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppTools.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "dialogs/FreeTermKeys.h"
#include "qt/base/MasterSearch.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/ShotBook.h"
#include "server/cls_AppServer.h"
#include "server/cls_AppServerConfig.h"

namespace learning
{

namespace
{

std::vector<phial::FoundMaster> searchMasters()
{
    return phial::qt::findMasters(phial::QVAPP()->SERVER()->CONFIG()->SERVERUDP());
}

} // namespace

int runLearningApp(int argc, char** argv, const AppIdentity& identity, const MakeApp& makeApp)
{
    const phial::qt::DesktopApplication application(argc, argv, identity.identifier);
    const phial::Session session(application.platform());
    const auto& app = phial::QVAPP();
    app->CONFIG()->IDENT(phial::String(identity.identifier));
    app->CONFIG()->NAME(phial::String(identity.name));
    app->CONFIG()->VERSION(phial::String(identity.version));
    phial::FreeTermKeys::current()->showArrowAndFraction();
    // Without an installation the start ends early; the window then says what is missing.
    phial::ignoringErrors([&] { app->INIT(application.commandLine()); });

    if (const auto folder = application.shotsFolder()) {
        phial::qt::takeShots(*folder, [&](phial::qt::ShotBook& book) {
            showEachState(
                makeApp, identity.pictures,
                [&book](phial::StringView name, const phial::Form& form) { book.take(name, form); });
        });
        return 0;
    }
    frm_LearningApp window(makeApp(), searchMasters);
    app->TOOLS()->RESOLUTION(window.form());
    window.widen();
    window.Show();
    app->READY();
    window.welcome();
    return application.run();
}

} // namespace learning
