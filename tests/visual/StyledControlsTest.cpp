#include "core/CoreTheme.h"
#include "core/Variant.h"
#include "visual/FormTest.h"
#include "visual/Shape.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Frame.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"
#include "visual/ctl_ReEvent.h"
#include "visual/ctl_Title.h"
#include "visual/ctl_UICommandbar.h"

namespace phial::test
{

namespace
{

class StyledControls : public FormTest
{
protected:
    std::string drawn(Control& control) { return outside.visual().drawing(control); }

    template <typename Class>
    std::shared_ptr<Class> placed(double widthInPixels, double heightInPixels)
    {
        auto control = form->add<Class>(String(u"ctl_Test").append(form->controlCount(), u'_'));
        control->frame().pixelRectangle({0, 0, widthInPixels, heightInPixels});
        return control;
    }
};

TEST_F(StyledControls, GradientFillsItsField)
{
    const auto gradient = placed<ctl_Gradient>(40, 20);
    gradient->Color1(QBColor(15));
    gradient->Color2(QBColor(9));
    gradient->Angle(0);
    EXPECT_THAT(drawn(*gradient), ::testing::HasSubstr("gradient 0,0 40x20 #FFFFFF to #0000FF 0 "));
}

TEST_F(StyledControls, LabelShowsAPlainTextWithItsTags)
{
    const auto label = placed<ctl_Label>(200, 20);
    label->Caption(u"<b>x</b>");
    EXPECT_EQ(label->accessibleText(), u"x");
    label->PlainText(true);
    EXPECT_EQ(label->accessibleText(), u"<b>x</b>");
    EXPECT_THAT(drawn(*label), ::testing::HasSubstr("\"<b>x</b>\" Tahoma 8 #000000\n"));
}

TEST_F(StyledControls, PanelShowsItsTextInTheMiddle)
{
    const auto panel = placed<ctl_Pannel>(100, 30);
    panel->Caption(u"leer");
    EXPECT_THAT(drawn(*panel), ::testing::HasSubstr("text 42,10 \"leer\" Tahoma 8 #000000\n"));
}

TEST_F(StyledControls, PanelAndFrameHoldControlsInTwips)
{
    for (Control* holder : {static_cast<Control*>(placed<ctl_Pannel>(10, 10).get()),
                            static_cast<Control*>(placed<ctl_Frame>(10, 10).get())}) {
        ASSERT_NE(holder->container(), nullptr);
        EXPECT_EQ(holder->container()->ScaleMode(), ScaleUnit::Twips);
    }
}

TEST_F(StyledControls, TitleClosesByItsSignOnly)
{
    const auto title = placed<ctl_Title>(200, 30);
    logs(title->CLOSE, "close");
    headless::click(*title, 20, 10);
    headless::click(*title, 190, 10);
    title->Closable(false);
    headless::click(*title, 190, 10);
    EXPECT_THAT(log, ElementsAre("close"));
}

TEST_F(StyledControls, CloseSignIsANamedPartWithAnAction)
{
    const auto title = placed<ctl_Title>(200, 30);
    logs(title->CLOSE, "close");
    ASSERT_EQ(title->parts().size(), 1U);
    const NamedPart part = title->parts().front();
    EXPECT_EQ(part.role, PartRole::Button);
    EXPECT_EQ(part.area, (PixelRectangle{170, 0, 30, 30}));
    EXPECT_FALSE(part.name.empty());
    title->activatePart(0);
    EXPECT_THAT(log, ElementsAre("close"));
}

TEST_F(StyledControls, TitleFollowsTheTheme)
{
    const auto title = placed<ctl_Title>(200, 30);
    title->Title(u"Molmasse");
    coreTheme().SetColour(ThemeSlot::Frame, u"#383838");
    coreTheme().SetColour(ThemeSlot::FrameText, u"#FFFFFF");
    EXPECT_THAT(drawn(*title), ::testing::HasSubstr("clear #383838"));
    EXPECT_THAT(drawn(*title), ::testing::HasSubstr("\"Molmasse\" Tahoma 11 bold #FFFFFF"));
}

TEST_F(StyledControls, TitleShowsSmallerTextsBehindItAndAtTheRight)
{
    const auto title = placed<ctl_Title>(300, 30);
    title->Title(u"Hilfe");
    title->TextLeft(u"Wasser");
    title->TextRight(u"3/12");
    title->Closable(false);
    const std::string picture = drawn(*title);
    EXPECT_THAT(picture, ::testing::HasSubstr("\"Hilfe\" Tahoma 11 bold"));
    EXPECT_THAT(picture, ::testing::ContainsRegex("text [0-9.]+,[0-9.]+ \"Wasser\" Tahoma 8.8 #"));
    EXPECT_THAT(picture, ::testing::ContainsRegex("\"3/12\" Tahoma 8.8 #"));
    EXPECT_EQ(title->accessibleText(), u"Hilfe, Wasser, 3/12");
    title->TextLeft({});
    EXPECT_EQ(title->accessibleText(), u"Hilfe, 3/12");
}

TEST_F(StyledControls, PaintedControlsPersistUnderTheirKeys)
{
    const auto title = placed<ctl_Title>(200, 30);
    title->Title(u"Titel");
    title->Closable(false);
    const auto gradient = placed<ctl_Gradient>(200, 30);
    gradient->Color1(QBColor(4));
    gradient->Angle(30);
    PropertyBag bag;
    title->writeProperties(bag);
    gradient->writeProperties(bag);
    EXPECT_EQ(bag.ReadProperty(u"title").toText(), u"Titel");
    EXPECT_FALSE(bag.Exists(u"COLOR2")) << "defaults are left out";
    const auto restored = makeControl<ctl_Gradient>();
    restored->readProperties(bag);
    EXPECT_EQ(restored->Color1(), QBColor(4));
    EXPECT_EQ(restored->Angle(), 30);
    EXPECT_EQ(restored->Color2(), gradient->Color2());
}

TEST_F(StyledControls, PropertyWritersTellTheNameOfTheProperty)
{
    const auto panel = placed<ctl_Pannel>(10, 10);
    connections +=
        panel->PropertyChanged.connect([this](const String& name) { log.push_back(toUtf8(name)); });
    panel->Caption(u"a");
    panel->Caption(u"a");
    panel->ForeColor(QBColor(12));
    EXPECT_THAT(log, ElementsAre("Caption", "ForeColor"));
}

TEST_F(StyledControls, FigureKeepsItsOutlineInside)
{
    const auto shape = placed<Shape>(50, 50);
    shape->BorderWidth(2);
    shape->BorderColor(QBColor(12));
    EXPECT_EQ(drawn(*shape), "clear cut\nbox 1,1 48x48 line #FF0000 w2\n");
    EXPECT_RAISES(shape->BorderWidth(-1), InvalidArgument);
}

TEST_F(StyledControls, CommandBarTellsItsIndexAndTheKeyOfTheButton)
{
    const auto bar = placed<ctl_CmdBar>(200, 30);
    bar->frame().Index(1);
    bar->BUTTONS()->Add(u"DIALOG.OK();", u"OK");
    bar->BUTTONS()->Add(u"DIALOG.ABORT();", u"Abbrechen|Cancel");
    connections += bar->BUTTON.connect([this](std::int32_t index, const String& key) {
        log.push_back(std::to_string(index) + " " + toUtf8(key));
    });
    headless::clickButton(*bar, u"dialog.ok();");
    bar->BUTTONS()->Item(2)->Enabled(false);
    bar->inputButton(2);
    EXPECT_THAT(log, ElementsAre("1 DIALOG.OK();"));
    EXPECT_RAISES(bar->inputButton(3), IndexOutOfBounds);
}

TEST_F(StyledControls, AButtonsFaceIsItsTextUnlessThatIsBlank)
{
    const auto bar = placed<ctl_CmdBar>(200, 30);
    const auto button = bar->BUTTONS()->Add(u"k", u"Fertig");
    EXPECT_EQ(button->face(), u"Fertig");
    button->Text(u"OK   ");
    EXPECT_EQ(button->face(), u"OK   ");
    button->Text(u"   ");
    EXPECT_EQ(button->face(), u"Fertig");
}

TEST_F(StyledControls, ABarTellsItsWidgetWhenAPartLooksDifferent)
{
    class Watch final : public ControlPeer
    {
    public:
        void modelChanged(ControlAspect aspect) override { items += aspect == ControlAspect::Items ? 1 : 0; }
        int items = 0;
    };
    const auto bar = placed<ctl_CmdBar>(200, 30);
    Watch watch;
    bar->frame().peer(&watch);
    const auto button = bar->BUTTONS()->Add(u"k", u"Fertig");
    const auto panel = bar->PANELS()->Add(u"", u"bereit");
    button->Description(u"schließt das Fenster");
    panel->Text(u"beschäftigt");
    button->Tag(u"nothing to be seen");
    button->Key(u"K");
    EXPECT_EQ(watch.items, 4);
    bar->frame().peer(nullptr);
}

TEST_F(StyledControls, ButtonsOfABarAreReachedByMemberNames)
{
    const auto bar = placed<ctl_UICommandbar>(200, 30);
    bar->BUTTONS()->Add(u"b", u"Fett|Bold");
    const auto buttons = getMember(*bar, u"buttons").object();
    EXPECT_EQ(getMember(*buttons, u"COUNT").toWhole(), 1);
    const Variant first[] = {Variant(1)};
    const auto button = callMember(*buttons, u"Item", first).object();
    setMember(*button, u"CAPTION", u"Bold");
    EXPECT_EQ(bar->BUTTONS()->Item(1)->Caption(), u"Bold");
    EXPECT_FALSE(trySet(*button, u"Colour", Variant(1)));
}

TEST_F(StyledControls, AButtonMayOutliveItsBar)
{
    auto bar = std::make_shared<ctl_CmdBar>();
    const auto button = bar->BUTTONS()->Add(u"k", u"c");
    bar.reset();
    button->Caption(u"allein");
    EXPECT_EQ(button->Caption(), u"allein");
}

TEST_F(StyledControls, RelayRepeatsAnEventToAllWhoListen)
{
    ctl_ReEvent relay;
    connections += relay.REPEATED.connect([this](const String& name, const Variant::Array& arguments) {
        log.push_back(toUtf8(name) + " " + toUtf8(arguments.at(0).toText()));
    });
    relay.REPEAT(u"AVATAR", {Variant(u"robot")});
    EXPECT_THAT(log, ElementsAre("AVATAR robot"));
}

} // namespace

} // namespace phial::test
