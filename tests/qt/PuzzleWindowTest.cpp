#include "DesktopSession.h"
#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "core/NativePath.h"
#include "puzzle/Puzzle.h"
#include "support/Places.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <QPointingDevice>
#include <QTest>

#include <filesystem>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr int Fluorine = 9;
constexpr int Sodium = 11;
constexpr int Sulfur = 16;
constexpr int Chlorine = 17;

/// The puzzle in a real window, played by fingers alone. Each touch is the window's: what lies beneath it is
/// for the toolkit to find out.
class PuzzleWindow : public DesktopTest<Session>
{
protected:
    PuzzleWindow()
    {
        outside().environment().set(u"LANG", u"de_DE.UTF-8");
        outside().random().numbers({0.0});
        folder().write("tree/QVStart.exe", "marker");
        const auto data = folder().native() / "tree/Resources/data";
        std::filesystem::create_directories(data);
        std::filesystem::copy_file(test::treeFolder() / "Resources/data/elements2.dat",
                                   data / "elements2.dat");
        folder().write("tree/apps/Puzzle/data/kaertchen.txt",
                       "[leer] Leer | Empty\nNa | Natrium | sodium\nF Cl | Halogene | Halogens\n");
        QVAPP()->CONFIG()->IDENT(u"Puzzle");
        outside().settings().prepare(SettingsHive::LocalMachine, u"Software\\QV Brunnhof\\Phial\\Path",
                                     folder().path() + u"tree\\");
        ignoringErrors([] { QVAPP()->INIT(u"NONETWORK"); });
        app_ = std::make_unique<learning::frm_LearningApp>(
            std::make_unique<puzzle::Puzzle>(puzzle::loadPuzzleData()));
        app_->Show();
        QApplication::processEvents();
    }

    /// The toolkit makes taps on buttons presses of a mouse, and remembers the last one: with another button
    /// in between, the next test's first tap is no double click.
    ~PuzzleWindow() override
    {
        QTest::mouseClick(window().windowHandle(), Qt::RightButton, Qt::NoModifier, {2, 2});
    }

    Form& form() { return app_->form(); }
    ctl_PSE& table() { return *form().control<ctl_PSE>(u"pse_Table"); }
    QWidget& window() { return widgetOf(form()); }

    // Places in the window.
    QPoint middleOf(const Control& control)
    {
        QWidget& widget = widgetOf(control);
        return widget.mapTo(&window(), widget.rect().center());
    }
    QPoint middleOf(StringView button, std::int32_t index = -1)
    {
        return middleOf(*form().control<ctl_Button>(button, index));
    }
    /// Of what the table tells of.
    QPoint middleOfPart(std::size_t part)
    {
        const PixelRectangle area = table().parts().at(part).area;
        const QPointF middle(area.left + area.width / 2, area.top + area.height / 2);
        return widgetOf(table()).mapTo(&window(), (middle * form().Zoom()).toPoint());
    }
    QPoint tile(int slot) { return middleOfPart(118 + static_cast<std::size_t>(slot)); }
    QPoint place(int protons) { return middleOfPart(static_cast<std::size_t>(protons) - 1); }

    // The fingers.
    auto touch() { return QTest::touchEvent(&window(), device_.get()); }
    void tap(QPoint at)
    {
        touch().press(0, at, &window());
        touch().release(0, at, &window());
        QApplication::processEvents();
    }
    /// In some steps, with the tile beneath the finger at each.
    void drag(int slot, QPoint to)
    {
        const QPoint from = tile(slot);
        touch().press(0, from, &window());
        constexpr int Steps = 8;
        for (int step = 1; step <= Steps; ++step) {
            const QPoint at = from + (to - from) * step / Steps;
            touch().move(0, at, &window());
            QApplication::processEvents();
            EXPECT_LE((tile(slot) - at).manhattanLength(), 2) << "step " << step;
        }
        touch().release(0, to, &window());
        QApplication::processEvents();
    }
    /// The button that judges is deaf for a moment when it begins to mean something else.
    void goOn(StringView label, StringView text)
    {
        EXPECT_TRUE(eventually([&] {
            tap(middleOf(u"but_Check"));
            return shows(label, text);
        })) << toUtf8(text);
    }

    bool shows(StringView label, StringView part)
    {
        const auto found = form().control<ctl_Label>(label);
        return found->frame().isReachable() && found->Caption().find(part) != String::npos;
    }
    bool isTaken(int slot) { return table().parts().at(118 + static_cast<std::size_t>(slot)).state.pressed; }

private:
    std::unique_ptr<QPointingDevice> device_{QTest::createTouchDevice()};
    std::unique_ptr<learning::frm_LearningApp> app_;
};

TEST_F(PuzzleWindow, AWholeRoundIsPlayedByFingers)
{
    tap(middleOf(u"but_Level", 0));
    ASSERT_TRUE(shows(u"lab_Progress", u"Aufgabe 1 von 2"));

    tap(tile(0));
    EXPECT_TRUE(isTaken(0));
    tap(place(Sodium));
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"Na");
    tap(middleOf(u"but_Check"));
    EXPECT_TRUE(shows(u"lab_Feedback", u"10 Punkte für dich"));
    goOn(u"lab_Progress", u"Aufgabe 2 von 2");

    drag(0, place(Fluorine));
    drag(1, place(Sulfur));
    tap(middleOf(u"but_Check"));
    EXPECT_TRUE(shows(u"lab_Feedback", u"Cl: gleiche Periode, aber eine Gruppe weiter rechts."));
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"F") << "what lies right stays";
    EXPECT_EQ(table().DRAGSYMBOLDROP(1), u"");
    tap(tile(1));
    EXPECT_TRUE(isTaken(1));
    tap(place(Chlorine));
    goOn(u"lab_Feedback", u"Alle am richtigen Platz");

    outside().dialogs().expect(headless::Box::Info);
    goOn(u"lab_Result", u"17 von 20 Punkten");
}

TEST_F(PuzzleWindow, AFingerThatLiftsOnAButtonPressesItNotAndItsTileIsHome)
{
    tap(middleOf(u"but_Level", 0));
    const QPoint home = tile(0);
    touch().press(0, home, &window());
    touch().move(0, place(Sodium), &window());
    touch().move(0, middleOf(u"but_Check"), &window());
    touch().release(0, middleOf(u"but_Check"), &window());
    EXPECT_EQ(tile(0), home);
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"");
    EXPECT_FALSE(isTaken(0));
    EXPECT_FALSE(shows(u"lab_Feedback", u"Kärtchen"));
    drag(0, place(Sodium));
    tap(middleOf(u"but_Check"));
    EXPECT_TRUE(shows(u"lab_Feedback", u"10 Punkte für dich"));
}

} // namespace
