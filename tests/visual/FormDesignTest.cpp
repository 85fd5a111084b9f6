#include "visual/FormDesign.h"

#include "core/Variant.h"
#include "results/ctl_Mark.h"
#include "term/ctl_TermLabel.h"
#include "visual/ControlArray.h"
#include "visual/FormTest.h"
#include "visual/FrameMembers.h"
#include "visual/ListBox.h"
#include "visual/PictureBox.h"
#include "visual/Shape.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

namespace phial::test
{

namespace
{

class FormDesigns : public FormTest
{
protected:
    void put(const ControlDesign& control) { addControls(*form, std::span(&control, 1)); }

    template <typename Class>
    std::shared_ptr<Class> get(StringView name, std::int32_t index = -1) const
    {
        return form->control<Class>(name, index);
    }
};

TEST_F(FormDesigns, TheOrderOfTheTabKeyGoesOnOverFurtherTables)
{
    constexpr ControlDesign First[] = {design<TextBox>(u"txt_A", {0, 0, 9, 9}),
                                       design<TextBox>(u"txt_B", {0, 0, 9, 9})};
    constexpr ControlDesign Second[] = {design<TextBox>(u"txt_C", {0, 0, 9, 9}),
                                        design<TextBox>(u"txt_D", {0, 0, 9, 9})};
    addControls(*form, First);
    addControls(*form, Second);
    std::vector<String> order;
    for (const ControlPtr& control : form->tabOrder()) {
        order.push_back(control->NAME());
    }
    EXPECT_THAT(order, ElementsAre(u"txt_A", u"txt_B", u"txt_C", u"txt_D"));
}

TEST_F(FormDesigns, WhatControlsStandInTakesTheFormsUnitAtAnyDepth)
{
    form->ScaleMode(ScaleUnit::Pixels);
    constexpr ControlDesign Controls[] = {
        design<ctl_Pannel>(u"pan_Page", {10, 10, 200, 100}),
        design<ctl_Pannel>(u"pan_Card", {20, 20, 100, 50}).inside(u"pan_Page"),
        design<TextBox>(u"txt_In", {5, 6, 40, 20}).inside(u"pan_Card"),
    };
    addControls(*form, Controls);
    EXPECT_EQ(get<TextBox>(u"txt_In")->frame().pixelRectangle(), (PixelRectangle{5, 6, 40, 20}));
    EXPECT_EQ(get<TextBox>(u"txt_In")->frame().originOnForm(), (PixelPoint{35, 36}));
}

TEST_F(FormDesigns, WhatAControlHoldsForItselfKeepsItsUnit)
{
    form->ScaleMode(ScaleUnit::Twips);
    put(design<ctl_Mark>(u"ctl_Mark1", {0, 0, 4500, 600}));
    const auto mark = get<ctl_Mark>(u"ctl_Mark1");
    mark->MARK(enm_Mark::ID_Mark_1P);
    EXPECT_EQ(mark->container()->ScaleMode(), ScaleUnit::Pixels);
}

TEST_F(FormDesigns, ARowTellsTheLookOfItsControl)
{
    put(design<ctl_Label>(u"lab_A", {0, 0, 9, 9}, u"Eins|One")
            .font(18, FontWeight::Bold)
            .ink(Palette::Accent)
            .align(TEXTALIGN::BottomRight)
            .set(u"PlainText", true));
    const auto label = get<ctl_Label>(u"lab_A");
    EXPECT_EQ(label->Caption(), u"Eins|One");
    EXPECT_EQ(label->Font()->traits(), (FontSpec{.name = u"Tahoma", .size = 18, .bold = true}));
    EXPECT_EQ(label->ForeColor(), Palette::Accent);
    EXPECT_EQ(label->Alignment(), TEXTALIGN::BottomRight);
    EXPECT_TRUE(label->PlainText());

    put(design<ctl_Pannel>(u"pan_A", {0, 0, 9, 9}).ground(Palette::Surface).edge(Palette::Divider));
    EXPECT_EQ(get<ctl_Pannel>(u"pan_A")->BackColor(), Palette::Surface);
    EXPECT_EQ(get<ctl_Pannel>(u"pan_A")->BorderColor(), Palette::Divider);

    put(design<ctl_Gradient>(u"bar_A", {0, 0, 9, 9}).gradient(RGB(1, 2, 3), Palette::Ink, 12.5));
    EXPECT_EQ(get<ctl_Gradient>(u"bar_A")->Color1(), RGB(1, 2, 3));
    EXPECT_EQ(get<ctl_Gradient>(u"bar_A")->Color2(), Palette::Ink);
    EXPECT_EQ(get<ctl_Gradient>(u"bar_A")->Angle(), 12.5);

    put(design<Shape>(u"shp_A", {0, 0, 9, 9}).set(u"Shape", ShapeKind::Circle).set(u"BorderWidth", 3));
    EXPECT_EQ(get<Shape>(u"shp_A")->Kind(), ShapeKind::Circle);
    EXPECT_EQ(get<Shape>(u"shp_A")->BorderWidth(), 3);
}

TEST_F(FormDesigns, ATermTakesTheSameWordsUnderItsOwnNames)
{
    put(design<ctl_TermLabel>(u"trm_A", {0, 0, 90, 9}, u"H2O")
            .font(38)
            .ink(Palette::Muted)
            .align(TEXTALIGN::MiddleCentre));
    const auto term = get<ctl_TermLabel>(u"trm_A");
    EXPECT_EQ(term->Term(), u"H2O");
    EXPECT_EQ(term->TEXTFONT()->Size(), 38);
    EXPECT_EQ(term->TEXTCOLOR(), Palette::Muted);
    EXPECT_EQ(term->TEXTALIGN(), TEXTALIGN::MiddleCentre);
}

TEST_F(FormDesigns, RefuseAMemberThatTheControlDoesNotHave)
{
    EXPECT_RAISES(put(design<ListBox>(u"lst_A", {0, 0, 9, 9}).ink(Palette::Ink)), NoSuchMember);
    EXPECT_RAISES(put(design<TextBox>(u"txt_A", {0, 0, 9, 9}).set(u"Angle", 1.0)), NoSuchMember);
    EXPECT_RAISES(put(design<ListBox>(u"lst_B", {0, 0, 9, 9}, u"Text")), NoSuchMember);
    EXPECT_RAISES(put(design<Shape>(u"shp_A", {0, 0, 9, 9}).font(9)), NoSuchMember);
    constexpr ButtonDesign Buttons[] = {{u"DIALOG.OK();", u"OK|OK"}};
    EXPECT_RAISES(put(design<TextBox>(u"txt_B", {0, 0, 9, 9}).buttons(Buttons)), NoSuchMember);
}

TEST_F(FormDesigns, ARepeatedRowIsAnArrayInColumns)
{
    form->ScaleMode(ScaleUnit::Pixels);
    put(design<ctl_Button>(u"but_Key", {10, 20, 30, 30}).repeated(5, 2, 40, 50).font(11));
    EXPECT_EQ(form->controlCount(), 5U);
    const auto last = get<ctl_Button>(u"but_Key", 4);
    EXPECT_EQ(last->frame().pixelRectangle(), (PixelRectangle{10, 120, 30, 30}));
    EXPECT_EQ(get<ctl_Button>(u"but_Key", 3)->Left(), 50);
    EXPECT_EQ(last->Font()->Size(), 11);
    EXPECT_GT(last->frame().TabIndex(), get<ctl_Button>(u"but_Key", 3)->frame().TabIndex());
}

TEST_F(FormDesigns, ABarGetsItsButtons)
{
    constexpr ButtonDesign Buttons[] = {{u"DIALOG.OK();", u"OK|OK", true}, {u"DIALOG.ABORT();", u"Nein|No"}};
    put(design<ctl_CmdBar>(u"bar_Buttons", {0, 0, 99, 9}).buttons(Buttons));
    const auto buttons = get<ctl_CmdBar>(u"bar_Buttons")->BUTTONS();
    ASSERT_EQ(buttons->Count(), 2);
    EXPECT_TRUE(buttons->Item(1)->Default());
    EXPECT_FALSE(buttons->Item(2)->Default());
    EXPECT_EQ(buttons->Item(2)->Caption(), u"Nein|No");
    EXPECT_EQ(buttons->Item(2)->Key(), u"DIALOG.ABORT();");
}

TEST_F(FormDesigns, ARowTellsWhatKeysAndFocusDo)
{
    put(design<ctl_Button>(u"but_Go", {0, 0, 9, 9}).defaultButton());
    put(design<ctl_Button>(u"but_Stop", {0, 0, 9, 9}).cancelButton());
    put(design<ctl_Button>(u"but_Pad", {0, 0, 9, 9}).unfocusable());
    put(design<PictureBox>(u"pic_Choice", {0, 0, 9, 9}).focusable().spoken(u"Bild|Picture"));
    EXPECT_EQ(form->DefaultControl(), form->find(u"but_Go"));
    EXPECT_EQ(form->CancelControl(), form->find(u"but_Stop"));
    EXPECT_FALSE(get<ctl_Button>(u"but_Pad")->frame().canFocus());
    EXPECT_TRUE(get<PictureBox>(u"pic_Choice")->frame().TabStop());
    EXPECT_EQ(get<PictureBox>(u"pic_Choice")->frame().AccessibleName(), u"Bild|Picture");
}

TEST_F(FormDesigns, AFormHasItsFrameFromTheDesign)
{
    static constexpr ControlDesign Controls[] = {design<Label>(u"lab_A", {1, 2, 3, 4})};
    constexpr FormDesign Design{.name = u"frm_Made",
                                .caption = u"Eins|One",
                                .size = {300, 200},
                                .border = BorderStyle::FixedDialog,
                                .ground = Palette::Surface,
                                .hearsKeysFirst = true,
                                .controls = Controls};
    const auto made = makeForm(Design);
    EXPECT_EQ(made->NAME(), u"frm_Made");
    EXPECT_EQ(made->Caption(), u"Eins|One");
    EXPECT_EQ(made->innerSize(), (PixelSize{300, 200}));
    EXPECT_EQ(made->BorderStyle(), BorderStyle::FixedDialog);
    EXPECT_EQ(made->BackColor(), Palette::Surface);
    EXPECT_EQ(made->ScaleMode(), ScaleUnit::Pixels);
    EXPECT_TRUE(made->centred());
    EXPECT_TRUE(made->KeyPreview());
    EXPECT_EQ(made->controlCount(), 1U);
}

/// Notes what its name is when it gets its first properties, as controls do that make an identity of it.
class Christened final : public UserControl
{
public:
    StringView typeName() const override { return u"Christened"; }
    MemberTable members() const override { return FrameMembers; }
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    void paint() override {}
    void initProperties() override { born_ = frame_.NAME() + u"_" + Variant(frame_.Index()).toText(); }
    const String& born() const { return born_; }

private:
    ControlFrame frame_{*this};
    PaintSurface surface_{*this};
    String born_;
};

TEST_F(FormDesigns, AControlHasItsNameBeforeItsFirstProperties)
{
    EXPECT_EQ(form->add<Christened>(u"ctl_One")->born(), u"ctl_One_-1");
    put(design<Christened>(u"ctl_Two", {0, 0, 9, 9}).at(3));
    EXPECT_EQ(get<Christened>(u"ctl_Two", 3)->born(), u"ctl_Two_3");
    ControlArray<Christened> array(*form, u"ctl_Two");
    array.adopt();
    EXPECT_EQ(array.load(5)->born(), u"ctl_Two_5");
}

} // namespace

} // namespace phial::test
