#include "DesktopSession.h"
#include "app/Session.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElement.h"
#include "core/CoreTheme.h"
#include "core/NativePath.h"
#include "core/Palette.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/ctl_PSE.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/ShotBook.h"
#include "support/Places.h"
#include "visual/ctl_Button.h"

#include <QAccessible>
#include <QFocusFrame>
#include <QPointingDevice>
#include <QTest>
#include <QTouchEvent>

#include <algorithm>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr int CellEdge = 32;

/// The periodic table in a real window, with the elements of the installation.
class PeriodicWindow : public DesktopTest<Session>
{
protected:
    PeriodicWindow()
    {
        LNG()->CURRENT(ID_Language_German);
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({640, 440});
        table_ = form_->add<ctl_PSE>(u"frm_P");
        table_->LOAD(systemPath(test::sourceFolder() / "resources" / "data" / "elements2.dat"));
        connections_ += table_->CLICK.connect([this](const auto& element) { clicked_ += element->SYMBOL(); });
        connections_ += table_->DROPPED.connect([this](std::int32_t slot) { dropped_ = slot; });
    }
    ~PeriodicWindow() override { form_->discard(); }

    ControlWidget& shown()
    {
        if (!form_->Visible()) {
            form_->Show();
            table_->SetFocus();
            QApplication::processEvents();
        }
        return static_cast<ControlWidget&>(widgetOf(*table_));
    }
    void key(Qt::Key key) { QTest::keyClick(&shown(), key); }
    /// Of an element's column and row.
    static QPoint middleOf(int column, int row)
    {
        return {(column + 1) * CellEdge + CellEdge / 2, (row + 2) * CellEdge + CellEdge / 2};
    }
    QString focused()
    {
        QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&shown());
        for (int part = 0; part < whole->childCount(); ++part) {
            if (whole->child(part)->state().focused) {
                return whole->child(part)->text(QAccessible::Name).section(QLatin1Char(','), 0, 0);
            }
        }
        return {};
    }
    QRect ring()
    {
        QApplication::processEvents();
        const auto* frame = shown().window()->findChild<QFocusFrame*>();
        return frame && frame->isVisible() ? frame->geometry() : QRect();
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_PSE> table_;
    Connections connections_;
    String clicked_;
    std::optional<std::int32_t> dropped_;
};

TEST_F(PeriodicWindow, TheFocusIsAtTheElementThatTheKeysReach)
{
    EXPECT_EQ(focused(), QStringLiteral("Wasserstoff"));
    key(Qt::Key_Right);
    EXPECT_EQ(focused(), QStringLiteral("Helium"));
    key(Qt::Key_Down);
    EXPECT_EQ(focused(), QStringLiteral("Neon"));
    QTest::keyClicks(&shown(), QStringLiteral("cl"));
    EXPECT_EQ(focused(), QStringLiteral("Chlor"));
    key(Qt::Key_Return);
    key(Qt::Key_Right);
    key(Qt::Key_Space);
    EXPECT_EQ(clicked_, u"ClAr");
}

TEST_F(PeriodicWindow, TheRingLiesAroundTheCellAndNarrowlyOnItsNeighbours)
{
    table_->Move(8, 4);
    key(Qt::Key_Right);
    const QPoint corner = shown().pos();
    const auto cellAt = [&](int column, int row) {
        return QRect(corner.x() + column * CellEdge, corner.y() + row * CellEdge, CellEdge, CellEdge);
    };
    EXPECT_EQ(ring(), cellAt(18, 2).adjusted(-2, -2, 2, 2));
    QTest::mouseClick(&shown(), Qt::LeftButton, Qt::NoModifier, middleOf(7, 3));
    EXPECT_EQ(ring(), cellAt(8, 5).adjusted(-2, -2, 2, 2));
    for (const ColourSet set : {ColourSet::Light, ColourSet::Dark, ColourSet::HighContrast}) {
        coreTheme().SetColours(set);
        QApplication::processEvents();
        const QImage picture = imageOf(*grabForm(*form_, 1)).copy();
        const QPoint edge(corner.x() + 8 * CellEdge, corner.y() + 5 * CellEdge + CellEdge / 2);
        const int width = set == ColourSet::HighContrast ? 3 : 2;
        EXPECT_NE(picture.pixelColor(edge - QPoint(width + 1, 0)).rgb(), toQColor(Palette::FocusRing).rgb());
        for (int outside = 1; outside <= width; ++outside) {
            EXPECT_EQ(picture.pixelColor(edge - QPoint(outside, 0)).rgb(),
                      toQColor(Palette::FocusRing).rgb());
        }
        EXPECT_EQ(picture.pixelColor(edge).rgb(), toQColor(Palette::FocusGap).rgb());
    }
}

TEST_F(PeriodicWindow, TheRingLeavesAllOfTheCellButItsOutlineToBeRead)
{
    form_->innerSize({1300, 830});
    table_->FIXEDSIZE(true);
    for (const int edge : {20, 32, 64}) {
        table_->Move(0, 0, TableGrid::Columns * (edge + 1), TableGrid::Rows * (edge + 1));
        for (const double scale : {1.0, 2.0}) {
            const ShotBook book(folder().native(), scale);
            const auto insideOfCell = [&] {
                const PixelRectangle cell = table_->currentPartArea().value();
                const QRectF inside(cell.left + 1, cell.top + 1, cell.width - 2, cell.height - 2);
                QApplication::processEvents();
                return imageOf(*grabForm(*form_, scale))
                    .copy(QRectF(inside.topLeft() * scale, inside.size() * scale).toRect());
            };
            shown();
            outside().advance(2); // so that letters spell anew
            QTest::keyClicks(&shown(), QStringLiteral("xe"));
            ASSERT_TRUE(ring().isValid());
            const QImage withRing = insideOfCell();
            shown().window()->findChild<QFocusFrame*>()->hide();
            EXPECT_EQ(withRing, insideOfCell()) << edge << " at " << scale << 'x';
        }
    }
}

TEST_F(PeriodicWindow, TilesAreTakenAndPutDownByKeys)
{
    table_->MODE(enm_PSEMode::ID_PSEMode_Place);
    table_->DRAGADD(u"Cl");
    EXPECT_EQ(focused(), QStringLiteral("Cl"));
    EXPECT_EQ(ring().size(), QSize(CellEdge + 4, CellEdge + 4)) << "around the tile";
    key(Qt::Key_Space);
    for (const Qt::Key each : {Qt::Key_Up, Qt::Key_End, Qt::Key_Left, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up,
                               Qt::Key_Up, Qt::Key_Return}) {
        key(each);
    }
    EXPECT_EQ(dropped_, 0);
    EXPECT_EQ(table_->DRAGSYMBOLDROP(0), u"Cl");
}

TEST_F(PeriodicWindow, TabLeavesTheTable)
{
    const auto button = form_->add<ctl_Button>(u"but_Ok");
    button->Move(0, 410, 80, 24);
    key(Qt::Key_Right);
    key(Qt::Key_Tab);
    EXPECT_TRUE(button->frame().hasFocus());
}

TEST_F(PeriodicWindow, AFingerTapsAndRests)
{
    const auto bubble = form_->add<ctl_Bubble>(u"ctl_Bubble1");
    bubble->Move(0, 0, 150, 80);
    bubble->Visible(false);
    table_->BUBBLE(bubble);
    ControlWidget& widget = shown();
    const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
    QTest::touchEvent(&widget, device.get()).press(0, middleOf(7, 3), &widget);
    QTest::touchEvent(&widget, device.get()).release(0, middleOf(7, 3), &widget);
    EXPECT_EQ(clicked_, u"Fe");
    QTest::touchEvent(&widget, device.get()).press(0, middleOf(14, 1), &widget);
    EXPECT_TRUE(eventually([&] { return bubble->Visible(); }));
    QTest::touchEvent(&widget, device.get()).release(0, middleOf(14, 1), &widget);
    EXPECT_EQ(clicked_, u"Fe");
    EXPECT_TRUE(bubble->Visible());
}

/// Two tiles, and fingers on them.
class PeriodicFingers : public PeriodicWindow
{
protected:
    PeriodicFingers()
    {
        table_->MODE(enm_PSEMode::ID_PSEMode_Place);
        table_->DRAGADD(u"F");
        table_->DRAGADD(u"Cl");
    }
    static QPoint home(int slot) { return {(3 * slot + 7) * CellEdge / 2, 9 * CellEdge + CellEdge / 2}; }
    auto touch() { return QTest::touchEvent(&shown(), device_.get()); }
    bool isAnyTaken() const
    {
        return std::ranges::any_of(table_->parts(), [](const NamedPart& part) { return part.state.pressed; });
    }

    std::unique_ptr<QPointingDevice> device_{QTest::createTouchDevice()};
};

TEST_F(PeriodicFingers, TheFirstOfTwoDragsItsTile)
{
    QWidget* const widget = &shown();
    touch().press(0, home(0), widget);
    touch().stationary(0).press(1, home(1), widget);
    touch().move(0, middleOf(16, 1), widget).move(1, middleOf(16, 2), widget);
    touch().release(0, middleOf(16, 1), widget).stationary(1);
    touch().release(1, middleOf(16, 2), widget);
    EXPECT_EQ(table_->DRAGSYMBOLDROP(0), u"F");
    EXPECT_EQ(table_->DRAGSYMBOLDROP(1), u"");
    EXPECT_FALSE(isAnyTaken());
    touch().press(0, home(1), widget);
    touch().move(0, middleOf(16, 2), widget);
    touch().release(0, middleOf(16, 2), widget);
    EXPECT_EQ(table_->DRAGSYMBOLDROP(1), u"Cl");
}

TEST_F(PeriodicFingers, OneThatLeavesTheWindowBringsItsTileHome)
{
    QWidget* const widget = &shown();
    touch().press(0, home(0), widget);
    touch().move(0, {-900, 40}, widget);
    touch().release(0, {-900, 40}, widget);
    EXPECT_EQ(table_->DRAGSYMBOLDROP(0), u"");
    EXPECT_FALSE(isAnyTaken());
    touch().press(0, home(0), widget);
    touch().release(0, home(0), widget);
    EXPECT_TRUE(isAnyTaken()) << "it is there to be taken";
}

TEST_F(PeriodicFingers, WhatTheDesktopTakesBackLeavesTheTableToOthers)
{
    QWidget* const widget = &shown();
    touch().press(0, home(0), widget);
    touch().move(0, middleOf(4, 4), widget);
    QTouchEvent cancelled(QEvent::TouchCancel, device_.get());
    QApplication::sendEvent(widget, &cancelled);
    EXPECT_FALSE(isAnyTaken());
    touch().press(1, home(1), widget);
    touch().move(1, middleOf(16, 2), widget);
    touch().release(1, middleOf(16, 2), widget);
    EXPECT_EQ(table_->DRAGSYMBOLDROP(1), u"Cl");
}

} // namespace
