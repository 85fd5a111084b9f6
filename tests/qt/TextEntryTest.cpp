#include "DesktopSession.h"
#include "qt/desktop/ControlWidget.h"
#include "support/PaintedField.h"
#include "visual/TextBox.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include <vector>

using namespace phial;
using namespace phial::qt;
using phial::test::PaintedField;

namespace
{

class TextEntryTest : public DesktopSession
{
protected:
    TextEntryTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 200});
        box_->Move(20, 10, 200, 20);
        form_->Show();
        box_->SetFocus();
    }
    ~TextEntryTest() override { form_->discard(); }

    QWidget& widget() { return widgetOf(*box_); }
    void compose(const QString& text, const QList<QInputMethodEvent::Attribute>& attributes = {})
    {
        QInputMethodEvent event(text, attributes);
        QApplication::sendEvent(&widget(), &event);
    }
    void commit(const QString& text, int from = 0, int length = 0)
    {
        QInputMethodEvent event;
        event.setCommitString(text, from, length);
        QApplication::sendEvent(&widget(), &event);
    }
    QVariant asked(Qt::InputMethodQuery query)
    {
        QInputMethodQueryEvent question(query);
        QApplication::sendEvent(&widget(), &question);
        return question.value(query);
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<PictureBox> box_ = form_->add<PictureBox>(u"pic_Input");
    PaintedField field_{box_};
};

TEST_F(TextEntryTest, OnlyAControlThatTakesTextHasInputMethods)
{
    EXPECT_TRUE(widget().testAttribute(Qt::WA_InputMethodEnabled));
    EXPECT_EQ(asked(Qt::ImEnabled), QVariant(true));
    field_.locked(true);
    EXPECT_FALSE(widget().testAttribute(Qt::WA_InputMethodEnabled));
    EXPECT_FALSE(asked(Qt::ImEnabled).toBool());
    field_.locked(false);
    EXPECT_TRUE(widget().testAttribute(Qt::WA_InputMethodEnabled));
    box_->frame().textEntry(std::nullopt);
    EXPECT_FALSE(widget().testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(TextEntryTest, ShowsWhatIsComposedUntilItIsCommitted)
{
    commit(QStringLiteral("SO"));
    compose(QStringLiteral("^"));
    EXPECT_EQ(field_.shown(), u"SO[^]");
    commit(QStringLiteral("^"));
    EXPECT_EQ(field_.shown(), u"SO^");
}

TEST_F(TextEntryTest, TheCaretWithinIsToldWhereTheInputMethodTellsIt)
{
    compose(QStringLiteral("abc"));
    EXPECT_EQ(box_->frame().composition().caret, 3);
    compose(QStringLiteral("abc"), {{QInputMethodEvent::Cursor, 1, 1, QVariant()}});
    EXPECT_EQ(box_->frame().composition().caret, 1);
}

TEST_F(TextEntryTest, CommittedTextComesUnitByUnitThroughTheForm)
{
    form_->KeyPreview(true);
    String heard;
    const auto connection =
        form_->KeyPress.connect([&](KeyPressEvent& event) { heard.push_back(event.KeyAscii); });
    commit(QStringLiteral("aâ😀"));
    EXPECT_EQ(heard, u"aâ😀");
    EXPECT_EQ(field_.text(), u"aâ😀");
}

TEST_F(TextEntryTest, ARaisedSignThatTheDesktopComposesIsACircumflexAndTheSign)
{
    commit(QStringLiteral("²"));
    commit(QStringLiteral("⁻"));
    commit(QStringLiteral("⁺"));
    commit(QStringLiteral("â"));
    commit(QStringLiteral("ⁿ"));
    commit(QStringLiteral("m²"));
    EXPECT_EQ(field_.text(), u"^2^-^+âⁿm²");
}

TEST_F(TextEntryTest, ADeadCircumflexThatNobodyComposesIsTheSign)
{
    std::vector<std::int32_t> keys;
    const auto connection = box_->KeyDown.connect([&](KeyEvent& event) { keys.push_back(event.KeyCode); });
    QTest::sendKeyEvent(QTest::Click, &widget(), Qt::Key_Dead_Circumflex, QString(), Qt::NoModifier);
    QTest::keyClicks(&widget(), QStringLiteral("2"));
    EXPECT_EQ(field_.text(), u"^2");
    EXPECT_EQ(keys, (std::vector<std::int32_t>{'^', '2'}));
}

TEST_F(TextEntryTest, SoItIsInAFieldOfTheToolkit)
{
    const auto other = form_->add<TextBox>(u"txt_Other");
    other->SetFocus();
    QWidget& line = *widgetOf(*other).focusProxy();
    QTest::sendKeyEvent(QTest::Click, &line, Qt::Key_Dead_Circumflex, QString(), Qt::NoModifier);
    QTest::keyClicks(&line, QStringLiteral("2"));
    EXPECT_EQ(other->Text(), u"^2");
}

TEST_F(TextEntryTest, AnswersWhatInputMethodsAsk)
{
    commit(QStringLiteral("H2SO4"));
    QTest::keyClick(&widget(), Qt::Key_Left);
    EXPECT_EQ(asked(Qt::ImCursorRectangle), QVariant(QRectF(40, 2, 1, 16)));
    EXPECT_EQ(asked(Qt::ImAnchorRectangle), QVariant(QRectF(40, 2, 1, 16)));
    EXPECT_EQ(asked(Qt::ImSurroundingText), QVariant(QStringLiteral("H2SO4")));
    EXPECT_EQ(asked(Qt::ImCursorPosition), QVariant(4));
    EXPECT_EQ(asked(Qt::ImAnchorPosition), QVariant(4));
    EXPECT_EQ(asked(Qt::ImAbsolutePosition), QVariant(4));
    EXPECT_EQ(asked(Qt::ImTextBeforeCursor), QVariant(QStringLiteral("H2SO")));
    EXPECT_EQ(asked(Qt::ImTextAfterCursor), QVariant(QStringLiteral("4")));
    EXPECT_EQ(asked(Qt::ImCurrentSelection), QVariant(QString()));
    EXPECT_TRUE(Qt::InputMethodHints(asked(Qt::ImHints).toInt()).testFlag(Qt::ImhNoPredictiveText));
    EXPECT_TRUE(asked(Qt::ImFont).isValid()) << "the widget's own answer";
}

TEST_F(TextEntryTest, WhatAnInputMethodReplacesGoesAsByHand)
{
    commit(QStringLiteral("NaOH"));
    commit(QStringLiteral("K"), -4, 2);
    EXPECT_EQ(field_.text(), u"KOH");
    commit(QStringLiteral("Li"), -1, 1);
    EXPECT_EQ(field_.text(), u"LiOH");
    commit(QStringLiteral("S"), 0, 1);
    EXPECT_EQ(field_.text(), u"LiSH");
}

TEST_F(TextEntryTest, ACompositionEndsWithTheFocus)
{
    compose(QStringLiteral("^"));
    form_->add<TextBox>(u"txt_Other")->SetFocus();
    EXPECT_EQ(field_.shown(), u"");
}

TEST_F(TextEntryTest, AHandlerMayCloseTheForm)
{
    const auto connection = box_->KeyPress.connect([&](KeyPressEvent&) { form_->Unload(); });
    commit(QStringLiteral("abc"));
    EXPECT_EQ(field_.text(), u"a");
}

TEST_F(TextEntryTest, WorksInAWindowOfPlainQt)
{
    const auto box = makeControl<PictureBox>();
    PaintedField field(box);
    auto* widget = new ControlWidget(box);
    const std::unique_ptr<QWidget> owner(widget);
    widget->show();
    widget->setFocus();
    QInputMethodEvent event(QStringLiteral("^"), {});
    QApplication::sendEvent(widget, &event);
    EXPECT_EQ(field.shown(), u"[^]");
    event.setCommitString(QStringLiteral("^"));
    QApplication::sendEvent(widget, &event);
    EXPECT_EQ(field.text(), u"^");
}

} // namespace
