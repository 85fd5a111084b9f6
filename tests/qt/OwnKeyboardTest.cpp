#include "DesktopSession.h"
#include "support/PaintedField.h"
#include "visual/ComboBox.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"

#include <QInputMethodEvent>
#include <QProxyStyle>
#include <QTest>

using namespace phial;
using namespace phial::qt;
using phial::test::PaintedField;

namespace
{

/// Notes when a field is about to ask for the desktop's keyboard: the toolkit then asks its style how.
class NotingStyle final : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override
    {
        asked += hint == SH_RequestSoftwareInputPanel;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
    mutable int asked = 0;
};

class OwnKeyboardTest : public DesktopSession
{
protected:
    OwnKeyboardTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 300});
        form_->Show();
        widgetOf(*form_).activateWindow();
        EXPECT_TRUE(
            eventually([&] { return widgetOf(*form_).isActiveWindow(); })); // fields then get the focus
    }
    ~OwnKeyboardTest() override { form_->discard(); }

    template <typename Class>
    std::shared_ptr<Class> field(StringView name, double top, bool ownKeyboard)
    {
        auto control = form_->add<Class>(name);
        control->Move(10, top, 200, 40);
        control->frame().ownKeyboard(ownKeyboard);
        return control;
    }
    static QWidget& line(const Control& control) { return *widgetOf(control).focusProxy(); }
    static bool isServed(QWidget& widget)
    {
        QInputMethodQueryEvent question(Qt::ImEnabled);
        QApplication::sendEvent(&widget, &question);
        return question.value(Qt::ImEnabled).toBool() && widget.testAttribute(Qt::WA_InputMethodEnabled);
    }
    static void strike(QWidget& widget, Qt::Key dead)
    {
        QTest::sendKeyEvent(QTest::Click, &widget, dead, QString(), Qt::NoModifier);
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

TEST_F(OwnKeyboardTest, NorTheLineOfAChoiceThatHasOne)
{
    const auto combo = field<ComboBox>(u"cmb_Own", 10, true);
    combo->Style(ComboStyle::Editable);
    EXPECT_FALSE(isServed(widgetOf(*combo)));
    combo->frame().ownKeyboard(false);
    EXPECT_TRUE(isServed(widgetOf(*combo)));
    combo->frame().ownKeyboard(true);
    EXPECT_FALSE(isServed(widgetOf(*combo)));
}

TEST_F(OwnKeyboardTest, NoInputMethodServesAFieldThatHasOne)
{
    const auto plain = field<TextBox>(u"txt_Plain", 10, false);
    const auto own = field<TextBox>(u"txt_Own", 60, true);
    const auto rich = field<RichTextBox>(u"rtf_Own", 110, true);
    EXPECT_TRUE(isServed(line(*plain)));
    EXPECT_FALSE(isServed(line(*own)));
    EXPECT_FALSE(isServed(line(*rich)));
    own->MultiLine(true);
    EXPECT_FALSE(isServed(line(*own)));
    own->Locked(true);
    own->Locked(false);
    EXPECT_FALSE(isServed(line(*own)));
    own->frame().ownKeyboard(false);
    EXPECT_TRUE(isServed(line(*own)));
    own->Locked(true);
    EXPECT_FALSE(isServed(line(*own)));
}

TEST_F(OwnKeyboardTest, NorAPaintedOne)
{
    const auto box = field<PictureBox>(u"pic_Input", 10, true);
    const PaintedField painted(box);
    EXPECT_FALSE(isServed(widgetOf(*box)));
    box->frame().ownKeyboard(false);
    EXPECT_TRUE(isServed(widgetOf(*box)));
}

TEST_F(OwnKeyboardTest, ATapOnItDoesNotAskForTheDesktopsKeyboard)
{
    const auto plain = field<TextBox>(u"txt_Plain", 10, false);
    const auto own = field<TextBox>(u"txt_Own", 60, true);
    NotingStyle style;
    for (const auto& each : {plain, own}) {
        line(*each).setStyle(&style);
    }
    const auto asked = [&](TextBox& box) {
        style.asked = 0;
        box.SetFocus();
        QTest::mouseClick(&line(box), Qt::LeftButton);
        return style.asked;
    };
    EXPECT_GT(asked(*plain), 0);
    EXPECT_EQ(asked(*own), 0);
    EXPECT_GT(asked(*plain), 0) << "that ends with its focus";
    EXPECT_EQ(asked(*own), 0);
    own->frame().ownKeyboard(false);
    EXPECT_GT(asked(*own), 0);
    own->frame().ownKeyboard(true);
    EXPECT_FALSE(qApp->autoSipEnabled());
    own->Visible(false);
    EXPECT_TRUE(qApp->autoSipEnabled());
    for (const auto& each : {plain, own}) {
        line(*each).setStyle(nullptr);
    }
}

TEST_F(OwnKeyboardTest, TheDesktopsKeyboardIsBackWhenTheFieldGoes)
{
    const auto own = field<TextBox>(u"txt_Own", 10, true);
    own->SetFocus();
    EXPECT_FALSE(qApp->autoSipEnabled());
    form_->Unload();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(qApp->autoSipEnabled());
}

TEST_F(OwnKeyboardTest, AProgramsOwnWishIsLeftAlone)
{
    const auto plain = field<TextBox>(u"txt_Plain", 10, false);
    const auto other = field<TextBox>(u"txt_Other", 60, false);
    qApp->setAutoSipEnabled(false);
    plain->SetFocus();
    other->SetFocus();
    EXPECT_FALSE(qApp->autoSipEnabled());
    qApp->setAutoSipEnabled(true);
}

TEST_F(OwnKeyboardTest, DeadKeysOnTheDeskStillWork)
{
    const auto own = field<TextBox>(u"txt_Own", 10, true);
    own->SetFocus();
    QWidget& widget = line(*own);
    strike(widget, Qt::Key_Dead_Circumflex);
    EXPECT_EQ(own->Text(), u"");
    QTest::keyClicks(&widget, QStringLiteral("a"));
    EXPECT_EQ(own->Text(), u"â");
    strike(widget, Qt::Key_Dead_Acute);
    QTest::keyClick(&widget, Qt::Key_Shift);
    QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_E, QStringLiteral("E"), Qt::ShiftModifier);
    EXPECT_EQ(own->Text(), u"âÉ");
}

TEST_F(OwnKeyboardTest, WhatDoesNotJoinFollowsTheSign)
{
    const auto own = field<TextBox>(u"txt_Own", 10, true);
    own->SetFocus();
    QWidget& widget = line(*own);
    const auto typed = [&](auto&&... keys) {
        own->Text(u"");
        const auto one = [&](auto key) {
            if constexpr (std::is_same_v<decltype(key), const char*>) {
                QTest::keyClicks(&widget, QString::fromLatin1(key));
            } else if (key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay) {
                strike(widget, key);
            } else {
                QTest::keyClick(&widget, key);
            }
        };
        (one(keys), ...);
        return own->Text();
    };
    EXPECT_EQ(typed(Qt::Key_Dead_Circumflex, "2-"), u"^2-");
    EXPECT_EQ(typed(Qt::Key_Dead_Circumflex, "n"), u"^n");
    EXPECT_EQ(typed(Qt::Key_Dead_Circumflex, " x"), u"^x");
    EXPECT_EQ(typed(Qt::Key_Dead_Circumflex, Qt::Key_Dead_Circumflex, "2"), u"^2");
    EXPECT_EQ(typed(Qt::Key_Dead_Circumflex, Qt::Key_Dead_Acute, "e"), u"^é");
    EXPECT_EQ(typed("ab", Qt::Key_Dead_Circumflex, Qt::Key_Left, "c"), u"abc^");
    EXPECT_EQ(typed("ab", Qt::Key_Dead_Circumflex, Qt::Key_Backspace, "c"), u"abc");
}

TEST_F(OwnKeyboardTest, ADeadKeyIsForTheFieldInWhichItWasStruck)
{
    const auto own = field<TextBox>(u"txt_Own", 10, true);
    const auto other = field<TextBox>(u"txt_Other", 60, true);
    own->SetFocus();
    strike(line(*own), Qt::Key_Dead_Circumflex);
    other->SetFocus();
    own->SetFocus();
    QTest::keyClicks(&line(*own), QStringLiteral("a"));
    EXPECT_EQ(own->Text(), u"a");
}

TEST_F(OwnKeyboardTest, ALockedFieldMakesNothingOfThem)
{
    const auto own = field<TextBox>(u"txt_Own", 10, true);
    own->Locked(true);
    own->SetFocus();
    strike(line(*own), Qt::Key_Dead_Circumflex);
    QTest::keyClicks(&line(*own), QStringLiteral("a"));
    EXPECT_EQ(own->Text(), u"");
}

TEST_F(OwnKeyboardTest, APaintedFieldShowsTheSignThatWaits)
{
    const auto box = field<PictureBox>(u"pic_Input", 10, true);
    PaintedField painted(box);
    box->SetFocus();
    QWidget& widget = widgetOf(*box);
    String keys;
    const auto connection =
        box->KeyDown.connect([&](KeyEvent& event) { keys.push_back(static_cast<char16_t>(event.KeyCode)); });
    QTest::keyClicks(&widget, QStringLiteral("SO4"));
    strike(widget, Qt::Key_Dead_Circumflex);
    EXPECT_EQ(painted.shown(), u"SO4[^]");
    QTest::keyClicks(&widget, QStringLiteral("2"));
    EXPECT_EQ(painted.shown(), u"SO4^2");
    strike(widget, Qt::Key_Dead_Circumflex);
    QTest::keyClicks(&widget, QStringLiteral("a"));
    EXPECT_EQ(painted.shown(), u"SO4^2â");
    EXPECT_EQ(keys, u"SO4^2Â") << "a key of its own, of what was made";
    strike(widget, Qt::Key_Dead_Circumflex);
    form_->focus(field<TextBox>(u"txt_Other", 60, false));
    EXPECT_EQ(painted.shown(), u"SO4^2â");
}

TEST_F(OwnKeyboardTest, AHandlerMayCloseTheForm)
{
    const auto box = field<PictureBox>(u"pic_Input", 10, true);
    const PaintedField painted(box);
    box->SetFocus();
    QWidget& widget = widgetOf(*box);
    const auto connection = box->KeyPress.connect([&](KeyPressEvent&) { form_->Unload(); });
    strike(widget, Qt::Key_Dead_Circumflex);
    QTest::keyClicks(&widget, QStringLiteral("2"));
    EXPECT_EQ(painted.text(), u"^");
}

} // namespace
