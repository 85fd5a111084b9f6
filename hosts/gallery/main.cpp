// The gallery: `gallery`, or `gallery --shots DIR` to draw each exhibit into picture files.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "gallery/GalleryShots.h"
#include "gallery/frm_Gallery.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/ShotBook.h"

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"QV Phial");
    const phial::Session session(application.platform());
    const auto& app = phial::QVAPP();
    app->CONFIG()->IDENT(u"Galerie");
    app->CONFIG()->NAME(u"Galerie");
    app->CONFIG()->VERSION(u"" PHIAL_VERSION);
    // The gallery shows everything without an installation, too.
    phial::ignoringErrors([&] { app->INIT(application.commandLine()); });

    if (const auto folder = application.shotsFolder()) {
        phial::qt::takeShots(*folder, [](phial::qt::ShotBook& book) {
            gallery::showEachState(
                {[&book](phial::StringView name, const phial::Form& form) { book.take(name, form); },
                 [&book](phial::StringView name, const auto& open) { book.takeModal(name, open); }});
        });
        return 0;
    }
    gallery::frm_Gallery window;
    window.Show();
    app->READY();
    return application.run();
}
