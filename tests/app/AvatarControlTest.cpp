#include "app/UserTest.h"
#include "app/ctl_Avatar.h"
#include "core/Members.h"
#include "headless/Hand.h"
#include "visual/Form.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;

class AvatarControl : public UserTest
{
protected:
    AvatarControl() { control->Move(0, 0, 300 * TwipsPerPixel, 56 * TwipsPerPixel); }
    void TearDown() override
    {
        control.reset();
        form->discard();
        UserTest::TearDown();
    }

    std::string drawn() { return outside.visual().drawing(*control); }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_Avatar> control = form->add<ctl_Avatar>(u"ctl_Avatar1");
};

TEST_F(AvatarControl, ShowsTheLatestNameInItsColour)
{
    storeNames({u"Maxi:robot", u"Uli:fox"});
    control->TEXTCOLOR(RGB(255, 255, 0));
    EXPECT_THAT(drawn(), HasSubstr("\"Maxi\" Tahoma 12 #FFFF00"));
    EXPECT_THAT(drawn(), HasSubstr("image"));
    EXPECT_EQ(control->accessibleText(), u"Maxi");
}

TEST_F(AvatarControl, BeginsAtTheLeftOrStandsInTheMiddle)
{
    storeNames({u"Maxi:robot"});
    control->UPDATE();
    EXPECT_THAT(drawn(), HasSubstr("text 60,"));
    control->CENTER(true);
    EXPECT_THAT(drawn(), HasSubstr("text 166,"));
}

TEST_F(AvatarControl, IsDrawnWithoutAnyName)
{
    control->UPDATE();
    EXPECT_THAT(drawn(), HasSubstr("image"));
    EXPECT_EQ(control->accessibleText(), u"");
}

TEST_F(AvatarControl, ShortensANameThatHasNoRoom)
{
    storeNames({String(10'000, u'x') + u":robot"});
    control->UPDATE();
    EXPECT_THAT(drawn(), HasSubstr("xxx\u2026\""));
}

TEST_F(AvatarControl, ShowsLineEndsInANameAsBlanks)
{
    storeNames({u"a\r\nb:robot"});
    control->UPDATE();
    EXPECT_THAT(drawn(), HasSubstr("\"a  b\""));
}

TEST_F(AvatarControl, ShowsAtOnceWhatAClickHasChanged)
{
    storeNames({u"Maxi:robot"});
    control->UPDATE();
    const Connection choosing = control->CLICK.connect([this] { storeNames({u"Uli:fox"}); });
    headless::click(*control);
    EXPECT_THAT(drawn(), HasSubstr("\"Uli\""));
}

TEST_F(AvatarControl, IsClickedByTheSpaceBarAndReturnToo)
{
    int clicks = 0;
    const Connection counting = control->CLICK.connect([&] { ++clicks; });
    form->Show();
    control->SetFocus();
    headless::type(*form, u" {ENTER}");
    EXPECT_EQ(clicks, 2);
    headless::hold(*form, {0, Key::Return, 0});
    EXPECT_EQ(clicks, 3);
}

TEST_F(AvatarControl, SurvivesAHandlerThatTakesItAway)
{
    const Connection closing = control->CLICK.connect([this] { form->remove(*control); });
    headless::click(*control);
    EXPECT_EQ(form->find(u"ctl_Avatar1"), nullptr);
}

TEST_F(AvatarControl, ReportsAChangeByThePropertysName)
{
    std::vector<String> changes;
    const Connection watching =
        control->PropertyChanged.connect([&](const String& name) { changes.push_back(name); });
    control->CENTER(true);
    setMember(*control, u"textcolor", members::toVariant(RGB(1, 2, 3)));
    EXPECT_EQ(changes, (std::vector<String>{u"CENTER", u"TEXTCOLOR"}));
    EXPECT_EQ(control->TEXTCOLOR(), RGB(1, 2, 3));
}

TEST_F(AvatarControl, KeepsItsPropertiesInABag)
{
    EXPECT_EQ(control->TEXTCOLOR(), QBColor(15));
    EXPECT_FALSE(control->CENTER());
    PropertyBag bag;
    control->writeProperties(bag);
    EXPECT_EQ(bag.Count(), 0U);

    control->CENTER(true);
    control->TEXTCOLOR(QBColor(4));
    control->writeProperties(bag);
    EXPECT_EQ(bag.ReadProperty(u"CENTER"), Variant(true));
    const auto other = makeControl<ctl_Avatar>();
    other->readProperties(bag);
    EXPECT_TRUE(other->CENTER());
    EXPECT_EQ(other->TEXTCOLOR(), QBColor(4));
    other->readProperties(PropertyBag());
    EXPECT_FALSE(other->CENTER());
    EXPECT_EQ(other->TEXTCOLOR(), QBColor(15));
}

} // namespace

} // namespace phial
