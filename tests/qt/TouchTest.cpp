#include "DesktopSession.h"
#include "support/PaintedField.h"
#include "visual/PictureBox.h"

#include <QInputMethodEvent>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTest>

#include <string>
#include <vector>

using namespace phial;
using namespace phial::qt;
using phial::test::PaintedField;

namespace
{

class TouchTest : public DesktopSession
{
protected:
    TouchTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({300, 200});
        form_->Move(100 * TwipsPerPixel, 50 * TwipsPerPixel);
        // The test before may just have pressed.
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
    }
    ~TouchTest() override
    {
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(doubleClickInterval_);
        form_->discard();
    }

    std::shared_ptr<PictureBox> key(const char* name, double left, bool takesTouch = true)
    {
        auto box = form_->add<PictureBox>(fromUtf8(name));
        box->Move(left, 10, 48, 48);
        box->frame().takesTouch(takesTouch);
        const auto tell = [this, name](const char* what, const PointerEvent& event) {
            told_.push_back(name + std::string(what) + std::to_string(event.Touch) + " " +
                            std::to_string(static_cast<int>(event.X)) +
                            (event.isCancelled ? " cancelled" : ""));
        };
        connections_ += box->MouseDown.connect([=](const PointerEvent& event) { tell(" down ", event); });
        connections_ += box->MouseMove.connect([=](const PointerEvent& event) {
            if (event.Touch > 0) { // the toolkit moves its mouse before it presses
                tell(" move ", event);
            }
        });
        connections_ += box->MouseUp.connect([=](const PointerEvent& event) { tell(" up ", event); });
        connections_ += box->Click.connect([=, this] { told_.push_back(name + std::string(" click")); });
        connections_ += box->DblClick.connect([=, this] { told_.push_back(name + std::string(" double")); });
        return box;
    }

    auto touch() { return QTest::touchEvent(&widgetOf(*form_), device_); }
    void cancel()
    {
        QTouchEvent event(QEvent::TouchCancel, device_);
        QApplication::sendEvent(&widgetOf(*form_->control<PictureBox>(u"a")), &event);
    }

    using Told = std::vector<std::string>;

    const int doubleClickInterval_ = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    std::unique_ptr<QPointingDevice> owned_{QTest::createTouchDevice()};
    QPointingDevice* device_ = owned_.get();
    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    Connections connections_;
    Told told_;
};

TEST_F(TouchTest, AFingerIsToldInTheFormsOwnPixels)
{
    const auto box = key("a", 0);
    form_->Show();
    form_->Zoom(2);
    QWidget& a = widgetOf(*box);
    touch().press(0, {80, 10}, &a); // outside of what it would be without the zoom
    touch().release(0, {60, 10}, &a);
    EXPECT_EQ(told_, (Told{"a down 1 40", "a up 1 30", "a click"}));
}

TEST_F(TouchTest, ASecondKeyBeforeTheFirstIsLetGoIsNotLost)
{
    QWidget& a = widgetOf(*(form_->Show(), key("a", 0)));
    QWidget& b = widgetOf(*key("b", 60));
    touch().press(0, {5, 5}, &a);
    touch().stationary(0).press(1, {6, 5}, &b);
    touch().release(0, {5, 5}, &a).stationary(1);
    touch().release(1, {6, 5}, &b);
    EXPECT_EQ(told_, (Told{"a down 1 5", "b down 1 6", "a up 1 5", "a click", "b up 1 6", "b click"}));
}

TEST_F(TouchTest, FingersOnOneControlHaveNumbersAndMoveAlone)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0));
    touch().press(3, {5, 5}, &a).press(4, {20, 5}, &a);
    touch().move(3, {7, 5}, &a).stationary(4);
    touch().release(3, {60, 5}, &a).stationary(4);
    touch().stationary(4).press(5, {9, 9}, &a);
    touch().release(4, {20, 5}, &a).release(5, {9, 9}, &a);
    EXPECT_EQ(told_, (Told{"a down 1 5", "a down 2 20", "a move 1 7", "a up 1 60", "a down 1 9", "a up 2 20",
                           "a click", "a up 1 9", "a click"}));
}

TEST_F(TouchTest, NoMouseIsMadeBesideIt)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0));
    for (int tap = 0; tap < 2; ++tap) {
        touch().press(0, {5, 5}, &a);
        touch().release(0, {5, 5}, &a);
    }
    EXPECT_EQ(told_, (Told{"a down 1 5", "a up 1 5", "a click", "a down 1 5", "a up 1 5", "a click"}));
    told_.clear();
    QMouseEvent made(QEvent::MouseButtonPress, {5, 5}, a.mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier, device_); // as some desktops do all the same
    QApplication::sendEvent(&a, &made);
    EXPECT_TRUE(told_.empty());
    QTest::mousePress(&a, Qt::LeftButton, Qt::NoModifier, {5, 5});
    EXPECT_EQ(told_, (Told{"a down 0 5"}));
}

TEST_F(TouchTest, ElsewhereOneFingerIsTheMouse)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0, false));
    QWidget& b = widgetOf(*key("b", 60));
    touch().press(0, {5, 5}, &a);
    touch().stationary(0).press(1, {6, 5}, &b);
    touch().stationary(0).release(1, {6, 5}, &b);
    touch().release(0, {5, 5}, &a);
    EXPECT_EQ(told_, (Told{"a down 0 5", "b down 1 6", "b up 1 6", "b click", "a up 0 5", "a click"}));
}

TEST_F(TouchTest, TakingTouchCanChangeWhileItIsShown)
{
    form_->Show();
    const auto box = key("a", 0, false);
    QWidget& a = widgetOf(*box);
    box->frame().takesTouch(true);
    touch().press(0, {5, 5}, &a);
    touch().release(0, {5, 5}, &a);
    box->frame().takesTouch(false);
    touch().press(0, {40, 5}, &a);
    touch().release(0, {40, 5}, &a);
    EXPECT_EQ(told_, (Told{"a down 1 5", "a up 1 5", "a click", "a down 0 40", "a up 0 40", "a click"}));
}

TEST_F(TouchTest, AFingerOnAHoleMeetsWhatLiesBelow)
{
    form_->Show();
    key("below", 0);
    const auto above = key("above", 10);
    above->transparent(true);
    above->Cls();
    above->MaskPicture(above->Image());
    touch().press(0, {5, 5}, &widgetOf(*above));
    touch().release(0, {5, 5}, &widgetOf(*above));
    ASSERT_FALSE(told_.empty());
    EXPECT_EQ(told_.front().substr(0, 10), "below down");
    EXPECT_EQ(told_.back(), "below click");
}

TEST_F(TouchTest, WhatTheDesktopTakesBackIsNoClick)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0));
    touch().press(0, {5, 5}, &a);
    cancel();
    EXPECT_EQ(told_, (Told{"a down 1 5", "a up 1 5 cancelled"}));
}

TEST_F(TouchTest, WhatIsDownComesUpWhenItsControlGoes)
{
    form_->Show();
    const auto box = key("a", 0);
    QWidget& a = widgetOf(*box);
    touch().press(0, {5, 5}, &a);
    box->Visible(false);
    EXPECT_EQ(told_, (Told{"a down 1 5", "a up 1 5 cancelled"}));
    touch().release(0, {5, 5}, &a);
    box->Visible(true);
    told_.clear();
    touch().press(0, {6, 5}, &a);
    box->frame().takesTouch(false);
    EXPECT_EQ(told_, (Told{"a down 1 6", "a up 1 6 cancelled"}));
    touch().release(0, {6, 5}, &a);
    EXPECT_EQ(told_.size(), 2U);
}

TEST_F(TouchTest, WhatIsDisabledWhileItIsDownComesUpAndIsNotClicked)
{
    form_->Show();
    const auto box = key("a", 0);
    QWidget& a = widgetOf(*box);
    touch().press(0, {5, 5}, &a);
    box->Enabled(false);
    touch().stationary(0).press(1, {20, 5}, &a);
    touch().release(0, {5, 5}, &a).release(1, {20, 5}, &a);
    EXPECT_EQ(told_, (Told{"a down 1 5", "a up 1 5"}));
    box->Enabled(true);
    told_.clear();
    touch().press(0, {5, 5}, &a);
    EXPECT_EQ(told_, (Told{"a down 1 5"})) << "the number is free again";
}

TEST_F(TouchTest, AKeyPressedTogetherWithAHoleIsNotLost)
{
    form_->Show();
    const auto box = key("a", 0);
    box->transparent(true);
    box->Cls();
    box->device().ScaleMode(ScaleUnit::Pixels);
    box->device().Line(24, 0, 47, 47, QBColor(0), LineShape::Filled);
    box->MaskPicture(box->Image());
    QWidget& a = widgetOf(*box);
    touch().press(0, {40, 5}, &a).press(1, {5, 5}, &a);
    touch().release(0, {40, 5}, &a).release(1, {5, 5}, &a);
    EXPECT_EQ(told_, (Told{"a down 1 40", "a up 1 40", "a click"}));
}

TEST_F(TouchTest, AFingerThatIsDownWhenADialogComesIsLetGo)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0));
    const auto dialog = std::make_shared<Form>(u"frm_Dialog");
    touch().press(0, {5, 5}, &a).press(1, {9, 5}, &a);
    told_.clear();
    QMetaObject::invokeMethod(
        &a,
        [&] {
            touch().release(0, {5, 5}, &a).stationary(1).press(2, {12, 5}, &a);
            EXPECT_EQ(told_, (Told{"a up 1 5"}));
            dialog->Unload();
        },
        Qt::QueuedConnection);
    dialog->Show(FormShow::Modal);
    touch().release(1, {9, 5}, &a).release(2, {12, 5}, &a);
    EXPECT_EQ(told_, (Told{"a up 1 5", "a up 2 9", "a click"}));
}

TEST_F(TouchTest, APressEndsWhatIsBeingComposed)
{
    form_->Show();
    widgetOf(*form_).activateWindow();
    ASSERT_TRUE(eventually([&] { return widgetOf(*form_).isActiveWindow(); }));
    const auto box = form_->add<PictureBox>(u"pic_Input");
    box->Move(0, 100, 200, 40);
    PaintedField field(box);
    box->SetFocus();
    const auto compose = [&] {
        QInputMethodEvent composing(QStringLiteral("^"), {});
        QApplication::sendEvent(&widgetOf(*box), &composing);
    };
    QWidget& a = widgetOf(*key("a", 0));
    compose();
    touch().press(0, {5, 5}, &a);
    EXPECT_EQ(field.shown(), u"^");
    touch().release(0, {5, 5}, &a);
    compose();
    QTest::mouseClick(&a, Qt::LeftButton, Qt::NoModifier, {5, 5});
    EXPECT_EQ(field.shown(), u"^^");
}

TEST_F(TouchTest, AHandlerOfTheComposedTextMayCloseTheForm)
{
    form_->Show();
    widgetOf(*form_).activateWindow();
    ASSERT_TRUE(eventually([&] { return widgetOf(*form_).isActiveWindow(); }));
    const auto box = form_->add<PictureBox>(u"pic_Input");
    box->Move(0, 100, 200, 40);
    const PaintedField field(box);
    box->SetFocus();
    QWidget& a = widgetOf(*key("a", 0));
    QInputMethodEvent composing(QStringLiteral("^"), {});
    QApplication::sendEvent(&widgetOf(*box), &composing);
    connections_ += box->KeyPress.connect([this](KeyPressEvent&) { form_->Unload(); });
    touch().press(0, {5, 5}, &a);
    EXPECT_TRUE(told_.empty());
}

TEST_F(TouchTest, ADisabledControlHearsNothing)
{
    form_->Show();
    const auto box = key("a", 0);
    box->Enabled(false);
    touch().press(0, {5, 5}, &widgetOf(*box));
    touch().release(0, {5, 5}, &widgetOf(*box));
    EXPECT_TRUE(told_.empty());
}

TEST_F(TouchTest, AHandlerMayCloseTheForm)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0));
    connections_ +=
        form_->control<PictureBox>(u"a")->MouseUp.connect([this](const PointerEvent&) { form_->Unload(); });
    touch().press(0, {5, 5}, &a).press(1, {9, 5}, &a);
    touch().release(0, {5, 5}, &a).release(1, {9, 5}, &a);
    EXPECT_EQ(std::count(told_.begin(), told_.end(), "a click"), 0);
}

TEST_F(TouchTest, APressGivesTheFocus)
{
    form_->Show();
    const auto box = key("a", 0);
    const auto other = key("b", 60);
    for (const auto& each : {box, other}) {
        each->frame().canFocus(true);
        widgetOf(*each).setFocusPolicy(Qt::ClickFocus);
    }
    other->SetFocus();
    touch().press(0, {5, 5}, &widgetOf(*box));
    EXPECT_EQ(form_->ActiveControl(), box);
}

TEST_F(TouchTest, FingersOnWhatADialogBlocksAreNoPresses)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0));
    const auto dialog = std::make_shared<Form>(u"frm_Dialog");
    QMetaObject::invokeMethod(
        &a,
        [&] {
            touch().press(0, {5, 5}, &a);
            touch().stationary(0).press(1, {9, 5}, &a);
            touch().release(0, {5, 5}, &a).release(1, {9, 5}, &a);
            dialog->Unload();
        },
        Qt::QueuedConnection);
    dialog->Show(FormShow::Modal);
    EXPECT_TRUE(told_.empty());
}

TEST_F(TouchTest, ThePointerGoesWithTheFingerThatPressedLast)
{
    form_->Show();
    QWidget& a = widgetOf(*key("a", 0));
    QWidget& b = widgetOf(*key("b", 60));
    const DesktopDisplay display;
    const auto pointer = [&] { return QPoint(display.CursorX(), display.CursorY()); };
    touch().press(0, {5, 5}, &a);
    EXPECT_EQ(pointer(), a.mapToGlobal(QPoint(5, 5)));
    touch().move(0, {9, 7}, &a);
    EXPECT_EQ(pointer(), a.mapToGlobal(QPoint(9, 7)));
    touch().stationary(0).press(1, {2, 3}, &b);
    touch().move(0, {1, 1}, &a).stationary(1);
    EXPECT_EQ(pointer(), b.mapToGlobal(QPoint(2, 3)));
    touch().stationary(0).release(1, {4, 4}, &b);
    touch().move(0, {2, 2}, &a);
    EXPECT_EQ(pointer(), b.mapToGlobal(QPoint(4, 4)));
    touch().release(0, {2, 2}, &a);
    QCursor::setPos(b.mapToGlobal(QPoint(30, 30)));
    EXPECT_EQ(pointer(), QCursor::pos()) << "the mouse has moved again";
}

TEST_F(TouchTest, ThePointerIsFreeWhenTheFingersControlGoes)
{
    form_->Show();
    const auto box = key("a", 0);
    const DesktopDisplay display;
    touch().press(0, {5, 5}, &widgetOf(*box));
    const QPoint pressed = widgetOf(*box).mapToGlobal(QPoint(5, 5));
    form_->remove(*box);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QPoint(display.CursorX(), display.CursorY()), pressed);
    QCursor::setPos(pressed + QPoint(30, 30));
    EXPECT_EQ(QPoint(display.CursorX(), display.CursorY()), QCursor::pos());
}

} // namespace
