#include "DesktopRun.h"
#include "UserDesk.h"
#include "app/cls_Language.h"
#include "dialogs/frm_DialogMiniHTML.h"
#include "visual/ctl_Title.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

/// The dialog for texts with markup on a real desktop, with a window manager, a mouse and a German keyboard.
namespace phial::qt
{

namespace
{

using headless::Box;
using Desk = UserDesk;

class RealMiniHTML : public DesktopRun
{
protected:
    RealMiniHTML() : DesktopRun(std::make_shared<DesktopDisplay>())
    {
        LNG()->CURRENT(ID_Language_German);
        desk_.moveTo({10, 10});
    }
    ~RealMiniHTML() override { form().discard(); }

    void open()
    {
        form().Show();
        ASSERT_TRUE(eventually([&] { return window().isActiveWindow() && page().hasFocus(); }));
        runFor(100); // the window manager has had its last word
    }
    Form& form() { return dialog_->form(); }
    QWidget& window() { return widgetOf(form()); }
    std::shared_ptr<ctl_MiniHTMLInput> input() { return form().control<ctl_MiniHTMLInput>(u"txt_Input"); }
    QPlainTextEdit& page() { return *widgetOf(input()->input()).findChild<QPlainTextEdit*>(); }
    /// The button with that face, as it is seen.
    QPoint button(const QString& face)
    {
        for (QPushButton* each : window().findChildren<QPushButton*>()) {
            if (each->isVisible() && each->text() == face) {
                return each->mapToGlobal(each->rect().center());
            }
        }
        ADD_FAILURE() << face.toStdString();
        return {};
    }
    bool isText(StringView text)
    {
        return eventually([&] { return input()->TEXT() == text; });
    }
    bool hasClosed()
    {
        return eventually([&] { return !form().isLoaded(); });
    }

    UserDesk desk_;
    std::unique_ptr<frm_DialogMiniHTML> dialog_ = std::make_unique<frm_DialogMiniHTML>();
};

TEST_F(RealMiniHTML, IsWrittenFormattedUndoneAndAccepted)
{
    open();
    for (const auto key : {Desk::G, Desk::R, Desk::OUmlaut, Desk::SharpS, Desk::E}) {
        desk_.strike({key});
    }
    desk_.strike({Desk::Shift, Desk::Left});
    desk_.strike({Desk::Ctrl, Desk::B});
    EXPECT_TRUE(isText(u"größ<b>e</b>")) << toUtf8(input()->TEXT());
    desk_.strike({Desk::Ctrl, Desk::I});
    EXPECT_TRUE(isText(u"größ<b><i>e</i></b>")) << toUtf8(input()->TEXT());
    desk_.strike({Desk::Ctrl, Desk::B});
    EXPECT_TRUE(isText(u"größ<i>e</i>")) << toUtf8(input()->TEXT());
    desk_.strike({Desk::Ctrl, Desk::Z});
    EXPECT_TRUE(isText(u"größ<b><i>e</i></b>")) << toUtf8(input()->TEXT());
    desk_.strike({Desk::Ctrl, Desk::Z});
    desk_.strike({Desk::Ctrl, Desk::Z});
    EXPECT_TRUE(isText(u"größe")) << toUtf8(input()->TEXT());
    desk_.strike({Desk::Return});
    desk_.strike({Desk::E});
    EXPECT_TRUE(eventually([&] { return input()->TEXT().ends_with(u"\r\ne"); })) << "Return parts lines";
    desk_.click(button(QStringLiteral("OK")));
    EXPECT_TRUE(hasClosed());
    EXPECT_TRUE(dialog_->Accepted());
    EXPECT_TRUE(dialog_->ResultText().ends_with(u"\r\ne"));
}

TEST_F(RealMiniHTML, TheMouseFormatsAndTheFieldGoesOn)
{
    dialog_->pText(u"H2O");
    open();
    desk_.strike({Desk::Home});
    desk_.strike({Desk::Right});
    desk_.strike({Desk::Shift, Desk::Right});
    desk_.click(button(QStringLiteral("Tief")));
    EXPECT_TRUE(isText(u"H<sub>2</sub>O")) << toUtf8(input()->TEXT());
    EXPECT_TRUE(eventually([&] { return page().hasFocus(); }));
    desk_.click(button(QStringLiteral("Tief")));
    EXPECT_TRUE(isText(u"H2O")) << toUtf8(input()->TEXT());
    desk_.strike({Desk::E});
    EXPECT_TRUE(isText(u"HeO")) << toUtf8(input()->TEXT());
}

TEST_F(RealMiniHTML, TheBarIsReachedByKeysAndSaysWhatIsMissing)
{
    open();
    desk_.strike({Desk::E});
    desk_.strike({Desk::Tab});
    outside().dialogs().expect(Box::Info, u"Markieren Sie erst den Text, den Sie formatieren möchten!");
    desk_.strike({Desk::Blank});
    outside().dialogs().checkDone();
    EXPECT_EQ(input()->TEXT(), page().toPlainText().toStdU16String());
}

TEST_F(RealMiniHTML, SpeaksEnglishToo)
{
    LNG()->CURRENT(ID_Language_English);
    dialog_->pText(u"x");
    open();
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Enter a text"));
    desk_.strike({Desk::Shift, Desk::Right});
    desk_.click(button(QStringLiteral("Raise")));
    EXPECT_TRUE(isText(u"<sup>x</sup>")) << toUtf8(input()->TEXT());
}

TEST_F(RealMiniHTML, CrossEscapeAndTheWindowManagersCloseGiveUp)
{
    const std::function<void()> ways[] = {
        [&] {
            QWidget& header = widgetOf(*form().control<ctl_Title>(u"bar_Header"));
            constexpr int CrossFromEdge = 28;
            desk_.click(header.mapToGlobal(QPoint(header.width() - CrossFromEdge, header.height() / 2)));
        },
        [&] { desk_.strike({Desk::Escape}); },
        [&] {
            desk_.strike({Desk::Alt, Desk::F4});
        },
    };
    for (const auto& giveUp : ways) {
        dialog_ = std::make_unique<frm_DialogMiniHTML>();
        dialog_->pText(u"alt");
        open();
        desk_.strike({Desk::E});
        giveUp();
        EXPECT_TRUE(hasClosed());
        EXPECT_FALSE(dialog_->Accepted());
        EXPECT_EQ(dialog_->ResultText(), u"");
    }
}

TEST_F(RealMiniHTML, StandsWithinASmallScreen)
{
    open();
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_EQ(screen.size(), QSize(1024, 600));
    EXPECT_TRUE(eventually([&] { return screen.contains(window().frameGeometry()); }));
}

} // namespace

} // namespace phial::qt
