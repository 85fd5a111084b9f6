#include "DesktopSession.h"
#include "app/Session.h"
#include "app/ctl_Avatar.h"
#include "core/CoreTheme.h"
#include "core/Palette.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/ShotBook.h"
#include "visual/ComboBox.h"
#include "visual/ListBox.h"
#include "visual/ListView.h"
#include "visual/PictureBox.h"
#include "visual/RichTextBox.h"
#include "visual/ScrollBar.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Title.h"

#include <QCheckBox>
#include <QDialog>
#include <QFocusFrame>
#include <QTest>
#include <QVBoxLayout>

#include <cmath>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr double Gap = 2;

/// Ends the name of a test of each set of colours.
std::string nameOf(const testing::TestParamInfo<ColourSet>& set)
{
    switch (set.param) {
    case ColourSet::Light:
        break;
    case ColourSet::Dark:
        return "Dark";
    case ColourSet::HighContrast:
        return "HighContrast";
    }
    return "Light";
}

/// A form of 300 by 200 pixels with one control in its middle.
class FocusRingTest : public DesktopTest<Session>, public testing::WithParamInterface<ColourSet>
{
protected:
    FocusRingTest()
    {
        coreTheme().SetColours(GetParam());
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 200});
        form_->BackColor(Palette::Surface);
    }

    static double width() { return GetParam() == ColourSet::HighContrast ? 4 : 3; }

    template <typename Control>
    std::shared_ptr<Control> with(std::shared_ptr<Control> control)
    {
        control->frame().Move(60, 50, 120, 60);
        control->frame().canFocus(true);
        form_->Show();
        control->frame().SetFocus();
        QApplication::processEvents();
        return control;
    }
    template <typename Control>
    std::shared_ptr<Control> with()
    {
        return with(form_->add<Control>(u"ctl_Test"));
    }

    /// The place of a widget in the form's window, where the window is as large as the form's zoom makes it.
    QRectF placeOf(const QWidget& widget) const
    {
        return QRectF(QPointF(widget.mapTo(widget.window(), QPoint())), QSizeF(widget.size()));
    }

    QImage shown(double scale) const
    {
        QApplication::processEvents(); // lets what has been put off happen
        return imageOf(*grabForm(*form_, scale)).copy();
    }

    /// Whether, from the middle of each edge outwards, there is the gap, then the ring, and then neither.
    void expectRing(const QRectF& place, double scale = 1)
    {
        const QImage picture = shown(scale);
        const double zoom = form_->Zoom();
        const struct {
            QPointF from;
            QPointF outwards;
        } edges[] = {
            {{place.center().x(), place.top()}, {0, -1}},
            {{place.center().x(), place.bottom()}, {0, 1}},
            {{place.left(), place.center().y()}, {-1, 0}},
            {{place.right(), place.center().y()}, {1, 0}},
        };
        const struct {
            double distance;
            std::optional<Colour> colour;
        } steps[] = {
            {Gap / 2, Palette::FocusGap},
            {Gap + width() / 2, Palette::FocusRing},
            {Gap + width() + 1, std::nullopt},
        };
        for (const auto& edge : edges) {
            for (const auto& step : steps) {
                const QPointF at = (edge.from + edge.outwards * step.distance * zoom) * scale;
                const QColor colour = picture.pixelColor(static_cast<int>(std::floor(at.x())),
                                                         static_cast<int>(std::floor(at.y())));
                SCOPED_TRACE(testing::Message()
                             << "outwards " << edge.outwards.x() << ", " << edge.outwards.y() << " by "
                             << step.distance << " at " << scale << "x");
                if (step.colour) {
                    EXPECT_EQ(colour.name().toStdString(), resolvedName(*step.colour));
                } else {
                    EXPECT_NE(colour.name().toStdString(), resolvedName(Palette::FocusRing));
                }
            }
        }
    }

    static std::string resolvedName(Colour role)
    {
        const Colour colour = Palette::resolved(role, GetParam());
        return QColor(colour.red(), colour.green(), colour.blue()).name().toStdString();
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

TEST_P(FocusRingTest, SurroundsAButton)
{
    expectRing(placeOf(widgetOf(*with<ctl_Button>())));
}

TEST_P(FocusRingTest, SurroundsFields)
{
    expectRing(placeOf(widgetOf(*with<TextBox>())));
    const auto page = form_->add<TextBox>(u"txt_Page");
    page->MultiLine(true);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the line that it was
    expectRing(placeOf(widgetOf(*with(page))));
}

/// What the window has on the screen, which is painted piece by piece while somebody types.
TEST_P(FocusRingTest, TypingInAFieldLeavesItAsItIsPaintedAtOnce)
{
    const auto seen = [this] {
        QApplication::processEvents();
        QWidget& window = widgetOf(*form_);
        return window.screen()->grabWindow(window.winId()).toImage();
    };
    QApplication::setCursorFlashTime(0);
    const auto field = with<TextBox>();
    const QImage empty = seen();
    field->frame().Move(20, 20, 200, 100); // lets the ring and the field go another way
    field->frame().Move(60, 50, 120, 60);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Word"));
    const QImage typed = seen();
    widgetOf(*form_).update();
    QApplication::focusWidget()->update();
    const QImage atOnce = seen();
    EXPECT_NE(typed, empty);
    EXPECT_EQ(typed, atOnce);
}

TEST_P(FocusRingTest, SurroundsRichText)
{
    expectRing(placeOf(widgetOf(*with<RichTextBox>())));
}

TEST_P(FocusRingTest, SurroundsLists)
{
    const auto list = with<ListBox>();
    list->AddItem(u"a");
    list->ListIndex(0);
    expectRing(placeOf(widgetOf(*list)));
    const auto table = with(form_->add<ListView>(u"lst_Table"));
    table->COLUMNHEADERS()->Add(u"a", 100);
    table->ITEMS()->Add(u"1");
    expectRing(placeOf(widgetOf(*table)));
}

TEST_P(FocusRingTest, SurroundsComboBoxes)
{
    const auto box = with<ComboBox>();
    expectRing(placeOf(widgetOf(*box)));
    box->Style(ComboStyle::Editable);
    expectRing(placeOf(widgetOf(*box)));
}

TEST_P(FocusRingTest, SurroundsAScrollBar)
{
    expectRing(placeOf(widgetOf(*with<ScrollBar>())));
}

TEST_P(FocusRingTest, SurroundsALink)
{
    expectRing(placeOf(widgetOf(*with<ctl_Label>())));
}

TEST_P(FocusRingTest, SurroundsAPictureAndTheAvatar)
{
    expectRing(placeOf(widgetOf(*with<PictureBox>())));
    expectRing(placeOf(widgetOf(*with(form_->add<ctl_Avatar>(u"ctl_User")))));
}

TEST_P(FocusRingTest, SurroundsTheButtonOfABar)
{
    const auto bar = with<ctl_CmdBar>();
    bar->BUTTONS()->Add(u"a", u"Weiter");
    bar->frame().SetFocus();
    QApplication::processEvents();
    ASSERT_TRUE(QApplication::focusWidget());
    expectRing(placeOf(*QApplication::focusWidget()));
}

TEST_P(FocusRingTest, SurroundsThePartThatTheKeysHaveReached)
{
    const auto title = with<ctl_Title>();
    title->Closable(true);
    QWidget& widget = widgetOf(*title);
    expectRing(placeOf(widget));
    QTest::keyClick(&widget, Qt::Key_Right);
    const auto part = [&] {
        const PixelRectangle area = title->parts().at(0).area;
        return QRectF(area.left, area.top, area.width, area.height).translated(placeOf(widget).topLeft());
    };
    expectRing(part());
    title->Move(60, 50, 160, 60); // which moves the part
    expectRing(part());
}

TEST_P(FocusRingTest, GrowsWithTheForm)
{
    const auto button = with<ctl_Button>();
    form_->Zoom(1.5);
    EXPECT_EQ(placeOf(widgetOf(*button)), QRectF(90, 75, 180, 90));
    expectRing(placeOf(widgetOf(*button)));
}

TEST_P(FocusRingTest, IsAsWideOnFinerScreens)
{
    const auto button = with<ctl_Button>();
    expectRing(placeOf(widgetOf(*button)), 1.5);
    expectRing(placeOf(widgetOf(*button)), 2);
}

TEST_P(FocusRingTest, LiesOverWhatStandsBeside)
{
    const auto button = with<ctl_Button>();
    const auto neighbour = form_->add<ctl_Button>(u"but_Beside");
    neighbour->Move(180, 40, 60, 80);
    const QRectF place = placeOf(widgetOf(*button));
    const QImage picture = shown(1);
    const QPointF beside(place.right() + Gap + 1, place.center().y());
    EXPECT_EQ(picture.pixelColor(beside.toPoint()).name().toStdString(), resolvedName(Palette::FocusRing));
}

TEST_P(FocusRingTest, MovesInwardsWhereTheWindowEnds)
{
    const auto button = with<ctl_Button>();
    button->Move(0, 0, 300, 200);
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage picture = shown(scale);
        const int middle = picture.height() / 2;
        const auto at = [&](double x) {
            return picture.pixelColor(static_cast<int>(x * scale), middle).name().toStdString();
        };
        EXPECT_EQ(at(1), resolvedName(Palette::FocusRing)) << scale;
        EXPECT_EQ(at(width() + 1), resolvedName(Palette::FocusGap)) << scale;
        EXPECT_EQ(at(300 - 2), resolvedName(Palette::FocusRing)) << scale;
    }
}

TEST_P(FocusRingTest, GoesWithTheFocusAndTheControl)
{
    const auto button = with<ctl_Button>();
    const auto other = form_->add<ctl_Button>(u"but_Other");
    other->Move(20, 130, 100, 40);
    other->SetFocus();
    expectRing(placeOf(widgetOf(*other)));
    other->Move(40, 140, 100, 40);
    expectRing(placeOf(widgetOf(*other)));
    other->Visible(false);
    button->frame().SetFocus();
    expectRing(placeOf(widgetOf(*button)));
    coreTheme().SetColours(GetParam() == ColourSet::Light ? ColourSet::Dark : ColourSet::Light);
    coreTheme().SetColours(GetParam());
    expectRing(placeOf(widgetOf(*button)));
    form_->Hide();
    form_->Show();
    button->frame().SetFocus();
    expectRing(placeOf(widgetOf(*button)));
}

INSTANTIATE_TEST_SUITE_P(Sets, FocusRingTest,
                         testing::Values(ColourSet::Light, ColourSet::Dark, ColourSet::HighContrast), nameOf);

using FocusRingOfDialogs = DesktopSession;

TEST_F(FocusRingOfDialogs, SurroundsACheckBoxAndNothingThatIsHidden)
{
    const auto form = std::make_shared<Form>(u"frm_Test");
    form->Show(); // brings the look
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(20, 20, 20, 20);
    auto* box = new QCheckBox(QStringLiteral("Alle Seiten"), &dialog);
    layout->addWidget(box);
    dialog.show();
    dialog.activateWindow();
    box->setFocus();
    ASSERT_TRUE(eventually([&] { return box->hasFocus(); }));
    const auto* ring = dialog.findChild<QFocusFrame*>();
    ASSERT_TRUE(ring);
    EXPECT_EQ(ring->geometry(), box->geometry().adjusted(-5, -5, 5, 5));
    box->hide();
    EXPECT_TRUE(ring->isHidden());
}

} // namespace
