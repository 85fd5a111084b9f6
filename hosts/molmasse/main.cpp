// The molar-mass trainer: `molmasse`, or `molmasse --shots DIR` to draw its states into picture files.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "molmasse/MolmasseShots.h"
#include "molmasse/frm_Molmasse.h"
#include "qt/base/MasterSearch.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/ShotBook.h"
#include "server/cls_AppServer.h"
#include "server/cls_AppServerConfig.h"

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Molmasse");
    const phial::Session session(application.platform());
    const auto& app = phial::QVAPP();
    app->CONFIG()->IDENT(u"Molmasse");
    app->CONFIG()->NAME(u"Molmassen-Trainer");
    app->CONFIG()->VERSION(u"" PHIAL_VERSION);
    // Without an installation the start ends early; the window then says what is missing.
    phial::ignoringErrors([&] { app->INIT(application.commandLine()); });

    if (const auto folder = application.shotsFolder()) {
        phial::qt::takeShots(*folder, [](phial::qt::ShotBook& book) {
            molmasse::showEachState(
                [&book](phial::StringView name, const phial::Form& form) { book.take(name, form); });
        });
        return 0;
    }
    molmasse::frm_Molmasse window(molmasse::loadTrainerData(), [&app] {
        return phial::qt::findMasters(app->SERVER()->CONFIG()->SERVERUDP());
    });
    window.Show();
    app->READY();
    window.welcome();
    return application.run();
}
