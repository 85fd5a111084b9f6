#include "DesktopRun.h"
#include "FinerScreen.h"
#include "UserDesk.h"
#include "app/cls_AppDialog.h"
#include "app/cls_Language.h"
#include "dialogs/frm_DialogNumericTouch.h"

#include <QProcess>
#include <QScreen>

#include <gmock/gmock.h>
#include <optional>

/// The pad for numbers on a real desktop, with a window manager, a mouse and a German keyboard.
namespace phial::qt
{

namespace
{

constexpr auto GuestVariable = "PHIAL_GUEST_WINDOW";
constexpr QRect GuestPlace(20, 420, 200, 100);
constexpr int MostPatience = 60000; // milliseconds

/// Another program, which is this one again with a window that stays open.
class Guest
{
public:
    Guest()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(GuestVariable), QStringLiteral("1"));
        program_.setProcessEnvironment(environment);
        program_.setProcessChannelMode(QProcess::MergedChannels);
        program_.start(QCoreApplication::applicationFilePath(),
                       {QStringLiteral("--gtest_filter=GuestProgram.*")});
    }
    ~Guest()
    {
        program_.kill();
        program_.waitForFinished();
    }
    Guest(const Guest&) = delete;
    Guest& operator=(const Guest&) = delete;

    bool isShown()
    {
        told_ += program_.readAll();
        return told_.contains("shown");
    }

private:
    QProcess program_;
    QByteArray told_;
};

class RealNumberPad : public DesktopRun
{
protected:
    RealNumberPad() : DesktopRun(std::make_shared<DesktopDisplay>())
    {
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->CONFIG()->TOUCHMODE(true);
        opener_->ScaleMode(ScaleUnit::Pixels);
        opener_->innerSize({300, 150});
        opener_->Move(400 * TwipsPerPixel, 40 * TwipsPerPixel);
        box_->Move(20, 20, 200, 36);
        box_->Text(u"25");
    }
    ~RealNumberPad() override { opener_->discard(); }

    /// Shows the form to which the pad belongs.
    void showOpener()
    {
        desk_.moveTo({10, 300});
        opener_->Show();
        ASSERT_TRUE(eventually([&] { return widgetOf(*opener_).isActiveWindow(); }));
        runFor(100); // the window manager has had its last word
    }
    /// Opens the pad as a program does, and lets a user play with it; gives whether it was confirmed.
    bool asked(const std::function<void()>& user)
    {
        QTimer::singleShot(0, qApp, [&] {
            ASSERT_TRUE(eventually([&] { return pad() && window().isActiveWindow(); }));
            runFor(100);
            ASSERT_TRUE(pad()) << "it has closed by itself";
            user();
            if (!eventually([&] { return !pad(); })) {
                ADD_FAILURE() << "it is still open";
                pad()->Unload();
            }
        });
        return QVAPP()->DIALOG()->NUMBERINPUT(box_, u"Masse in g");
    }
    static std::shared_ptr<Form> pad()
    {
        const Forms& forms = visualHost().forms();
        for (std::size_t at = 0; at < forms.Count(); ++at) {
            if (forms.Item(at)->NAME() == u"frm_DialogNumericTouch" && forms.Item(at)->Visible()) {
                return forms.Item(at);
            }
        }
        return nullptr;
    }
    static QWidget& window() { return widgetOf(*pad()); }
    /// From the place of the frameless window: the toolkit's own answer can be late behind the window
    /// manager.
    static QPoint onDesktop(const QWidget& part, QPoint place)
    {
        return window().pos() + part.mapTo(&window(), place);
    }
    static QPoint placeOf(std::int32_t index)
    {
        const auto keys = pad()->control<ctl_Keys>(u"ctl_Keys");
        const PixelRectangle area = keys->areaOf(index);
        return onDesktop(widgetOf(*keys),
                         QPointF(area.left + area.width / 2, area.top + area.height / 2).toPoint());
    }
    /// Each tap is over before the pointer goes on, which would be a drag.
    void tap(std::initializer_list<std::int32_t> indices)
    {
        for (const std::int32_t index : indices) {
            bool isOver = false;
            const Connection released =
                pad()->control<ctl_Keys>(u"ctl_Keys")->RELEASED.connect([&](std::int32_t) { isOver = true; });
            desk_.click(placeOf(index));
            EXPECT_TRUE(eventually([&] { return isOver; }));
        }
    }
    static std::shared_ptr<TextBox> input() { return pad()->control<TextBox>(u"txt_Input"); }

    static constexpr std::int32_t Ok = 11;

    UserDesk desk_;
    std::shared_ptr<Form> opener_ = std::make_shared<Form>(u"frm_Opener");
    std::shared_ptr<TextBox> box_ = opener_->add<TextBox>(u"txt_Number");
};

TEST_F(RealNumberPad, TypesByItsKeysAndByTheDesk)
{
    showOpener();
    EXPECT_TRUE(asked([&] {
        tap({7, 45});
        desk_.strike({UserDesk::Five});
        EXPECT_TRUE(eventually([&] { return input()->Text() == u"7,5"; })) << toUtf8(input()->Text());
        tap({0});
        EXPECT_TRUE(eventually([&] { return input()->Text() == u"-7,5"; })) << toUtf8(input()->Text());
        desk_.strike({UserDesk::Return});
    }));
    EXPECT_EQ(box_->Text(), u"-7,5");
    EXPECT_TRUE(asked([&] { tap({8, Ok}); }));
    EXPECT_EQ(box_->Text(), u"8");
    EXPECT_FALSE(asked([&] {
        tap({9});
        desk_.strike({UserDesk::Escape});
    }));
    EXPECT_EQ(box_->Text(), u"8");
}

TEST_F(RealNumberPad, OneThatFollowsAnotherAtOnceStaysOpen)
{
    showOpener();
    for (int round = 0; round < 4; ++round) {
        EXPECT_TRUE(asked([&] {
            tap({round + 1});
            tap({Ok});
        }));
        EXPECT_EQ(box_->Text(), String(1, static_cast<char16_t>(u'1' + round)));
    }
}

TEST_F(RealNumberPad, StandsUnderItsTarget)
{
    showOpener();
    asked([&] {
        const QRect target(widgetOf(*box_).mapToGlobal(QPoint(0, 0)), widgetOf(*box_).size());
        const QRect place(window().pos(), window().size());
        constexpr int FreeAtEdge = 30;
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const int lowest = screen.height() - FreeAtEdge - place.height();
        const int rightmost = screen.width() - FreeAtEdge - place.width();
        EXPECT_EQ(place.top(), std::max(0, std::min(target.bottom() + 1, lowest)));
        EXPECT_LE(std::abs(place.left() - std::min(target.center().x() - place.width() / 2, rightmost)), 1);
        desk_.strike({UserDesk::Escape});
    });
}

TEST_F(RealNumberPad, ATapOnTheFormBelowConfirms)
{
    showOpener();
    EXPECT_TRUE(asked([&] {
        tap({5});
        desk_.click(widgetOf(*opener_).mapToGlobal(QPoint(280, 30)));
    }));
    EXPECT_EQ(box_->Text(), u"5");
}

TEST_F(RealNumberPad, ATapOnAnotherFormConfirms)
{
    const auto other = std::make_shared<Form>(u"frm_Other");
    other->ScaleMode(ScaleUnit::Pixels);
    other->innerSize({200, 100});
    other->Move(20 * TwipsPerPixel, 40 * TwipsPerPixel);
    other->Show();
    ASSERT_TRUE(eventually([&] { return widgetOf(*other).isActiveWindow(); }));
    showOpener();
    EXPECT_TRUE(asked([&] {
        tap({5});
        desk_.click(widgetOf(*other).mapToGlobal(QPoint(100, 50)));
    }));
    EXPECT_EQ(box_->Text(), u"5");
    other->discard();
}

TEST_F(RealNumberPad, ATapOnAnotherProgramConfirms)
{
    Guest guest;
    ASSERT_TRUE(eventually([&] { return guest.isShown(); }));
    runFor(200);
    showOpener();
    EXPECT_TRUE(asked([&] {
        tap({5});
        desk_.click(GuestPlace.center());
    }));
    EXPECT_EQ(box_->Text(), u"5");
}

TEST_F(RealNumberPad, GoingToAnotherProgramByKeysConfirms)
{
    Guest guest;
    ASSERT_TRUE(eventually([&] { return guest.isShown(); }));
    runFor(200);
    showOpener();
    EXPECT_TRUE(asked([&] {
        tap({5});
        desk_.strike({UserDesk::Alt, UserDesk::Tab});
    }));
    EXPECT_EQ(box_->Text(), u"5");
}

TEST_F(RealNumberPad, LeavingItUntouchedLeavesTheTextAlone)
{
    showOpener();
    box_->Text(u"0,000018");
    EXPECT_TRUE(asked([&] { desk_.click(widgetOf(*opener_).mapToGlobal(QPoint(280, 30))); }));
    EXPECT_EQ(box_->Text(), u"0,000018");
}

TEST_F(RealNumberPad, ItsOwnMenuDragsAndDialogsLeaveItOpen)
{
    showOpener();
    EXPECT_TRUE(asked([&] {
        tap({5});
        QWidget& field = *widgetOf(*input()).focusProxy();
        desk_.click(onDesktop(field, field.rect().center()), 3);
        EXPECT_TRUE(eventually([&] { return QApplication::activePopupWidget() != nullptr; }));
        desk_.strike({UserDesk::Escape});
        EXPECT_TRUE(eventually([&] { return QApplication::activePopupWidget() == nullptr; }));
        runFor(200);
        ASSERT_TRUE(pad());
        const QPoint before = window().pos();
        desk_.drag(placeOf(7), placeOf(7) + QPoint(-60, 0));
        runFor(200);
        ASSERT_TRUE(pad());
        EXPECT_LT(window().pos().x(), before.x() - 10);
        EXPECT_EQ(input()->Text(), u"5");
        const std::shared_ptr<Form> outer = pad();
        double inner = 0;
        QTimer::singleShot(0, qApp, [&] {
            const auto found = [&] { return widgetOf(*outer).isActiveWindow() ? nullptr : pad(); };
            EXPECT_TRUE(eventually([&] { return found() != nullptr; }));
            runFor(100);
            desk_.strike({UserDesk::Five});
            desk_.strike({UserDesk::Return});
        });
        inner = QVAPP()->DIALOG()->NUMBERINPUTDIRECT(3, u"");
        EXPECT_EQ(inner, 35);
        runFor(200);
        ASSERT_TRUE(outer->Visible());
        EXPECT_TRUE(eventually([&] { return widgetOf(*outer).isActiveWindow(); }));
        desk_.strike({UserDesk::Return});
    }));
    EXPECT_EQ(box_->Text(), u"5");
}

TEST_F(RealNumberPad, DoesAllThisOnFinerScreensToo)
{
    if (isOnFinerScreen()) {
        return; // this is one
    }
    EXPECT_TRUE(passOnFinerScreen("RealNumberPad.*", "2"));
}

/// The other program that a test above starts.
TEST(GuestProgram, ShowsAWindow)
{
    if (!qEnvironmentVariableIsSet(GuestVariable)) {
        return;
    }
    QWidget window;
    window.setGeometry(GuestPlace);
    window.show();
    runFor(300);
    std::puts("shown");
    std::fflush(stdout);
    runFor(MostPatience);
}

} // namespace

} // namespace phial::qt
