#include "NativeControlsTest.h"
#include "visual/ComboBox.h"
#include "visual/ListBox.h"
#include "visual/ListView.h"

#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include <vector>

namespace phial::qt
{

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

TEST_F(NativeControlsTest, ACellIsReadToTheBlindAsItsRowSaysIt)
{
    const auto list = shown<ListView>(u"lst_Groups");
    list->COLUMNHEADERS()->Add(u"Name", 100);
    list->COLUMNHEADERS()->Add(u"Formel", 100);
    const auto row = list->ITEMS()->Add(u"Sulfat");
    row->Cell(2, u"SO₄²⁻");
    row->Spoken(2, u"S O vier, zweifach negativ");
    QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(&inner<QTreeWidget>(*list));
    const auto spokenAt = [&](int column) {
        QCoreApplication::processEvents(); // the toolkit lays its lines out later
        return table->tableInterface()->cellAt(0, column)->text(QAccessible::Name);
    };
    EXPECT_EQ(spokenAt(0), QStringLiteral("Sulfat"));
    EXPECT_EQ(spokenAt(1), QStringLiteral("S O vier, zweifach negativ"));
    row->Spoken(2, u"");
    EXPECT_EQ(spokenAt(1), QStringLiteral("SO₄²⁻"));
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

} // namespace phial::qt
