#pragma once

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "formeln/FormulaTrainer.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "support/Places.h"
#include "visual/Form.h"
#include "visual/ctl_Label.h"

#include <filesystem>
#include <memory>
#include <string_view>

namespace formeln
{

/// The trainer's window with a pupil before it: the installed elements and tasks of a test's own, drawn in
/// the order of the file, in German. Of substances the formula is asked for.
class FormulaTrainerTest : public phial::test::AppSession
{
protected:
    static constexpr std::string_view Tasks =
        "[salze] Salze | Salts\nNa2SO4 | Natriumsulfat | sodium sulfate\n"
        "Ca(OH)2 | Calciumhydroxid / Löschkalk | calcium hydroxide\n"
        "[ionen] Ionen | Ions\nSO4^2- | Sulfat-Ion | sulfate ion\n"
        "[gleichungen] Gleichungen | Equations\nFe + O2 -> Fe2O3 | Rosten | rusting\n";

    FormulaTrainerTest()
    {
        outside.environment().set(u"LANG", u"de_DE.UTF-8");
        outside.random().numbers({0.0});
    }
    void TearDown() override
    {
        app.reset();
        AppSession::TearDown();
    }

    /// From now on of each substance the name is asked for.
    void askForNames() { outside.random().numbers({0.99}); }

    void open(std::string_view tasks = Tasks)
    {
        makeTree(u"installed\\");
        const auto data = folder.native() / "installed/Resources/data";
        std::filesystem::create_directories(data);
        std::filesystem::copy_file(phial::test::treeFolder() / "Resources/data/elements2.dat",
                                   data / "elements2.dat", std::filesystem::copy_options::overwrite_existing);
        folder.write("installed/apps/Formeln/data/aufgaben.txt", tasks);
        openHere();
    }
    /// With whatever is installed.
    void openHere()
    {
        phial::QVAPP()->CONFIG()->IDENT(u"Formeln");
        outside.settings().prepare(phial::SettingsHive::LocalMachine, u"Software\\QV Brunnhof\\Phial\\Path",
                                   path(u"installed\\"));
        phial::ignoringErrors([] { phial::QVAPP()->INIT(u"NONETWORK"); });
        app =
            std::make_unique<learning::frm_LearningApp>(std::make_unique<FormulaTrainer>(loadFormulaData()));
        app->deafFor(0);
        app->Show();
    }
    void begin(std::int32_t level = 0)
    {
        open();
        touch(u"but_Level", level);
    }

    phial::Form& form() { return app->form(); }

    // The pupil's hand.
    void type(phial::StringView keys) { phial::headless::type(form(), keys); }
    void touch(phial::StringView button, std::int32_t index = -1)
    {
        phial::headless::click(*form().control<phial::ctl_Button>(button, index));
    }

    // What the pupil sees.
    static bool contains(const phial::String& text, phial::StringView part)
    {
        return text.find(part) != phial::String::npos;
    }
    phial::String seen(phial::StringView label)
    {
        const auto found = form().control<phial::ctl_Label>(label);
        return found->frame().isReachable() ? found->Caption() : phial::String(u"(hidden)");
    }
    bool isSeen(phial::StringView control, std::int32_t index = -1)
    {
        return form().control<phial::Control>(control, index)->frame().isReachable();
    }
    phial::String term(phial::StringView label, std::int32_t index = -1)
    {
        return form().control<phial::ctl_TermLabel>(label, index)->Term();
    }
    phial::String typed() { return form().control<phial::clt_TermInput>(u"trm_Answer")->Term(); }
    phial::TextBox& nameField() { return form().control<phial::ctl_QVInput>(u"txt_Name")->input(); }
    phial::TextBox& factor(std::int32_t index)
    {
        return form().control<phial::ctl_QVInput>(u"txt_Factor", index)->input();
    }
    phial::String focused()
    {
        const auto active = form().ActiveControl();
        return active ? active->NAME() : phial::String();
    }
    void expectRankBox() { outside.dialogs().expect(phial::headless::Box::Info); }

    std::unique_ptr<learning::frm_LearningApp> app;
};

} // namespace formeln
