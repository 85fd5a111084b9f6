#include "qt/desktop/LookStyle.h"

#include "DesktopSession.h"
#include "core/CoreTheme.h"
#include "core/Palette.h"
#include "qt/desktop/BoxSigns.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/DesktopDialogs.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/PixelRatio.h"
#include "qt/desktop/ShotBook.h"
#include "visual/ComboBox.h"
#include "visual/ListBox.h"
#include "visual/ListView.h"
#include "visual/Menu.h"
#include "visual/ScrollBar.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"

#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTimer>
#include <QTreeView>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr int LeastTarget = 36;

/// Targets on a form of 400 by 300 pixels of its own, which is shown smaller, as it is, and larger.
class TargetsTest : public DesktopSession, public testing::WithParamInterface<double>
{
protected:
    TargetsTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({400, 300});
    }

    template <typename Control>
    std::shared_ptr<Control> shown()
    {
        auto control = form_->add<Control>(u"ctl_Test");
        control->frame().Move(20, 20, 200, 150);
        form_->Show();
        form_->Zoom(GetParam());
        return control;
    }

    /// As high as a finger needs, and higher on a form that is shown larger.
    static int least() { return static_cast<int>(LeastTarget * std::max(1.0, GetParam())); }

    static void expectHandle(const QScrollBar& bar)
    {
        EXPECT_GE(bar.orientation() == Qt::Vertical ? bar.width() : bar.height(), least());
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = bar.orientation();
        option.minimum = bar.minimum();
        option.maximum = bar.maximum();
        option.pageStep = bar.pageStep();
        option.sliderPosition = bar.value();
        const QRect handle =
            bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
        EXPECT_GE(std::min(handle.width(), handle.height()), least());
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

TEST_P(TargetsTest, RowsOfAListAreHighEnough)
{
    const auto list = shown<ListBox>();
    for (int row = 0; row < 50; ++row) {
        list->AddItem(u"Zeile");
    }
    const auto& widget = *qobject_cast<QListWidget*>(&widgetOf(*list));
    QApplication::processEvents();
    for (int row = 0; row < 50; ++row) {
        ASSERT_GE(widget.visualItemRect(widget.item(row)).height(), least());
    }
    expectHandle(*widget.verticalScrollBar());
}

TEST_P(TargetsTest, RowsAndHeadsOfATableAreHighEnough)
{
    const auto list = shown<ListView>();
    list->COLUMNHEADERS()->Add(u"Name", 300);
    for (int row = 0; row < 50; ++row) {
        list->ITEMS()->Add(u"Zeile");
    }
    const auto& widget = *qobject_cast<QTreeView*>(&widgetOf(*list));
    QApplication::processEvents();
    EXPECT_GE(widget.visualRect(widget.model()->index(0, 0)).height(), least());
    EXPECT_GE(widget.header()->height(), least());
    expectHandle(*widget.verticalScrollBar());
    expectHandle(*widget.horizontalScrollBar());
}

TEST_P(TargetsTest, EntriesOfAComboBoxAreHighEnough)
{
    const auto box = shown<ComboBox>();
    for (int row = 0; row < 50; ++row) {
        box->AddItem(u"Zeile");
    }
    auto& widget = *qobject_cast<QComboBox*>(&widgetOf(*box));
    widget.showPopup();
    QApplication::processEvents();
    EXPECT_GE(widget.view()->visualRect(widget.model()->index(0, 0)).height(), least());
    EXPECT_GE(widget.view()->verticalScrollBar()->width(), least());
    widget.hidePopup();
}

TEST_P(TargetsTest, AScrollBarHasAHandleForAFinger)
{
    const auto bar = shown<ScrollBar>();
    bar->Max(10000);
    bar->LargeChange(1);
    QApplication::processEvents();
    expectHandle(*qobject_cast<QScrollBar*>(&widgetOf(*bar)));
}

TEST_P(TargetsTest, APageOfTextScrollsByAFinger)
{
    const auto page = shown<TextBox>();
    page->MultiLine(true);
    String lines;
    for (int line = 0; line < 200; ++line) {
        lines += u"Zeile\r\n";
    }
    page->Text(lines);
    QApplication::processEvents();
    expectHandle(*widgetOf(*page).findChild<QPlainTextEdit*>()->verticalScrollBar());
}

TEST_P(TargetsTest, EntriesOfMenusAreHighEnough)
{
    const auto file = form_->menu().add(u"mnu_File", u"&Datei");
    file->add(u"mnu_Open", u"Öffnen");
    file->add(u"mnu_Line", u"-");
    file->add(u"mnu_Quit", u"Beenden");
    shown<ctl_Button>();
    const auto& bar = *widgetOf(*form_).findChild<QMenuBar*>();
    QApplication::processEvents();
    QAction* const title = bar.actions().constFirst();
    EXPECT_GE(bar.actionGeometry(title).height(), LeastTarget);
    QMenu& menu = *title->menu();
    menu.popup(QPoint());
    for (QAction* entry : menu.actions()) {
        if (!entry->isSeparator()) {
            EXPECT_GE(menu.actionGeometry(entry).height(), LeastTarget);
        }
    }
    menu.close();
}

INSTANTIATE_TEST_SUITE_P(Zooms, TargetsTest, testing::Values(0.75, 1.0, 2.0));

/// The system's own boxes.
class BoxesTest : public DesktopSession
{
protected:
    /// Looks at the box that comes up next, and closes it.
    static void whenShown(const std::function<void(QDialog& box)>& look)
    {
        QTimer::singleShot(0, qApp, [look] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            look(*box);
            box->close();
        });
    }

    static void expectTargets(const QDialog& box)
    {
        const auto buttons = box.findChildren<QPushButton*>();
        EXPECT_FALSE(buttons.isEmpty());
        for (const auto* button : buttons) {
            EXPECT_GE(std::min(button->width(), button->height()), LeastTarget)
                << button->text().toStdString();
        }
        for (const auto* line : box.findChildren<QLineEdit*>()) {
            EXPECT_GE(line->height(), LeastTarget);
        }
        for (const auto* list : box.findChildren<QComboBox*>()) {
            EXPECT_GE(list->height(), LeastTarget);
        }
        for (const auto* bar : box.findChildren<QScrollBar*>()) {
            if (bar->isVisible()) {
                EXPECT_GE(std::min(bar->width(), bar->height()), LeastTarget);
            }
        }
    }

    static QPixmap signOf(QDialog& box) { return qobject_cast<QMessageBox*>(&box)->iconPixmap(); }

    DesktopDialogs dialogs_;
};

TEST_F(BoxesTest, MessagesAndQuestionsHaveTargetsForAFinger)
{
    whenShown(expectTargets);
    dialogs_.Info(u"Fertig", {}, {});
    whenShown(expectTargets);
    dialogs_.Error(u"Falsch", {});
    whenShown(expectTargets);
    dialogs_.YesNo(u"Weiter?", {});
    whenShown(expectTargets);
    dialogs_.Text(u"Protokoll", {});
    whenShown(expectTargets);
    dialogs_.Input(u"Name:", {}, {});
    whenShown(expectTargets);
    dialogs_.SaveFile({}, {}, u"Text|*.txt");
}

TEST_F(BoxesTest, RowsOfTheFileDialogAreHighEnough)
{
    folder().write("a.txt", "");
    whenShown([](QDialog& box) {
        QApplication::processEvents();
        for (const auto* view : box.findChildren<QAbstractItemView*>()) {
            const QModelIndex first =
                view->model() ? view->model()->index(0, 0, view->rootIndex()) : QModelIndex();
            if (view->isVisible() && first.isValid() && !qobject_cast<const QHeaderView*>(view)) {
                EXPECT_GE(view->visualRect(first).height(), LeastTarget) << view->objectName().toStdString();
            }
        }
    });
    dialogs_.SaveFile(folder().path(), {}, u"Text|*.txt");
}

TEST_F(BoxesTest, EachKindHasItsSignAsFineAsTheScreen)
{
    const FixedPixelRatio finer(2);
    std::vector<QImage> signs;
    const auto take = [&](QDialog& box) { signs.push_back(signOf(box).toImage()); };
    whenShown(take);
    dialogs_.Info(u"Fertig", {}, {});
    whenShown(take);
    dialogs_.YesNo(u"Weiter?", {});
    whenShown(take);
    dialogs_.Error(u"Falsch", {});
    ASSERT_EQ(signs.size(), 3U);
    for (const QImage& sign : signs) {
        EXPECT_EQ(sign.size(), QSize(96, 96));
        EXPECT_EQ(sign.devicePixelRatio(), 2);
    }
    EXPECT_NE(signs[0], signs[1]);
    EXPECT_NE(signs[0], signs[2]);
}

TEST_F(BoxesTest, AnOpenBoxFollowsTheColours)
{
    whenShown([](QDialog& box) {
        const QColor before = signOf(box).toImage().pixelColor(24, 6);
        EXPECT_EQ(before, toQColor(Palette::Accent));
        coreTheme().SetColours(ColourSet::Dark);
        QApplication::processEvents();
        EXPECT_EQ(signOf(box).toImage().pixelColor(24, 6), toQColor(Palette::Accent));
        EXPECT_NE(before, toQColor(Palette::Accent));
    });
    std::make_shared<Form>(u"frm_Test")->Show(); // whose look the box has
    dialogs_.Info(u"Fertig", {}, {});
}

constexpr QStyle::StandardPixmap Signs[] = {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
                                            QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical};

class BoxSignsTest : public DesktopSession
{
protected:
    static QImage drawn(QStyle::StandardPixmap icon, int ratio)
    {
        return boxSign(icon).pixmap(QSize(48, 48), ratio).toImage().convertToFormat(QImage::Format_ARGB32);
    }

    /// 0 outside, 1 on the ground, 2 on the ink; what lies in between belongs to the nearer one.
    static std::vector<int> shapeOf(const QImage& sign)
    {
        std::vector<int> shape;
        for (int y = 0; y < sign.height(); ++y) {
            for (int x = 0; x < sign.width(); ++x) {
                const QColor colour = sign.pixelColor(x, y);
                const bool isInk = colour.lightness() > 170; // light on a deep ground by daylight
                shape.push_back(colour.alpha() < 128 ? 0 : isInk ? 2 : 1);
            }
        }
        return shape;
    }
};

TEST_F(BoxSignsTest, EachCanBeToldByItsShapeAlone)
{
    for (const auto one : Signs) {
        for (const auto other : Signs) {
            const std::vector<int> mine = shapeOf(drawn(one, 1));
            const std::vector<int> its = shapeOf(drawn(other, 1));
            int differing = 0;
            for (std::size_t at = 0; at < mine.size(); ++at) {
                differing += mine[at] != its[at] ? 1 : 0;
            }
            EXPECT_TRUE(one == other || differing > 100) << one << " and " << other << ": " << differing;
        }
    }
}

TEST_F(BoxSignsTest, HasTheColoursOfTheSet)
{
    for (const auto set : {ColourSet::Light, ColourSet::Dark, ColourSet::HighContrast}) {
        coreTheme().SetColours(set);
        EXPECT_EQ(drawn(QStyle::SP_MessageBoxInformation, 1).pixelColor(24, 5), toQColor(Palette::Accent));
        EXPECT_EQ(drawn(QStyle::SP_MessageBoxWarning, 1).pixelColor(24, 10), toQColor(Palette::TryAgain));
        EXPECT_EQ(drawn(QStyle::SP_MessageBoxCritical, 1).pixelColor(24, 6), toQColor(Palette::Failure));
        EXPECT_EQ(drawn(QStyle::SP_MessageBoxCritical, 1).pixelColor(24, 24), toQColor(Palette::OnAccent));
    }
}

TEST_F(BoxSignsTest, IsDrawnForEachSizeAnew)
{
    for (const auto icon : Signs) {
        const auto mixedShare = [](const QImage& sign) {
            int mixed = 0;
            for (int y = 0; y < sign.height(); ++y) {
                for (int x = 0; x < sign.width(); ++x) {
                    const int alpha = sign.pixelColor(x, y).alpha();
                    mixed += alpha > 0 && alpha < 255 ? 1 : 0;
                }
            }
            return static_cast<double>(mixed) / sign.width() / sign.height();
        };
        EXPECT_EQ(drawn(icon, 3).size(), QSize(144, 144));
        EXPECT_LT(mixedShare(drawn(icon, 3)), mixedShare(drawn(icon, 1)) * 0.6)
            << "an enlarged one is blurred";
    }
}

TEST_F(BoxSignsTest, OtherIconsAreLeftToTheToolkit)
{
    EXPECT_TRUE(boxSign(QStyle::SP_TrashIcon).isNull());
}

/// What is painted of a control that stands on a form's surface.
class EdgesTest : public DesktopSession
{
protected:
    EdgesTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({600, 400});
        form_->BackColor(Palette::Surface);
        elsewhere_->Move(300, 200, 60, 40);
    }

    template <typename Control>
    std::shared_ptr<Control> shown(double zoom)
    {
        auto control = form_->add<Control>(u"ctl_Test");
        control->frame().Move(20, 20, 80, 40);
        form_->Show();
        form_->Zoom(zoom);
        QApplication::processEvents();
        return control;
    }

    /// How many pixels of the border's colour there are from the left edge inwards, half way down.
    int edgeWidth(double zoom)
    {
        const QImage picture = imageOf(*grabForm(*form_, 1)).copy();
        const int row = static_cast<int>(40 * zoom);
        int x = static_cast<int>(20 * zoom);
        int width = 0;
        while (picture.pixelColor(x++, row) == toQColor(Palette::ControlBorder)) {
            ++width;
        }
        return width;
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_Button> elsewhere_ = form_->add<ctl_Button>(u"but_Elsewhere");
};

TEST_F(EdgesTest, OfButtonsGrowWithTheForm)
{
    shown<ctl_Button>(2);
    EXPECT_EQ(edgeWidth(2), 3);
    form_->Zoom(4);
    EXPECT_EQ(edgeWidth(4), 6);
}

TEST_F(EdgesTest, OfFieldsGrowWithTheForm)
{
    shown<TextBox>(2);
    EXPECT_EQ(edgeWidth(2), 3);
    form_->Zoom(4);
    EXPECT_EQ(edgeWidth(4), 6);
}

TEST_F(EdgesTest, OfListsGrowWithTheForm)
{
    shown<ListBox>(2);
    EXPECT_EQ(edgeWidth(2), 3);
    form_->Zoom(4);
    EXPECT_EQ(edgeWidth(4), 6);
}

TEST_F(EdgesTest, ACornerIsAsRoundAsTheFormIsLarge)
{
    shown<ctl_Button>(1);
    elsewhere_->SetFocus(); // since the ring hugs the corner
    QApplication::processEvents();
    const auto roundness = [&](double zoom) {
        const QImage picture = imageOf(*grabForm(*form_, 1)).copy();
        int x = static_cast<int>(20 * zoom);
        const int start = x;
        while (picture.pixelColor(x, start).rgb() == toQColor(Palette::Surface).rgb()) {
            ++x;
        }
        return x - start;
    };
    const int plain = roundness(1);
    EXPECT_GE(plain, 3);
    form_->Zoom(3);
    QApplication::processEvents();
    EXPECT_GE(roundness(3), 3 * plain);
}

} // namespace
