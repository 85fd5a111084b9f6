#include "mascot/BubbleTest.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using test::ElementsAre;
using test::IsEmpty;
using ::testing::HasSubstr;
using ::testing::Not;
using Side = enm_BallonZipSide;

TEST_F(BubbleTest, IsFreshWithTheseValues)
{
    EXPECT_TRUE(bubble->ZIP());
    EXPECT_EQ(bubble->ZIPSIDE(), Side::ID_BallonZipSide_LeftTop);
    EXPECT_EQ(bubble->ZIPDISTANCE(), 20);
    EXPECT_EQ(bubble->ZIPSIZE(), 30);
    EXPECT_FALSE(bubble->AUTOSIZE());
    EXPECT_EQ(bubble->TEXTCOLOR(), RGB(0, 0, 0));
    EXPECT_EQ(bubble->TEXT(), u"");
    EXPECT_EQ(bubble->TEXTALIGN(), TEXTALIGN::MiddleCentre);
    EXPECT_EQ(bubble->TEXTMARGIN(), 5);
    EXPECT_EQ(bubble->BORDERROUND(), 5);
    EXPECT_EQ(bubble->BORDERCOLOR(), RGB(128, 128, 0));
    EXPECT_EQ(bubble->SHADOWCOLOR(), RGB(0, 0, 0));
    EXPECT_FALSE(bubble->SHADOW());
    EXPECT_EQ(bubble->SHADOWOFFX(), 5);
    EXPECT_EQ(bubble->SHADOWOFFY(), 5);
    EXPECT_FALSE(bubble->SHADOWALT());
    EXPECT_EQ(bubble->FILLCOLOR(), RGB(255, 255, 150));
    EXPECT_EQ(bubble->TEXTFONT()->traits(), FontSpec{});
    EXPECT_EQ(bubble->CTRLID(), u"ctl_Bubble1_ID-1");
}

TEST_F(BubbleTest, ReadFromAnEmptyBagDiffersFromAFreshOne)
{
    const PropertyBag bag;
    const auto shared = bubble->TEXTFONT();
    bubble->readProperties(bag);
    EXPECT_EQ(bubble->TEXT(), u"Bubble");
    EXPECT_TRUE(bubble->SHADOW());
    EXPECT_EQ(bubble->CTRLID(), u"");
    EXPECT_NE(bubble->TEXTFONT(), shared) << "each control has a font of its own";
    EXPECT_EQ(bubble->TEXTFONT()->traits(), FontSpec{});
}

TEST_F(BubbleTest, IsWrittenWithTheDefaultsOfReading)
{
    PropertyBag fresh;
    bubble->writeProperties(fresh);
    EXPECT_EQ(fresh.ReadProperty(u"SHADOW", true), Variant(false));
    EXPECT_EQ(fresh.ReadProperty(u"TEXT", String(u"Bubble")), Variant(u""));
    changeEverything();
    bubble->SHADOW(true);
    PropertyBag bag;
    bubble->writeProperties(bag);
    const auto other = form->add<ctl_Bubble>(u"ctl_Bubble2");
    other->readProperties(bag);
    PropertyBag again;
    other->writeProperties(again);
    for (const StringView key :
         {u"ZIP", u"ZIPSIDE", u"ZIPDISTANCE", u"ZIPSIZE", u"AUTOSIZE", u"TEXTCOLOR", u"TEXT", u"TEXTALIGN",
          u"TEXTMARGIN", u"BORDERROUND", u"BORDERCOLOR", u"SHADOWCOLOR", u"SHADOW", u"SHADOWOFFX",
          u"SHADOWOFFY", u"SHADOWALT", u"FILLCOLOR"}) {
        EXPECT_EQ(again.ReadProperty(key), bag.ReadProperty(key)) << toUtf8(key);
    }
    EXPECT_EQ(other->TEXTFONT()->Size(), 12);
    EXPECT_NE(other->TEXTFONT(), bubble->TEXTFONT());
}

TEST_F(BubbleTest, ItsKeysAreReadInOneOrderAndWrittenInAnother)
{
    changeEverything();
    PropertyBag bag;
    bubble->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"ZIP", u"ZIPSIDE", u"ZIPDISTANCE", u"ZIPSIZE", u"AUTOSIZE",
                                        u"TEXTCOLOR", u"TEXTFONT", u"TEXT", u"TEXTALIGN", u"TEXTMARGIN",
                                        u"BORDERROUND", u"BORDERCOLOR", u"SHADOWCOLOR", u"SHADOW",
                                        u"SHADOWOFFX", u"SHADOWOFFY", u"SHADOWALT", u"FILLCOLOR"));
    std::vector<StringView> read;
    const auto members = bubble->members();
    const auto first = std::ranges::find(members, u"ZIP", &Member::name);
    std::ranges::transform(first, first + 18, std::back_inserter(read), &Member::name);
    EXPECT_THAT(read, ElementsAre(u"ZIP", u"ZIPSIDE", u"ZIPDISTANCE", u"ZIPSIZE", u"AUTOSIZE", u"TEXTCOLOR",
                                  u"TEXT", u"TEXTALIGN", u"TEXTMARGIN", u"BORDERROUND", u"BORDERCOLOR",
                                  u"SHADOWCOLOR", u"SHADOW", u"SHADOWOFFX", u"SHADOWOFFY", u"SHADOWALT",
                                  u"FILLCOLOR", u"TEXTFONT"));
}

TEST_F(BubbleTest, ReadingPaintsNothing)
{
    const auto before = paintings();
    PropertyBag bag;
    bag.WriteProperty(u"ZIP", false);
    bag.WriteProperty(u"TEXT", String(u"Hallo"));
    bubble->readProperties(bag);
    EXPECT_EQ(paintings(), before);
    EXPECT_THAT(told, IsEmpty());
    bubble->REDRAW();
    EXPECT_EQ(paintings(), before + 1);
    EXPECT_THAT(drawn(), Not(HasSubstr("polygon"))) << "and it has been read";
}

TEST_F(BubbleTest, BadLengthsAreIgnoredWhole)
{
    bubble->ZIPDISTANCE(-1);
    bubble->ZIPSIZE(0);
    bubble->ZIPSIZE(-5);
    bubble->BORDERROUND(-1);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(bubble->ZIPDISTANCE(), 20);
    EXPECT_EQ(bubble->ZIPSIZE(), 30);
    EXPECT_EQ(bubble->BORDERROUND(), 5);
    bubble->ZIPDISTANCE(0);
    bubble->ZIPSIZE(1);
    bubble->BORDERROUND(0);
    EXPECT_THAT(told, ElementsAre(u"ZIPDISTANCE", u"ZIPSIZE", u"BORDERROUND"));
}

TEST_F(BubbleTest, EachWriteIsTold)
{
    bubble->SHADOW(false);
    bubble->TEXT(u"");
    bubble->FILLCOLOR(bubble->FILLCOLOR());
    bubble->TEXTFONT(std::make_shared<Font>());
    EXPECT_THAT(told, ElementsAre(u"SHADOW", u"TEXT", u"FILLCOLOR", u"TEXTFONT"));
    told.clear();
    bubble->AUTOSIZE(true);
    EXPECT_THAT(told, IsEmpty()) << "the one that tells nothing";
}

TEST_F(BubbleTest, APressOnTheTextIsOneOnTheBalloon)
{
    logs(bubble->CLICK, "click");
    logs(bubble->DBLCLICK, "double");
    form->Show();
    headless::click(*bubble);
    headless::click(*label());
    EXPECT_THAT(log, ElementsAre("click", "click"));
    bubble->doubleClick();
    label()->doubleClick();
    EXPECT_THAT(log, ElementsAre("click", "click", "double", "double"));
}

TEST_F(BubbleTest, ScreenReadersReadItsText)
{
    bubble->TEXT(u"H<sub>2</sub>O<br>Wasser");
    EXPECT_EQ(bubble->accessibleText(), u"H2O\nWasser");
}

TEST_F(BubbleTest, IsReachedByTheNamesOfItsMembers)
{
    setMember(*bubble, u"zipside", 3);
    EXPECT_EQ(bubble->ZIPSIDE(), Side::ID_BallonZipSide_RightBottom);
    setMember(*bubble, u"TEXTALIGN", 2);
    EXPECT_EQ(getMember(*bubble, u"TextAlign"), Variant(2));
    EXPECT_EQ(getMember(*bubble, u"CTRLID"), Variant(u"ctl_Bubble1_ID-1"));
    callMember(*bubble, u"REDRAW");
}

} // namespace

} // namespace phial
