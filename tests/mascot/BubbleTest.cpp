#include "mascot/ctl_Bubble.h"
#include "support/Places.h"
#include "visual/FormTest.h"
#include "visual/Markup.h"
#include "visual/PictureBox.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <limits>

namespace phial
{

namespace
{

using test::ElementsAre;
using test::IsEmpty;
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

/// A desktop that lets a label have no other width than this.
class FixedWidth final : public ControlPeer
{
public:
    FixedWidth(Control& label, double width) : frame_(label.frame()), width_(width) { frame_.peer(this); }
    ~FixedWidth() override { frame_.peer(nullptr); }
    FixedWidth(const FixedWidth&) = delete;
    FixedWidth& operator=(const FixedWidth&) = delete;

    void modelChanged(ControlAspect aspect) override
    {
        const PixelRectangle place = frame_.pixelRectangle();
        if (aspect == ControlAspect::Geometry && place.width != width_) {
            frame_.pixelRectangle({place.left, place.top, width_, place.height});
        }
    }

private:
    ControlFrame& frame_;
    double width_;
};

/// A balloon of 120 by 80 pixels at (20, 10) on a form that counts in twips. A letter is 4 pixels wide and a
/// line 10 high.
class Bubble : public test::FormTest
{
protected:
    Bubble()
    {
        bubble->Move(20 * 15, 10 * 15, 120 * 15, 80 * 15);
        connections += bubble->PropertyChanged.connect([this](const String& name) { told.push_back(name); });
    }

    /// The last picture.
    std::string drawn()
    {
        const std::string all = outside.visual().drawing(*bubble);
        return all.substr(all.rfind("clear"));
    }
    /// Gives each property a value that is not the default of reading, which a fresh SHADOW has.
    void changeEverything()
    {
        bubble->ZIP(false);
        bubble->ZIPSIDE(Side::ID_BallonZipSide_TopRight);
        bubble->ZIPDISTANCE(0);
        bubble->ZIPSIZE(1);
        bubble->AUTOSIZE(true);
        bubble->TEXTCOLOR(QBColor(1));
        bubble->TEXT(u"Hallo");
        bubble->TEXTALIGN(TEXTALIGN::BottomRight);
        bubble->TEXTMARGIN(6);
        bubble->BORDERROUND(0);
        bubble->BORDERCOLOR(QBColor(2));
        bubble->SHADOWCOLOR(QBColor(3));
        bubble->SHADOWOFFX(-7);
        bubble->SHADOWOFFY(8);
        bubble->SHADOWALT(true);
        bubble->FILLCOLOR(QBColor(4));
        bubble->TEXTFONT()->Size(12);
    }
    /// How often it has been painted.
    std::ptrdiff_t paintings()
    {
        const std::string all = outside.visual().drawing(*bubble);
        std::ptrdiff_t count = 0;
        for (auto at = all.find("clear"); at != std::string::npos; at = all.find("clear", at + 1)) {
            ++count;
        }
        return count;
    }
    std::shared_ptr<ctl_Label> label()
    {
        return std::dynamic_pointer_cast<ctl_Label>(bubble->container()->controls().front());
    }
    PixelSize size() { return bubble->surface().size(); }
    /// Gives the text room to fit in and lets it.
    PixelSize fitted(String text)
    {
        bubble->AUTOSIZE(true);
        bubble->TEXT(std::move(text));
        return size();
    }

    std::shared_ptr<ctl_Bubble> bubble = form->add<ctl_Bubble>(u"ctl_Bubble1");
    std::vector<String> told;
};

TEST_F(Bubble, IsFreshWithTheseValues)
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

TEST_F(Bubble, AFitToTheSameSizePlacesItsTextAgain)
{
    fitted(u"Wasser");
    const PixelRectangle place = label()->frame().pixelRectangle();
    bubble->AUTOSIZE(false);
    bubble->AUTOSIZE(true);
    EXPECT_EQ(label()->frame().pixelRectangle(), place);
}

TEST_F(Bubble, ReadFromAnEmptyBagDiffersFromAFreshOne)
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

TEST_F(Bubble, IsWrittenWithTheDefaultsOfReading)
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

TEST_F(Bubble, ItsKeysAreReadInOneOrderAndWrittenInAnother)
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

TEST_F(Bubble, ReadingPaintsNothing)
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

TEST_F(Bubble, BadLengthsAreIgnoredWhole)
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

TEST_F(Bubble, EachWriteIsTold)
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

TEST_F(Bubble, IsDrawnAsItsTableTellsForEachPlaceOfTheTailAndBothCorners)
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

TEST_F(Bubble, WithoutATailTheBoxFillsTheControlUpToItsShadow)
{
    bubble->ZIP(false);
    bubble->BORDERROUND(0);
    EXPECT_THAT(drawn(), HasSubstr("box 0,0 115x75 fill #FFFF96\n"));
    EXPECT_THAT(drawn(), Not(HasSubstr("polygon")));
}

TEST_F(Bubble, ASideThatDoesNotExistHasNoTail)
{
    bubble->ZIPSIDE(static_cast<Side>(8));
    EXPECT_EQ(bubble->ZIPSIDE(), static_cast<Side>(8));
    bubble->BORDERROUND(0);
    EXPECT_THAT(drawn(), HasSubstr("box 0,0 115x75 fill #FFFF96\n"));
    EXPECT_THAT(drawn(), Not(HasSubstr("polygon")));
}

TEST_F(Bubble, NegativeOffsetsPutTheShadowAtTheUpperLeft)
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

TEST_F(Bubble, TheShadowIsPaintedWhateverIsSaidOfIt)
{
    bubble->SHADOW(true);
    const std::string with = drawn();
    bubble->SHADOW(false);
    EXPECT_EQ(drawn(), with);
}

TEST_F(Bubble, TheHatchIsCountedFromTheFoot)
{
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x80 cut\n"));
    bubble->SHADOWALT(true);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x80 cut beside\n"));
    bubble->Height(81 * 15);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x81 cut\n"));
    bubble->SHADOWALT(false);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 120x81 cut beside\n"));
}

TEST_F(Bubble, HasHolesAroundTheBalloonAndInTheShadowOnly)
{
    bubble->ZIP(false);
    bubble->BORDERROUND(0);
    drawn();
    EXPECT_TRUE(bubble->surface().hits({3, 3}));
    EXPECT_TRUE(bubble->surface().hits({114, 74}));
    EXPECT_FALSE(bubble->surface().hits({117, 2})) << "beside the shadow";
    EXPECT_NE(bubble->surface().hits({117, 40}), bubble->surface().hits({117, 41}));
}

TEST_F(Bubble, HasItsNewShapeAtOnceAndIsPaintedOnceForSeveralWrites)
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

TEST_F(Bubble, ABoxWithoutRoomIsSeeThrough)
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

TEST_F(Bubble, AnOverflowReachesWhoeverWritesAndIsSwallowedByAResize)
{
    EXPECT_RAISES(bubble->SHADOWOFFX(std::numeric_limits<std::int32_t>::min()), Overflow);
    EXPECT_EQ(bubble->SHADOWOFFX(), std::numeric_limits<std::int32_t>::min());
    bubble->Width(200 * 15);
    EXPECT_EQ(size().width, 200);
    EXPECT_RAISES(bubble->REDRAW(), Overflow);
    bubble->SHADOWOFFX(5);
    EXPECT_THAT(drawn(), HasSubstr("hatch 0,0 200x80"));
}

TEST_F(Bubble, TheTextStandsInTheBoxWithItsMargin)
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

TEST_F(Bubble, AFontThatChangesIsFollowedWithoutAFit)
{
    bubble->AUTOSIZE(true);
    bubble->TEXT(u"Wasser");
    const PixelSize before = size();
    drawn();
    bubble->TEXTFONT()->Size(20);
    EXPECT_EQ(size(), before);
    EXPECT_EQ(label()->Font()->Size(), 20);
}

TEST_F(Bubble, AFontThatChangesIsPainted)
{
    const auto before = paintings();
    bubble->TEXTFONT()->Bold(true);
    EXPECT_EQ(paintings(), before + 1);
}

TEST_F(Bubble, SeveralLinesStandAtTheLeft)
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

TEST_F(Bubble, AShortTextIsNarrowedInSteps)
{
    // One line of 10: 300, 250, 200, 150, 100. The tail and the shadow come on top; the tail needs a height.
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 20 + 5, 50 + 5}));
    EXPECT_TRUE(label()->Visible());
    EXPECT_FALSE(label()->AutoSize());
    bubble->ZIPSIDE(Side::ID_BallonZipSide_BottomLeft);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 5, 10 + 10 + 20 + 5}));
    bubble->ZIPDISTANCE(60);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{150 + 5, 10 + 10 + 60 + 5}));
    bubble->ZIP(false);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 5, 10 + 10 + 5}));
}

TEST_F(Bubble, HalfAPixelOfTheTailsRoomGoesToTheEvenOne)
{
    bubble->ZIPDISTANCE(25); // 62.5
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 25 + 5, 62 + 5}));
    bubble->ZIPDISTANCE(27); // 67.5
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 27 + 5, 68 + 5}));
    bubble->ZIPSIDE(Side::ID_BallonZipSide_TopRight);
    bubble->ZIPDISTANCE(59); // 147.5
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{148 + 5, 10 + 10 + 59 + 5}));
}

TEST_F(Bubble, ATailNeedsRoomOnlyWhereTheTextHasLessThanTwiceItsLength)
{
    bubble->ZIPDISTANCE(10);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 10 + 5, 10 + 10 + 5})) << "just twice";
    bubble->ZIPDISTANCE(11);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 11 + 5, 28 + 5}));
}

TEST_F(Bubble, ANegativeMarginLeavesNoSizeBelowNone)
{
    bubble->TEXTMARGIN(-3);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 - 6 + 20 + 5, 50 + 5}));
    EXPECT_EQ(label()->frame().pixelRectangle(), (PixelRectangle{17, -3, 100, 56}));
    bubble->TEXTMARGIN(-500);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{0, 50 + 5}));
    EXPECT_EQ(drawn(), "clear cut\n");
    bubble->ZIP(false);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{0, 0}));
    bubble->TEXTMARGIN(5);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 5, 10 + 10 + 5})) << "and grows again";
}

TEST_F(Bubble, ATextThatTakesNoOtherWidthIsLeftAsItIs)
{
    String many;
    for (int word = 0; word < 400; ++word) {
        many += u"Atom ";
    }
    for (const String& text : {String(u"Wasser"), many}) { // to be narrowed, to be widened
        bubble->AUTOSIZE(false);
        bubble->TEXT(text);
        label()->Visible(true);
        label()->AutoSize(false);
        const FixedWidth fixed(*label(), 300);
        bubble->AUTOSIZE(true);
        EXPECT_EQ(size(), (PixelSize{120, 80})) << text.size();
        EXPECT_FALSE(label()->Visible());
        EXPECT_TRUE(label()->AutoSize());
        EXPECT_EQ(label()->Width(), 300);
    }
}

TEST_F(Bubble, ASideThatDoesNotExistTakesNoRoomInTheFit)
{
    bubble->ZIPSIDE(static_cast<Side>(8));
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 5, 10 + 10 + 5}));
}

TEST_F(Bubble, ATextWithItsOwnLinesIsNotNarrowed)
{
    bubble->ZIP(false);
    EXPECT_EQ(fitted(u"a<br>b"), (PixelSize{300 + 10 + 5, 20 + 10 + 5}));
    EXPECT_EQ(fitted(u"a\rb"), (PixelSize{300 + 10 + 5, 20 + 10 + 5}));
}

TEST_F(Bubble, ALongTextIsWidened)
{
    bubble->ZIP(false);
    String text;
    for (int word = 0; word < 200; ++word) {
        text += u"Atom ";
    }
    const PixelSize taken = fitted(text); // 15 words a line of 300, 200 in 14 lines, which fits
    EXPECT_EQ(taken, (PixelSize{300 + 10 + 5, 140 + 10 + 5}));
    EXPECT_EQ(fitted(text + text), (PixelSize{400 + 10 + 5, 200 + 10 + 5}));
}

TEST_F(Bubble, ManyLinesEndInABoundedFit)
{
    bubble->ZIP(false);
    String text;
    for (int line = 1; line < 200; ++line) {
        text += u"a<br>";
    }
    headless::FixedTextMetrics& metrics = outside.visual().metrics();
    const std::size_t before = metrics.asked();
    const MarkupLayout one(text + u"a", FontSpec{}, metrics, 300);
    const std::size_t once = metrics.asked() - before;
    EXPECT_EQ(fitted(text + u"a"), (PixelSize{4000 + 10 + 5, 2000 + 10 + 5}));
    EXPECT_EQ((metrics.asked() - before) / once - 1, 75U) << "from 300 to 4000 in steps of 50";
}

TEST_F(Bubble, AWordWiderThanTheBalloonIsBroken)
{
    bubble->ZIP(false);
    const PixelSize taken = fitted(u"Natriumhydrogencarbonatloesung"); // 30 letters of 4
    EXPECT_EQ(taken, (PixelSize{100 + 10 + 5, 20 + 10 + 5}));
    EXPECT_THAT(outside.visual().drawing(*label()), HasSubstr("\"Natriumhydrogencarbonatlo\""));
}

TEST_F(Bubble, FitsAtARealChangeOfTheSwitchOnly)
{
    bubble->TEXT(u"Wasser");
    EXPECT_EQ(size(), (PixelSize{120, 80}));
    bubble->AUTOSIZE(false);
    EXPECT_EQ(size(), (PixelSize{120, 80}));
    bubble->AUTOSIZE(true);
    const PixelSize fit = size();
    EXPECT_NE(fit, (PixelSize{120, 80}));
    bubble->Move(0, 0, 1500, 1500);
    bubble->AUTOSIZE(true);
    EXPECT_EQ(size(), (PixelSize{100, 100}));
    bubble->REDRAW();
    EXPECT_EQ(size(), (PixelSize{100, 100}));
    bubble->TEXT(u"Wasser");
    EXPECT_EQ(size(), fit);
}

TEST_F(Bubble, KeepsItsCornerWhenItFitsInEitherUnit)
{
    fitted(u"Wasser");
    EXPECT_EQ(bubble->Left(), 20 * 15);
    EXPECT_EQ(bubble->Top(), 10 * 15);
    form->ScaleMode(ScaleUnit::Pixels);
    EXPECT_EQ(fitted(u"Salz"), (PixelSize{135, 55}));
    EXPECT_EQ(bubble->Left(), 20);
    EXPECT_EQ(bubble->Width(), 135);
}

TEST_F(Bubble, APressOnTheTextIsOneOnTheBalloon)
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

TEST_F(Bubble, ScreenReadersReadItsText)
{
    bubble->TEXT(u"H<sub>2</sub>O<br>Wasser");
    EXPECT_EQ(bubble->accessibleText(), u"H2O\nWasser");
}

TEST_F(Bubble, IsReachedByTheNamesOfItsMembers)
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
