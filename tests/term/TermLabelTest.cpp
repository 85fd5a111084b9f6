#include "support/HeadlessSession.h"
#include "term/ctl_TermLabel.h"
#include "visual/Form.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

class TermLabelTest : public HeadlessSession
{
protected:
    TermLabelTest()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        label->Move(10, 20, 100, 40);
        label->TEXTFONT()->Size(20);
    }

    /// The lines of the last drawing.
    std::string drawn() { return outside.visual().drawing(*label); }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_TermLabel> label = form->add<ctl_TermLabel>(u"trm_Test");
};

TEST_F(TermLabelTest, AFreshLabelShowsWaterInTahomaEight)
{
    const auto fresh = form->add<ctl_TermLabel>(u"trm_Fresh");
    EXPECT_EQ(fresh->Term(), u"H2O");
    EXPECT_EQ(fresh->TEXTFONT()->Name(), u"Tahoma");
    EXPECT_EQ(fresh->TEXTFONT()->Size(), 8);
    EXPECT_EQ(fresh->TEXTALIGN(), TEXTALIGN::MiddleLeft);
    EXPECT_FALSE(fresh->AUTOSIZE());
}

TEST_F(TermLabelTest, EveryLabelHasAnIdOfItsOwn)
{
    EXPECT_FALSE(label->CTRLID().empty());
    EXPECT_NE(label->CTRLID(), form->add<ctl_TermLabel>(u"trm_Other")->CTRLID());
}

TEST_F(TermLabelTest, TheAnchorFollowsTheAlignment)
{
    label->Term(u"AB");
    EXPECT_NE(drawn().find("text 0,8 \"A\""), std::string::npos);
    label->TEXTALIGN(TEXTALIGN::MiddleCentre);
    EXPECT_NE(drawn().find("text 40,8 \"A\""), std::string::npos);
    label->TEXTALIGN(TEXTALIGN::BottomRight);
    EXPECT_NE(drawn().find("text 80,15 \"A\""), std::string::npos);
    label->TEXTALIGN(TEXTALIGN::TopLeft);
    EXPECT_NE(drawn().find("text 0,0 \"A\""), std::string::npos);
}

TEST_F(TermLabelTest, OnlyTheTermCoversWhatLiesBehind)
{
    EXPECT_NE(drawn().find("clear cut"), std::string::npos);
    EXPECT_TRUE(label->surface().MaskPicture());
    EXPECT_FALSE(label->surface().hits({90, 35}));
}

TEST_F(TermLabelTest, AGreyTermIsNotTakenForTheMask)
{
    EXPECT_EQ(label->surface().BackColor(), QBColor(8));
    label->TEXTCOLOR(QBColor(8));
    EXPECT_NE(drawn().find("\"H\" Tahoma 20 #808080"), std::string::npos);
    EXPECT_EQ(label->surface().BackColor(), QBColor(0));
}

TEST_F(TermLabelTest, TheDrawingIsReplacedByTheNext)
{
    label->Term(u"A");
    label->Term(u"B");
    const std::string lines = drawn();
    const std::size_t cleared = lines.rfind("clear");
    EXPECT_LT(lines.rfind("\"A\""), cleared);
    EXPECT_LT(cleared, lines.rfind("\"B\""));
    EXPECT_NE(lines.rfind("\"B\""), std::string::npos);
}

TEST_F(TermLabelTest, AutoSizeTakesTheWidthOfTheTermAndTheHeightOfALine)
{
    label->AUTOSIZE(true);
    EXPECT_EQ(label->Width(), 29);
    EXPECT_EQ(label->Height(), 25);
    label->Term(u"H2SO4");
    EXPECT_EQ(label->Width(), 48);
    EXPECT_EQ(label->Left(), 10);
    EXPECT_EQ(label->Top(), 20);
}

TEST_F(TermLabelTest, AutoSizeMovesTheLabelWhenOneSideDiffers)
{
    label->AUTOSIZE(true);
    label->Height(40);
    EXPECT_EQ(label->Height(), 25);
    label->Width(40);
    EXPECT_EQ(label->Width(), 29);
}

TEST_F(TermLabelTest, WithoutAutoSizeTheLabelKeepsItsSize)
{
    label->Term(u"C6H12O6");
    EXPECT_EQ(label->Width(), 100);
    EXPECT_EQ(label->Height(), 40);
}

TEST_F(TermLabelTest, AutoSizeSpeaksTheHostsTwips)
{
    form->ScaleMode(ScaleUnit::Twips);
    label->AUTOSIZE(true);
    EXPECT_EQ(label->Width(), 29 * 15);
    EXPECT_EQ(label->Height(), 25 * 15);
}

TEST_F(TermLabelTest, EveryWriterTellsItsProperty)
{
    std::vector<String> told;
    const auto connection =
        label->PropertyChanged.connect([&told](const String& name) { told.push_back(name); });
    label->Term(u"O2");
    label->TEXTALIGN(TEXTALIGN::TopLeft);
    label->TEXTCOLOR(RGB(1, 2, 3));
    label->AUTOSIZE(true);
    label->TEXTFONT()->Bold(true);
    EXPECT_EQ(told, (std::vector<String>{u"Term", u"TEXTALIGN", u"TEXTCOLOR", u"AUTOSIZE", u"TEXTFONT"}));
}

TEST_F(TermLabelTest, FollowsTheFontThatItIsGiven)
{
    std::vector<String> told;
    const auto connection =
        label->PropertyChanged.connect([&told](const String& name) { told.push_back(name); });
    const FontPtr before = label->TEXTFONT();
    const auto font = std::make_shared<Font>(FontSpec{.name = u"Arial", .size = 40});
    label->TEXTFONT(font);
    EXPECT_EQ(label->TEXTFONT(), font);
    EXPECT_NE(drawn().find("\"H\" Arial 40"), std::string::npos);

    font->Size(16);
    EXPECT_NE(drawn().find("\"H\" Arial 16"), std::string::npos);
    before->Size(10);
    EXPECT_EQ(told, (std::vector<String>{u"TEXTFONT", u"TEXTFONT"}))
        << "the font before is no longer its own";

    label->TEXTFONT(nullptr);
    EXPECT_EQ(label->TEXTFONT()->Name(), u"Tahoma");
    EXPECT_EQ(label->TEXTFONT()->Size(), 8);
}

TEST_F(TermLabelTest, WhatIsAsByDefaultIsNotKept)
{
    PropertyBag bag;
    form->add<ctl_TermLabel>(u"trm_Fresh")->writeProperties(bag);
    EXPECT_TRUE(bag.Exists(u"TEXTFONT"));
    EXPECT_EQ(bag.Count(), 1U);

    label->Term(u"O2");
    label->TEXTALIGN(static_cast<phial::TEXTALIGN>(1));
    label->AUTOSIZE(true);
    label->TEXTCOLOR(RGB(1, 0, 0));
    label->writeProperties(bag);
    EXPECT_EQ(bag.Count(), 5U);
}

TEST_F(TermLabelTest, TakesItsPropertiesAtOnce)
{
    PropertyBag bag;
    bag.WriteProperty(u"TERM", u"AB");
    bag.WriteProperty(u"AUTOSIZE", true);
    bag.WriteProperty(u"TEXTFONT",
                      ObjectPtr(std::make_shared<Font>(FontSpec{.name = u"Tahoma", .size = 20})));
    label->readProperties(bag);
    EXPECT_EQ(label->Width(), 20);
    EXPECT_EQ(label->accessibleText(), u"AB");
}

TEST_F(TermLabelTest, PropertiesComeBackFromTheirBag)
{
    label->Term(u"SO4^2-");
    label->AUTOSIZE(true);
    label->TEXTALIGN(TEXTALIGN::BottomCentre);
    label->TEXTCOLOR(RGB(1, 2, 3));
    label->TEXTFONT()->Bold(true);
    PropertyBag bag;
    label->writeProperties(bag);
    EXPECT_EQ(bag.ReadProperty(u"TERM").toText(), u"SO4^2-");

    const auto other = form->add<ctl_TermLabel>(u"trm_Other");
    other->readProperties(bag);
    EXPECT_EQ(other->Term(), u"SO4^2-");
    EXPECT_EQ(other->TEXTALIGN(), TEXTALIGN::BottomCentre);
    EXPECT_EQ(other->TEXTCOLOR(), RGB(1, 2, 3));
    EXPECT_TRUE(other->AUTOSIZE());
    EXPECT_TRUE(other->TEXTFONT()->Bold());
    EXPECT_NE(other->TEXTFONT(), label->TEXTFONT());
}

TEST_F(TermLabelTest, AnEmptyBagGivesTheDefaults)
{
    label->Term(u"O2");
    label->TEXTALIGN(TEXTALIGN::BottomRight);
    label->TEXTCOLOR(RGB(1, 2, 3));
    label->AUTOSIZE(true);
    label->readProperties(PropertyBag());
    EXPECT_EQ(label->Term(), u"H2O");
    EXPECT_EQ(label->TEXTALIGN(), TEXTALIGN::MiddleLeft);
    EXPECT_EQ(label->TEXTCOLOR(), RGB(0, 0, 0));
    EXPECT_FALSE(label->AUTOSIZE());
    EXPECT_EQ(label->TEXTFONT()->Size(), 8);
}

TEST_F(TermLabelTest, IsReachedByTheNamesOfItsMembers)
{
    setMember(*label, u"term", u"O2");
    EXPECT_EQ(getMember(*label, u"TERM").toText(), u"O2");
    EXPECT_EQ(getMember(*label, u"ctrlid").toText(), label->CTRLID());
    callMember(*label, u"redraw");
    EXPECT_EQ(label->accessibleText(), u"Sauerstoff: O zwei");
}

TEST_F(TermLabelTest, AClickIsTold)
{
    int clicks = 0;
    const auto connection = label->CLICK.connect([&clicks] { ++clicks; });
    label->click();
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace phial::test
