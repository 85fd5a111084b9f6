#include "mascot/BubbleTest.h"
#include "visual/Markup.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using Side = enm_BallonZipSide;

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

TEST_F(BubbleTest, AFitToTheSameSizePlacesItsTextAgain)
{
    fitted(u"Wasser");
    const PixelRectangle place = label()->frame().pixelRectangle();
    bubble->AUTOSIZE(false);
    bubble->AUTOSIZE(true);
    EXPECT_EQ(label()->frame().pixelRectangle(), place);
}

TEST_F(BubbleTest, AShortTextIsNarrowedInSteps)
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

TEST_F(BubbleTest, HalfAPixelOfTheTailsRoomGoesToTheEvenOne)
{
    bubble->ZIPDISTANCE(25); // 62.5
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 25 + 5, 62 + 5}));
    bubble->ZIPDISTANCE(27); // 67.5
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 27 + 5, 68 + 5}));
    bubble->ZIPSIDE(Side::ID_BallonZipSide_TopRight);
    bubble->ZIPDISTANCE(59); // 147.5
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{148 + 5, 10 + 10 + 59 + 5}));
}

TEST_F(BubbleTest, ATailNeedsRoomOnlyWhereTheTextHasLessThanTwiceItsLength)
{
    bubble->ZIPDISTANCE(10);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 10 + 5, 10 + 10 + 5})) << "just twice";
    bubble->ZIPDISTANCE(11);
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 11 + 5, 28 + 5}));
}

TEST_F(BubbleTest, ANegativeMarginLeavesNoSizeBelowNone)
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

TEST_F(BubbleTest, ATextThatTakesNoOtherWidthIsLeftAsItIs)
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

TEST_F(BubbleTest, ASideThatDoesNotExistTakesNoRoomInTheFit)
{
    bubble->ZIPSIDE(static_cast<Side>(8));
    EXPECT_EQ(fitted(u"Wasser"), (PixelSize{100 + 10 + 5, 10 + 10 + 5}));
}

TEST_F(BubbleTest, ATextWithItsOwnLinesIsNotNarrowed)
{
    bubble->ZIP(false);
    EXPECT_EQ(fitted(u"a<br>b"), (PixelSize{300 + 10 + 5, 20 + 10 + 5}));
    EXPECT_EQ(fitted(u"a\rb"), (PixelSize{300 + 10 + 5, 20 + 10 + 5}));
}

TEST_F(BubbleTest, ALongTextIsWidened)
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

TEST_F(BubbleTest, ManyLinesEndInABoundedFit)
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

TEST_F(BubbleTest, AWordWiderThanTheBalloonIsBroken)
{
    bubble->ZIP(false);
    const PixelSize taken = fitted(u"Natriumhydrogencarbonatloesung"); // 30 letters of 4
    EXPECT_EQ(taken, (PixelSize{100 + 10 + 5, 20 + 10 + 5}));
    EXPECT_THAT(outside.visual().drawing(*label()), HasSubstr("\"Natriumhydrogencarbonatlo\""));
}

TEST_F(BubbleTest, FitsAtARealChangeOfTheSwitchOnly)
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

TEST_F(BubbleTest, KeepsItsCornerWhenItFitsInEitherUnit)
{
    fitted(u"Wasser");
    EXPECT_EQ(bubble->Left(), 20 * 15);
    EXPECT_EQ(bubble->Top(), 10 * 15);
    form->ScaleMode(ScaleUnit::Pixels);
    EXPECT_EQ(fitted(u"Salz"), (PixelSize{135, 55}));
    EXPECT_EQ(bubble->Left(), 20);
    EXPECT_EQ(bubble->Width(), 135);
}

} // namespace

} // namespace phial
