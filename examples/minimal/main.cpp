#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "qt/desktop/DesktopApplication.h"
#include "term/ctl_TermLabel.h"
#include "visual/Form.h"

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Wasser");
    const phial::Session session(application.platform());
    phial::QVAPP()->CONFIG()->IDENT(u"Wasser");
    phial::QVAPP()->INIT(application.commandLine());
    const auto form = std::make_shared<phial::Form>(u"frm_Water");
    const auto label = form->add<phial::ctl_TermLabel>(u"trm_Water");
    label->Move(300, 300, 4500, 900);
    label->Term(u"2H2 + O2 -> 2H2O");
    form->Show();
    phial::QVAPP()->READY();
    return application.run();
}
