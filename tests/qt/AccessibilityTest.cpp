#include "Board.h"
#include "DesktopSession.h"
#include "core/Locale.h"
#include "qt/desktop/AccessibleChanges.h"
#include "qt/desktop/ControlWidgetAccessible.h"
#include "support/PaintedField.h"
#include "visual/TextBox.h"
#include "visual/ctl_Title.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>

#include <vector>

using namespace phial;
using namespace phial::qt;
using phial::test::PaintedField;

namespace
{

class AccessibilityTest : public DesktopSession
{
protected:
    AccessibilityTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 200});
        form_->Show();
    }
    ~AccessibilityTest() override { form_->discard(); }

    template <typename Class>
    std::shared_ptr<Class> added(StringView name)
    {
        auto control = form_->add<Class>(name);
        control->Move(10, 10, 200, 100);
        return control;
    }
    std::shared_ptr<Board> board()
    {
        auto made = std::make_shared<Board>();
        made->frame().NAME(u"ctl_Board1");
        made->add(u"Wasserstoff", 1, 1);
        made->add(u"Helium", 1, 3);
        made->add(u"Lithium", 2, 1);
        form_->add(ControlPtr(made));
        made->Move(10, 10, 200, 100);
        return made;
    }
    static QAccessibleInterface& read(const Control& control)
    {
        return *QAccessible::queryAccessibleInterface(&widgetOf(control));
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

TEST_F(AccessibilityTest, APictureCanBeAKey)
{
    const auto key = added<PictureBox>(u"pic_Key");
    EXPECT_EQ(read(*key).role(), QAccessible::Graphic);
    key->frame().AccessibleRole(PartRole::Button);
    key->frame().AccessibleName(u"Umschalttaste");
    key->frame().AccessibleState({.pressed = true, .checkable = true});
    QAccessibleInterface& whole = read(*key);
    EXPECT_EQ(whole.role(), QAccessible::PushButton);
    EXPECT_EQ(whole.text(QAccessible::Name), QStringLiteral("Umschalttaste"));
    EXPECT_TRUE(whole.state().pressed);
    EXPECT_TRUE(whole.state().checkable);
    EXPECT_FALSE(whole.state().checked);
    key->frame().AccessibleState({.checkable = true, .checked = true});
    EXPECT_TRUE(whole.state().checked);
    EXPECT_FALSE(whole.state().pressed);
}

TEST_F(AccessibilityTest, SuchAKeyIsPressedAsByHand)
{
    const auto key = added<PictureBox>(u"pic_Key");
    std::vector<std::string> heard;
    Connections connections;
    connections += key->MouseDown.connect([&](const PointerEvent& event) {
        heard.push_back("down " + std::to_string(static_cast<int>(event.X)));
    });
    connections += key->MouseUp.connect([&](const PointerEvent&) { heard.push_back("up"); });
    connections += key->Click.connect([&] { heard.push_back("click"); });
    const QString press = QAccessibleActionInterface::pressAction();
    EXPECT_FALSE(read(*key).actionInterface()->actionNames().contains(press));
    read(*key).actionInterface()->doAction(press);
    EXPECT_TRUE(heard.empty());
    key->frame().AccessibleRole(PartRole::Button);
    EXPECT_TRUE(read(*key).actionInterface()->actionNames().contains(press));
    read(*key).actionInterface()->doAction(press);
    EXPECT_EQ(heard, (std::vector<std::string>{"down 100", "up", "click"}));
    key->Enabled(false);
    read(*key).actionInterface()->doAction(press);
    EXPECT_EQ(heard.size(), 3U);
}

TEST_F(AccessibilityTest, AHandlerOfItMayCloseTheForm)
{
    const auto key = added<PictureBox>(u"pic_Key");
    key->frame().AccessibleRole(PartRole::Button);
    bool clicked = false;
    Connections connections;
    connections += key->MouseDown.connect([this](const PointerEvent&) { form_->Unload(); });
    connections += key->Click.connect([&] { clicked = true; });
    read(*key).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(form_->Visible());
    EXPECT_FALSE(clicked);
}

TEST_F(AccessibilityTest, NothingIsPressedThatAPersonCouldNotPress)
{
    const auto control = board();
    const auto key = added<PictureBox>(u"pic_Key");
    key->frame().AccessibleRole(PartRole::Button);
    int clicks = 0;
    const auto connection = key->Click.connect([&] { ++clicks; });
    const auto press = [&] {
        read(*control).child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        read(*key).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        return control->activated.size() + static_cast<std::size_t>(clicks);
    };
    EXPECT_EQ(press(), 2U);
    control->Enabled(false);
    key->Enabled(false);
    EXPECT_EQ(press(), 2U);
    control->Enabled(true);
    key->Enabled(true);
    const auto dialog = std::make_shared<Form>(u"frm_Dialog");
    QMetaObject::invokeMethod(
        &widgetOf(*form_),
        [&] {
            EXPECT_EQ(press(), 2U) << "a dialog stands before it";
            dialog->Unload();
        },
        Qt::QueuedConnection);
    dialog->Show(FormShow::Modal);
    EXPECT_EQ(press(), 4U);
}

TEST_F(AccessibilityTest, DecorationIsPassedOver)
{
    const auto face = added<PictureBox>(u"pic_Face");
    EXPECT_FALSE(read(*face).state().invisible);
    face->frame().AccessibleRole(PartRole::Decoration);
    EXPECT_TRUE(read(*face).state().invisible);
}

TEST_F(AccessibilityTest, ATableHasRowsAndColumns)
{
    const auto control = board();
    QAccessibleInterface& whole = read(*control);
    EXPECT_EQ(whole.role(), QAccessible::Table);
    QAccessibleTableInterface* table = whole.tableInterface();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->rowCount(), 2);
    EXPECT_EQ(table->columnCount(), 3);
    EXPECT_EQ(table->cellAt(0, 2), whole.child(1));
    EXPECT_EQ(table->cellAt(1, 0), whole.child(2));
    EXPECT_EQ(table->cellAt(1, 1), nullptr);
    QAccessibleTableCellInterface* helium = whole.child(1)->tableCellInterface();
    ASSERT_TRUE(helium);
    EXPECT_EQ(helium->rowIndex(), 0);
    EXPECT_EQ(helium->columnIndex(), 2);
    EXPECT_EQ(helium->table(), &whole);
    EXPECT_EQ(whole.child(1)->role(), QAccessible::Cell);
    EXPECT_EQ(table->selectedCellCount(), 0);
    whole.child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(control->activated, (std::vector<std::size_t>{1}));
}

TEST_F(AccessibilityTest, AChosenCellIsSelected)
{
    const auto control = board();
    control->shown[2].state = {.checkable = true, .checked = true};
    QAccessibleInterface& whole = read(*control);
    EXPECT_TRUE(whole.child(2)->state().selected);
    EXPECT_TRUE(whole.child(2)->tableCellInterface()->isSelected());
    EXPECT_FALSE(whole.child(1)->tableCellInterface()->isSelected());
    EXPECT_EQ(whole.tableInterface()->selectedCells(), (QList<QAccessibleInterface*>{whole.child(2)}));
}

TEST_F(AccessibilityTest, OnlyATableIsOne)
{
    const auto title = added<ctl_Title>(u"bar_Title");
    EXPECT_FALSE(read(*title).tableInterface());
    ASSERT_GT(read(*title).childCount(), 0);
    EXPECT_FALSE(read(*title).child(0)->tableCellInterface());
    EXPECT_FALSE(read(*title).textInterface());
}

TEST_F(AccessibilityTest, PartsAreAskedForOnceAChange)
{
    const auto control = board();
    QAccessibleInterface& whole = read(*control);
    const int before = control->asked;
    for (int time = 0; time < 10; ++time) {
        for (int part = 0; part < whole.childCount(); ++part) {
            EXPECT_FALSE(whole.child(part)->text(QAccessible::Name).isEmpty());
            whole.child(part)->rect();
        }
    }
    EXPECT_LE(control->asked - before, 1);
    control->shown[0].name = u"H";
    control->tell();
    EXPECT_EQ(whole.child(0)->text(QAccessible::Name), QStringLiteral("H"));
    control->shown[0].name = u"D";
    control->surface().invalidate(); // painted anew
    EXPECT_EQ(whole.child(0)->text(QAccessible::Name), QStringLiteral("D"));
    control->Move(10, 10, 100, 100);
    control->shown[0].name = u"T";
    control->Move(10, 10, 90, 100);
    EXPECT_EQ(whole.child(0)->text(QAccessible::Name), QStringLiteral("T"));
}

TEST_F(AccessibilityTest, APartIsNamedInTheLanguageInForce)
{
    const auto title = added<ctl_Title>(u"bar_Title");
    EXPECT_EQ(read(*title).child(0)->text(QAccessible::Name), QStringLiteral("Schließen"));
    Locale english;
    english.language = LanguageEnglish;
    const LocaleBinding inForce(english);
    EXPECT_EQ(read(*title).child(0)->text(QAccessible::Name), QStringLiteral("Close"));
}

TEST_F(AccessibilityTest, ATextThatIsTypedIntoHasItsCaret)
{
    const auto box = added<PictureBox>(u"pic_Input");
    PaintedField field(box);
    box->SetFocus();
    QTest::keyClicks(&widgetOf(*box), QStringLiteral("NaCl"));
    QTest::keyClick(&widgetOf(*box), Qt::Key_Left);
    QAccessibleInterface& whole = read(*box);
    EXPECT_EQ(whole.role(), QAccessible::EditableText);
    EXPECT_TRUE(whole.state().editable);
    EXPECT_FALSE(whole.state().readOnly);
    EXPECT_EQ(whole.text(QAccessible::Value), QStringLiteral("NaCl"));
    QAccessibleTextInterface* text = whole.textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->characterCount(), 4);
    EXPECT_EQ(text->cursorPosition(), 3);
    EXPECT_EQ(text->text(1, 3), QStringLiteral("aC"));
    EXPECT_EQ(text->selectionCount(), 0);
    EXPECT_EQ(text->characterRect(3), QRect(widgetOf(*box).mapToGlobal(QPoint(30, 2)), QSize(1, 16)));
    EXPECT_EQ(text->characterRect(1), QRect());
    int start = -1;
    int end = -1;
    EXPECT_EQ(text->attributes(2, &start, &end), QString());
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 4);
    field.locked(true);
    EXPECT_TRUE(whole.state().readOnly);
    EXPECT_FALSE(whole.state().editable);
}

TEST_F(AccessibilityTest, AnAnnouncementIsANotificationWithThatName)
{
    added<PictureBox>(u"ctl_Bubble1")->frame().announce(u"Gut gemacht!");
    QApplication::processEvents();
    const QAccessibleInterface& notification = announcement();
    EXPECT_TRUE(notification.isValid());
    EXPECT_EQ(notification.role(), QAccessible::Notification);
    EXPECT_FALSE(notification.state().invisible);
    EXPECT_EQ(notification.text(QAccessible::Name), QStringLiteral("Gut gemacht!"));
    EXPECT_EQ(notification.parent()->object(), &widgetOf(*form_));
    added<TextBox>(u"txt_Display")->frame().announce(u"18,015");
    QApplication::processEvents();
    EXPECT_EQ(notification.text(QAccessible::Name), QStringLiteral("18,015"));
    form_->control<TextBox>(u"txt_Display")->frame().announce(u"");
    QApplication::processEvents();
    EXPECT_EQ(notification.text(QAccessible::Name), QStringLiteral("18,015")) << "nothing to say";
}

/// What the notification says after a turn of the event loop.
QString notifiedBehindTheTurn()
{
    QApplication::processEvents();
    return announcement().text(QAccessible::Name);
}

TEST_F(AccessibilityTest, WhatIsAnnouncedInOneTurnIsOneNotification)
{
    const auto page = added<TextBox>(u"txt_Page");
    const auto mascot = added<PictureBox>(u"pic_Mascot");
    page->frame().announce(u"Richtig!");
    mascot->frame().announce(u"Drei in Folge.");
    mascot->frame().announce(u"Richtig!");
    EXPECT_EQ(notifiedBehindTheTurn(), QStringLiteral("Richtig!\nDrei in Folge."))
        << "neither cuts the other off, and the same is said once";
    page->frame().announce(u"Weiter");
    EXPECT_EQ(notifiedBehindTheTurn(), QStringLiteral("Weiter"));
}

TEST_F(AccessibilityTest, AnotherWindowHasANotificationOfItsOwn)
{
    const auto other = std::make_shared<Form>(u"frm_Other");
    const auto field = other->add<TextBox>(u"txt_Other");
    other->Show();
    added<TextBox>(u"txt_Page")->frame().announce(u"Richtig!");
    field->frame().announce(u"Platz 1");
    EXPECT_EQ(announcement().text(QAccessible::Name), QStringLiteral("Richtig!"));
    EXPECT_EQ(announcement().parent()->object(), &widgetOf(*form_));
    EXPECT_EQ(notifiedBehindTheTurn(), QStringLiteral("Platz 1"));
    EXPECT_EQ(announcement().parent()->object(), &widgetOf(*other));
    other->discard();
}

TEST_F(AccessibilityTest, PartsThatComeOrGoAreReadAnew)
{
    const auto control = board();
    QAccessibleInterface& whole = read(*control);
    EXPECT_EQ(whole.childCount(), 3);
    control->add(u"Beryllium", 2, 2);
    control->tell();
    EXPECT_EQ(whole.childCount(), 4);
    EXPECT_EQ(whole.child(3)->text(QAccessible::Name), QStringLiteral("Beryllium"));
}

TEST(AccessibleChanges, TellsOfEachPartWhatDiffers)
{
    std::vector<NamedPart> before(3);
    before[0].name = u"q";
    before[1].name = u"Strg";
    before[2].name = u"w";
    std::vector<NamedPart> now = before;
    EXPECT_TRUE(changesOf(before, now).empty());
    now[0].name = u"Q";
    now[1].state = {.pressed = true};
    now[2].name = u"W";
    now[2].area.left = 5;
    now[2].role = PartRole::Cell; // nobody is told of that
    const auto changes = changesOf(before, now);
    ASSERT_EQ(changes.size(), 4U);
    EXPECT_EQ(changes[0].part, 0U);
    EXPECT_EQ(changes[0].type, QAccessible::NameChanged);
    EXPECT_EQ(changes[1].part, 1U);
    EXPECT_EQ(changes[1].type, QAccessible::StateChanged);
    EXPECT_TRUE(changes[1].state.pressed);
    EXPECT_FALSE(changes[1].state.checked);
    EXPECT_EQ(changes[2].type, QAccessible::NameChanged);
    EXPECT_EQ(changes[3].part, 2U);
    EXPECT_EQ(changes[3].type, QAccessible::LocationChanged);
}

TEST(AccessibleChanges, OfStatesThoseAreToldThatDiffer)
{
    const PartState locked{.checkable = true, .checked = true};
    const QAccessible::State changed = differenceOf({.pressed = true, .checkable = true}, locked);
    EXPECT_TRUE(changed.pressed);
    EXPECT_TRUE(changed.checked);
    EXPECT_FALSE(changed.checkable);
}

TEST(AccessibleChanges, ATextChangesWhereItDiffers)
{
    const auto told = [](const QString& before, const QString& now) {
        const TextChange change = changeOf(before, now);
        return QStringLiteral("%1-%2+%3").arg(change.place).arg(change.removed, change.inserted);
    };
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    EXPECT_EQ(told(text(""), text("O")), text("0-+O"));
    EXPECT_EQ(told(text("O"), text("OO")), text("1-+O"));
    EXPECT_EQ(told(text("OO"), text("OHO")), text("1-+H"));
    EXPECT_EQ(told(text("OHO"), text("OO")), text("1-H+"));
    EXPECT_EQ(told(text("NaCl"), text("NaBr")), text("2-Cl+Br"));
    EXPECT_EQ(told(text("H2"), text("")), text("0-H2+"));
    EXPECT_TRUE(changeOf(text("H2"), text("H2")).isNone());
}

} // namespace
