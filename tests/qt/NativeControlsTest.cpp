#include "DesktopSession.h"
#include "core/Palette.h"
#include "qt/desktop/DesktopColours.h"
#include "visual/ComboBox.h"
#include "visual/ListBox.h"
#include "visual/ListView.h"
#include "visual/RichTextBox.h"
#include "visual/ScrollBar.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include <vector>

using namespace phial;
using namespace phial::qt;

namespace
{

class NativeControlsTest : public DesktopSession
{
protected:
    NativeControlsTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({400, 300});
    }

    template <typename Class>
    std::shared_ptr<Class> shown(StringView name)
    {
        auto control = form_->add<Class>(name);
        control->Move(10, 10, 200, 120);
        form_->Show();
        return control;
    }

    template <typename Widget>
    static Widget& inner(const Control& control)
    {
        if (auto* self = qobject_cast<Widget*>(&widgetOf(control))) {
            return *self;
        }
        return *widgetOf(control).findChild<Widget*>();
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

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

TEST_F(NativeControlsTest, ChoosingALineIsToldOnceAndAgainWhenItIsPressedAgain)
{
    const auto list = shown<ListBox>(u"lst_Names");
    list->AddItem(u"Anna");
    list->AddItem(u"Ben");
    int clicks = 0;
    const auto connection = list->Click.connect([&] { ++clicks; });
    auto& widget = inner<QListWidget>(*list);
    const QPoint second = widget.visualItemRect(widget.item(1)).center();
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, second);
    EXPECT_EQ(list->ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, second);
    EXPECT_EQ(clicks, 2);
    list->ListIndex(0);
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(widget.currentRow(), 0);
}

TEST_F(NativeControlsTest, ALineThatAHandlerChoosesInsteadIsTheOneThatIsMarked)
{
    const auto list = shown<ListBox>(u"lst_Names");
    list->AddItem(u"KLASSE");
    list->AddItem(u"Anna");
    list->AddItem(u"Ben");
    list->ListIndex(2);
    const auto connection = list->Click.connect([&] { list->ListIndex(std::max(list->ListIndex(), 1)); });
    auto& widget = inner<QListWidget>(*list);
    for (int press = 0; press < 2; ++press) {
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier,
                          widget.visualItemRect(widget.item(0)).center());
        EXPECT_EQ(list->ListIndex(), 1);
        EXPECT_EQ(widget.currentRow(), 1);
        EXPECT_EQ(widget.selectedItems(), QList<QListWidgetItem*>{widget.item(1)});
    }
}

TEST_F(NativeControlsTest, ALineThatAHandlerChoosesInsteadOfAKeysLineIsTheOneThatIsMarked)
{
    const auto list = shown<ListBox>(u"lst_Names");
    list->AddItem(u"Anna");
    list->AddItem(u"KLASSE");
    list->AddItem(u"Ben");
    list->ListIndex(0);
    const auto connection = list->Click.connect([&] {
        if (list->ListIndex() == 1) {
            list->ListIndex(2);
        }
    });
    auto& widget = inner<QListWidget>(*list);
    QTest::keyClick(&widget, Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_EQ(list->ListIndex(), 2);
    EXPECT_EQ(widget.currentRow(), 2);
    EXPECT_EQ(widget.selectedItems(), QList<QListWidgetItem*>{widget.item(2)});
}

TEST_F(NativeControlsTest, ArrowKeysChooseInAList)
{
    const auto list = shown<ListBox>(u"lst_Names");
    list->AddItem(u"Anna");
    list->AddItem(u"Ben");
    list->ListIndex(0);
    QTest::keyClick(&inner<QListWidget>(*list), Qt::Key_Down);
    EXPECT_EQ(list->Text(), u"Ben");
}

TEST_F(NativeControlsTest, AListKeepsItsPlaceWhenALineChanges)
{
    const auto list = shown<ListBox>(u"lst_Names");
    for (int line = 0; line < 50; ++line) {
        list->AddItem(u"Anna");
    }
    auto& widget = inner<QListWidget>(*list);
    widget.scrollToItem(widget.item(40));
    const int place = widget.verticalScrollBar()->value();
    ASSERT_GT(place, 0);
    list->List(3, u"Ben");
    EXPECT_EQ(widget.item(3)->text(), QStringLiteral("Ben"));
    EXPECT_EQ(widget.verticalScrollBar()->value(), place);
    list->RemoveItem(0);
    EXPECT_EQ(widget.count(), 49);
    EXPECT_EQ(widget.item(2)->text(), QStringLiteral("Ben"));
}

TEST_F(NativeControlsTest, TheLineOfAComboBoxHasItsFont)
{
    const auto box = shown<ComboBox>(u"cbo_Names");
    box->Font()->Size(15);
    EXPECT_EQ(inner<QComboBox>(*box).lineEdit()->font().pointSizeF(), 15);
}

TEST_F(NativeControlsTest, AComboBoxTakesATypedTextAndAChosenLine)
{
    const auto box = shown<ComboBox>(u"cbo_Names");
    box->AddItem(u"Anna");
    box->AddItem(u"Ben");
    auto& widget = inner<QComboBox>(*box);
    QTest::keyClicks(widget.lineEdit(), QStringLiteral("Cem"));
    EXPECT_EQ(box->Text(), u"Cem");
    widget.setCurrentIndex(1);
    Q_EMIT widget.activated(1);
    EXPECT_EQ(box->ListIndex(), 1);
    EXPECT_EQ(box->Text(), u"Ben");
}

TEST_F(NativeControlsTest, AScrollBarMovesTheModel)
{
    const auto bar = shown<ScrollBar>(u"scr_Volume");
    bar->Min(0);
    bar->Max(10);
    int changes = 0;
    const auto connection = bar->Change.connect([&] { ++changes; });
    QTest::keyClick(&inner<QScrollBar>(*bar), Qt::Key_Down);
    EXPECT_EQ(bar->Value(), 1);
    EXPECT_EQ(changes, 1);
    bar->Value(7);
    EXPECT_EQ(inner<QScrollBar>(*bar).value(), 7);
    EXPECT_EQ(changes, 2);
}

TEST_F(NativeControlsTest, ARangeThatRunsDownwardIsShownTurnedRound)
{
    const auto bar = shown<ScrollBar>(u"scr_Volume");
    bar->Min(100);
    bar->Max(0);
    bar->Value(100);
    EXPECT_EQ(inner<QScrollBar>(*bar).value(), 0);
    QTest::keyClick(&inner<QScrollBar>(*bar), Qt::Key_Down);
    EXPECT_EQ(bar->Value(), 99);
}

TEST_F(NativeControlsTest, ACommandBarReportsTheKeyOfItsButton)
{
    const auto bar = shown<ctl_CmdBar>(u"bar_Commands");
    bar->BUTTONS()->Add(u"DIALOG.OK();", u"OK");
    bar->BUTTONS()->Add(u"DIALOG.CANCEL();", u"Abbrechen");
    std::vector<String> keys;
    const auto connection =
        bar->BUTTON.connect([&](std::int32_t, const String& key) { keys.push_back(key); });
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // buttons of the bar's earlier states
    const auto buttons = widgetOf(*bar).findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 2);
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    buttons[0]->setFocus();
    QTest::keyClick(buttons[0], Qt::Key_Return);
    QTest::keyClick(buttons[0], Qt::Key_Right);
    EXPECT_EQ(widgetOf(*form_).focusWidget(), buttons[1]);
    EXPECT_EQ(keys, (std::vector<String>{u"DIALOG.CANCEL();", u"DIALOG.OK();"}));
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

TEST_F(NativeControlsTest, AnAmpersandInATextIsShownAsItStands)
{
    const auto button = shown<ctl_Button>(u"but_Level");
    button->Caption(u"Säuren & Basen");
    auto* widget = qobject_cast<QPushButton*>(&widgetOf(*button));
    ASSERT_TRUE(widget);
    EXPECT_EQ(widget->text(), QStringLiteral("Säuren && Basen")); // two of them are one that is shown
    EXPECT_TRUE(widget->shortcut().isEmpty());
}

TEST_F(NativeControlsTest, TheFocusOfACommandBarBeginsWithTheDefaultButton)
{
    const auto bar = shown<ctl_CmdBar>(u"bar_Commands");
    const auto reset = bar->BUTTONS()->Add(u"DIALOG.RESET();", u"Reset");
    const auto confirm = bar->BUTTONS()->Add(u"DIALOG.OK();", u"OK");
    const QWidget& widget = widgetOf(*bar);
    const auto first = [&widget] { return dynamic_cast<QPushButton*>(widget.focusProxy())->text(); };
    EXPECT_EQ(first(), QStringLiteral("Reset"));
    confirm->Default(true);
    EXPECT_EQ(first(), QStringLiteral("OK"));
    confirm->Enabled(false);
    EXPECT_EQ(first(), QStringLiteral("Reset"));
    confirm->Default(false);
    confirm->Enabled(true);
    reset->Enabled(false);
    EXPECT_EQ(first(), QStringLiteral("OK"));
    confirm->Visible(false);
    EXPECT_EQ(widget.focusProxy(), nullptr);
}

TEST_F(NativeControlsTest, AHighCommandBarHasButtonsForFingersAsFarAsThereIsRoom)
{
    const auto bar = shown<ctl_CmdBar>(u"bar_Commands");
    const auto narrowest = [&] {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
        int width = widgetOf(*bar).width();
        for (const auto* button : widgetOf(*bar).findChildren<QPushButton*>()) {
            width = std::min(width, button->width());
        }
        return width;
    };
    bar->Move(0, 0, 400, 30);
    bar->BUTTONS()->Add(u"DIALOG.OK();", u"OK");
    EXPECT_LT(narrowest(), 60);
    bar->Move(0, 0, 400, 72);
    EXPECT_EQ(narrowest(), 120);
    for (int more = 0; more < 4; ++more) {
        bar->BUTTONS()->Add(u"DIALOG.MORE();", u"+");
    }
    EXPECT_GE(narrowest(), 60);
    const auto buttons = widgetOf(*bar).findChildren<QPushButton*>();
    for (const auto* button : buttons) {
        EXPECT_TRUE(widgetOf(*bar).rect().contains(button->geometry()));
    }
}

TEST_F(NativeControlsTest, PanelsOfACommandBarStandAtItsLeft)
{
    const auto bar = shown<ctl_CmdBar>(u"bar_Commands");
    bar->Move(0, 0, 400, 40);
    bar->PANELS()->Add(u"", u"Zeile 3")->ToolTipText(u"Wo der Cursor steht");
    const auto second = bar->PANELS()->Add(u"", u"Spalte 14");
    bar->BUTTONS()->Add(u"DIALOG.OK();", u"OK");
    QApplication::processEvents();
    const auto labels = widgetOf(*bar).findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels[0]->text(), QStringLiteral("Zeile 3"));
    EXPECT_EQ(labels[0]->toolTip(), QStringLiteral("Wo der Cursor steht"));
    EXPECT_LT(labels[0]->geometry().right(), labels[1]->geometry().left());
    EXPECT_LT(labels[1]->geometry().right(), widgetOf(*bar).findChildren<QPushButton*>().last()->x());
    second->Text(u"Spalte 15");
    EXPECT_EQ(labels[1]->text(), QStringLiteral("Spalte 15"));
    bar->PANELS()->RemoveAt(2);
    EXPECT_EQ(widgetOf(*bar).findChildren<QLabel*>().size(), 1);
}

TEST_F(NativeControlsTest, AListWithColumnsFollowsItsModelAndTheUser)
{
    const auto list = shown<ListView>(u"lst_Elements");
    list->Move(0, 0, 400, 200);
    list->COLUMNHEADERS()->Add(u"Element", 0);
    const auto mass = list->COLUMNHEADERS()->Add(u"Masse", 100);
    mass->Alignment(Alignment::Right);
    for (const StringView name : {u"Wasserstoff", u"Helium"}) {
        list->ITEMS()->Add(String(name))->Cell(2, u"1");
    }
    auto& widget = static_cast<QTreeWidget&>(widgetOf(*list));
    EXPECT_EQ(widget.headerItem()->text(1), QStringLiteral("Masse"));
    EXPECT_EQ(widget.columnWidth(1), 100);
    ASSERT_EQ(widget.topLevelItemCount(), 2);
    EXPECT_EQ(widget.topLevelItem(0)->text(0), QStringLiteral("Wasserstoff"));
    EXPECT_EQ(widget.topLevelItem(0)->text(1), QStringLiteral("1"));
    EXPECT_TRUE(widget.topLevelItem(0)->textAlignment(1) & Qt::AlignRight);

    int clicks = 0;
    std::vector<std::int32_t> columns;
    Connections connections;
    connections += list->Click.connect([&clicks] { ++clicks; });
    connections += list->ColumnClick.connect([&](std::int32_t column) { columns.push_back(column); });
    list->ListIndex(2);
    EXPECT_EQ(widget.currentItem(), widget.topLevelItem(1));
    QTest::keyClick(&widget, Qt::Key_Up);
    EXPECT_EQ(list->ListIndex(), 1);
    EXPECT_EQ(clicks, 2);
    Q_EMIT widget.header()->sectionClicked(1);
    EXPECT_EQ(columns, (std::vector<std::int32_t>{2}));
    list->ITEMS()->RemoveAt(1);
    EXPECT_EQ(widget.topLevelItemCount(), 1);
    EXPECT_EQ(widget.topLevelItem(0)->text(0), QStringLiteral("Helium"));
    EXPECT_EQ(list->ListIndex(), 0);
    EXPECT_EQ(widget.currentItem(), nullptr);
}

TEST_F(NativeControlsTest, AShortTitleStandsWhereTheColumnHasNoRoom)
{
    const auto list = shown<ListView>(u"lst_Elements");
    list->Move(0, 0, 400, 200);
    const auto column = list->COLUMNHEADERS()->Add(u"Element", 300);
    list->ITEMS()->Add(u"Wasserstoff")->TitleShort(u"H");
    const auto shownTitle = [&] {
        return static_cast<QTreeWidget&>(widgetOf(*list)).topLevelItem(0)->text(0);
    };
    EXPECT_EQ(shownTitle(), QStringLiteral("Wasserstoff"));
    column->Width(40);
    EXPECT_EQ(shownTitle(), QStringLiteral("H"));
    column->Width(300);
    EXPECT_EQ(shownTitle(), QStringLiteral("Wasserstoff"));
}

TEST_F(NativeControlsTest, RowsOfAListViewShowTheirColourAndCanBeTouched)
{
    const auto list = shown<ListView>(u"lst_Elements");
    list->Move(0, 0, 400, 200);
    list->COLUMNHEADERS()->Add(u"Element", 0);
    list->ITEMS()->Add(u"Helium");
    list->ITEMS()->Add(u"Neon")->ForeColor(RGB(0, 128, 0));
    auto& widget = static_cast<QTreeWidget&>(widgetOf(*list));
    EXPECT_EQ(widget.topLevelItem(0)->foreground(0), QBrush());
    EXPECT_EQ(widget.topLevelItem(1)->foreground(0).color(), QColor(0, 128, 0));
    EXPECT_GE(widget.visualItemRect(widget.topLevelItem(1)).height(), 36);
    list->ITEMS()->Item(2)->ForeColor(SystemColour::WindowText);
    EXPECT_EQ(widget.topLevelItem(1)->foreground(0), QBrush());
}

TEST_F(NativeControlsTest, DisabledAndHiddenFollowTheModel)
{
    const auto field = shown<TextBox>(u"txt_Input");
    field->Enabled(false);
    EXPECT_FALSE(widgetOf(*field).isEnabled());
    field->Visible(false);
    EXPECT_FALSE(widgetOf(*field).isVisible());
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

TEST_F(NativeControlsTest, WhatWasEditedCanBeUndoneInAFieldOfOtherLines)
{
    for (const bool several : {true, false}) {
        const auto box = shown<TextBox>(several ? u"txt_Page" : u"txt_Line");
        box->MultiLine(!several);
        box->Text(u"x");
        QTest::keyClicks(widgetOf(*box).focusProxy(), "abc");
        box->SelStart(1);
        box->SelLength(1);
        box->SelText(u"yz");
        box->MultiLine(several);
        EXPECT_EQ(box->Text(), u"ayzcx");
        EXPECT_EQ(box->SelStart(), 3);
        const auto after = [&](Qt::Key key) {
            QTest::keyClick(widgetOf(*box).focusProxy(), key, Qt::ControlModifier);
            return box->Text();
        };
        EXPECT_EQ(after(Qt::Key_Z), u"abcx") << several;
        EXPECT_EQ(after(Qt::Key_Z), u"x");
        EXPECT_EQ(after(Qt::Key_Z), u"x") << "what the program has set stays";
        EXPECT_EQ(after(Qt::Key_Y), u"abcx");
    }
}

TEST_F(NativeControlsTest, AFieldOfHiddenSignsCanBecomeAPage)
{
    const auto box = shown<TextBox>(u"txt_Input");
    box->PasswordChar(u"*");
    QTest::keyClicks(widgetOf(*box).focusProxy(), "abc");
    box->MultiLine(true);
    EXPECT_EQ(box->Text(), u"abc");
}

TEST_F(NativeControlsTest, LineEndsOfAnyKindAreEditedOnAPage)
{
    const auto box = shown<TextBox>(u"txt_Input");
    box->MultiLine(true);
    box->Text(u"a\nb");
    QTest::keyClicks(widgetOf(*box).focusProxy(), "x");
    box->SelStart(2);
    box->SelText(u"y");
    EXPECT_EQ(inner<QPlainTextEdit>(*box).toPlainText(), QStringLiteral("xay\nb"));
    QTest::keyClick(widgetOf(*box).focusProxy(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box->Text(), u"xa\r\nb");
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

} // namespace
