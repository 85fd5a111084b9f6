#include "DesktopSession.h"
#include "qt/desktop/InputCodes.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace phial;
using namespace phial::qt;

namespace
{

/// A form with a field of the toolkit and a painted control, both noting what is typed into them.
class TypingTest : public DesktopSession
{
protected:
    TypingTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 200});
        box_ = form_->add<TextBox>(u"txt_Input");
        box_->Move(0, 0, 200, 30);
        picture_ = makeControl<PictureBox>();
        picture_->frame().canFocus(true);
        form_->add(picture_);
        picture_->Move(0, 50, 200, 30);
        form_->Show();
        const auto note = [this](KeyPressEvent& key) { typed_ += key.KeyAscii; };
        connections_ += box_->KeyPress.connect(note);
        connections_ += picture_->KeyPress.connect(note);
    }
    ~TypingTest() override { form_->discard(); }

    QLineEdit& line() const { return *widgetOf(*box_).findChild<QLineEdit*>(); }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<TextBox> box_;
    std::shared_ptr<PictureBox> picture_;
    String typed_;
    Connections connections_;
};

TEST_F(TypingTest, ControlAndAltTogetherTypeACharacter)
{
    SendKeys(u"^%@%^€^%{{}^%a");
    EXPECT_TRUE(eventually([&] { return typed_.size() >= 4; }));
    EXPECT_EQ(box_->Text(), u"@€{a");
    EXPECT_EQ(typed_, u"@€{a");
    picture_->SetFocus();
    SendKeys(u"^%@+x");
    EXPECT_TRUE(eventually([&] { return typed_.size() >= 6; }));
    EXPECT_EQ(typed_, u"@€{a@X");
}

TEST_F(TypingTest, ControlAloneAndAltAloneTypeNothing)
{
    QTest::sendKeyEvent(QTest::Click, &line(), Qt::Key_X, QStringLiteral("x"), Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, &line(), Qt::Key_X, QStringLiteral("x"), Qt::ControlModifier);
    QTest::sendKeyEvent(QTest::Click, &line(), Qt::Key_X, QStringLiteral("x"), Qt::MetaModifier);
    EXPECT_EQ(box_->Text(), u"");
    EXPECT_EQ(typed_, u"");
    QTest::sendKeyEvent(QTest::Click, &line(), Qt::Key_Q, QStringLiteral("@"),
                        Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(box_->Text(), u"@");
    EXPECT_EQ(typed_, u"@");
}

TEST_F(TypingTest, KeysThatEditAreNotTyped)
{
    box_->Text(u"xy");
    QTest::sendKeyEvent(QTest::Click, &line(), Qt::Key_Delete, QStringLiteral("\x7F"), Qt::NoModifier);
    for (const Qt::Key key :
         {Qt::Key_Left, Qt::Key_Home, Qt::Key_End, Qt::Key_F1, Qt::Key_Up, Qt::Key_Insert}) {
        QTest::keyClick(&line(), key);
    }
    EXPECT_EQ(box_->Text(), u"y");
    EXPECT_EQ(typed_, u"");
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Escape}) {
        QTest::keyClick(&line(), key);
    }
    EXPECT_EQ(typed_, u"\b\r\x1B");
}

/// A form with a field that has a selection, another field, and a bar.
class FieldsWithABarTest : public DesktopSession
{
protected:
    FieldsWithABarTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({400, 300});
        box_ = form_->add<TextBox>(u"txt_Input");
        box_->Move(0, 0, 200, 30);
        other_ = form_->add<TextBox>(u"txt_Other");
        other_->Move(0, 40, 200, 30);
        bar_ = form_->add<ctl_CmdBar>(u"bar_Format");
        bar_->Move(0, 100, 300, 40);
        bar_->BUTTONS()->Add(u"B", u"B");
        bar_->BUTTONS()->Add(u"I", u"I");
        box_->Text(u"Wasser");
        form_->Show();
        EXPECT_TRUE(eventually([&] { return line(*box_).hasFocus(); }));
        box_->SelStart(2);
        box_->SelLength(3);
    }
    ~FieldsWithABarTest() override { form_->discard(); }

    static QLineEdit& line(const Control& control) { return *widgetOf(control).findChild<QLineEdit*>(); }
    QPushButton& button() const { return *widgetOf(*bar_).findChild<QPushButton*>(); }
    static void drain() { QApplication::processEvents(); }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<TextBox> box_;
    std::shared_ptr<TextBox> other_;
    std::shared_ptr<ctl_CmdBar> bar_;
};

TEST_F(FieldsWithABarTest, AFieldKeepsItsSelectionWhileTheFocusIsElsewhere)
{
    other_->SetFocus();
    EXPECT_TRUE(line(*other_).hasFocus());
    EXPECT_EQ(box_->SelText(), u"sse");
    EXPECT_EQ(line(*box_).selectedText(), QStringLiteral("sse"));
    QTest::mouseClick(&button(), Qt::LeftButton);
    EXPECT_EQ(form_->ActiveControl(), bar_);
    box_->SelText(u"<b>sse</b>");
    box_->SetFocus();
    EXPECT_EQ(box_->Text(), u"Wa<b>sse</b>r");
}

TEST_F(FieldsWithABarTest, ASelectionMadeBackwardsStaysSo)
{
    line(*box_).setSelection(5, -3);
    other_->SetFocus();
    EXPECT_EQ(line(*box_).selectedText(), QStringLiteral("sse"));
    EXPECT_EQ(line(*box_).cursorPosition(), 2);
}

TEST_F(FieldsWithABarTest, ABarThatTakesNoFocusLeavesItInTheField)
{
    for (const bool takesFocus : {false, true}) {
        bar_->frame().canFocus(takesFocus); // while it is shown
        box_->SetFocus();
        int presses = 0;
        const auto pressed = bar_->BUTTON.connect([&](std::int32_t, const String&) { ++presses; });
        for (QPushButton* pressedOne : widgetOf(*bar_).findChildren<QPushButton*>()) {
            QTest::mouseClick(pressedOne, Qt::LeftButton);
            EXPECT_EQ(form_->ActiveControl() == bar_, takesFocus);
            EXPECT_EQ(line(*box_).hasFocus(), !takesFocus);
        }
        EXPECT_EQ(presses, 2);
        other_->SetFocus();
        QTest::keyClick(&line(*other_), Qt::Key_Tab);
        EXPECT_EQ(button().hasFocus(), takesFocus);
    }
}

TEST_F(FieldsWithABarTest, PreparingSelectsAllOncePerFocusAndPressesPlaceTheCaret)
{
    DesktopTextBoxes boxes;
    const auto prepares = box_->Click.connect([&] { boxes.Prepare(*box_); });
    QLineEdit& field = line(*box_);
    other_->SetFocus();
    QTest::mouseClick(&field, Qt::LeftButton);
    EXPECT_EQ(field.selectedText(), QStringLiteral("Wasser"));
    QTest::mouseClick(&field, Qt::LeftButton, Qt::NoModifier, QPoint(190, 15));
    EXPECT_EQ(box_->SelLength(), 0);
    EXPECT_EQ(box_->SelStart(), 6);
    other_->SetFocus();
    boxes.Prepare(*box_);
    EXPECT_EQ(field.selectedText(), QStringLiteral("Wasser"));
}

TEST_F(FieldsWithABarTest, KeysForAFormGoThereAndNowhereElse)
{
    const auto front = std::make_shared<Form>(u"frm_Front");
    const auto inFront = front->add<TextBox>(u"txt_Front");
    inFront->Move(0, 0, 1500, 300);
    front->Show();
    SendKeys(u"H2", form_);
    SendKeys(u"x", front);
    drain();
    EXPECT_EQ(box_->Text(), u"WaH2r");
    EXPECT_EQ(inFront->Text(), u"x");
    const auto closes = inFront->KeyPress.connect([&](KeyPressEvent&) { front->Hide(); });
    SendKeys(u"yz", front);
    drain();
    EXPECT_EQ(inFront->Text(), u"x") << "the form has gone";
    SendKeys(u"x", front);
    front->discard();
    drain();
    EXPECT_EQ(box_->Text(), u"WaH2r");
}

TEST_F(FieldsWithABarTest, WhatIsBeingComposedGoesInBeforeTheKeys)
{
    QInputMethodEvent composing(QStringLiteral("^"), {});
    QApplication::sendEvent(&line(*box_), &composing);
    SendKeys(u"2", form_);
    drain();
    EXPECT_EQ(box_->Text(), u"Wa^2r");
    SendKeys(u"3", form_);
    drain();
    EXPECT_EQ(box_->Text(), u"Wa^23r") << "it goes in once";
}

TEST_F(FieldsWithABarTest, AFieldOfSeveralLinesGivesReturnToTheDefaultControlWhereItSaysSo)
{
    const auto page = form_->add<TextBox>(u"txt_Lines");
    page->MultiLine(true);
    page->AcceptsReturn(false);
    page->Move(0, 150, 200, 100);
    page->SetFocus();
    const auto enter = form_->add<ctl_Button>(u"but_Enter");
    int clicks = 0;
    const auto clicked = enter->CLICK.connect([&] { ++clicks; });
    auto& editor = *widgetOf(*page).findChild<QPlainTextEdit*>();
    QTest::keyClicks(&editor, QStringLiteral("a"));
    QTest::keyClick(&editor, Qt::Key_Return);
    form_->DefaultControl(enter);
    QTest::keyClick(&editor, Qt::Key_Return);
    QTest::keyClick(&editor, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClicks(&editor, QStringLiteral("b"));
    EXPECT_EQ(page->Text(), u"a\r\n\r\nb");
    EXPECT_EQ(clicks, 1);
    page->Locked(true);
    QTest::keyClick(&editor, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(page->Text(), u"a\r\n\r\nb");
}

} // namespace
