#include "headless/TouchScreen.h"
#include "term/TermField.h"
#include "term/ctl_TermLabel.h"
#include "visual/Shape.h"

namespace phial::test
{
namespace
{

class TermInputPointer : public TermFieldTest
{
protected:
    /// What the field tells its widget, as far as drags go.
    class Peer final : public ControlPeer
    {
    public:
        explicit Peer(ControlFrame& frame) : frame_(frame), before_(frame.peer()) { frame.peer(this); }
        ~Peer() override { frame_.peer(before_); }
        void modelChanged(ControlAspect aspect) override { drags += aspect == ControlAspect::Drag; }
        int drags = 0;

    private:
        ControlFrame& frame_;
        ControlPeer* before_;
    };

    int dragsAfterMove(double distance)
    {
        Peer peer(field->frame());
        field->pointerDown(at(50));
        field->pointerMove(at(50 + distance));
        field->pointerUp(at(50 + distance));
        return peer.drags;
    }
};

TEST_F(TermInputPointer, APressTakesTheFocusFirstAndShowsTheCaretThere)
{
    field->Term(u"SO4^2-");
    connections += field->MouseDown.connect([this](const PointerEvent&) {
        log.push_back(field->frame().hasFocus() ? "with focus" : "without");
        log.push_back(std::to_string(field->CARET()));
    });
    field->pointerDown(at(37));
    EXPECT_THAT(log, ElementsAre("with focus", "6"));
    EXPECT_EQ(caretX(), 38);
}

TEST_F(TermInputPointer, ThePlaceNearestToThePressWinsAndTheFirstOfEqualOnes)
{
    field->Term(u"HCl");
    field->pointerDown(at(14));
    EXPECT_EQ(field->CARET(), 1);
    field->pointerDown(at(15));
    EXPECT_EQ(field->CARET(), 1);
    field->pointerDown(at(16));
    EXPECT_EQ(field->CARET(), 2);
    field->pointerDown(at(199));
    EXPECT_EQ(field->CARET(), 3);
    field->Term(u"SO4^2-");
    field->pointerDown(at(20));
    EXPECT_EQ(field->CARET(), 2) << "and not behind the ^, which has the same place";
}

TEST_F(TermInputPointer, WithinAFractionTheNearestPlaceOutsideWins)
{
    field->Term(u"x(abcd)/(e)y");
    for (int x = 0; x < 200; ++x) {
        field->pointerDown(at(x));
        const std::int32_t caret = field->CARET();
        EXPECT_TRUE(caret <= 1 || caret >= 11) << x;
    }
    field->pointerDown(at(12));
    EXPECT_EQ(field->CARET(), 1);
    field->pointerDown(at(48));
    EXPECT_EQ(field->CARET(), 11);
    field->Term(u"->->");
    field->pointerDown(at(-1));
    EXPECT_EQ(field->CARET(), 0);
}

TEST_F(TermInputPointer, ALockedFieldMayBePressed)
{
    field->Term(u"HCl");
    field->LOCKED(true);
    field->pointerDown(at(19));
    EXPECT_EQ(field->CARET(), 2);
}

TEST_F(TermInputPointer, PassesOnWhatItHears)
{
    std::vector<PointerEvent> heard;
    const auto hear = [&](const PointerEvent& event) { heard.push_back(event); };
    connections += field->MouseDown.connect(hear);
    connections += field->MouseMove.connect(hear);
    connections += field->MouseUp.connect(hear);
    const PointerEvent press{PointerButton::Right, ShiftMask::Shift, 12, 13};
    field->pointerDown(press);
    field->pointerMove({PointerButton::None, 0, 14, 15});
    field->pointerUp({PointerButton::Left, 0, 16, 17});
    ASSERT_EQ(heard.size(), 3U);
    EXPECT_EQ(heard[0].Button, PointerButton::Right);
    EXPECT_EQ(heard[0].Shift, ShiftMask::Shift);
    EXPECT_EQ(heard[0].X, 12);
    EXPECT_EQ(heard[0].Y, 13);
    EXPECT_EQ(heard[1].X, 14);
    EXPECT_EQ(heard[2].Y, 17);
    headless::doubleClick(*field);
    EXPECT_THAT(log, ElementsAre("click", "double"));
}

TEST_F(TermInputPointer, ADragBeginsAfterFourPixels)
{
    EXPECT_EQ(dragsAfterMove(40), 0);
    field->OLEDRAGAUTO(true);
    EXPECT_EQ(dragsAfterMove(3.9), 0);
    EXPECT_EQ(dragsAfterMove(4), 1);
    EXPECT_EQ(dragsAfterMove(-4), 1);
    field->LOCKED(true);
    EXPECT_EQ(dragsAfterMove(4), 1) << "its term can be given away";
}

TEST_F(TermInputPointer, APressDragsOnceAndOnlyWithTheLeftButton)
{
    field->OLEDRAGAUTO(true);
    Peer peer(field->frame());
    field->pointerMove(at(100));
    EXPECT_EQ(peer.drags, 0) << "it was pressed elsewhere";
    field->pointerDown(at(50));
    field->pointerMove(at(60));
    field->pointerMove(at(80));
    EXPECT_EQ(peer.drags, 1);
    field->pointerUp(at(80));
    field->pointerMove(at(10));
    EXPECT_EQ(peer.drags, 1);
    field->pointerDown({PointerButton::Right, 0, 50, 20});
    field->pointerMove({PointerButton::Right, 0, 90, 20});
    EXPECT_EQ(peer.drags, 1);
    field->pointerDown(at(50));
    field->pointerDown({PointerButton::Right, 0, 50, 20});
    field->pointerMove(at(90));
    EXPECT_EQ(peer.drags, 1) << "another button has ended the press";
}

TEST_F(TermInputPointer, AFingerDragsAfterTenPixels)
{
    field->OLEDRAGAUTO(true);
    Peer peer(field->frame());
    headless::TouchScreen touch(outside.display());
    touch.press(1, *field, {50, 20});
    touch.move(1, {9, 0});
    EXPECT_EQ(peer.drags, 0);
    touch.move(1, {1, 0});
    EXPECT_EQ(peer.drags, 1);
    touch.release(1);
}

TEST_F(TermInputPointer, ADragCarriesTheTerm)
{
    Peer peer(field->frame());
    field->Term(u"CO2");
    field->OLEDrag();
    EXPECT_EQ(peer.drags, 1);
    EXPECT_EQ(field->dragText(), u"CO2");
}

TEST_F(TermInputPointer, ADropTakesTheTextElseTheCaptionElseTheTerm)
{
    other->Text(u"NaCl");
    field->dragDrop(*other, 5, 5);
    EXPECT_EQ(field->Term(), u"NaCl");
    const auto label = form->add<Label>(u"lab_Source");
    label->Caption(u"KCl");
    field->dragDrop(*label, 5, 5);
    EXPECT_EQ(field->Term(), u"KCl");
    const auto source = form->add<clt_TermInput>(u"trm_Source");
    source->Term(u"CO2");
    field->dragDrop(*source, 5, 5);
    EXPECT_EQ(field->Term(), u"CO2");
    const auto shownTerm = form->add<ctl_TermLabel>(u"lab_Term");
    shownTerm->Term(u"SO2");
    field->dragDrop(*shownTerm, 5, 5);
    EXPECT_EQ(field->Term(), u"SO2");
    EXPECT_EQ(log, std::vector<std::string>(4, "changed"));
    EXPECT_EQ(source->Term(), u"CO2");
}

TEST_F(TermInputPointer, ADropOfNothingChangesNothing)
{
    field->Term(u"H2O");
    field->dragDrop(*other, 5, 5);
    EXPECT_EQ(field->Term(), u"H2O") << "an empty text and no caption";
    field->dragDrop(*form->add<Shape>(u"shp_Source"), 5, 5);
    EXPECT_EQ(field->Term(), u"H2O");
    field->dragDrop(*field, 5, 5);
    EXPECT_EQ(field->Term(), u"H2O") << "onto itself";
    other->Text(u"H2O");
    field->dragDrop(*other, 5, 5);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TermInputPointer, TextFromOutsideBecomesTheTerm)
{
    field->textDropped(u"NaCl");
    EXPECT_EQ(field->Term(), u"NaCl");
    EXPECT_THAT(log, ElementsAre("changed"));
    edit(field->Term(), 0);
    headless::type(*form, u"^z");
    EXPECT_EQ(field->Term(), u"NaCl") << "the program has set it since";
    field->textDropped(u"KCl");
    headless::type(*form, u"^z");
    EXPECT_EQ(field->Term(), u"NaCl");
}

TEST_F(TermInputPointer, TextFromOutsideBecomesOneLine)
{
    field->textDropped(u"2H2\r\n+ O2\n");
    EXPECT_EQ(field->Term(), u"2H2 + O2");
}

TEST_F(TermInputPointer, ALockedFieldTakesNoDrop)
{
    field->LOCKED(true);
    other->Text(u"NaCl");
    field->dragDrop(*other, 5, 5);
    field->textDropped(u"NaCl");
    EXPECT_EQ(field->Term(), u"H2O");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TermInputPointer, AHandlerMayTakeTheFieldAway)
{
    field->OLEDRAGAUTO(true);
    connections += field->MouseDown.connect([this](const PointerEvent&) { form->remove(*field); });
    field->pointerDown(at(5));
    EXPECT_EQ(field->frame().form(), nullptr);
    field->pointerDown(at(5));
    field->pointerMove(at(50));
}

} // namespace
} // namespace phial::test
