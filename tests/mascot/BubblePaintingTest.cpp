#include "mascot/BubbleTest.h"
#include "support/Places.h"
#include "visual/PictureBox.h"

#include <array>
#include <fstream>
#include <gmock/gmock-matchers.h>
#include <limits>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;
using Side = enm_BallonZipSide;

constexpr std::array SideNames{"LeftTop",    "LeftBottom",  "RightTop", "RightBottom",
                               "BottomLeft", "BottomRight", "TopLeft",  "TopRight"};

/// The drawing of that name in the balloons' table; empty where there is none.
std::string tabled(const std::string& name)
{
    std::ifstream table(test::vectorsFolder() / "balloons.txt");
    std::string line;
    while (std::getline(table, line) && line != name) {
    }
    std::string drawing;
    while (std::getline(table, line) && !line.empty()) {
        drawing += line + '\n';
    }
    return drawing;
}

TEST_F(BubbleTest, IsDrawnAsItsTableTellsForEachPlaceOfTheTailAndBothCorners)
{
    for (std::size_t side = 0; side < SideNames.size(); ++side) {
        bubble->ZIPSIDE(static_cast<Side>(side));
        for (const bool isRound : {false, true}) {
            bubble->BORDERROUND(isRound ? 5 : 0);
            const std::string name = std::string(SideNames.at(side)) + (isRound ? " round" : " square");
            EXPECT_EQ(drawn(), tabled(name)) << name;
        }
    }
}

TEST_F(BubbleTest, WithoutATailTheBoxFillsTheControlUpToItsShadow)
{
    bubble->ZIP(false);
    bubble->BORDERROUND(0);
    EXPECT_THAT(drawn(), HasSubstr("box 0,0 115x75 fill #FFFF96\n"));
    EXPECT_THAT(drawn(), Not(HasSubstr("polygon")));
}

TEST_F(BubbleTest, ASideThatDoesNotExistHasNoTail)
{
    bubble->ZIPSIDE(static_cast<Side>(8));
    EXPECT_EQ(bubble->ZIPSIDE(), static_cast<Side>(8));
    bubble->BORDERROUND(0);
    EXPECT_THAT(drawn(), HasSubstr("box 0,0 115x75 fill #FFFF96\n"));
    EXPECT_THAT(drawn(), Not(HasSubstr("polygon")));
}

TEST_F(BubbleTest, NegativeOffsetsPutTheShadowAtTheUpperLeft)
{
    bubble->ZIP(false);
    bubble->BORDERROUND(0);
    bubble->SHADOWOFFX(-8);
    bubble->SHADOWOFFY(-6);
    EXPECT_THAT(drawn(), HasSubstr("box 0,0 112x74 fill #000000\n"));
    EXPECT_THAT(drawn(), HasSubstr("box 8,6 112x74 fill #FFFF96\n"));
    EXPECT_EQ(label()->Left(), 13);
    EXPECT_EQ(label()->Top(), 11);
}

TEST_F(BubbleTest, TheShadowIsPaintedWhateverIsSaidOfIt)
{
    bubble->SHADOW(true);
    const std::string with = drawn();
    bubble->SHADOW(false);
    EXPECT_EQ(drawn(), with);
}

TEST_F(BubbleTest, TheHatchIsCountedFromTheFoot)
{
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x80 cut\n"));
    bubble->SHADOWALT(true);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x80 cut beside\n"));
    bubble->Height(81 * 15);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x81 cut\n"));
    bubble->SHADOWALT(false);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x81 cut beside\n"));
}

TEST_F(BubbleTest, HasHolesAroundTheBalloonAndInTheShadowOnly)
{
    bubble->ZIP(false);
    bubble->BORDERROUND(0);
    drawn();
    EXPECT_TRUE(bubble->surface().hits({3, 3}));
    EXPECT_TRUE(bubble->surface().hits({114, 74}));
    EXPECT_FALSE(bubble->surface().hits({117, 2})) << "beside the shadow";
    EXPECT_NE(bubble->surface().hits({117, 40}), bubble->surface().hits({117, 41}));
}

TEST_F(BubbleTest, HasItsNewShapeAtOnceAndIsPaintedOnceForSeveralWrites)
{
    bubble->ZIP(false);
    bubble->BORDERROUND(0);
    const auto before = paintings();
    EXPECT_TRUE(bubble->surface().hits({3, 40}));
    bubble->SHADOWOFFX(-20);
    bubble->SHADOWOFFY(0);
    EXPECT_NE(bubble->surface().hits({3, 40}), bubble->surface().hits({3, 41})) << "now of the shadow";
    EXPECT_EQ(paintings(), before + 1);
}

TEST_F(BubbleTest, ABoxWithoutRoomIsSeeThrough)
{
    bubble->SHADOWOFFX(120);
    EXPECT_EQ(drawn(), "clear cut\n");
    EXPECT_FALSE(bubble->surface().hits({60, 40}));
    bubble->SHADOWOFFX(5);
    bubble->ZIPDISTANCE(115);
    EXPECT_EQ(drawn(), "clear cut\n");
    bubble->ZIPDISTANCE(114);
    EXPECT_THAT(drawn(), HasSubstr("polygon"));
}

TEST_F(BubbleTest, AnOverflowReachesWhoeverWritesAndIsSwallowedByAResize)
{
    EXPECT_RAISES(bubble->SHADOWOFFX(std::numeric_limits<std::int32_t>::min()), Overflow);
    EXPECT_EQ(bubble->SHADOWOFFX(), std::numeric_limits<std::int32_t>::min());
    bubble->Width(200 * 15);
    EXPECT_EQ(size().width, 200);
    EXPECT_RAISES(bubble->REDRAW(), Overflow);
    bubble->SHADOWOFFX(5);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 200x80"));
}

TEST_F(BubbleTest, TheTextStandsInTheBoxWithItsMargin)
{
    bubble->TEXTMARGIN(6);
    bubble->TEXTCOLOR(QBColor(4));
    bubble->TEXTFONT()->Bold(true);
    EXPECT_EQ(label()->frame().pixelRectangle(), (PixelRectangle{26, 6, 83, 63}));
    EXPECT_EQ(label()->ForeColor(), QBColor(4));
    EXPECT_TRUE(label()->Font()->Bold());
    EXPECT_NE(label()->Font(), bubble->TEXTFONT());
    bubble->TEXTMARGIN(60);
    EXPECT_EQ(label()->frame().pixelRectangle(), (PixelRectangle{80, 60, 0, 0}));
}

TEST_F(BubbleTest, AFontThatChangesIsFollowedWithoutAFit)
{
    bubble->AUTOSIZE(true);
    bubble->TEXT(u"Wasser");
    const PixelSize before = size();
    drawn();
    bubble->TEXTFONT()->Size(20);
    EXPECT_EQ(size(), before);
    EXPECT_EQ(label()->Font()->Size(), 20);
}

TEST_F(BubbleTest, AFontThatChangesIsPainted)
{
    const auto before = paintings();
    bubble->TEXTFONT()->Bold(true);
    EXPECT_EQ(paintings(), before + 1);
}

TEST_F(BubbleTest, SeveralLinesStandAtTheLeft)
{
    for (const StringView text : {u"a<br>b", u"a\r\nb", u"a\rb"}) {
        bubble->TEXT(String(text));
        EXPECT_EQ(label()->Alignment(), TEXTALIGN::MiddleLeft);
    }
    for (const StringView text : {u"a<BR>b", u"a b", u"a\nb"}) {
        bubble->TEXT(String(text));
        EXPECT_EQ(label()->Alignment(), TEXTALIGN::MiddleCentre);
    }
    EXPECT_EQ(bubble->TEXTALIGN(), TEXTALIGN::MiddleCentre);
}

} // namespace

} // namespace phial
