#pragma once

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "dialogs/NumberLayout.h"
#include "dialogs/ctl_Keys.h"
#include "dialogs/ctl_QVInput.h"
#include "headless/Hand.h"
#include "molmasse/Trainer.h"
#include "support/AppSession.h"
#include "term/ctl_TermLabel.h"
#include "visual/Form.h"
#include "visual/PictureBox.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

#include <memory>
#include <string_view>

namespace molmasse
{

/// The trainer's window with a pupil before it: an installation with two levels of two and one formulas,
/// drawn in the order of the file, in German.
class TrainerTest : public phial::test::AppSession
{
protected:
    static constexpr std::string_view Elements = "H\nWasserstoff\n1.008\n1\n1\n"
                                                 "O\nSauerstoff\n15.999\n2\n16\n"
                                                 "Na\nNatrium\n22.98976928\n3\n1\n"
                                                 "Cl\nChlor*Chlorine\n35.45\n3\n17\n";
    static constexpr std::string_view Tasks = "[leicht] Leicht | Easy\nH2O | Wasser | water\n"
                                              "NaCl | Natriumchlorid | sodium chloride\n"
                                              "[mittel] Mittel | Medium\nHCl\n";

    TrainerTest()
    {
        outside.environment().set(u"LANG", u"de_DE.UTF-8");
        outside.random().numbers({0.0});
    }
    void TearDown() override
    {
        trainer.reset();
        AppSession::TearDown();
    }

    /// Puts two avatars into the installation, "fox" and "owl".
    void installAvatars()
    {
        for (const auto* file :
             {"installed/Resources/avatar/fox.gif", "installed/Resources/avatar/owl.gif"}) {
            folder.write(file, std::string("GIF89a\x60\0\x60\0", 10) + std::string(16, '\0'));
        }
    }

    /// What the installation holds; a test puts other files there, or none.
    void install(std::string_view elements = Elements, std::string_view tasks = Tasks)
    {
        makeTree(u"installed\\");
        writeUnlessEmpty("installed/Resources/data/elements2.dat", elements);
        writeUnlessEmpty("installed/apps/Molmasse/data/formeln.txt", tasks);
    }

    /// Starts without contact to a master, unless a test gives another command line.
    void open(phial::StringView commandLine = u"NONETWORK", learning::MasterSearch searchMasters = {})
    {
        phial::QVAPP()->CONFIG()->IDENT(u"Molmasse");
        outside.settings().prepare(phial::SettingsHive::LocalMachine, u"Software\\QV Brunnhof\\Phial\\Path",
                                   path(u"installed\\"));
        phial::ignoringErrors([&] { phial::QVAPP()->INIT(phial::String(commandLine)); });
        trainer = newWindow(std::move(searchMasters));
        trainer->deafFor(0);
        trainer->Show();
    }
    static std::unique_ptr<learning::frm_LearningApp> newWindow(learning::MasterSearch searchMasters = {})
    {
        return std::make_unique<learning::frm_LearningApp>(std::make_unique<Trainer>(loadTrainerData()),
                                                           std::move(searchMasters));
    }
    void openInstalled()
    {
        install();
        open();
    }

    /// A help book with a page in each of these folders, which says so.
    void installHelp(std::initializer_list<std::string> folders)
    {
        for (const std::string& chapter : folders) {
            const std::string page = "installed/apps/Molmasse/data/Hilfe/" + chapter + "/1";
            folder.write(page + ".gif", "");
            folder.write(page + ".txt", chapter);
        }
    }
    /// The help book comes with that folder's page.
    void expectHelp(const phial::String& chapter)
    {
        outside.visual().onModal(u"frm_DialogHelpImages", [chapter](phial::Form& help) {
            EXPECT_EQ(help.control<phial::PictureBox>(u"pic_Viewer", 1)->frame().AccessibleName(),
                      u"Seite 1 von 1: " + chapter);
            help.Unload();
        });
    }

    /// The box that tells about the rank comes at the end of a round.
    void expectRankBox() { outside.dialogs().expect(phial::headless::Box::Info); }
    /// A whole round of the first level, all right at the first try.
    void playRound()
    {
        touch(u"but_Level", 0);
        type(u"18,0{enter}{enter}58,4{enter}{enter}");
    }

    phial::Form& form() { return trainer->form(); }
    bool isOpen() { return form().Visible(); }

    /// What the pupil presses when asked whether a round is to end.
    void answerLeaving(phial::StringView button)
    {
        outside.visual().onModal(u"frm_LeaveRound", [button = phial::String(button)](phial::Form& asking) {
            phial::headless::click(*asking.control<phial::ctl_Button>(button));
        });
    }

    // The pupil's hand.
    void type(phial::StringView keys) { phial::headless::type(form(), keys); }
    void touch(phial::StringView button, std::int32_t index = -1)
    {
        phial::headless::click(*form().control<phial::ctl_Button>(button, index));
    }
    /// Opens the pad, presses its keys with those signs, and OK.
    void touchPad(phial::StringView signs)
    {
        expectPad(signs);
        touch(u"but_Pad");
    }
    /// The next pad is used so.
    void expectPad(phial::StringView signs)
    {
        outside.visual().onModal(u"frm_DialogNumericTouch", [signs = phial::String(signs)](phial::Form& pad) {
            const auto keys = pad.control<phial::ctl_Keys>(u"ctl_Keys");
            for (const char16_t sign : signs) {
                pressKey(*keys, sign == DeleteSign ? phial::String(u"BACKSPACE") : phial::String(1, sign));
            }
            pressKey(*keys, u"OK");
        });
    }

    // What the pupil sees.
    static constexpr char16_t DeleteSign = u'\u232B'; ///< for the pad's key that deletes
    static bool contains(const phial::String& text, phial::StringView part)
    {
        return text.find(part) != phial::String::npos;
    }
    phial::String seen(phial::StringView label)
    {
        const auto found = form().control<phial::ctl_Label>(label);
        return found->frame().isReachable() ? found->Caption() : phial::String(u"(hidden)");
    }
    phial::String formula() { return form().control<phial::ctl_TermLabel>(u"trm_Formula")->Term(); }
    phial::String answer() { return field().Text(); }
    phial::TextBox& field() { return form().control<phial::ctl_QVInput>(u"txt_Answer")->input(); }
    phial::String buttonText(phial::StringView button)
    {
        return form().control<phial::ctl_Button>(button)->Caption();
    }
    bool isSeen(phial::StringView control, std::int32_t index = -1)
    {
        return form().control<phial::Control>(control, index)->frame().isReachable();
    }
    phial::String focused()
    {
        const auto active = form().ActiveControl();
        return active ? active->NAME() : phial::String();
    }

    std::unique_ptr<learning::frm_LearningApp> trainer;

private:
    void writeUnlessEmpty(const char* file, std::string_view content)
    {
        if (!content.empty()) {
            folder.write(file, content);
        }
    }
    static void pressKey(phial::ctl_Keys& keys, const phial::String& name)
    {
        for (const phial::KeyDesign& key : phial::number_layout::Keys) {
            if (keys.board().name(key.index) == name) {
                const phial::PixelRectangle area = keys.areaOf(key.index);
                phial::headless::click(keys, area.left + area.width / 2, area.top + area.height / 2);
                return;
            }
        }
        ADD_FAILURE() << phial::toUtf8(name);
    }
};

} // namespace molmasse
