#include "support/Composite.h"

#include "DesktopSession.h"
#include "qt/desktop/ControlWidget.h"
#include "visual/KeyboardFocus.h"
#include "visual/PictureBox.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

using namespace phial;
using namespace phial::qt;
using phial::test::Composite;

namespace
{

class CompositeTest : public DesktopSession
{
protected:
    void logs(Event<>& event, const std::string& word)
    {
        connections_ += event.connect([this, word] { log_.push_back(word); });
    }
    void logsFocus(Composite& composite)
    {
        logs(composite.GotFocus, "composite got");
        logs(composite.LostFocus, "composite lost");
        logs(composite.first->LostFocus, "first lost");
        logs(composite.second->GotFocus, "second got");
    }

    static QLineEdit& line(const Control& control) { return *widgetOf(control).findChild<QLineEdit*>(); }
    static bool isAt(const Control& control)
    {
        return eventually([&] { return QApplication::focusWidget() == &line(control); });
    }
    static void press(QWidget& widget, Qt::Key key) { QTest::keyClick(&widget, key); }

    std::vector<std::string> log_;
    Connections connections_;
};

class CompositeOnForm : public CompositeTest
{
protected:
    CompositeOnForm()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({400, 300});
        before_ = form_->add<TextBox>(u"txt_Before");
        composite_ = form_->add<Composite>(u"ctl_Inside");
        after_ = form_->add<TextBox>(u"txt_After");
        before_->Move(0, 150, 100, 20);
        after_->Move(0, 200, 100, 20);
        form_->Show();
        EXPECT_TRUE(isAt(*before_));
        logsFocus(*composite_);
    }
    ~CompositeOnForm() override { form_->discard(); }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<TextBox> before_;
    std::shared_ptr<Composite> composite_;
    std::shared_ptr<TextBox> after_;
};

TEST_F(CompositeOnForm, TabGoesThroughItsFieldsAtItsPlace)
{
    for (const ControlPtr& stop : form_->tabOrder()) {
        EXPECT_EQ(form_->keyboardFocus()->field(), stop);
        press(*QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(isAt(*before_));
    press(*QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(isAt(*composite_->first));
}

TEST_F(CompositeOnForm, AFieldThatIsPressedTakesTheFocusWithIt)
{
    logs(before_->LostFocus, "before lost");
    QTest::mouseClick(&line(*composite_->second), Qt::LeftButton);
    EXPECT_TRUE(isAt(*composite_->second));
    EXPECT_EQ(form_->ActiveControl(), composite_);
    EXPECT_EQ(log_, (std::vector<std::string>{"before lost", "composite got", "second got"}));
}

TEST_F(CompositeOnForm, APressBesideItsFieldsLeavesTheFocusInThem)
{
    const auto other = makeControl<Composite>();
    other->frame().canFocus(true);
    form_->add(other);
    other->Move(200, 0, 180, 100);
    other->second->SetFocus();
    EXPECT_TRUE(isAt(*other->second));
    QTest::mouseClick(&widgetOf(*other), Qt::LeftButton, Qt::NoModifier, QPoint(10, 95));
    EXPECT_TRUE(isAt(*other->second));
    EXPECT_EQ(form_->keyboardFocus()->field(), other->second);
}

TEST_F(CompositeOnForm, KeysReachTheFieldOnceAndTheFormsControls)
{
    const auto enter = form_->add<ctl_Button>(u"but_Enter");
    form_->DefaultControl(enter);
    logs(enter->CLICK, "enter");
    form_->KeyPreview(true);
    int keys = 0;
    const auto heard = form_->KeyDown.connect([&](KeyEvent&) { ++keys; });
    composite_->SetFocus();
    log_.clear();
    EXPECT_TRUE(isAt(*composite_->first));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("H2"));
    press(*QApplication::focusWidget(), Qt::Key_Down); // which the field has no use for
    EXPECT_EQ(keys, 3);
    EXPECT_EQ(composite_->first->Text(), u"H2");
    press(*QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(log_, std::vector<std::string>{"enter"});
    const auto leave = form_->add<ctl_Button>(u"but_Leave");
    form_->CancelControl(leave);
    logs(leave->CLICK, "leave");
    press(*QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(log_, (std::vector<std::string>{"enter", "leave"}));
}

TEST_F(CompositeOnForm, AKeyThatAFieldInAContainerHasNoUseForIsHeardOnce)
{
    const auto holder = form_->add<PictureBox>(u"pic_Holder");
    const auto box = form_->add<TextBox>(u"txt_Inner", holder->container());
    holder->Move(0, 100, 100, 40);
    box->SetFocus();
    EXPECT_TRUE(isAt(*box));
    int keys = 0;
    const auto heard = box->KeyDown.connect([&](KeyEvent&) { ++keys; });
    press(line(*box), Qt::Key_Down);
    EXPECT_EQ(keys, 1);
}

/// A window of plain Qt with a field of its own, a composite, and another field.
class CompositeInPlainQt : public CompositeTest
{
protected:
    CompositeInPlainQt()
    {
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(before_);
        widget_ = new ControlWidget(composite_);
        layout->addWidget(widget_);
        layout->addWidget(after_);
        window_.show();
        window_.activateWindow();
        before_->setFocus();
        EXPECT_TRUE(eventually([&] { return before_->hasFocus(); }));
        logsFocus(*composite_);
    }

    std::shared_ptr<Composite> composite_ = makeControl<Composite>();
    QWidget window_;
    QLineEdit* before_ = new QLineEdit;
    QLineEdit* after_ = new QLineEdit;
    ControlWidget* widget_;
};

TEST_F(CompositeInPlainQt, FieldsBelongToTheWindow)
{
    EXPECT_TRUE(composite_->frame().Parent());
    EXPECT_EQ(composite_->first->frame().Parent(), composite_->frame().Parent());
    EXPECT_EQ(composite_->frame().Parent()->controlCount(), 1U) << "names within stay private";
}

TEST_F(CompositeInPlainQt, SetFocusGoesToTheFieldAndItsWayIsTold)
{
    composite_->SetFocus();
    EXPECT_TRUE(isAt(*composite_->first));
    EXPECT_TRUE(composite_->frame().hasFocus());
    composite_->second->SetFocus();
    EXPECT_TRUE(isAt(*composite_->second));
    after_->setFocus();
    EXPECT_EQ(log_,
              (std::vector<std::string>{"composite got", "first lost", "second got", "composite lost"}));
    EXPECT_FALSE(composite_->frame().hasFocus());
    composite_->Enabled(false);
    EXPECT_THROW(composite_->SetFocus(), RuntimeError);
}

TEST_F(CompositeInPlainQt, TabGoesThroughItsFieldsAtItsPlace)
{
    press(*before_, Qt::Key_Tab);
    EXPECT_TRUE(isAt(*composite_->first));
    press(*QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(isAt(*composite_->second));
    press(*QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(composite_->press->frame().hasFocus());
    press(*QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(after_->hasFocus());
    QTest::keyClick(after_, Qt::Key_Backtab);
    EXPECT_TRUE(composite_->press->frame().hasFocus());
}

TEST_F(CompositeInPlainQt, AFieldThatComesLaterIsReachedAtItsPlaceToo)
{
    const auto late = makeNamed<TextBox>(u"txt_Late");
    late->frame().TabIndex(9);
    composite_->container()->add(late);
    composite_->press->SetFocus();
    press(*QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(isAt(*late));
    press(*QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(after_->hasFocus());
}

TEST_F(CompositeInPlainQt, KeysReachTheFieldOnce)
{
    int keys = 0;
    const auto heard = composite_->first->KeyDown.connect([&](KeyEvent&) { ++keys; });
    composite_->SetFocus();
    QTest::keyClicks(&line(*composite_->first), QStringLiteral("H2"));
    press(line(*composite_->first), Qt::Key_Down);
    EXPECT_EQ(composite_->first->Text(), u"H2");
    EXPECT_EQ(keys, 3);
}

} // namespace
