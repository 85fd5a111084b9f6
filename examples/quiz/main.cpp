#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "frm_Quiz.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/ShotBook.h"

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Stoffquiz");
    const phial::Session session(application.platform());
    phial::QVAPP()->CONFIG()->IDENT(u"Stoffquiz");
    phial::QVAPP()->INIT(application.commandLine());
    if (const auto folder = application.shotsFolder()) {
        phial::qt::takeShots(*folder, [](phial::qt::ShotBook& book) {
            frm_Quiz quiz;
            quiz.form().Show();
            book.take(u"quiz", quiz.form());
            quiz.form().Unload();
        });
        return 0;
    }
    frm_Quiz quiz;
    quiz.form().Show();
    phial::QVAPP()->READY();
    return application.run();
}
