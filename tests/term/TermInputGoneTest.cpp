#include "term/TermField.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <functional>

/// A field that is taken away, with its last reference, in the middle of what the user does with it.
namespace phial::test
{
namespace
{

enum class Away : std::uint8_t { Alone, WithForm };

class TermInputGone : public TermFieldTest, public ::testing::WithParamInterface<Away>
{
protected:
    TermInputGone()
    {
        edit(u"H2O", 2);
        field->OLEDRAGAUTO(true);
        visualHost().clipboardText(u"OH");
    }
    ~TermInputGone() override
    {
        EXPECT_EQ(std::ranges::count(log, "away"), 1);
        EXPECT_EQ(field, nullptr);
        EXPECT_TRUE(watched_.expired());
        outside.advance(2); // nothing ticks any more
    }

    template <typename... Args>
    void takeAwayAt(Event<Args...>& event)
    {
        connections += event.connect([this](const Args&...) { takeAway(); });
    }

    void takeAway()
    {
        log.push_back("away");
        if (GetParam() == Away::WithForm) {
            form->Unload();
        }
        form->remove(*field);
        field.reset();
    }

    void type(StringView notation) { headless::type(*form, notation); }

private:
    std::weak_ptr<clt_TermInput> watched_ = field;
};

TEST_P(TermInputGone, WhenACharacterIsTyped)
{
    takeAwayAt(field->CHANGED);
    KeyPressEvent typed{u'2'};
    field->keyPress(typed);
}

TEST_P(TermInputGone, WhenAKeyErases)
{
    takeAwayAt(field->CHANGED);
    type(u"{bs}{del}");
}

TEST_P(TermInputGone, WhenTheTermIsCut)
{
    takeAwayAt(field->CHANGED);
    type(u"^x^z");
}

TEST_P(TermInputGone, WhenATermIsPasted)
{
    takeAwayAt(field->CHANGED);
    KeyEvent paste{u'V', ShiftMask::Control};
    field->keyDown(paste);
    EXPECT_EQ(paste.KeyCode, 0);
}

TEST_P(TermInputGone, WhenAComposedTextGoesIn)
{
    takeAwayAt(field->CHANGED);
    headless::compose(*form, u"^");
    headless::commit(*form, u"^2");
}

TEST_P(TermInputGone, BeforeTheFormsPreviewPassesTheKeyOn)
{
    form->KeyPreview(true);
    takeAwayAt(form->KeyDown);
    type(u"a");
}

TEST_P(TermInputGone, AtReturn)
{
    takeAwayAt(field->ENTER);
    type(u"{enter}a");
    EXPECT_EQ(std::ranges::count(log, "enter"), 1);
}

TEST_P(TermInputGone, AtEscape)
{
    takeAwayAt(field->Cancel);
    type(u"{esc}{esc}");
    EXPECT_EQ(std::ranges::count(log, "cancel"), 1);
}

TEST_P(TermInputGone, WhenItIsPressed)
{
    takeAwayAt(field->MouseDown);
    headless::click(*field);
}

TEST_P(TermInputGone, WhenThePressTakesTheFocusFromAnother)
{
    other->SetFocus();
    takeAwayAt(other->LostFocus);
    field->pointerDown(at(5));
}

TEST_P(TermInputGone, WhenThePointerMoves)
{
    takeAwayAt(field->MouseMove);
    field->pointerMove(at(5));
}

TEST_P(TermInputGone, WhenThePointerComesUp)
{
    takeAwayAt(field->MouseUp);
    headless::click(*field);
}

TEST_P(TermInputGone, AtAClick)
{
    takeAwayAt(field->CLICK);
    headless::doubleClick(*field);
}

TEST_P(TermInputGone, AtADoubleClick)
{
    takeAwayAt(field->DBLCLICK);
    headless::doubleClick(*field);
}

TEST_P(TermInputGone, WhenAControlIsDropped)
{
    takeAwayAt(field->CHANGED);
    other->Text(u"NaCl");
    field->dragDrop(*other, 5, 5);
}

TEST_P(TermInputGone, WhenATextIsDropped)
{
    takeAwayAt(field->CHANGED);
    field->textDropped(u"NaCl");
}

TEST_P(TermInputGone, WhenTheFocusGoesAwayFromIt)
{
    takeAwayAt(other->GotFocus);
    outside.advance(0.5);
    other->SetFocus();
}

TEST_P(TermInputGone, WhenItsWindowIsNotActiveAnyMore)
{
    takeAwayAt(form->Deactivate);
    outside.advance(0.5);
    form->inputDeactivate();
}

TEST_P(TermInputGone, WhileItIsDragged)
{
    class Dragging final : public ControlPeer
    {
    public:
        explicit Dragging(std::function<void()> drag) : drag_(std::move(drag)) {}
        void modelChanged(ControlAspect aspect) override
        {
            if (aspect == ControlAspect::Drag) {
                drag_();
            }
        }

    private:
        std::function<void()> drag_;
    };
    Dragging dragging([this] {
        field->frame().peer(nullptr);
        takeAway();
    });
    field->frame().peer(&dragging);
    field->pointerDown(at(5));
    field->pointerMove(at(50));
}

INSTANTIATE_TEST_SUITE_P(Taken, TermInputGone, ::testing::Values(Away::Alone, Away::WithForm),
                         [](const auto& instance) {
                             return instance.param == Away::Alone ? "Alone" : "WithItsForm";
                         });

} // namespace
} // namespace phial::test
