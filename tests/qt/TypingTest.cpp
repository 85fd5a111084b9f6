#include "DesktopSession.h"
#include "qt/desktop/InputCodes.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"

#include <QLineEdit>
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

} // namespace
