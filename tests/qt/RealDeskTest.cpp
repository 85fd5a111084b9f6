#include "DesktopRun.h"
#include "FinerScreen.h"
#include "UserDesk.h"
#include "app/cls_AppTools.h"
#include "app/cls_Language.h"
#include "core/NativePath.h"
#include "desk/frm_ToolPeriodensystem.h"
#include "dialogs/ctl_Keys.h"
#include "periodic/ctl_PSE.h"
#include "qt/base/QtText.h"
#include "support/Places.h"
#include "visual/ComboBox.h"
#include "visual/ListView.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Label.h"

#include <QClipboard>
#include <QPointingDevice>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <algorithm>

/// The pocket calculator and the reference sheets on a real desktop, with a window manager: at the mouse, at
/// the keyboard and with a finger on the screen.
namespace phial::qt
{

namespace
{

class RealDesk : public DesktopRun
{
protected:
    RealDesk() : DesktopRun(std::make_shared<DesktopDisplay>())
    {
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(test::treeFolder()) + u"\\");
        desk_.moveTo({2, 2});
    }

    // Forms, each of which is a window of its own.
    static std::shared_ptr<Form> shown(StringView name)
    {
        const Forms& forms = visualHost().forms();
        for (std::size_t at = 0; at < forms.Count(); ++at) {
            if (forms.Item(at)->NAME() == name && forms.Item(at)->Visible()) {
                return forms.Item(at);
            }
        }
        return nullptr;
    }
    static bool isActive(StringView name) { return shown(name) && widgetOf(*shown(name)).isActiveWindow(); }
    static void expectOnScreen(StringView name)
    {
        // On a finer screen the toolkit rounds half a point up.
        const int inexact = isOnFinerScreen() ? 1 : 0;
        const QRect screen =
            QGuiApplication::primaryScreen()->availableGeometry().adjusted(0, 0, inexact, inexact);
        const auto frame = [&] { return widgetOf(*shown(name)).frameGeometry(); };
        EXPECT_TRUE(eventually([&] { return screen.contains(frame()); }))
            << toUtf8(name) << " " << frame().x() << " " << frame().y() << " " << frame().width() << " "
            << frame().height();
    }
    /// Lets the user open a form and use it until it is closed.
    void use(StringView name, const std::function<void()>& opens, const std::function<void(Form&)>& uses)
    {
        bool isUsed = false;
        QTimer looking;
        QObject::connect(&looking, &QTimer::timeout, [&] {
            if (!isActive(name)) {
                return;
            }
            looking.stop();
            runFor(100); // the window manager has had its last word
            const std::shared_ptr<Form> form = shown(name);
            ASSERT_TRUE(form) << "it has closed by itself";
            expectOnScreen(name);
            uses(*form);
            isUsed = true;
            if (!eventually([&] { return !shown(name); })) {
                ADD_FAILURE() << toUtf8(name) << " is still open";
                form->Unload();
            }
        });
        looking.start(20);
        opens();
        EXPECT_TRUE(eventually([&] { return isUsed; })) << toUtf8(name) << " has not been opened";
        looking.stop();
    }

    // Places.
    static QPoint middleOf(const QWidget& widget) { return widget.mapToGlobal(widget.rect().center()); }
    static QPoint middleOf(const Control& control) { return middleOf(widgetOf(control)); }
    static QPoint middleOf(Control& control, const PixelRectangle& area)
    {
        const double zoom = control.frame().form()->Zoom();
        const QPointF middle(area.left + area.width / 2, area.top + area.height / 2);
        return widgetOf(control).mapToGlobal((middle * zoom).toPoint());
    }
    static QPoint onBar(Form& form, StringView text)
    {
        QWidget& bar = widgetOf(*form.control<Control>(u"bar_Buttons"));
        for (const QPushButton* const button : bar.findChildren<QPushButton*>()) {
            if (button->isVisible() && fromQt(button->text()) == text) {
                return middleOf(*button);
            }
        }
        ADD_FAILURE() << "no button " << toUtf8(text);
        return {};
    }
    static QPoint element(Form& form, StringView symbol)
    {
        const auto table = form.control<ctl_PSE>(u"ctl_PSE");
        const auto parts = table->parts();
        const auto part = std::ranges::find_if(parts, [&](const NamedPart& each) {
            return each.name.find(u", " + String(symbol) + u",") != String::npos;
        });
        return part == parts.end() ? QPoint() : middleOf(*table, part->area);
    }
    static QPoint key(Form& calculator, std::int32_t index)
    {
        return middleOf(*calculator.control<ctl_Button>(u"but_Key", index));
    }
    static testing::AssertionResult stands(Form& form, StringView label, StringView text)
    {
        const auto now = [&] { return form.control<ctl_Label>(label)->Caption(); };
        if (eventually([&] { return now() == text; })) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << toUtf8(now()) << ", not " << toUtf8(text);
    }
    static testing::AssertionResult shows(Form& calculator, StringView line)
    {
        return stands(calculator, u"lab_Term", line);
    }

    // Hands.
    void strike(std::initializer_list<UserDesk::Key> keys)
    {
        for (const UserDesk::Key each : keys) {
            desk_.strike({each});
        }
    }
    void tap(Form& form, QPoint place)
    {
        QWidget& window = widgetOf(form);
        QTest::touchEvent(&window, finger_.get()).press(0, window.mapFromGlobal(place), &window);
        QTest::touchEvent(&window, finger_.get()).release(0, window.mapFromGlobal(place), &window);
        runFor(30);
    }

    double calculate(const std::function<void(Form&)>& uses)
    {
        double result = 0;
        use(
            u"frm_ToolCalc", [&] { result = QVAPP()->TOOLS()->CALC(0, -1, -1, nullptr, false, -1); }, uses);
        return result;
    }

    static constexpr std::int32_t Times = 12;
    static constexpr std::int32_t Plus = 14;
    static constexpr std::int32_t Equals = 19;
    static constexpr std::int32_t Table = 20;
    static constexpr std::int32_t Mass = 21;
    static constexpr std::int32_t Ok = 25;

    UserDesk desk_;

private:
    std::unique_ptr<QPointingDevice> finger_{QTest::createTouchDevice()};
};

TEST_F(RealDesk, TheCalculatorWorksByTypedAndClickedKeys)
{
    EXPECT_EQ(calculate([&](Form& form) {
                  strike({UserDesk::One, UserDesk::Two});
                  desk_.click(key(form, Plus));
                  desk_.click(key(form, 3));
                  EXPECT_TRUE(shows(form, u"12+3"));
                  strike({UserDesk::Return});
                  EXPECT_TRUE(shows(form, u"15")) << "whichever key has the focus";
                  desk_.strike({UserDesk::Ctrl, UserDesk::Return});
              }),
              15);
    EXPECT_EQ(calculate([&](Form&) { strike({UserDesk::Five, UserDesk::Escape}); }), -1);
    EXPECT_EQ(calculate([&](Form& form) {
                  strike({UserDesk::Four, UserDesk::Two});
                  EXPECT_TRUE(shows(form, u"42"));
                  desk_.click(key(form, Ok));
              }),
              42);
}

TEST_F(RealDesk, TheCalculatorsTableComesAndGoesAndGivesMasses)
{
    EXPECT_NEAR(calculate([&](Form& form) {
                    strike({UserDesk::Two});
                    desk_.click(key(form, Times));
                    const int before = widgetOf(form).width();
                    desk_.click(key(form, Table));
                    EXPECT_TRUE(eventually([&] { return widgetOf(form).width() > before; }));
                    runFor(100);
                    expectOnScreen(u"frm_ToolCalc");
                    desk_.click(element(form, u"Na"));
                    EXPECT_TRUE(shows(form, u"2*+23"));
                    desk_.click(key(form, Table));
                    EXPECT_TRUE(eventually([&] { return widgetOf(form).width() == before; }));
                    desk_.click(key(form, Ok));
                }),
                46, 0.001);
}

TEST_F(RealDesk, TheCalculatorTakesAFormulaFromThePeriodicKeyboard)
{
    EXPECT_NEAR(calculate([&](Form& form) {
                    use(
                        u"frm_DialogKeyboardPSE", [&] { desk_.click(key(form, Mass)); },
                        [&](Form& keyboard) {
                            constexpr std::int32_t Confirm = 11;
                            desk_.click(element(keyboard, u"Na"));
                            runFor(100);
                            desk_.click(element(keyboard, u"Cl"));
                            runFor(100);
                            const auto keys = keyboard.control<ctl_Keys>(u"ctl_Keys");
                            desk_.click(middleOf(*keys, keys->areaOf(Confirm)));
                        });
                    EXPECT_TRUE(eventually([&] { return isActive(u"frm_ToolCalc"); }));
                    desk_.strike({UserDesk::Ctrl, UserDesk::Return});
                }),
                58.5, 0.001);
}

TEST_F(RealDesk, AFingerCalculates)
{
    EXPECT_EQ(calculate([&](Form& form) {
                  for (const std::int32_t index : {4, 2, Times, 2, Equals}) {
                      tap(form, key(form, index));
                  }
                  EXPECT_TRUE(shows(form, u"84"));
                  tap(form, key(form, Ok));
              }),
              84);
}

TEST_F(RealDesk, SheetsAreOpenedAndClosedInBothLanguages)
{
    const auto tools = QVAPP()->TOOLS();
    for (const auto language : {ID_Language_German, ID_Language_English}) {
        LNG()->CURRENT(language);
        use(
            u"frm_ToolGroupNames", [&] { tools->GROUPNAMES(); },
            [&](Form& form) { desk_.click(onBar(form, u"OK")); });
        use(
            u"frm_ToolOxValues", [&] { tools->OxValues(); }, [&](Form&) { strike({UserDesk::Escape}); });
        use(
            u"frm_ToolpHRules", [&] { tools->pHRules(); },
            [&](Form& form) { tap(form, onBar(form, u"OK")); });
    }
}

TEST_F(RealDesk, ThePeriodicSheetStaysBesideTheProgram)
{
    constexpr StringView Sheet = u"frm_ToolPeriodensystem";
    QVAPP()->TOOLS()->PERIODICSYSTEM();
    ASSERT_TRUE(eventually([&] { return isActive(Sheet); }));
    runFor(100);
    expectOnScreen(Sheet);
    QWidget other;
    other.setGeometry(10, 200, 200, 100);
    other.show();
    other.activateWindow();
    ASSERT_TRUE(eventually([&] { return other.isActiveWindow(); }));
    QVAPP()->TOOLS()->PERIODICSYSTEM();
    EXPECT_TRUE(eventually([&] { return isActive(Sheet); })) << "it has come to the front";
    const std::shared_ptr<Form> form = shown(Sheet);
    const auto change = form->control<ctl_Button>(u"but_Change");
    const String before = change->Caption();
    desk_.click(middleOf(*change));
    EXPECT_TRUE(eventually([&] { return change->Caption() != before; }));
    desk_.click(onBar(*form, u"OK"));
    EXPECT_TRUE(eventually([&] { return !shown(Sheet); }));
}

TEST_F(RealDesk, WhatIsSoughtIsTypedFoundAndCopied)
{
    use(
        u"frm_ToolGroupNames", [&] { QVAPP()->TOOLS()->GROUPNAMES(); },
        [&](Form& sheet) {
            use(
                u"frm_ToolLookUp", [&] { desk_.click(onBar(sheet, u"Nachschlagen")); },
                [&](Form& form) {
                    const auto list = form.control<ListView>(u"lst_Found");
                    strike({UserDesk::S, UserDesk::U, UserDesk::L, UserDesk::F, UserDesk::I, UserDesk::T});
                    EXPECT_TRUE(eventually([&] { return list->ITEMS()->Count() == 1; }))
                        << toUtf8(form.control<TextBox>(u"txt_Sought")->Text());
                    strike({UserDesk::Down});
                    EXPECT_TRUE(eventually([&] { return list->ListIndex() == 1; }));
                    desk_.strike({UserDesk::Ctrl, UserDesk::C});
                    EXPECT_TRUE(eventually([&] {
                        return QGuiApplication::clipboard()->text().startsWith(QStringLiteral("-sulfit\t"));
                    })) << QGuiApplication::clipboard()->text().toStdString();
                    desk_.strike({UserDesk::Ctrl, UserDesk::F});
                    strike({UserDesk::U});
                    EXPECT_TRUE(eventually([&] {
                        return form.control<TextBox>(u"txt_Sought")->Text() == u"u";
                    })) << "what was sought is replaced";
                    strike({UserDesk::Escape});
                });
            EXPECT_TRUE(eventually([&] { return isActive(u"frm_ToolGroupNames"); }));
            strike({UserDesk::Escape});
        });
}

TEST_F(RealDesk, TheQuizIsPlayedByMouseKeysAndFinger)
{
    outside().random().numbers({0.3});
    use(
        u"frm_ToolpHRules", [&] { QVAPP()->TOOLS()->pHRules(); },
        [&](Form& sheet) {
            use(
                u"frm_ToolLookUp", [&] { desk_.click(onBar(sheet, u"Nachschlagen")); },
                [&](Form& lookUp) {
                    use(
                        u"frm_ToolQuiz", [&] { desk_.click(onBar(lookUp, u"Üben")); },
                        [&](Form& form) {
                            const auto hasAnswered = [&] {
                                return eventually([&] {
                                    return !form.control<ctl_Label>(u"lab_Verdict")->Caption().empty();
                                });
                            };
                            strike({UserDesk::Two});
                            EXPECT_TRUE(hasAnswered());
                            strike({UserDesk::Return});
                            EXPECT_TRUE(stands(form, u"lab_Verdict", u""));
                            desk_.click(middleOf(*form.control<ctl_Button>(u"but_Choice", 3)));
                            EXPECT_TRUE(hasAnswered());
                            desk_.click(onBar(form, u"Weiter"));
                            EXPECT_TRUE(stands(form, u"lab_Verdict", u""));
                            tap(form, middleOf(*form.control<ctl_Button>(u"but_Choice", 0)));
                            EXPECT_TRUE(hasAnswered());
                            strike({UserDesk::Escape});
                        });
                    EXPECT_TRUE(eventually([&] { return isActive(u"frm_ToolLookUp"); }));
                    strike({UserDesk::Escape});
                });
            EXPECT_TRUE(eventually([&] { return isActive(u"frm_ToolpHRules"); }));
            strike({UserDesk::Escape});
        });
}

TEST_F(RealDesk, DoesAllThisOnFinerScreensToo)
{
    constexpr int LeastWidth = 1800; // half of that is the smallest screen of a school
    if (isOnFinerScreen() || QGuiApplication::primaryScreen()->geometry().width() < LeastWidth) {
        return;
    }
    EXPECT_TRUE(passOnFinerScreen("RealDesk.*", "1.75"));
}

} // namespace

} // namespace phial::qt
