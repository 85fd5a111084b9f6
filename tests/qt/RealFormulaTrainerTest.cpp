#include "DesktopSession.h"
#include "FinerScreen.h"
#include "UserDesk.h"
#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppTools.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "common/frm_LearningApp.h"
#include "dialogs/ctl_Keys.h"
#include "formeln/FormulaTrainer.h"
#include "periodic/ctl_PSE.h"
#include "support/Places.h"
#include "visual/ctl_Label.h"

#include <QPointingDevice>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <filesystem>

/// The formula trainer on a real desktop, with a window manager: a pupil at the mouse, at the keyboard and
/// with a finger on the screen.
namespace phial::qt
{

namespace
{

class RealFormulaTrainer : public DesktopTest<Session>
{
protected:
    RealFormulaTrainer() : DesktopTest(previewAndPrint, std::make_shared<DesktopDisplay>())
    {
        outside().environment().set(u"LANG", u"de_DE.UTF-8");
        outside().random().numbers({0.0}); // of substances the formula is asked for
        folder().write("tree/QVStart.exe", "marker");
        const auto data = folder().native() / "tree/Resources/data";
        std::filesystem::create_directories(data);
        std::filesystem::copy_file(test::treeFolder() / "Resources/data/elements2.dat",
                                   data / "elements2.dat");
        folder().write("tree/apps/Formeln/data/aufgaben.txt",
                       "[stoffe] Stoffe | Substances\nAu | Gold | gold\n"
                       "[gleichungen] Gleichungen | Equations\nFe + O2 -> Fe2O3 | Rosten | rusting\n");
        QVAPP()->CONFIG()->IDENT(u"Formeln");
        outside().settings().prepare(SettingsHive::LocalMachine, u"Software\\QV Brunnhof\\Phial\\Path",
                                     folder().path() + u"tree\\");
        outside().settings().prepare(SettingsHive::CurrentUser,
                                     u"Software\\QV Brunnhof\\Phial\\Config\\LargeFontWarn", true);
        ignoringErrors([] { QVAPP()->INIT(u"NONETWORK"); });
        desk_.moveTo({2, 2});
    }
    ~RealFormulaTrainer() override
    {
        if (app_) {
            form().discard();
        }
    }

    void askForNames() { outside().random().numbers({0.99}); }
    /// As the program's start does it.
    void open()
    {
        app_ = std::make_unique<learning::frm_LearningApp>(
            std::make_unique<formeln::FormulaTrainer>(formeln::loadFormulaData()));
        app_->deafFor(0);
        QVAPP()->TOOLS()->RESOLUTION(form());
        app_->widen();
        app_->Show();
        ASSERT_TRUE(eventually([&] { return window().isActiveWindow() && window().isVisible(); }));
        runFor(100); // the window manager has had its last word
    }
    void begin(std::int32_t level)
    {
        open();
        press(u"but_Level", level);
        ASSERT_TRUE(shows(u"lab_Progress", u" 1 "));
    }

    Form& form() { return app_->form(); }
    QWidget& window() { return widgetOf(form()); }

    // What the pupil sees.
    String seen(StringView label)
    {
        const auto found = form().control<ctl_Label>(label);
        return found->frame().isReachable() ? found->Caption() : String();
    }
    testing::AssertionResult shows(StringView label, StringView part)
    {
        if (eventually([&] { return seen(label).find(part) != String::npos; })) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << toUtf8(seen(label)) << ", not " << toUtf8(part);
    }
    String formula() { return form().control<clt_TermInput>(u"trm_Answer")->Term(); }
    String factor(std::int32_t index)
    {
        return form().control<ctl_QVInput>(u"txt_Factor", index)->input().Text();
    }

    // Places.
    static QPoint middleOf(const Control& control)
    {
        QWidget& widget = widgetOf(control);
        return widget.mapToGlobal(widget.rect().center());
    }
    QPoint button(StringView name, std::int32_t index = -1)
    {
        return middleOf(*form().control<ctl_Button>(name, index));
    }
    void press(StringView name, std::int32_t index = -1) { desk_.click(button(name, index)); }

    // The keyboards, each of which is a window of its own.
    static std::shared_ptr<Form> keyboard()
    {
        const Forms& forms = visualHost().forms();
        for (std::size_t at = 0; at < forms.Count(); ++at) {
            if (forms.Item(at)->NAME().starts_with(u"frm_Dialog") && forms.Item(at)->Visible()) {
                return forms.Item(at);
            }
        }
        return nullptr;
    }
    static QWidget& keyboardWindow() { return widgetOf(*keyboard()); }
    /// Lets the pupil open a keyboard and use it until it is closed.
    void withKeyboard(const std::function<void()>& opens, const std::function<void()>& uses)
    {
        bool isUsed = false;
        QTimer looking;
        QObject::connect(&looking, &QTimer::timeout, [&] {
            if (!keyboard() || !keyboardWindow().isActiveWindow()) {
                return;
            }
            looking.stop();
            runFor(100);
            ASSERT_TRUE(keyboard()) << "it has closed by itself";
            const QRect screen = QGuiApplication::primaryScreen()->geometry();
            // It has no frame, and the toolkit's guess at one can be wrong.
            EXPECT_TRUE(eventually([&] { return screen.contains(keyboardWindow().geometry()); }));
            uses();
            isUsed = true;
            if (!eventually([&] { return !keyboard(); })) {
                ADD_FAILURE() << "it is still open";
                keyboard()->Unload();
            }
        });
        looking.start(20);
        opens();
        EXPECT_TRUE(eventually([&] { return isUsed && !keyboard(); }));
        EXPECT_TRUE(eventually([&] { return window().isActiveWindow(); }));
    }
    static QPoint placeOn(const Control& part, const PixelRectangle& area)
    {
        const QPointF middle(area.left + area.width / 2, area.top + area.height / 2);
        const QPoint inside =
            widgetOf(part).mapTo(&keyboardWindow(), (middle * keyboard()->Zoom()).toPoint());
        return keyboardWindow().pos() + inside; // the toolkit's own answer can be late
    }
    static QPoint key(std::int32_t index)
    {
        const auto keys = keyboard()->control<ctl_Keys>(u"ctl_Keys");
        return placeOn(*keys, keys->areaOf(index));
    }
    static QPoint element(StringView symbol)
    {
        const auto table = keyboard()->control<ctl_PSE>(u"ctl_PSE");
        const auto parts = table->parts();
        const auto part = std::ranges::find_if(parts, [&](const NamedPart& each) {
            return each.name.find(u", " + String(symbol) + u",") != String::npos;
        });
        return part == parts.end() ? QPoint() : placeOn(*table, part->area);
    }
    static void expectTyped(StringView term)
    {
        const auto typed = [] { return keyboard()->control<clt_TermInput>(u"txt_Input")->Term(); };
        EXPECT_TRUE(eventually([&] { return typed() == term; })) << toUtf8(typed());
    }
    /// Each press is over before the pointer goes on, which would be a drag.
    void click(std::initializer_list<std::int32_t> keys)
    {
        for (const std::int32_t index : keys) {
            bool isOver = false;
            const Connection released =
                keyboard()->control<ctl_Keys>(u"ctl_Keys")->RELEASED.connect([&](std::int32_t) {
                    isOver = true;
                });
            desk_.click(key(index));
            EXPECT_TRUE(eventually([&] { return isOver; }));
        }
    }
    // The finger.
    void tap(QWidget& target, QPoint place)
    {
        const QPoint inside = place - (&target == &window() ? target.mapToGlobal(QPoint()) : target.pos());
        QTest::touchEvent(&target, finger_.get()).press(0, inside, &target);
        QTest::touchEvent(&target, finger_.get()).release(0, inside, &target);
        runFor(30);
    }
    void tap(StringView name, std::int32_t index = -1) { tap(window(), button(name, index)); }
    void tapKeys(std::initializer_list<std::int32_t> keys)
    {
        for (const std::int32_t index : keys) {
            tap(keyboardWindow(), key(index));
        }
    }

    static constexpr std::int32_t Ok = 11;
    static constexpr std::int32_t LetterA = 26;
    static constexpr std::int32_t Shift = 37;
    static constexpr std::int32_t LetterU = 20;

    UserDesk desk_;
    std::unique_ptr<learning::frm_LearningApp> app_;

private:
    std::unique_ptr<QPointingDevice> finger_{QTest::createTouchDevice()};
};

TEST_F(RealFormulaTrainer, AFormulaIsTypedWrongExplainedHintedAtAndRight)
{
    begin(0);
    const QRect inside = window().frameGeometry().adjusted(1, 1, -1, -1); // a maximized one is rounded up
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(inside));
    desk_.strike({UserDesk::Shift, UserDesk::A});
    desk_.strike({UserDesk::Shift, UserDesk::U});
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Meinst du Au?"));
    desk_.strike({UserDesk::BackSpace});
    desk_.strike({UserDesk::G});
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Silber kommt hier nicht vor."));
    EXPECT_TRUE(shows(u"lab_Feedback", u"noch 2 Versuche"));
    desk_.strike({UserDesk::F5});
    EXPECT_TRUE(shows(u"lab_Hint", u"Diese Elemente kommen darin vor: Gold."));
    desk_.strike({UserDesk::BackSpace});
    desk_.strike({UserDesk::U});
    EXPECT_TRUE(eventually([&] { return formula() == u"Au"; })) << toUtf8(formula());
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Richtig! Au, 4 Punkte für dich."));
    outside().dialogs().expect(headless::Box::Info); // the rank
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Result", u"4 von 10 Punkten"));
    EXPECT_TRUE(shows(u"lab_Mark", u"Note"));
}

TEST_F(RealFormulaTrainer, ANameIsTypedByKeys)
{
    askForNames();
    begin(0);
    for (const auto each : {UserDesk::G, UserDesk::O, UserDesk::L, UserDesk::L}) {
        desk_.strike({each});
    }
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Leider nicht.")) << "in a short name each letter counts";
    for (const auto each : {UserDesk::G, UserDesk::O, UserDesk::L, UserDesk::D}) {
        desk_.strike({each}); // the first one replaces what was wrong
    }
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Richtig!"));
}

TEST_F(RealFormulaTrainer, AnEquationIsBalancedByKeys)
{
    begin(1);
    desk_.strike({UserDesk::Two});
    desk_.strike({UserDesk::Tab});
    desk_.strike({UserDesk::Three});
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Sauerstoff: links 6, rechts 3."));
    desk_.strike({UserDesk::Four});
    desk_.strike({UserDesk::Tab});
    desk_.strike({UserDesk::Tab});
    desk_.strike({UserDesk::Two});
    EXPECT_TRUE(eventually([&] { return factor(0) == u"4" && factor(2) == u"2"; }));
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Richtig!"));
}

TEST_F(RealFormulaTrainer, TheMouseTypesOnTheKeyboardAndPicksElements)
{
    begin(0);
    withKeyboard([&] { press(u"but_Pad"); },
                 [&] {
                     EXPECT_EQ(keyboard()->NAME(), u"frm_DialogKeyboardTerm");
                     click({LetterA});
                     expectTyped(u"A");
                     desk_.strike({UserDesk::G});
                     expectTyped(u"Ag");
                     click({Ok});
                 });
    EXPECT_EQ(formula(), u"Ag");
    press(u"but_Check");
    EXPECT_TRUE(shows(u"lab_Feedback", u"Silber kommt hier nicht vor."));
    press(u"but_Hint");
    EXPECT_TRUE(shows(u"lab_Hint", u"Gold"));
    desk_.strike({UserDesk::BackSpace});
    desk_.strike({UserDesk::BackSpace});
    EXPECT_TRUE(eventually([&] { return formula().empty(); })) << toUtf8(formula());
    withKeyboard([&] { press(u"but_Table"); },
                 [&] {
                     EXPECT_EQ(keyboard()->NAME(), u"frm_DialogKeyboardPSE");
                     desk_.click(element(u"Au"));
                     expectTyped(u"Au");
                     click({Ok});
                 });
    press(u"but_Check");
    EXPECT_TRUE(shows(u"lab_Feedback", u"Richtig! Au, 4 Punkte für dich."));
}

TEST_F(RealFormulaTrainer, AFingerTypesAFormula)
{
    QVAPP()->CONFIG()->TOUCHMODE(true);
    open();
    tap(u"but_Level", 0);
    ASSERT_TRUE(shows(u"lab_Progress", u" 1 "));
    const auto field = form().control<clt_TermInput>(u"trm_Answer");
    withKeyboard([&] { tap(window(), middleOf(*field)); },
                 [&] {
                     tapKeys({LetterA, Shift, LetterU});
                     expectTyped(u"Au");
                     tapKeys({Ok});
                 });
    tap(u"but_Check");
    EXPECT_TRUE(shows(u"lab_Feedback", u"Richtig! Au, 10 Punkte für dich."));
}

TEST_F(RealFormulaTrainer, AFingerTypesFactors)
{
    QVAPP()->CONFIG()->TOUCHMODE(true);
    open();
    tap(u"but_Level", 1);
    ASSERT_TRUE(shows(u"lab_Equation", u"Rosten"));
    constexpr std::int32_t Factors[] = {4, 3, 2};
    for (std::int32_t index = 0; index < 3; ++index) {
        const auto field = form().control<ctl_QVInput>(u"txt_Factor", index);
        withKeyboard([&] { tap(window(), middleOf(field->input())); },
                     [&] {
                         tapKeys({Factors[index], Ok});
                     });
    }
    tap(u"but_Check");
    EXPECT_TRUE(shows(u"lab_Feedback", u"Richtig!"));
}

TEST_F(RealFormulaTrainer, ItSpeaksEnglishAsSoonAsThatIsChosen)
{
    begin(1);
    desk_.strike({UserDesk::Five});
    desk_.strike({UserDesk::Return});
    EXPECT_TRUE(shows(u"lab_Feedback", u"Sauerstoff: links 2, rechts 3."));
    press(u"but_Language");
    EXPECT_TRUE(shows(u"lab_Feedback", u"Oxygen: 2 on the left, 3 on the right."));
    EXPECT_TRUE(shows(u"lab_Equation", u"Rusting: which factors are missing?"));
    withKeyboard([&] { press(u"but_Pad"); }, [&] { click({4, Ok}); });
    EXPECT_TRUE(eventually([&] { return factor(0) == u"4"; })) << toUtf8(factor(0));
}

TEST_F(RealFormulaTrainer, DoesAllThisOnFinerScreensToo)
{
    constexpr int LeastWidth = 1800; // half of that is the smallest screen of a school
    const bool isFine = isOnFinerScreen();
    if (isFine || QGuiApplication::primaryScreen()->geometry().width() < LeastWidth) {
        return;
    }
    EXPECT_TRUE(passOnFinerScreen("RealFormulaTrainer.*", "2"));
}

} // namespace

} // namespace phial::qt
