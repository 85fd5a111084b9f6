#include "DesktopRun.h"
#include "FinerScreen.h"
#include "UserDesk.h"
#include "app/cls_Language.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "visual/ctl_Label.h"

#include <QClipboard>
#include <QScreen>

/// The keyboard for texts on a real desktop, with a window manager, a mouse and a German keyboard.
namespace phial::qt
{

namespace
{

class RealKeyboard : public DesktopRun
{
protected:
    RealKeyboard() : DesktopRun(std::make_shared<DesktopDisplay>())
    {
        LNG()->CURRENT(ID_Language_German);
        desk_.moveTo({300, 200});
    }
    ~RealKeyboard() override { keyboard_.form().discard(); }

    void open(const ObjectPtr& target)
    {
        keyboard_.TargetControl(target);
        keyboard_.form().Show();
        ASSERT_TRUE(eventually([&] { return window().isActiveWindow() && window().isVisible(); }));
        runFor(100); // the window manager has had its last word
    }
    QWidget& window() { return widgetOf(keyboard_.form()); }
    std::shared_ptr<TextBox> input() { return keyboard_.form().control<TextBox>(u"txt_Input"); }
    QWidget& field() { return *widgetOf(*input()).focusProxy(); }
    QPoint middleOfField() { return field().mapToGlobal(field().rect().center()); }
    /// Between the keys' plate and the window's edge, where nothing is but the window.
    QPoint plate() { return window().mapToGlobal(QPoint(window().width() / 2, 4)); }

    /// It is over before the pointer goes on, which would be a drag.
    void tap(std::int32_t index)
    {
        const auto keys = keyboard_.form().control<ctl_Keys>(u"ctl_Keys");
        bool isOver = false;
        const Connection released = keys->RELEASED.connect([&](std::int32_t) { isOver = true; });
        const PixelRectangle area = keys->areaOf(index);
        desk_.click(widgetOf(*keys).mapToGlobal(
            QPointF(area.left + area.width / 2, area.top + area.height / 2).toPoint()));
        EXPECT_TRUE(eventually([&] { return isOver; }));
    }
    testing::AssertionResult textIs(StringView expected)
    {
        const bool is = eventually([&] { return input()->Text() == expected; });
        return (is ? testing::AssertionSuccess() : testing::AssertionFailure()) << toUtf8(input()->Text());
    }
    testing::AssertionResult undoneIs(StringView expected)
    {
        desk_.strike({UserDesk::Ctrl, UserDesk::Z});
        return textIs(expected);
    }
    void pasteLinesBehindE(const ObjectPtr& target)
    {
        QGuiApplication::clipboard()->setText(QStringLiteral("a\nb"));
        open(target);
        desk_.strike({UserDesk::E});
        desk_.strike({UserDesk::Ctrl, UserDesk::V});
    }
    QRect screen() { return QGuiApplication::primaryScreen()->geometry(); }
    QRect place() { return window().frameGeometry(); }

    UserDesk desk_;
    frm_DialogKeyboard keyboard_;
};

TEST_F(RealKeyboard, TypesGermanByTheDeskAndByItsKeys)
{
    const auto target = makeControl<TextBox>();
    open(target);
    using Desk = UserDesk;
    desk_.strike({Desk::Shift, Desk::G});
    for (const auto key : {Desk::R, Desk::OUmlaut, Desk::SharpS, Desk::E, Desk::Blank}) {
        desk_.strike({key});
    }
    desk_.strike({Desk::AltGr, Desk::E});
    desk_.strike({Desk::AltGr, Desk::Q});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"Größe €@"; })) << toUtf8(input()->Text());
    input()->Text(u"");
    constexpr std::int32_t ShiftKey = 37;
    constexpr std::int32_t SymKey = 52;
    for (const std::int32_t key : {ShiftKey, 30, 17, 35, 11, 16, 48, SymKey, 16, SymKey, 14}) {
        tap(key);
    }
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"Größe €@"; })) << toUtf8(input()->Text());
    desk_.strike({Desk::Return});
    EXPECT_TRUE(eventually([&] { return !keyboard_.form().isLoaded(); }));
    EXPECT_EQ(target->Text(), u"Größe €@");
}

TEST_F(RealKeyboard, SnapsToEachEdgeOfTheScreen)
{
    open(nullptr);
    const auto dragged = [&](QPoint corner) {
        const QPoint from = plate();
        desk_.drag(from, from + corner - place().topLeft());
        runFor(50);
    };
    const int right = screen().right() + 1;
    const int bottom = screen().bottom() + 1;
    EXPECT_TRUE(screen().contains(place())) << "it opens on the screen";
    dragged({12, 9});
    EXPECT_TRUE(eventually([&] { return place().topLeft() == screen().topLeft(); }))
        << place().x() << ' ' << place().y();
    dragged({right - place().width() - 9, bottom - place().height() - 12});
    EXPECT_TRUE(eventually([&] { return place().bottomRight() == screen().bottomRight(); }))
        << place().right() << ' ' << place().bottom();
    EXPECT_TRUE(keyboard_.form().isLoaded());
}

TEST_F(RealKeyboard, IsAsItWasWhenTheUserComesBack)
{
    QWidget other;
    other.setGeometry(10, 10, 200, 60);
    other.show();
    EXPECT_TRUE(eventually([&] { return other.isActiveWindow(); }));
    open(makeControl<TextBox>());
    desk_.strike({UserDesk::E});
    other.activateWindow();
    EXPECT_TRUE(eventually([&] { return other.isActiveWindow(); }));
    desk_.strike({UserDesk::G});
    window().activateWindow();
    EXPECT_TRUE(eventually([&] { return window().isActiveWindow() && field().hasFocus(); }));
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"er"; })) << toUtf8(input()->Text());
}

TEST_F(RealKeyboard, TheFieldsMenuLeavesItOpen)
{
    open(makeControl<TextBox>());
    desk_.strike({UserDesk::E});
    desk_.click(middleOfField(), 3);
    EXPECT_TRUE(eventually([&] { return QApplication::activePopupWidget() != nullptr; }));
    EXPECT_TRUE(keyboard_.form().isLoaded());
    desk_.strike({UserDesk::Escape});
    EXPECT_TRUE(eventually([&] { return QApplication::activePopupWidget() == nullptr; }));
    runFor(200);
    EXPECT_TRUE(keyboard_.form().isLoaded()) << "Escape was for the menu";
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"er"; })) << toUtf8(input()->Text());
    desk_.strike({UserDesk::Escape});
    EXPECT_TRUE(eventually([&] { return !keyboard_.form().isLoaded(); }));
}

TEST_F(RealKeyboard, SpeaksAnotherLanguageWhileItIsOpen)
{
    open(makeControl<TextBox>());
    desk_.strike({UserDesk::E});
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(keyboard_.form().control<ctl_Label>(u"lab_Description")->Caption(), u"Please enter the value:");
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Keyboard"));
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"er"; }));
}

TEST_F(RealKeyboard, ALineMakesAPageInWhichOneGoesOnTyping)
{
    open(nullptr);
    constexpr std::int32_t SymKey = 52;
    constexpr std::int32_t EnterKey = 58;
    desk_.strike({UserDesk::E});
    EXPECT_TRUE(field().inherits("QLineEdit"));
    tap(SymKey);
    tap(EnterKey);
    EXPECT_TRUE(eventually([&] { return field().inherits("QPlainTextEdit") && field().hasFocus(); }));
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"e\r\nr"; })) << toUtf8(input()->Text());
}

TEST_F(RealKeyboard, UndoingGoesOnThroughTheFirstLineEnd)
{
    open(nullptr);
    for (const auto key : {UserDesk::E, UserDesk::R}) {
        desk_.strike({key});
    }
    desk_.strike({UserDesk::Ctrl, UserDesk::Return});
    desk_.strike({UserDesk::G});
    EXPECT_TRUE(textIs(u"er\r\ng"));
    EXPECT_TRUE(undoneIs(u"er\r\n"));
    EXPECT_TRUE(undoneIs(u"er"));
    EXPECT_TRUE(undoneIs(u""));
    keyboard_.form().Unload();
    pasteLinesBehindE(nullptr);
    EXPECT_TRUE(textIs(u"ea\r\nb"));
    EXPECT_TRUE(undoneIs(u"e"));
    EXPECT_TRUE(undoneIs(u""));
    QGuiApplication::clipboard()->clear();
}

TEST_F(RealKeyboard, PastedLinesAreUndoneWhereTheyBecomeBlanks)
{
    pasteLinesBehindE(makeControl<TextBox>());
    EXPECT_TRUE(textIs(u"ea b"));
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(textIs(u"ea br"));
    EXPECT_TRUE(undoneIs(u"ea b"));
    EXPECT_TRUE(undoneIs(u"e"));
    EXPECT_TRUE(undoneIs(u""));
    desk_.strike({UserDesk::G});
    EXPECT_TRUE(textIs(u"g"));
    EXPECT_TRUE(undoneIs(u""));
    QGuiApplication::clipboard()->clear();
}

TEST_F(RealKeyboard, ComesBackByTheDesksKeysForTheNextWindow)
{
    QWidget other;
    other.setGeometry(10, 10, 200, 60);
    other.show();
    EXPECT_TRUE(eventually([&] { return other.isActiveWindow(); }));
    open(makeControl<TextBox>());
    desk_.strike({UserDesk::E});
    desk_.strike({UserDesk::Alt, UserDesk::Tab});
    EXPECT_TRUE(eventually([&] { return other.isActiveWindow(); }));
    EXPECT_TRUE(keyboard_.form().isLoaded());
    desk_.strike({UserDesk::G});
    desk_.strike({UserDesk::Alt, UserDesk::Tab});
    EXPECT_TRUE(eventually([&] { return window().isActiveWindow() && field().hasFocus(); }));
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"er"; })) << toUtf8(input()->Text());
    for (const Modifier modifier : {Modifier::Shift, Modifier::Ctrl, Modifier::Alt, Modifier::Sym}) {
        const auto keys = keyboard_.form().control<ctl_Keys>(u"ctl_Keys");
        EXPECT_EQ(keys->board().state(modifier), KeyState::Off);
    }
}

TEST_F(RealKeyboard, TakesPastedLinesWhereItsTargetHasThem)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("a\nb"));
    open(makeControl<TextBox>());
    desk_.strike({UserDesk::E});
    desk_.strike({UserDesk::Ctrl, UserDesk::V});
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"ea br"; })) << toUtf8(input()->Text());
    keyboard_.form().Unload();
    open(nullptr);
    desk_.strike({UserDesk::E});
    desk_.strike({UserDesk::Ctrl, UserDesk::V});
    desk_.strike({UserDesk::R});
    EXPECT_TRUE(eventually([&] { return input()->Text() == u"ea\r\nbr"; })) << toUtf8(input()->Text());
    EXPECT_TRUE(field().inherits("QPlainTextEdit"));
    QGuiApplication::clipboard()->clear(); // which otherwise looks for an heir when the program ends
}

TEST_F(RealKeyboard, FitsTheScreenToWhichItIsDragged)
{
    if (isOnFinerScreen()) {
        return; // on one screen
    }
    const auto below = std::make_shared<Form>(u"frm_Below");
    below->ScaleMode(ScaleUnit::Pixels);
    below->innerSize({200, 100});
    below->Zoom(1.5);
    below->Show();
    ASSERT_TRUE(eventually([&] { return widgetOf(*below).isActiveWindow(); }));
    open(nullptr);
    EXPECT_EQ(place().size(), QSize(750, 340));
    desk_.drag(plate(), {2000, 400});
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(1125, 510); }))
        << place().width() << ' ' << place().height();
    EXPECT_TRUE(eventually([&] { return place().contains(2000, 412); }));
    desk_.drag(plate(), {500, 100});
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(750, 340); }))
        << place().width() << ' ' << place().height();
    EXPECT_TRUE(screen().contains(place()));
    below->Unload();
}

TEST_F(RealKeyboard, DoesAllThisOnFinerScreensToo)
{
    if (isOnFinerScreen()) {
        return; // this is one
    }
    for (const char* const factor : {"1.25", "2"}) {
        EXPECT_TRUE(passOnFinerScreen("RealKeyboard.*", factor)) << factor;
    }
}

} // namespace

} // namespace phial::qt
