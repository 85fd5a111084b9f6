#include "NativeControlsTest.h"

#include "visual/ScrollBar.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <vector>

namespace phial::qt
{

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

TEST_F(NativeControlsTest, DisabledAndHiddenFollowTheModel)
{
    const auto field = shown<TextBox>(u"txt_Input");
    field->Enabled(false);
    EXPECT_FALSE(widgetOf(*field).isEnabled());
    field->Visible(false);
    EXPECT_FALSE(widgetOf(*field).isVisible());
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

} // namespace phial::qt
