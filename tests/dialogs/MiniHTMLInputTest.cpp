#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreTheme.h"
#include "core/SessionState.h"
#include "dialogs/ctl_MiniHTMLInput.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "visual/ControlPeer.h"
#include "visual/Form.h"
#include "visual/PropertyBag.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

using headless::Box;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr StringView Hint = u"Markieren Sie erst den Text, den Sie formatieren möchten!";
constexpr StringView EnglishHint = u"First select the text that you want to format!";

/// A container that lets a control have no other height than this.
class FixedHeight final : public ControlPeer
{
public:
    static constexpr int Patience = 20;

    FixedHeight(Control& control, double height) : frame_(control.frame()), height_(height)
    {
        frame_.peer(this);
    }
    ~FixedHeight() override { frame_.peer(nullptr); }
    FixedHeight(const FixedHeight&) = delete;
    FixedHeight& operator=(const FixedHeight&) = delete;

    void modelChanged(ControlAspect aspect) override
    {
        PixelRectangle place = frame_.pixelRectangle();
        if (aspect == ControlAspect::Geometry && place.height != height_ && ++refusals < Patience) {
            place.height = height_;
            frame_.pixelRectangle(place);
        }
    }

    int refusals = 0;

private:
    ControlFrame& frame_;
    double height_;
};

class MiniHTMLInput : public AppSession
{
protected:
    MiniHTMLInput()
    {
        LNG()->CURRENT(ID_Language_German);
        form->ScaleMode(ScaleUnit::Pixels);
        control = form->add<ctl_MiniHTMLInput>(u"txt_Input");
        control->Move(10, 10, 400, 300);
        form->Show();
        tellsChanges = control->PropertyChanged.connect([this](const String& name) { told.push_back(name); });
    }
    ~MiniHTMLInput() override { form->discard(); }

    template <typename Class>
    std::shared_ptr<Class> child(StringView name, std::int32_t index)
    {
        for (const ControlPtr& each : control->container()->controls()) {
            if (each->frame().isCalled(name, index)) {
                return std::dynamic_pointer_cast<Class>(each);
            }
        }
        return nullptr;
    }
    std::shared_ptr<TextBox> field(std::int32_t index) { return child<TextBox>(u"txt_Input", index); }
    std::shared_ptr<ctl_CmdBar> bar(std::int32_t index) { return child<ctl_CmdBar>(u"bar_Format", index); }
    /// Presses the format of that key.
    void press(std::int32_t index, StringView key)
    {
        const auto buttons = bar(index)->BUTTONS();
        for (std::int32_t number = 1; number <= buttons->Count(); ++number) {
            if (buttons->Item(number)->Key() == key) {
                bar(index)->inputButton(number);
                return;
            }
        }
        ADD_FAILURE() << toUtf8(key);
    }
    static void select(TextBox& box, std::int32_t start, std::int32_t length)
    {
        box.SelStart(start);
        box.SelLength(length);
    }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_MiniHTMLInput> control;
    std::vector<String> told;
    Connection tellsChanges;
};

TEST_F(MiniHTMLInput, TagsAreLowerCaseWhateverTheKey)
{
    control->TEXT(u"Wasser");
    select(*field(0), 0, 6);
    press(0, u"B");
    EXPECT_EQ(control->TEXT(), u"<b>Wasser</b>");
}

TEST_F(MiniHTMLInput, HasBoldItalicLoweredAndRaised)
{
    for (const std::int32_t index : {0, 1}) {
        std::vector<String> keys;
        for (std::int32_t number = 1; number <= bar(index)->BUTTONS()->Count(); ++number) {
            keys.push_back(bar(index)->BUTTONS()->Item(number)->Key());
        }
        EXPECT_THAT(keys, ElementsAre(u"B", u"I", u"SUB", u"SUP"));
    }
}

TEST_F(MiniHTMLInput, WithoutASelectionABoxSaysSoAndNothingChanges)
{
    control->TEXT(u"Wasser");
    field(0)->SelStart(3);
    bar(0)->SetFocus();
    outside.dialogs().expect(Box::Info, String(Hint));
    press(0, u"B");
    EXPECT_EQ(control->TEXT(), u"Wasser");
    EXPECT_EQ(field(0)->SelStart(), 3);
    EXPECT_FALSE(field(0)->frame().hasFocus());
    LNG()->CURRENT(ID_Language_English);
    outside.dialogs().expect(Box::Info, String(EnglishHint));
    press(0, u"SUP");
    EXPECT_EQ(control->TEXT(), u"Wasser");
}

TEST_F(MiniHTMLInput, AnEmptyTextHasNothingToFormat)
{
    outside.dialogs().expect(Box::Info, String(Hint));
    press(0, u"I");
    EXPECT_EQ(control->TEXT(), u"");
}

TEST_F(MiniHTMLInput, TheFieldGetsTheFocusBackWithItsSelection)
{
    control->TEXT(u"H2O");
    select(*field(0), 1, 1);
    bar(0)->SetFocus();
    press(0, u"SUB");
    EXPECT_TRUE(field(0)->frame().hasFocus());
    EXPECT_EQ(form->ActiveControl(), control);
    EXPECT_EQ(control->TEXT(), u"H<sub>2</sub>O");
    EXPECT_EQ(field(0)->SelText(), u"2");
}

TEST_F(MiniHTMLInput, AFieldThatCannotTakeTheFocusIsFormattedAllTheSame)
{
    control->TEXT(u"H2O");
    select(*field(0), 1, 1);
    form->Hide();
    control->Visible(false);
    press(0, u"SUB");
    EXPECT_EQ(control->TEXT(), u"H<sub>2</sub>O");
}

TEST_F(MiniHTMLInput, TagsNestAndOverlap)
{
    control->TEXT(u"abcd");
    select(*field(0), 0, 3);
    press(0, u"B");
    select(*field(0), 4, 7); // bc</b>d
    press(0, u"I");
    EXPECT_EQ(control->TEXT(), u"<b>a<i>bc</b>d</i>");
    control->REPAIR();
    EXPECT_EQ(control->TEXT(), u"<b>a<i>bc</i></b><i>d</i>");
}

TEST_F(MiniHTMLInput, AFormatPressedAgainIsTakenOff)
{
    control->TEXT(u"H2O");
    select(*field(0), 1, 1);
    press(0, u"SUB");
    press(0, u"B");
    press(0, u"SUB");
    EXPECT_EQ(control->TEXT(), u"H<b>2</b>O");
    press(0, u"B");
    EXPECT_EQ(control->TEXT(), u"H2O");
    EXPECT_EQ(field(0)->SelText(), u"2");
}

TEST_F(MiniHTMLInput, ARepairWithoutNeedLeavesTheSelection)
{
    control->TEXT(u"<b>a</b>");
    select(*field(0), 3, 1);
    int changes = 0;
    const Connection counts = control->CHANGED.connect([&] { ++changes; });
    callMember(*control, u"Repair", {});
    EXPECT_EQ(field(0)->SelText(), u"a");
    EXPECT_EQ(changes, 0);
}

TEST_F(MiniHTMLInput, EachBarServesTheFieldOfItsIndex)
{
    field(0)->Text(u"eins");
    field(1)->Text(u"zwei");
    select(*field(0), 0, 4);
    select(*field(1), 0, 4);
    press(1, u"I"); // its field is not in use
    EXPECT_EQ(field(0)->Text(), u"eins");
    EXPECT_EQ(field(1)->Text(), u"<i>zwei</i>");
    EXPECT_TRUE(field(0)->frame().hasFocus());
}

TEST_F(MiniHTMLInput, TextIsThatOfTheFieldInUseAtEachTime)
{
    control->TEXT(u"eins");
    control->MULTILINE(true);
    EXPECT_EQ(control->TEXT(), u"");
    control->TEXT(u"zwei\r\ndrei");
    EXPECT_EQ(field(1)->Text(), u"zwei\r\ndrei");
    EXPECT_EQ(field(0)->Text(), u"eins");
    control->MULTILINE(false);
    EXPECT_EQ(control->TEXT(), u"eins");
    setMember(*control, u"Text", u"vier");
    EXPECT_EQ(field(0)->Text(), u"vier");
    EXPECT_EQ(getMember(*control, u"text").toText(), u"vier");
}

TEST_F(MiniHTMLInput, TellsThatItsTextHasChanged)
{
    int changes = 0;
    const Connection counts = control->CHANGED.connect([&] { ++changes; });
    control->TEXT(u"a");
    EXPECT_EQ(changes, 1);
    field(1)->Text(u"not in use");
    EXPECT_EQ(changes, 1);
    control->MULTILINE(true);
    EXPECT_EQ(changes, 2);
    headless::type(*form, u"x");
    EXPECT_EQ(changes, 2) << "nothing has the focus";
    control->SetFocus();
    headless::type(*form, u"x");
    EXPECT_EQ(changes, 3);
}

TEST_F(MiniHTMLInput, OneLineForcesTheHeightToTwiceTheBars)
{
    const double barHeight = bar(0)->frame().pixelRectangle().height;
    EXPECT_DOUBLE_EQ(control->Height(), 2 * barHeight);
    EXPECT_EQ(control->frame().pixelRectangle(), (PixelRectangle{10, 10, 400, 2 * barHeight}));
    EXPECT_EQ(bar(0)->frame().pixelRectangle(), (PixelRectangle{0, 0, 400, barHeight}));
    EXPECT_EQ(field(0)->frame().pixelRectangle(), (PixelRectangle{0, barHeight, 400, barHeight}));
    control->Height(7);
    EXPECT_DOUBLE_EQ(control->Height(), 2 * barHeight);
    control->Width(250);
    EXPECT_EQ(field(0)->frame().pixelRectangle(), (PixelRectangle{0, barHeight, 250, barHeight}));
}

TEST_F(MiniHTMLInput, AContainerThatSetsTheHeightBackHasTheLastWord)
{
    FixedHeight container(*control, 70);
    for (const double width : {390, 250}) {
        container.refusals = 0;
        control->Width(width);
        EXPECT_LT(container.refusals, FixedHeight::Patience) << "they go on for ever";
        const double barHeight = bar(0)->frame().pixelRectangle().height;
        EXPECT_DOUBLE_EQ(control->Height(), 70);
        EXPECT_EQ(field(0)->frame().pixelRectangle(), (PixelRectangle{0, barHeight, width, 70 - barHeight}));
    }
}

TEST_F(MiniHTMLInput, SeveralLinesFillTheHeight)
{
    control->MULTILINE(true);
    EXPECT_DOUBLE_EQ(control->Height(), 300) << "as it was placed";
    control->Move(20, 10, 400, 250);
    control->Move(20, 10, 400, 300);
    const double barHeight = bar(1)->frame().pixelRectangle().height;
    EXPECT_DOUBLE_EQ(control->Height(), 300);
    EXPECT_EQ(field(1)->frame().pixelRectangle(), (PixelRectangle{0, barHeight, 400, 300 - barHeight}));
    control->Height(20);
    EXPECT_DOUBLE_EQ(field(1)->Height(), 0);
    control->MULTILINE(false);
    EXPECT_DOUBLE_EQ(control->Height(), 2 * barHeight);
    control->MULTILINE(true);
    EXPECT_DOUBLE_EQ(control->Height(), 20);
}

TEST_F(MiniHTMLInput, ItMeasuresInPixelsOnAFormInTwips)
{
    const auto other = std::make_shared<Form>(u"frm_Twips");
    const auto inTwips = other->add<ctl_MiniHTMLInput>(u"txt_Other");
    inTwips->Move(150, 150, 6000, 150);
    EXPECT_DOUBLE_EQ(inTwips->Height(), control->Height() * TwipsPerPixel);
    other->discard();
}

TEST_F(MiniHTMLInput, TheItemNotInUseIsHiddenWithItsBar)
{
    for (const bool several : {false, true, false}) {
        control->MULTILINE(several);
        EXPECT_EQ(field(0)->Visible(), !several);
        EXPECT_EQ(bar(0)->Visible(), !several);
        EXPECT_EQ(field(1)->Visible(), several);
        EXPECT_EQ(bar(1)->Visible(), several);
    }
    EXPECT_FALSE(field(0)->MultiLine());
    EXPECT_TRUE(field(1)->MultiLine());
}

TEST_F(MiniHTMLInput, MultilineIsToldWhenItDiffers)
{
    control->MULTILINE(false);
    EXPECT_THAT(told, IsEmpty());
    control->MULTILINE(true);
    control->MULTILINE(true);
    EXPECT_THAT(told, ElementsAre(u"MULTILINE"));
}

TEST_F(MiniHTMLInput, MultilineIsKeptAndTextIsNot)
{
    control->TEXT(u"weg");
    control->MULTILINE(true);
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"MULTILINE"));
    const auto other = std::make_shared<Form>(u"frm_Other");
    const auto read = other->add<ctl_MiniHTMLInput>(u"txt_Other");
    read->frame().pixelRectangle({0, 0, 300, 120});
    read->readProperties(bag);
    EXPECT_TRUE(read->MULTILINE());
    EXPECT_TRUE(read->input().MultiLine());
    EXPECT_TRUE(read->input().Visible());
    EXPECT_DOUBLE_EQ(read->frame().pixelRectangle().height, 120);
    read->readProperties(PropertyBag());
    EXPECT_FALSE(read->MULTILINE());
    EXPECT_TRUE(read->input().Visible());
    other->discard();
}

TEST_F(MiniHTMLInput, ControlWithALetterPressesItsFormat)
{
    control->TEXT(u"H2O");
    control->SetFocus();
    select(*field(0), 0, 3);
    headless::type(*form, u"^b");
    EXPECT_EQ(control->TEXT(), u"<b>H2O</b>");
    headless::type(*form, u"^i");
    EXPECT_EQ(control->TEXT(), u"<b><i>H2O</i></b>");
    headless::type(*form, u"^b");
    EXPECT_EQ(control->TEXT(), u"<i>H2O</i>");
    headless::type(*form, u"^k");
    EXPECT_EQ(control->TEXT(), u"<i>H2O</i>");
    field(0)->SelStart(0);
    outside.dialogs().expect(Box::Info, String(Hint));
    headless::type(*form, u"^b");
}

TEST_F(MiniHTMLInput, AFormatThatIsOffHasNoKeyEither)
{
    bar(0)->BUTTONS()->Item(1)->Enabled(false);
    control->TEXT(u"H2O");
    control->SetFocus();
    select(*field(0), 0, 3);
    headless::type(*form, u"^b");
    EXPECT_EQ(control->TEXT(), u"H2O");
}

TEST_F(MiniHTMLInput, SpeaksTheLanguageInForce)
{
    EXPECT_EQ(bar(1)->BUTTONS()->Item(1)->Caption(), u"Fett");
    LNG()->CURRENT(ID_Language_English);
    callMember(*control, u"TRANSLATE", {});
    EXPECT_EQ(bar(0)->BUTTONS()->Item(1)->Caption(), u"Bold");
    EXPECT_EQ(bar(1)->BUTTONS()->Item(4)->Caption(), u"Raise");
}

TEST_F(MiniHTMLInput, DrawsItsSignsInTheColoursThatAreShown)
{
    const PicturePtr first = bar(0)->BUTTONS()->Item(1)->Picture();
    ASSERT_TRUE(first);
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_NE(bar(0)->BUTTONS()->Item(1)->Picture(), first);
    const PicturePtr second = bar(0)->BUTTONS()->Item(1)->Picture();
    form->Hide();
    coreTheme().SetColours(ColourSet::Light);
    EXPECT_EQ(bar(0)->BUTTONS()->Item(1)->Picture(), second) << "nobody sees it";
    form->Show();
    EXPECT_NE(bar(0)->BUTTONS()->Item(1)->Picture(), second);
}

TEST_F(MiniHTMLInput, AHandlerOfTheChangeMayTakeItAway)
{
    control->TEXT(u"x");
    select(*field(0), 0, 1);
    const auto pressed = bar(0);
    const Connection takes = control->CHANGED.connect([this] {
        form->remove(*control);
        control.reset();
    });
    pressed->inputButton(1);
    EXPECT_FALSE(control);
}

} // namespace

} // namespace phial::test
