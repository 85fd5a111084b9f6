#include "NativeControlsTest.h"
#include "core/Palette.h"
#include "qt/desktop/DesktopColours.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include <vector>

namespace phial::qt
{

TEST_F(NativeControlsTest, TypingReachesTheModelAndChangesOncePerKey)
{
    const auto field = shown<TextBox>(u"txt_Input");
    std::vector<String> texts;
    const auto connection = field->Change.connect([&] { texts.push_back(field->Text()); });
    QTest::keyClicks(&inner<QLineEdit>(*field), QStringLiteral("H2"));
    EXPECT_EQ(texts, (std::vector<String>{u"H", u"H2"}));
    EXPECT_EQ(field->SelStart(), 2);
}

TEST_F(NativeControlsTest, SettingTheModelRaisesNoEcho)
{
    const auto field = shown<TextBox>(u"txt_Input");
    int changes = 0;
    const auto connection = field->Change.connect([&] { ++changes; });
    field->Text(u"Wasser");
    QApplication::processEvents();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(inner<QLineEdit>(*field).text(), QStringLiteral("Wasser"));
    field->SelStart(2);
    field->SelLength(3);
    EXPECT_EQ(inner<QLineEdit>(*field).selectedText(), QStringLiteral("sse"));
    EXPECT_EQ(field->SelText(), u"sse");
}

TEST_F(NativeControlsTest, AHandlerMayCorrectWhatIsTyped)
{
    const auto field = shown<TextBox>(u"txt_Input");
    const auto connection = field->Change.connect([&] {
        if (field->Text() == u"h") {
            field->Text(u"H");
            field->SelStart(1);
        }
    });
    QTest::keyClicks(&inner<QLineEdit>(*field), QStringLiteral("h2"));
    EXPECT_EQ(field->Text(), u"H2");
    EXPECT_EQ(inner<QLineEdit>(*field).text(), QStringLiteral("H2"));
}

TEST_F(NativeControlsTest, TypingStopsAtTheLimitButTheProgramDoesNot)
{
    const auto field = shown<TextBox>(u"txt_Input");
    field->MaxLength(2);
    QTest::keyClicks(&inner<QLineEdit>(*field), QStringLiteral("abc"));
    EXPECT_EQ(field->Text(), u"ab");
    field->Text(u"abcdef");
    EXPECT_EQ(inner<QLineEdit>(*field).text(), QStringLiteral("abcdef"));
}

TEST_F(NativeControlsTest, TypingBeyondTheLimitOfAPageLeavesWhatWasTypedBefore)
{
    const auto field = form_->add<TextBox>(u"txt_Lines");
    field->MultiLine(true);
    field->MaxLength(4);
    field->Move(10, 10, 200, 120);
    form_->Show();
    auto& page = inner<QPlainTextEdit>(*field);
    QTest::keyClicks(&page, QStringLiteral("abcdef"));
    EXPECT_EQ(field->Text(), u"abcd");
    EXPECT_EQ(field->SelStart(), 4);
    field->SelStart(1);
    QTest::keyClicks(&page, QStringLiteral("x"));
    EXPECT_EQ(field->Text(), u"abcd");
    page.moveCursor(QTextCursor::End);
    QTest::keyClick(&page, Qt::Key_Backspace);
    page.insertPlainText(QStringLiteral("\nxyz"));
    EXPECT_EQ(field->Text(), u"abc") << "an end of line counts twice and is not cut in half";
    page.insertPlainText(QStringLiteral("uvw"));
    EXPECT_EQ(field->Text(), u"abcu") << "as much of it as fits";
    field->Text(u"abcdef");
    QTest::keyClicks(&page, QStringLiteral("g"));
    EXPECT_EQ(field->Text(), u"abcdef") << "the program may set more";
}

TEST_F(NativeControlsTest, AFieldOfManyLinesPartsThemByCrLf)
{
    const auto field = form_->add<TextBox>(u"txt_Lines");
    field->MultiLine(true);
    field->Move(10, 10, 200, 120);
    form_->Show();
    auto& page = inner<QPlainTextEdit>(*field);
    QTest::keyClicks(&page, QStringLiteral("a"));
    QTest::keyClick(&page, Qt::Key_Return);
    QTest::keyClicks(&page, QStringLiteral("b"));
    EXPECT_EQ(field->Text(), u"a\r\nb");
    EXPECT_EQ(field->SelStart(), 4);
    field->Text(u"x\r\ny");
    EXPECT_EQ(page.toPlainText(), QStringLiteral("x\ny"));
}

TEST_F(NativeControlsTest, AFieldCanBecomeOneOfManyLinesWhileShown)
{
    const auto field = shown<TextBox>(u"txt_Input");
    field->Text(u"abc");
    field->MultiLine(true);
    EXPECT_EQ(inner<QPlainTextEdit>(*field).toPlainText(), QStringLiteral("abc"));
    QTest::keyClicks(&inner<QPlainTextEdit>(*field), QStringLiteral("d"));
    EXPECT_EQ(field->Text(), u"dabc");
}

TEST_F(NativeControlsTest, AFieldThatBecomesOneOfManyLinesKeepsFocusAndSelection)
{
    const auto field = shown<TextBox>(u"txt_Input");
    const auto other = form_->add<TextBox>(u"txt_Other");
    other->Move(10, 200, 200, 30);
    int left = 0;
    const Connection leaving = field->LostFocus.connect([&] { ++left; });
    field->SetFocus();
    field->Text(u"abcd");
    for (const bool many : {true, false}) {
        field->SelStart(1);
        field->SelLength(2);
        field->MultiLine(many);
        EXPECT_EQ(field->SelText(), u"bc") << many;
        EXPECT_EQ(form_->ActiveControl(), field);
        QWidget* focused = widgetOf(*form_).focusWidget();
        ASSERT_NE(focused, nullptr);
        EXPECT_EQ(focused, widgetOf(*field).focusProxy());
        EXPECT_EQ(focused->inherits("QPlainTextEdit"), many);
        QTest::keyClicks(focused, QStringLiteral("xy"));
        EXPECT_EQ(field->Text(), u"axyd");
        field->Text(u"abcd");
    }
    EXPECT_EQ(left, 0);
    other->SetFocus();
    field->MultiLine(true);
    EXPECT_EQ(form_->ActiveControl(), other) << "it takes no focus that it did not have";
    EXPECT_EQ(widgetOf(*form_).focusWidget(), widgetOf(*other).focusProxy());
    QTest::keyClick(widgetOf(*form_).focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(form_->ActiveControl(), field) << "it stands where it stood in the order of Tab";
}

TEST_F(NativeControlsTest, AHandlerMayMakeAPageOfTheFieldInWhichOneTypes)
{
    const auto field = shown<TextBox>(u"txt_Input");
    const Connection typing = field->Change.connect([&] { field->MultiLine(true); });
    QTest::keyClicks(&inner<QLineEdit>(*field), QStringLiteral("a"));
    QTest::keyClicks(&inner<QPlainTextEdit>(*field), QStringLiteral("b"));
    EXPECT_EQ(field->Text(), u"ab");
}

TEST_F(NativeControlsTest, ARichTextBoxGivesItsPlainText)
{
    const auto field = shown<RichTextBox>(u"rtf_Text");
    field->Text(u"Zeile 1\r\nZeile 2");
    auto& page = inner<QPlainTextEdit>(*field);
    page.moveCursor(QTextCursor::End);
    QTest::keyClicks(&page, QStringLiteral("!"));
    EXPECT_EQ(field->Text(), u"Zeile 1\r\nZeile 2!");
}

TEST_F(NativeControlsTest, ALockedFieldTakesNothing)
{
    const auto field = shown<TextBox>(u"txt_Input");
    field->Locked(true);
    QTest::keyClicks(&inner<QLineEdit>(*field), QStringLiteral("abc"));
    EXPECT_EQ(field->Text(), u"");
}

TEST_F(NativeControlsTest, AFieldThatIsSeenTakesAnotherGroundAtOnce)
{
    const auto field = shown<TextBox>(u"txt_Answer");
    const auto ground = [&] {
        const QImage seen = widgetOf(*field).grab().toImage();
        return seen.pixelColor(seen.width() / 2, seen.height() / 2);
    };
    field->BackColor(Palette::Surface);
    EXPECT_EQ(ground(), toQColor(Palette::Surface));
    field->BackColor(Palette::DisabledGround);
    EXPECT_EQ(ground(), toQColor(Palette::DisabledGround));
}

TEST_F(NativeControlsTest, WhatTheProgramEditsInAFieldCanBeUndone)
{
    for (const bool several : {false, true}) {
        const auto box = shown<TextBox>(several ? u"txt_Page" : u"txt_Line");
        box->MultiLine(several);
        QWidget& field = *widgetOf(*box).focusProxy();
        QTest::keyClicks(&field, "abc");
        box->SelStart(1);
        box->SelLength(1);
        box->SelText(u"xyz");
        EXPECT_EQ(box->Text(), u"axyzc");
        EXPECT_EQ(box->SelStart(), 4);
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(box->Text(), u"abc");
        QTest::keyClick(&field, Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(box->Text(), u"axyzc");
    }
}

TEST_F(NativeControlsTest, WhatTheProgramMakesOfAnEntryIsUndoneWithIt)
{
    for (const bool several : {false, true}) {
        const auto box = shown<TextBox>(several ? u"txt_Page" : u"txt_Line");
        box->MultiLine(several);
        const Connection changed = box->Change.connect([&] {
            if (const auto at = box->Text().find(u'#'); at != String::npos) {
                box->SelStart(static_cast<std::int32_t>(at));
                box->SelLength(1);
                box->SelText(u"Nr. ");
            }
        });
        QWidget& field = *widgetOf(*box).focusProxy();
        const auto after = [&](Qt::Key key) {
            QTest::keyClick(&field, key, Qt::ControlModifier);
            return box->Text();
        };
        QTest::keyClicks(&field, "a");
        QGuiApplication::clipboard()->setText(QStringLiteral("#1"));
        EXPECT_EQ(after(Qt::Key_V), u"aNr. 1") << several;
        QTest::keyClicks(&field, "b");
        EXPECT_EQ(after(Qt::Key_Z), u"aNr. 1") << several;
        EXPECT_EQ(after(Qt::Key_Z), u"a") << several;
        EXPECT_EQ(after(Qt::Key_Y), u"aNr. 1") << several;
    }
}

TEST_F(NativeControlsTest, WhatTheProgramSetsInAFieldCannotBeUndone)
{
    for (const bool several : {false, true}) {
        const auto box = shown<TextBox>(several ? u"txt_Page" : u"txt_Line");
        box->MultiLine(several);
        QWidget& field = *widgetOf(*box).focusProxy();
        QTest::keyClicks(&field, "abc");
        box->Text(u"axc");
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(box->Text(), u"axc");
        box->Text({});
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(box->Text(), u"");
    }
}

TEST_F(NativeControlsTest, AFieldShownWithItsCaretInTheTextHasNothingToUndo)
{
    const auto box = form_->add<TextBox>(u"txt_Line");
    box->Text(u"abc");
    box->SelStart(2);
    form_->Show();
    for (const bool several : {false, true, false}) {
        box->MultiLine(several);
        QTest::keyClick(widgetOf(*box).focusProxy(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(box->Text(), u"abc");
        EXPECT_EQ(box->SelStart(), 2);
    }
}

TEST_F(NativeControlsTest, TheLimitOfTypingLeavesWhatTheProgramEdits)
{
    for (const bool several : {false, true}) {
        const auto box = shown<TextBox>(several ? u"txt_Page" : u"txt_Line");
        box->MultiLine(several);
        box->MaxLength(3);
        QWidget& field = *widgetOf(*box).focusProxy();
        QTest::keyClicks(&field, "abc");
        box->SelStart(1);
        box->SelLength(1);
        box->SelText(u"xyz");
        EXPECT_EQ(box->Text(), u"axyzc");
    }
}

} // namespace phial::qt
