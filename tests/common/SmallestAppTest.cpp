#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "common/smallest/AtomCounting.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "visual/Form.h"

#include <gtest/gtest.h>

namespace atoms
{
namespace
{

using phial::String;
using phial::StringView;

/// The app that is shown to whoever writes one, in its window, in German.
class SmallestApp : public phial::test::AppSession
{
protected:
    SmallestApp()
    {
        outside.environment().set(u"LANG", u"de_DE.UTF-8");
        outside.random().numbers({0.0});
        makeTree(u"installed\\");
    }
    void TearDown() override
    {
        app.reset();
        AppSession::TearDown();
    }

    void open()
    {
        phial::QVAPP()->CONFIG()->IDENT(u"Atome");
        outside.settings().prepare(phial::SettingsHive::LocalMachine, u"Software\\QV Brunnhof\\Phial\\Path",
                                   path(u"installed\\"));
        phial::QVAPP()->INIT(u"NONETWORK");
        app = std::make_unique<learning::frm_LearningApp>(std::make_unique<AtomCounting>());
        app->deafFor(0);
        app->Show();
    }

    void type(StringView keys) { phial::headless::type(app->form(), keys); }
    String seen(StringView label) { return app->form().control<phial::ctl_Label>(label)->Caption(); }

    std::unique_ptr<learning::frm_LearningApp> app;
};

TEST_F(SmallestApp, IsPlayedToTheEnd)
{
    folder.write(
        "installed/apps/Atome/data/formeln.txt",
        "[leicht] Leicht | Easy\nH2O | Wasser | water\nCa(OH)2 | Calciumhydroxid | calcium hydroxide\n");
    open();
    outside.dialogs().expect(phial::headless::Box::Info); // the rank
    type(u"{enter}3{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Richtig! 3, 10 Punkte für dich.<br>Gleich beim ersten Versuch richtig.");
    type(u"{enter}4{enter}");
    EXPECT_EQ(seen(u"lab_Feedback").find(u"Richtig! 4, 10 Punkte"), phial::String::npos);
    type(u"5{enter}{enter}");
    EXPECT_EQ(seen(u"lab_Solved"), u"2 von 2 Formeln gelöst");
}

TEST_F(SmallestApp, TellsWhichFileIsMissing)
{
    open();
    EXPECT_NE(seen(u"lab_Missing").find(u"formeln.txt"), String::npos);
}

} // namespace
} // namespace atoms
