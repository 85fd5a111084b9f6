#include "qt/desktop/ControlWidget.h"

#include "DesktopSession.h"
#include "dialogs/ctl_QVInput.h"
#include "qt/base/QtText.h"
#include "qt/desktop/ControlHolder.h"
#include "qt/desktop/PartNavigation.h"
#include "results/ctl_Mark.h"
#include "term/clt_TermInput.h"
#include "term/ctl_TermLabel.h"
#include "visual/PaintHints.h"
#include "visual/PaintSurface.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"
#include "visual/Typing.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Title.h"

#include <QAccessible>
#include <QGridLayout>
#include <QImage>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QPointingDevice>
#include <QTest>
#include <QVBoxLayout>

#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace phial;
using namespace phial::qt;

namespace
{

class ControlWidgetTest : public DesktopSession
{
protected:
    static std::shared_ptr<PictureBox> pictureBox(double width, double height)
    {
        auto box = makeControl<PictureBox>();
        box->Move(0, 0, width, height);
        return box;
    }

    static QImage grabbed(QWidget& widget, double scale)
    {
        QImage image(QSizeF(widget.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    }
};

TEST_F(ControlWidgetTest, StandsInALayoutOfPlainQt)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const auto label = makeControl<ctl_TermLabel>();
    label->Term(u"H2SO4");
    auto* widget = new ControlWidget(label);
    layout->addWidget(widget);
    window.resize(300, 200);
    window.show();
    QApplication::processEvents();

    EXPECT_GT(widget->width(), 200);
    EXPECT_EQ(label->frame().pixelRectangle().width, widget->width()) << "the control follows the layout";
    const QImage shown = grabbed(*widget, 1);
    EXPECT_NE(shown, QImage(shown.size(), shown.format()));
}

/// Its handlers take it away, from a form of the system's.
class TakenAwayTest : public DesktopSession
{
protected:
    TakenAwayTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({200, 100});
        form_->Show();
    }
    ~TakenAwayTest() override { form_->discard(); }

    using Heard = std::vector<std::string>;

    Heard heardUntilTaken(StringView takenAt, bool takesTouch, const std::function<void(QWidget&)>& act)
    {
        Heard heard;
        const auto box = form_->add<PictureBox>(u"pic_Once");
        box->frame().takesTouch(takesTouch);
        box->Move(0, 0, 40, 40);
        const auto hear = [&](StringView what) {
            heard.push_back(toUtf8(what));
            if (what == takenAt) {
                form_->remove(*box);
            }
        };
        Connections connections;
        connections += box->MouseDown.connect([&](const PointerEvent&) { hear(u"down"); });
        connections += box->MouseUp.connect(
            [&](const PointerEvent& event) { hear(event.isCancelled ? u"cancelled" : u"up"); });
        connections += box->Click.connect([&] { hear(u"click"); });
        connections += box->DblClick.connect([&] { hear(u"double"); });
        const QPointer<QWidget> widget(&widgetOf(*box));
        act(*widget);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(widget);
        return heard;
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

TEST_F(TakenAwayTest, AControlHearsNoMoreOfTheMouse)
{
    const auto click = [](QWidget& widget) {
        const QPointer<QWidget> self(&widget);
        QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, {5, 5});
        if (self) {
            QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, {5, 5});
        }
    };
    EXPECT_EQ(heardUntilTaken(u"down", false, click), (Heard{"down"}));
    EXPECT_EQ(heardUntilTaken(u"up", false, click), (Heard{"down", "up"}));
    EXPECT_EQ(heardUntilTaken(u"click", false, click), (Heard{"down", "up", "click"}));
}

TEST_F(TakenAwayTest, AControlHearsNoMoreOfAFinger)
{
    const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
    const auto tap = [&](QWidget& widget) {
        const QPointer<QWidget> self(&widget);
        QTest::touchEvent(&widgetOf(*form_), device.get()).press(0, {5, 5}, &widget);
        QTest::touchEvent(&widgetOf(*form_), device.get())
            .release(0, {5, 5}, self ? self.data() : &widgetOf(*form_));
    };
    EXPECT_EQ(heardUntilTaken(u"down", true, tap), (Heard{"down", "cancelled"}));
    EXPECT_EQ(heardUntilTaken(u"up", true, tap), (Heard{"down", "up"}));
    EXPECT_EQ(heardUntilTaken(u"click", true, tap), (Heard{"down", "up", "click"}));
}

TEST_F(ControlWidgetTest, SiblingsAreFoundByTheirObjectNames)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const auto first = makeControl<ctl_TermLabel>();
    const auto second = makeControl<ctl_TermLabel>();
    auto* one = new ControlWidget(first);
    auto* other = new ControlWidget(second);
    layout->addWidget(one);
    layout->addWidget(other);
    one->setObjectName("lab_First");
    other->setObjectName("lab_Second");
    window.show();

    const auto parent = first->frame().Parent();
    ASSERT_TRUE(parent);
    ASSERT_EQ(parent->controlCount(), 2U);
    EXPECT_EQ(first->NAME(), u"lab_First");
    EXPECT_EQ(getMember(*parent->controlAt(1), u"NAME"), Variant(u"lab_Second"));
}

TEST_F(ControlWidgetTest, IsPaintedAtTheRatioOfWhatItIsDrawnOn)
{
    const auto box = pictureBox(40, 20);
    box->AutoRedraw(false);
    std::vector<std::size_t> columns;
    const auto connection = box->Paint.connect([&] { columns.push_back(box->Image()->columns()); });
    ControlWidget widget(box);
    widget.resize(40, 20);
    for (const double scale : {1.0, 1.5, 2.0}) {
        grabbed(widget, scale);
    }
    ASSERT_GE(columns.size(), 3U);
    EXPECT_EQ(columns.back(), 80U);
    EXPECT_NE(std::find(columns.begin(), columns.end(), 60U), columns.end());
}

TEST_F(ControlWidgetTest, APaintedPartStandsAtItsPlaceAtEveryRatio)
{
    const auto box = pictureBox(40, 30);
    box->AutoRedraw(false);
    box->BackColor(QBColor(12));
    box->PaintedPart(PixelRectangle{10, 20, 20, 10});
    auto* widget = new ControlWidget(box);
    const std::unique_ptr<QWidget> owner(widget);
    widget->resize(40, 30);
    for (const double scale : {1.0, 2.0, 2.3}) {
        const QImage shown = grabbed(*widget, scale);
        const auto at = [&](int x, int y) {
            return shown.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
        };
        EXPECT_EQ(at(15, 25), QColor(255, 0, 0)) << scale;
        EXPECT_EQ(at(5, 25).alpha(), 0) << scale;
        EXPECT_EQ(at(15, 15).alpha(), 0) << scale;
    }
}

/// A control that paints all of itself red.
class CoveringControl final : public UserControl, public PaintHints
{
public:
    CoveringControl() : frame_(*this), surface_(*this) { surface_.BackColor(QBColor(12)); }
    StringView typeName() const override { return u"CoveringControl"; }
    MemberTable members() const override { return {}; }
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    void paint() override { surface_.device().Cls(); }
    bool coversAll() const override { return true; }
    std::optional<PixelRectangle> currentPartArea() const override { return std::nullopt; }
    void resized() override { surface_.resized(); }

private:
    ControlFrame frame_;
    PaintSurface surface_;
};

/// What lies below a control.
class Below final : public QWidget
{
public:
    QRegion painted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted += event->region();
        QPainter(this).fillRect(rect(), Qt::blue);
    }
};

TEST_F(ControlWidgetTest, NothingIsPaintedBelowAControlThatCoversIt)
{
    Below below;
    below.resize(60, 40);
    const auto control = makeControl<CoveringControl>();
    auto* widget = new ControlWidget(control, &below);
    widget->setGeometry(10, 10, 20, 10);
    EXPECT_EQ(grabbed(below, 1).pixelColor(15, 15), QColor(255, 0, 0));
    below.show();
    QApplication::processEvents();
    below.painted = {};
    below.update();
    QApplication::processEvents();
    EXPECT_FALSE(below.painted.intersects(QRect(10, 10, 20, 10)));
    EXPECT_TRUE(below.painted.contains(QPoint(35, 15)));

    control->surface().imagedPart(PixelRectangle{0, 0, 5, 5});
    QApplication::processEvents();
    EXPECT_TRUE(below.painted.contains(QPoint(25, 15)));
    EXPECT_EQ(grabbed(below, 1).pixelColor(25, 15), QColor(0, 0, 255));

    below.painted = {};
    control->surface().imagedPart(std::nullopt);
    control->surface().transparent(true);
    QApplication::processEvents();
    EXPECT_TRUE(below.painted.contains(QPoint(15, 15)));
    EXPECT_EQ(grabbed(below, 1).pixelColor(15, 15), QColor(0, 0, 255));
}

TEST_F(ControlWidgetTest, OnlyThePartThatHasChangedIsPaintedAgain)
{
    Below below; // seen through the control
    below.resize(60, 40);
    const auto box = pictureBox(20 * TwipsPerPixel, 10 * TwipsPerPixel);
    box->transparent(true);
    auto* widget = new ControlWidget(box, &below);
    widget->setGeometry(10, 10, 20, 10);
    below.show();
    QApplication::processEvents();
    below.painted = {};
    box->surface().drawWithin({3, 2, 4.5, 5}, [&] { box->surface().device().Line(3, 2, 6, 6, QBColor(12)); });
    QApplication::processEvents();
    EXPECT_EQ(below.painted, QRegion(13, 12, 5, 5)) << "to the next whole pixel";
}

TEST_F(ControlWidgetTest, AControlThatCoversAllIsPaintedToItsRoundedEdges)
{
    Below below;
    below.resize(60, 40);
    const auto control = makeControl<CoveringControl>();
    ControlWidget widget(control, &below, ControlWidget::Placement::Floating);
    control->frame().pixelRectangle({0.4, 0.4, 10.2, 10.2});
    ASSERT_EQ(widget.geometry(), QRect(0, 0, 11, 11));
    const QImage shown = grabbed(below, 2); // the picture has 21 pixels, the widget 22
    EXPECT_EQ(shown.pixelColor(21, 5), QColor(255, 0, 0));
    EXPECT_EQ(shown.pixelColor(5, 21), QColor(255, 0, 0));
    EXPECT_EQ(shown.pixelColor(22, 5), QColor(0, 0, 255));
}

TEST_F(ControlWidgetTest, PressesMovesAndClicksReachTheControl)
{
    const auto box = pictureBox(40, 20);
    std::vector<String> told;
    Connections connections;
    connections += box->MouseDown.connect([&](const PointerEvent& event) {
        told.push_back(u"down " + fromUtf8(std::to_string(static_cast<int>(event.X))));
    });
    connections += box->MouseUp.connect([&](const PointerEvent&) { told.push_back(u"up"); });
    connections += box->Click.connect([&] { told.push_back(u"click"); });
    connections += box->DblClick.connect([&] { told.push_back(u"double"); });
    ControlWidget widget(box);
    widget.resize(40, 20);
    widget.show();
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(7, 5));
    EXPECT_EQ(told, (std::vector<String>{u"down 7", u"up", u"click"}));
}

TEST_F(ControlWidgetTest, EachTapOfAQuickHandCountsAsAClick)
{
    const auto box = pictureBox(40, 20);
    int clicks = 0;
    int doubles = 0;
    Connections connections;
    connections += box->Click.connect([&] { ++clicks; });
    connections += box->DblClick.connect([&] { ++doubles; });
    ControlWidget widget(box);
    widget.resize(40, 20);
    widget.show();
    QTest::mouseClick(&widget, Qt::LeftButton);
    QTest::mouseDClick(&widget, Qt::LeftButton); // the second press alone
    QTest::mouseRelease(&widget, Qt::LeftButton);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(doubles, 1);
}

TEST_F(ControlWidgetTest, APressOnAHoleGoesToWhatLiesBelow)
{
    const auto form = std::make_shared<Form>(u"frm_Test");
    form->ScaleMode(ScaleUnit::Pixels);
    form->innerSize({200, 100});
    const auto below = form->add<PictureBox>(u"pic_Below");
    below->Move(0, 0, 100, 100);
    const auto above = form->add<PictureBox>(u"pic_Above");
    above->Move(0, 0, 100, 100);
    above->transparent(true);
    above->Cls();
    above->device().Line(50, 0, 99, 99, QBColor(12), LineShape::Filled);
    above->MaskPicture(above->Image());
    std::vector<String> clicked;
    Connections connections;
    connections += below->Click.connect([&] { clicked.push_back(u"below"); });
    connections += above->Click.connect([&] { clicked.push_back(u"above"); });
    form->Show();
    QTest::mouseClick(&widgetOf(*above), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    QTest::mouseClick(&widgetOf(*above), Qt::LeftButton, Qt::NoModifier, QPoint(70, 20));
    EXPECT_EQ(clicked, (std::vector<String>{u"below", u"above"}));
}

TEST_F(ControlWidgetTest, KeysReachAControlOutsideOfForms)
{
    const auto box = pictureBox(40, 20);
    box->frame().canFocus(true);
    std::vector<std::int32_t> keys;
    String typed;
    Connections connections;
    connections += box->KeyDown.connect([&](KeyEvent& event) { keys.push_back(event.KeyCode); });
    connections += box->KeyPress.connect([&](KeyPressEvent& event) { typed += event.KeyAscii; });
    ControlWidget widget(box);
    widget.show();
    widget.setFocus();
    QTest::keyClicks(&widget, QStringLiteral("a1"));
    QTest::keyClick(&widget, Qt::Key_Left);
    QTest::keyClicks(&widget, QStringLiteral(".%{"));
    EXPECT_EQ(keys, (std::vector<std::int32_t>{'A', '1', static_cast<std::int32_t>(Key::Left),
                                               keyCodeOf(u'.'), keyCodeOf(u'%'), keyCodeOf(u'{')}));
    EXPECT_EQ(typed, u"a1.%{");
}

TEST_F(ControlWidgetTest, PartsAreShownToScreenReaders)
{
    const auto form = std::make_shared<Form>(u"frm_Test");
    form->ScaleMode(ScaleUnit::Pixels);
    form->innerSize({300, 100});
    const auto title = form->add<ctl_Title>(u"bar_Title");
    title->Move(0, 0, 300, 40);
    title->Title(u"Molmasse");
    int closed = 0;
    const auto connection = title->CLOSE.connect([&] { ++closed; });
    form->Show();

    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&widgetOf(*title));
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->text(QAccessible::Name), QStringLiteral("Molmasse"));
    ASSERT_EQ(static_cast<std::size_t>(whole->childCount()), title->parts().size());
    QAccessibleInterface* close = nullptr;
    for (int child = 0; child < whole->childCount(); ++child) {
        if (whole->child(child)->role() == QAccessible::PushButton) {
            close = whole->child(child);
        }
    }
    ASSERT_TRUE(close);
    EXPECT_FALSE(close->text(QAccessible::Name).isEmpty());
    EXPECT_TRUE(whole->rect().contains(close->rect()));
    EXPECT_EQ(whole->childAt(close->rect().center().x(), close->rect().center().y()), close);
    close->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(closed, 1);
}

TEST_F(ControlWidgetTest, AControlThatIsOneTextIsReadAsAWhole)
{
    const auto form = std::make_shared<Form>(u"frm_Test");
    form->ScaleMode(ScaleUnit::Pixels);
    form->innerSize({400, 100});
    const auto mark = form->add<ctl_Mark>(u"ctl_Mark1");
    mark->MARK(enm_Mark::ID_Mark_2P);
    form->Show();

    const QWidget& widget = widgetOf(*mark);
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&widgetOf(*mark));
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->role(), QAccessible::StaticText);
    EXPECT_EQ(whole->text(QAccessible::Name), QStringLiteral("Note 2 plus"));
    EXPECT_EQ(whole->childCount(), 0);
    EXPECT_EQ(whole->child(0), nullptr);
    const QPoint middle = widget.mapToGlobal(widget.rect().center());
    EXPECT_EQ(whole->childAt(middle.x(), middle.y()), nullptr);
}

TEST_F(ControlWidgetTest, AControlOfItsOwnSizeKeepsItInALayout)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const auto mark = makeControl<ctl_Mark>();
    const PixelRectangle own = mark->frame().pixelRectangle();
    auto* widget = new ControlWidget(mark);
    layout->addWidget(widget);
    window.resize(600, 200);
    window.show();
    QApplication::processEvents();

    EXPECT_EQ(mark->frame().pixelRectangle().width, own.width);
    EXPECT_EQ(mark->frame().pixelRectangle().height, own.height);
    EXPECT_EQ(widget->sizeHint(), QSizeF(own.width, own.height).toSize());
    EXPECT_EQ(widget->size(), widget->sizeHint()) << "the layout leaves it its size";
    const PixelRectangle place = mark->frame().pixelRectangle();
    EXPECT_EQ(QPointF(place.left, place.top), widget->pos()) << "and tells it its place";
}

TEST_F(ControlWidgetTest, AsksALayoutForTheRoomThatItsContentNeeds)
{
    const auto label = makeControl<ctl_TermLabel>();
    label->Term(u"H2SO4");
    ControlWidget widget(label);
    const QSize before = widget.sizeHint();
    EXPECT_GT(before.width(), 20);
    EXPECT_GT(before.height(), 10);
    EXPECT_EQ(widget.minimumSizeHint(), before);
    widget.resize(500, 300);
    EXPECT_EQ(widget.sizeHint(), before) << "whatever size it has";
    label->TEXTFONT()->Size(24);
    EXPECT_GT(widget.sizeHint().width(), 2 * before.width());
    label->Term(u"(1)/(2)");
    EXPECT_GT(widget.sizeHint().height(), 2 * before.height()) << "a fraction stands on two lines";
}

TEST_F(ControlWidgetTest, ALayoutHearsThatItsContentHasChanged)
{
    QWidget window;
    auto* layout = new QGridLayout(&window);
    const auto label = makeControl<ctl_TermLabel>();
    label->Term(u"H");
    auto* widget = new ControlWidget(label);
    layout->addWidget(widget, 0, 0);
    layout->setColumnStretch(1, 1);
    window.resize(400, 100);
    window.show();
    QApplication::processEvents();
    const int before = widget->width();
    label->Term(u"CH3COOH + C2H5OH -> CH3COOC2H5 + H2O");
    QApplication::processEvents();
    EXPECT_GT(widget->width(), 3 * before);
    EXPECT_EQ(widget->width(), widget->sizeHint().width());
}

TEST_F(ControlWidgetTest, ATextThatBreaksIntoLinesIsHigherWhereItIsNarrow)
{
    const auto text = makeControl<ctl_Label>();
    text->Caption(u"Wer Säure und Wasser mischt, gießt die Säure ins Wasser.");
    ControlWidget widget(text);
    EXPECT_TRUE(widget.sizePolicy().hasHeightForWidth());
    const QSize line = widget.sizeHint();
    EXPECT_EQ(widget.heightForWidth(line.width()), line.height());
    EXPECT_GE(widget.heightForWidth(line.width() / 3), 3 * line.height());
    EXPECT_LT(widget.minimumSizeHint().width(), line.width() / 3) << "its longest word";
}

TEST_F(ControlWidgetTest, AControlWithoutContentAsksForTheSizeThatItHad)
{
    const auto gradient = makeControl<ctl_Gradient>();
    gradient->frame().pixelRectangle({0, 0, 120, 30});
    ControlWidget widget(gradient);
    EXPECT_EQ(widget.sizeHint(), QSize(120, 30));
    EXPECT_EQ(widget.minimumSizeHint(), QSize()) << "it can be smaller";
    widget.resize(300, 300);
    EXPECT_EQ(widget.sizeHint(), QSize(120, 30));
}

TEST_F(ControlWidgetTest, AFieldAsksForALine)
{
    const auto field = makeControl<clt_TermInput>();
    ControlWidget term(field);
    const auto number = makeControl<ctl_QVInput>();
    ControlWidget entry(number);
    for (const ControlWidget* widget : {&term, &entry}) {
        EXPECT_GE(widget->sizeHint().width(), 60);
        EXPECT_GE(widget->sizeHint().height(), 20);
        EXPECT_LE(widget->sizeHint().height(), 60);
    }
}

TEST_F(ControlWidgetTest, WhatWasSetBeforeCounts)
{
    const auto label = makeNamed<ctl_TermLabel>(u"trm_Acid");
    label->Term(u"H2SO4");
    label->Enabled(false);
    label->frame().ToolTipText(u"eine Säure");
    const ControlWidget widget(label);
    EXPECT_EQ(widget.objectName(), u"trm_Acid");
    EXPECT_FALSE(widget.isEnabled());
    EXPECT_EQ(widget.toolTip(), u"eine Säure");
    EXPECT_FALSE(widget.accessibleName().isEmpty()) << "the formula in words";
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(const_cast<ControlWidget*>(&widget))->text(QAccessible::Name),
        widget.accessibleName());
}

TEST_F(ControlWidgetTest, EnablingTheWidgetEnablesTheControl)
{
    QWidget window;
    const auto label = makeControl<ctl_TermLabel>();
    ControlWidget widget(label, &window);
    widget.setEnabled(false);
    EXPECT_FALSE(label->Enabled());
    widget.setEnabled(true);
    EXPECT_TRUE(label->Enabled());
    window.setEnabled(false);
    EXPECT_FALSE(label->Enabled()) << "what holds it is off";
    window.setEnabled(true);
    EXPECT_TRUE(label->Enabled()) << "and comes back with it";
    label->Enabled(false);
    EXPECT_FALSE(widget.isEnabled());
    window.setEnabled(false);
    window.setEnabled(true);
    EXPECT_FALSE(label->Enabled()) << "the program's own choice stays";
}

TEST_F(ControlWidgetTest, AControlIsShownOnce)
{
    const auto label = makeControl<ctl_TermLabel>();
    {
        const ControlWidget first(label);
        EXPECT_THROW(ControlWidget second(label), RuntimeError);
        EXPECT_EQ(label->frame().peer() != nullptr, true) << "the first one goes on";
    }
    EXPECT_NO_THROW(ControlWidget again(label)) << "which has gone";
    EXPECT_THROW(ControlWidget none(nullptr), RuntimeError);
    const auto form = std::make_shared<Form>(u"frm_Test");
    EXPECT_THROW(ControlWidget placed(form->add<ctl_TermLabel>(u"trm_Placed")), RuntimeError);
    form->discard();
}

TEST_F(ControlWidgetTest, TheTabKeyGoesThroughThem)
{
    QWidget window;
    auto* layout = new QGridLayout(&window);
    const auto before = makeControl<clt_TermInput>();
    const auto behind = makeControl<clt_TermInput>();
    behind->Term(u"");
    auto* first = new ControlWidget(before);
    auto* between = new QLineEdit;
    auto* last = new ControlWidget(behind);
    layout->addWidget(first, 0, 0);
    layout->addWidget(between, 1, 0);
    layout->addWidget(last, 2, 0);
    window.show();
    window.activateWindow();
    first->setFocus();
    EXPECT_TRUE(eventually([&] { return first->hasFocus(); }));
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_TRUE(between->hasFocus());
    QTest::keyClick(between, Qt::Key_Tab);
    EXPECT_TRUE(last->hasFocus());
    QTest::keyClicks(last, QStringLiteral("NaCl"));
    EXPECT_EQ(behind->Term(), u"NaCl");
}

TEST_F(ControlWidgetTest, AHolderThatDesignerMakesTakesItsControlLater)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* holder = new ControlHolder(&window); // as the generated code does
    holder->setObjectName(QStringLiteral("trm_Acid"));
    layout->addWidget(holder);
    EXPECT_EQ(holder->widget(), nullptr);
    const auto label = makeControl<ctl_TermLabel>();
    label->Term(u"H2SO4");
    holder->control(label);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(label->NAME(), u"trm_Acid");
    EXPECT_EQ(holder->widget()->size(), holder->size());
    EXPECT_EQ(holder->sizeHint(), holder->widget()->sizeHint());
    EXPECT_EQ(holder->focusProxy(), holder->widget());
    holder->setObjectName(QStringLiteral("trm_Other"));
    EXPECT_EQ(label->NAME(), u"trm_Other");
    EXPECT_THROW(holder->control(label), RuntimeError) << "shown already";
    EXPECT_NE(holder->widget(), nullptr);
    const auto other = makeControl<ctl_Label>();
    holder->control(other);
    EXPECT_EQ(label->frame().peer(), nullptr);
    EXPECT_EQ(&holder->widget()->control(), other.get());
    holder->control(nullptr);
    EXPECT_EQ(holder->widget(), nullptr);
}

TEST(EndedSession, LeavesABlankWidget)
{
    std::unique_ptr<ControlWidget> widget;
    QStringList told;
    {
        test::TemporaryFolder folder;
        headless::HeadlessPlatform outside(folder.path(), [](const String&) {});
        Platform platform = outside.platform();
        platform.visual = std::make_shared<QtVisualHost>(previewAndPrint);
        const SessionState session(platform);
        const auto label = makeControl<ctl_TermLabel>();
        label->Term(u"H2SO4");
        widget = std::make_unique<ControlWidget>(label);
        widget->resize(200, 50);
        widget->show();
        EXPECT_NE(widget->grab().toImage(), QImage());
        dispatchGuard()->setReporter([&](const String& text) { told.append(toQt(text)); });
    }
    QPixmap drawn(widget->size());
    drawn.fill(Qt::white);
    const QImage blank = drawn.toImage();
    widget->render(&drawn, QPoint(), QRegion(), QWidget::DrawChildren);
    EXPECT_EQ(drawn.toImage(), blank);
    QTest::mouseClick(widget.get(), Qt::LeftButton);
    QTest::keyClick(widget.get(), Qt::Key_Space);
    widget->setEnabled(false);
    widget->resize(100, 20);
    EXPECT_EQ(widget->sizeHint(), widget->size());
    widget->hide();
    widget.reset();
    EXPECT_TRUE(told.isEmpty()) << told.join(u'\n').toStdString();
    dispatchGuard()->setReporter(DesktopSession::fail);
}

/// A control that decides on its size when it is told to, and notes what it lives through.
class Balloon final : public UserControl
{
public:
    StringView typeName() const override { return u"ctl_Balloon"; }
    MemberTable members() const override { return {}; }
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    void shown() override { diary.push_back("shown"); }
    void hidden() override { diary.push_back("hidden"); }
    void ended() override { diary.push_back("ended"); }
    void resized() override
    {
        surface_.resized();
        diary.push_back("resized");
        if (least > 0 && frame_.Width() < least) {
            frame_.Width(least);
        }
    }
    void paint() override {}

    std::vector<std::string> diary;
    double least = 0;

private:
    ControlFrame frame_{*this};
    PaintSurface surface_{*this};
};

/// A window of plain Qt with a layout, over which a control floats.
class FloatingControl : public ControlWidgetTest
{
protected:
    FloatingControl()
    {
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(new ControlWidget(pictureBox(50, 50)));
        window_.resize(400, 300);
    }

    ControlWidget& floating()
    {
        balloon_->frame().pixelRectangle({20, 30, 100, 60});
        return *new ControlWidget(balloon_, &window_, ControlWidget::Placement::Floating);
    }

    QWidget window_;
    const std::shared_ptr<Balloon> balloon_ = makeControl<Balloon>();
};

TEST_F(FloatingControl, StandsWhereItsOwnFrameSays)
{
    const QWidget& widget = floating();
    window_.show();
    EXPECT_EQ(widget.geometry(), QRect(20, 30, 100, 60));
    balloon_->Move(40.4, 50, 200, 80.2);
    EXPECT_EQ(widget.geometry(), QRect(40, 50, 200, 80));
    window_.resize(600, 500);
    QApplication::processEvents();
    EXPECT_EQ(widget.geometry(), QRect(40, 50, 200, 80)) << "no layout moves it";
    EXPECT_EQ(balloon_->Left(), 40.4) << "nor rounds its place";
}

TEST_F(FloatingControl, IsShownAndHiddenAsItSaysAndHearsOfIt)
{
    balloon_->Visible(false);
    const QWidget& widget = floating();
    window_.show();
    EXPECT_FALSE(widget.isVisible());
    balloon_->diary.clear();
    balloon_->Visible(true);
    EXPECT_TRUE(widget.isVisible());
    balloon_->Visible(false);
    EXPECT_EQ(balloon_->diary, (std::vector<std::string>{"shown", "hidden"}));
    window_.hide();
    window_.show();
    EXPECT_FALSE(widget.isVisible());
    EXPECT_EQ(balloon_->diary.size(), 2U);
}

TEST_F(FloatingControl, FindsTheControlsOfItsWindow)
{
    QWidget& widget = floating();
    widget.setObjectName("bub_Help");
    window_.show();
    ASSERT_TRUE(balloon_->frame().Parent());
    EXPECT_EQ(balloon_->frame().Parent()->controlCount(), 2U);
    EXPECT_EQ(balloon_->NAME(), u"bub_Help");
}

TEST_F(FloatingControl, FollowsWhatTheProgramDoesToItsWidget)
{
    QWidget& widget = floating();
    window_.show();
    widget.move(5, 6);
    EXPECT_EQ(balloon_->frame().pixelRectangle(), (PixelRectangle{5, 6, 100, 60}));
    widget.resize(150, 70);
    EXPECT_EQ(balloon_->frame().pixelRectangle(), (PixelRectangle{5, 6, 150, 70}));
    widget.hide();
    EXPECT_FALSE(balloon_->Visible());
    widget.show();
    EXPECT_TRUE(balloon_->Visible());
    window_.hide();
    EXPECT_TRUE(balloon_->Visible()) << "it is the window that has gone";
}

TEST_F(FloatingControl, KeepsTheSizeOnWhichItInsists)
{
    QWidget& widget = floating();
    window_.show();
    balloon_->least = 90;
    widget.resize(40, 40);
    EXPECT_EQ(balloon_->Width(), 90);
    EXPECT_EQ(widget.size(), QSize(90, 40));
}

TEST_F(FloatingControl, EndsWithItsWidget)
{
    delete &floating();
    EXPECT_EQ(balloon_->diary.back(), "ended");
}

TEST_F(ControlWidgetTest, TheSpaceBarPressesThePartThatTheArrowsHaveReached)
{
    const auto form = std::make_shared<Form>(u"frm_Test");
    form->innerSize({300, 100});
    const auto title = form->add<ctl_Title>(u"bar_Title");
    int closed = 0;
    const auto connection = title->CLOSE.connect([&] { ++closed; });
    form->Show();
    title->SetFocus();
    QTest::keyClick(&widgetOf(*title), Qt::Key_Right);
    QTest::keyClick(&widgetOf(*title), Qt::Key_Space);
    EXPECT_EQ(closed, 1);
}

TEST_F(ControlWidgetTest, WhoComesByTheTabKeyStandsOnTheFirstPart)
{
    const auto form = std::make_shared<Form>(u"frm_Test");
    form->innerSize({300, 100});
    const auto field = form->add<TextBox>(u"txt_Input");
    const auto title = form->add<ctl_Title>(u"bar_Title");
    int closed = 0;
    const auto connection = title->CLOSE.connect([&] { ++closed; });
    form->Show();
    field->SetFocus();
    QTest::keyClick(widgetOf(*field).focusProxy(), Qt::Key_Tab);
    QTest::keyClick(&widgetOf(*title), Qt::Key_Space);
    EXPECT_EQ(closed, 1);
}

TEST(PartNavigation, ArrowsReachTheNearestPartInTheirDirection)
{
    const auto part = [](double left, double top, String action) {
        return NamedPart{{left, top, 10, 10}, PartRole::Button, u"", std::move(action)};
    };
    const std::vector<NamedPart> parts{part(0, 0, u"Press"), part(20, 0, u""), part(40, 0, u"Press"),
                                       part(0, 40, u"Press"), part(60, 30, u"Press")};
    EXPECT_EQ(nextPart(parts, std::nullopt, Qt::Key_Down), 0U);
    EXPECT_EQ(nextPart(parts, 0, Qt::Key_Right), 2U);
    EXPECT_EQ(nextPart(parts, 0, Qt::Key_Down), 3U);
    EXPECT_EQ(nextPart(parts, 2, Qt::Key_Left), 0U);
    EXPECT_EQ(nextPart(parts, 0, Qt::Key_Up), std::nullopt);
    EXPECT_EQ(nextPart(parts, 0, Qt::Key_A), std::nullopt);
    EXPECT_EQ(nextPart({}, std::nullopt, Qt::Key_Right), std::nullopt);
}

} // namespace
