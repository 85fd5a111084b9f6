#pragma once

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "headless/Hand.h"
#include "puzzle/Puzzle.h"
#include "support/AppSession.h"
#include "support/Places.h"
#include "visual/Form.h"
#include "visual/ctl_Label.h"

#include <filesystem>
#include <memory>
#include <string_view>

namespace puzzle
{

/// The puzzle's window with a pupil before it: the installed elements and tasks of a test's own, drawn in the
/// order of the file, in German.
class PuzzleTest : public phial::test::AppSession
{
protected:
    static constexpr std::string_view Tasks =
        "[nachbarn] Anfang | Start\nNa | Natrium | sodium\nF Cl | Halogene | Halogens\nH\nHe\nLi\nBe\n"
        "[leer] Leer | Empty\nNa K | Alkalimetalle | Alkali metals\n";

    PuzzleTest()
    {
        outside.environment().set(u"LANG", u"de_DE.UTF-8");
        outside.random().numbers({0.0});
    }
    void TearDown() override
    {
        app.reset();
        AppSession::TearDown();
    }

    void open(std::string_view tasks = Tasks)
    {
        makeTree(u"installed\\");
        const auto data = folder.native() / "installed/Resources/data";
        std::filesystem::create_directories(data);
        std::filesystem::copy_file(phial::test::treeFolder() / "Resources/data/elements2.dat",
                                   data / "elements2.dat", std::filesystem::copy_options::overwrite_existing);
        folder.write("installed/apps/Puzzle/data/kaertchen.txt", tasks);
        openHere();
    }
    /// With whatever is installed.
    void openHere()
    {
        phial::QVAPP()->CONFIG()->IDENT(u"Puzzle");
        outside.settings().prepare(phial::SettingsHive::LocalMachine, u"Software\\QV Brunnhof\\Phial\\Path",
                                   path(u"installed\\"));
        phial::ignoringErrors([] { phial::QVAPP()->INIT(u"NONETWORK"); });
        app = std::make_unique<learning::frm_LearningApp>(std::make_unique<Puzzle>(loadPuzzleData()));
        app->deafFor(0);
        app->Show();
    }

    phial::Form& form() { return app->form(); }
    phial::ctl_PSE& table() { return *form().control<phial::ctl_PSE>(u"pse_Table"); }

    // The pupil's hand.
    void type(phial::StringView keys) { phial::headless::type(form(), keys); }
    void touch(phial::StringView button, std::int32_t index = -1)
    {
        phial::headless::click(*form().control<phial::ctl_Button>(button, index));
    }
    phial::TableGrid grid()
    {
        const phial::PixelRectangle size = table().frame().pixelRectangle();
        return {size.width / phial::TableGrid::Columns - 1, size.height / phial::TableGrid::Rows - 1};
    }
    phial::PixelPoint home(int slot) { return middle(grid().area(slot * 1.5 + 3, 9, 1, 1)); }
    /// The place of the element with so many protons.
    phial::PixelPoint place(int protons)
    {
        const auto place = phial::placeOf(protons).value();
        return middle(grid().cell(place.column, place.row));
    }
    void drag(phial::PixelPoint from, phial::PixelPoint to) { phial::headless::drag(table(), from, to); }
    void drag(int slot, int protons) { drag(home(slot), place(protons)); }

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
    phial::String buttonText(phial::StringView button)
    {
        return form().control<phial::ctl_Button>(button)->Caption();
    }
    phial::String focused()
    {
        const auto active = form().ActiveControl();
        return active ? active->NAME() : phial::String();
    }
    void answerLeaving()
    {
        outside.visual().onModal(u"frm_LeaveRound", [](phial::Form& asking) {
            phial::headless::click(*asking.control<phial::ctl_Button>(u"but_Leave"));
        });
    }
    void expectRankBox() { outside.dialogs().expect(phial::headless::Box::Info); }

    std::unique_ptr<learning::frm_LearningApp> app;

private:
    static phial::PixelPoint middle(const phial::PixelRectangle& cell)
    {
        return {cell.left + cell.width / 2, cell.top + cell.height / 2};
    }
};

} // namespace puzzle
