#include "core/Variant.h"
#include "visual/ComboBox.h"
#include "visual/ControlCopy.h"
#include "visual/FormTest.h"
#include "visual/ListBox.h"
#include "visual/ListView.h"
#include "visual/PictureBox.h"
#include "visual/RichTextBox.h"
#include "visual/ScrollBar.h"
#include "visual/Shape.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Frame.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"
#include "visual/ctl_Title.h"
#include "visual/ctl_UICommandbar.h"

#include <set>

namespace phial::test
{

namespace
{

using ControlMembers = HeadlessSession;

std::vector<ControlPtr> oneOfEach()
{
    return {makeControl<Label>(),        makeControl<ctl_Label>(),  makeControl<TextBox>(),
            makeControl<RichTextBox>(),  makeControl<PictureBox>(), makeControl<Shape>(),
            makeControl<ctl_Button>(),   makeControl<ctl_CmdBar>(), makeControl<ctl_UICommandbar>(),
            makeControl<ctl_Title>(),    makeControl<ctl_Frame>(),  makeControl<ctl_Pannel>(),
            makeControl<ctl_Gradient>(), makeControl<ScrollBar>(),  makeControl<ListBox>(),
            makeControl<ComboBox>(),     makeControl<ListView>()};
}

TEST_F(ControlMembers, EveryControlHasThoseOfTheFrameAndNoNameTwice)
{
    for (const ControlPtr& control : oneOfEach()) {
        std::set<String> names;
        for (const Member& member : control->members()) {
            EXPECT_TRUE(names.insert(upperCase(member.name)).second)
                << toUtf8(control->typeName()) << " " << toUtf8(member.name);
            EXPECT_TRUE(member.read || member.call) << toUtf8(member.name);
        }
        EXPECT_TRUE(names.contains(u"TOOLTIPTEXT")) << toUtf8(control->typeName());
    }
}

TEST_F(ControlMembers, ClassesHaveNamesOfTheirOwn)
{
    std::set<String> names;
    for (const ControlPtr& control : oneOfEach()) {
        EXPECT_TRUE(names.insert(upperCase(control->typeName())).second) << toUtf8(control->typeName());
    }
}

TEST_F(ControlMembers, EveryPropertyTakesItsOwnValueBack)
{
    for (const ControlPtr& control : oneOfEach()) {
        for (const Member& member : control->members()) {
            if (member.read && member.write) {
                const Variant value = member.read(*control);
                EXPECT_NO_THROW(member.write(*control, value)) << toUtf8(member.name);
                EXPECT_EQ(member.read(*control), value)
                    << toUtf8(control->typeName()) << " " << toUtf8(member.name);
            }
        }
    }
}

TEST_F(ControlMembers, AreFoundWithoutRegardToCaseAndMissingOnesRaise438)
{
    const auto label = makeControl<Label>();
    setMember(*label, u"CAPTION", u"Text");
    EXPECT_EQ(getMember(*label, u"caption").toText(), u"Text");
    EXPECT_EQ(tryGet(*label, u"Term"), std::nullopt);
    EXPECT_RAISES(getMember(*label, u"Term"), NoSuchMember);
    EXPECT_RAISES(setMember(*label, u"Index", 1), NoSuchMember);
    EXPECT_RAISES(setMember(*label, u"Left", u"weit"), TypeMismatch);
}

TEST_F(ControlMembers, CopyHasEqualPropertiesButKeepsItsName)
{
    for (const ControlPtr& control : oneOfEach()) {
        control->Move(10, 20, 30, 40);
        control->Tag(u"Zettel");
        control->Enabled(false);
    }
    const auto originals = oneOfEach();
    const auto copies = oneOfEach();
    for (std::size_t at = 0; at < originals.size(); ++at) {
        originals[at]->frame().NAME(u"original");
        originals[at]->Move(10, 20, 30, 40);
        originals[at]->Tag(u"Zettel");
        originals[at]->Enabled(false);
        copyControl(*originals[at], *copies[at]);
        EXPECT_EQ(copies[at]->NAME(), u"");
        EXPECT_EQ(copies[at]->Tag(), u"Zettel");
        EXPECT_FALSE(copies[at]->Enabled());
        EXPECT_EQ(copies[at]->frame().pixelRectangle(), (PixelRectangle{10, 20, 30, 40}));
    }
}

TEST(PropertyBagTest, GivesTheDefaultForAKeyThatIsNotThere)
{
    PropertyBag bag;
    EXPECT_EQ(bag.ReadProperty(u"TEXT", u"Bubble").toText(), u"Bubble");
    EXPECT_TRUE(bag.ReadProperty(u"TEXT").isEmpty());
}

TEST(PropertyBagTest, KeepsWhatDiffersFromItsDefault)
{
    PropertyBag bag;
    bag.WriteProperty(u"ZIPSIZE", 40, 30);
    bag.WriteProperty(u"ZIP", true, true);
    EXPECT_EQ(bag.Count(), 1U);
    EXPECT_EQ(bag.ReadProperty(u"zipsize", 30).toWhole(), 40);
    bag.WriteProperty(u"ZIPSIZE", 30, 30);
    EXPECT_FALSE(bag.Exists(u"ZIPSIZE"));
}

TEST(PropertyBagTest, KeepsFontsAsTheyWere)
{
    PropertyBag bag;
    const auto font = std::make_shared<Font>();
    bag.WriteProperty(u"TEXTFONT", Variant(ObjectPtr(font)));
    font->Size(20);
    const auto restored = std::dynamic_pointer_cast<Font>(bag.ReadProperty(u"TEXTFONT").object());
    ASSERT_NE(restored, nullptr);
    EXPECT_EQ(restored->Size(), 8);
    restored->Size(30);
    EXPECT_EQ(std::dynamic_pointer_cast<Font>(bag.ReadProperty(u"TEXTFONT").object())->Size(), 8);
}

TEST(FontTest, TellsChangesAndNothingElse)
{
    Font font;
    int changes = 0;
    const Connection counting = font.changed.connect([&] { ++changes; });
    font.Size(8);
    font.Bold(true);
    font.Weight(600);
    font.assign(font.traits());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(font.Weight(), 700);
    font.Weight(550);
    EXPECT_FALSE(font.Bold());
    EXPECT_RAISES(font.Size(0), InvalidArgument);
}

} // namespace

} // namespace phial::test
