#include "dialogs/KeyPainter.h"

#include "core/CoreTheme.h"
#include "dialogs/KeySigns.h"
#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "support/HeadlessSession.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

class KeyPainterTest : public test::HeadlessSession
{
protected:
    std::string painted()
    {
        const auto backend = std::make_shared<headless::RecordingBackend>(
            PixelSize{200, 100}, std::make_shared<headless::FixedTextMetrics>());
        DrawDevice device(backend);
        paintCap(device, look);
        paintFace(device, look);
        return backend->text();
    }

    KeyLook look{.area = {0, 0, 96, 48}, .face = {.text = u"a"}};
};

} // namespace

TEST_F(KeyPainterTest, AKeyIsItsGroundAndItsFace)
{
    const std::string all = painted();
    EXPECT_THAT(all, HasSubstr("fill #FFFFFF line #6B7F93"));
    EXPECT_THAT(all, HasSubstr("\"a\" Tahoma 15 #1C2836"));
}

TEST_F(KeyPainterTest, PressedAndOnceAreOnTheAccent)
{
    look.isPressed = true;
    const std::string pressed = painted();
    EXPECT_THAT(pressed, HasSubstr("fill #006AB5"));
    EXPECT_THAT(pressed, HasSubstr("\"a\" Tahoma 15 #FFFFFF"));
    look.isPressed = false;
    look.state = KeyState::Once;
    EXPECT_EQ(painted(), pressed);
}

TEST_F(KeyPainterTest, ALockedKeyHasALampAtItsLeft)
{
    look.state = KeyState::Locked;
    const std::string all = painted();
    EXPECT_THAT(all, HasSubstr("box 8,16 16x16 fill #006AB5"));
    EXPECT_THAT(all, HasSubstr("box 8,16 16x16 line #1C2836"));
    EXPECT_THAT(all, HasSubstr("fill #FFFFFF line #6B7F93"));
    look.state = KeyState::Off;
    EXPECT_THAT(painted(), Not(HasSubstr("box 8,16")));
}

TEST_F(KeyPainterTest, TheLampGrowsWithTheKey)
{
    look.area = {0, 0, 192, 96};
    look.scale = 2;
    look.state = KeyState::Locked;
    EXPECT_THAT(painted(), HasSubstr("box 16,32 31x31 fill #006AB5"));
}

TEST_F(KeyPainterTest, AnEmptyLevelIsGrey)
{
    look.face = {.text = u"4", .isEmpty = true};
    EXPECT_THAT(painted(), HasSubstr("\"4\" Tahoma 15 #C0C0C0"));
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_THAT(painted(), HasSubstr("\"4\" Tahoma 15 #8699AB"));
}

TEST_F(KeyPainterTest, WordsAreSmallerAndFit)
{
    look.face.text = u"Strg";
    EXPECT_THAT(painted(), HasSubstr("\"Strg\" Tahoma 11 "));
    look.area.width = 48;
    look.face.text = u"http://www";
    EXPECT_THAT(painted(), Not(HasSubstr("\"http://www\" Tahoma 11 ")));
}

TEST_F(KeyPainterTest, SignsAreDrawn)
{
    look.face = {.text = String(1, KeySigns::Check), .isSign = true};
    const std::string all = painted();
    EXPECT_THAT(all, Not(HasSubstr("text")));
    EXPECT_THAT(all, HasSubstr("fill #1C2836 line #1C2836"));
    look.face.isSign = false;
    EXPECT_THAT(painted(), HasSubstr("\"ü\" Tahoma 15"));
}

TEST_F(KeyPainterTest, EachSignLooksDifferent)
{
    std::set<std::string> seen;
    for (const char16_t sign :
         {KeySigns::Left, KeySigns::Right, KeySigns::Up, KeySigns::Down, KeySigns::HeavyLeft,
          KeySigns::HeavyRight, KeySigns::HeavyUp, KeySigns::HeavyDown, KeySigns::OutlinedLeft,
          KeySigns::OutlinedUp, KeySigns::BothWays, KeySigns::Check, KeySigns::NewLine}) {
        look.face = {.text = String(1, sign), .isSign = true};
        const std::string all = painted();
        EXPECT_THAT(all, Not(HasSubstr("text")));
        EXPECT_TRUE(seen.insert(all).second);
    }
}

TEST_F(KeyPainterTest, ACapHasRoundCornersAndLeavesGaps)
{
    const std::string all = painted();
    EXPECT_EQ(all.substr(0, all.find('\n')),
              "polygon 2.5,9.5 2.694,7.361 3.278,5.611 4.25,4.25 5.611,3.278 7.361,2.694 9.5,2.5 "
              "85.5,2.5 87.639,2.694 89.389,3.278 90.75,4.25 91.722,5.611 92.306,7.361 92.5,9.5 "
              "92.5,37.5 92.306,39.639 91.722,41.389 90.75,42.75 89.389,43.722 87.639,44.306 85.5,44.5 "
              "9.5,44.5 7.361,44.306 5.611,43.722 4.25,42.75 3.278,41.389 2.694,39.639 2.5,37.5 "
              "fill #FFFFFF line #6B7F93 w1.5");
}

TEST_F(KeyPainterTest, ALineIsNeverThinnerThanAPixel)
{
    look.scale = 0.5;
    EXPECT_THAT(painted(), Not(HasSubstr(" w")));
    look.scale = 2;
    EXPECT_THAT(painted(), HasSubstr(" w3"));
}

TEST_F(KeyPainterTest, AKeyAroundItsNeighbourLeavesOutItsCorner)
{
    look.area = {0, 0, 80, 96};
    look.notch = 32;
    const std::string all = painted();
    EXPECT_THAT(all, HasSubstr(" 69.5,92.5 41.5,92.5 39.361,92.306 ")) << "the lower edge is short";
    EXPECT_THAT(all, HasSubstr(" 34.694,87.639 34.5,85.5 34.5,54.5 34.306,52.361 ")) << "up beside it";
    EXPECT_THAT(all, HasSubstr(" 29.639,47.694 27.5,47.5 9.5,47.5 ")) << "and out to the left";
    EXPECT_EQ(all.substr(all.find("text")), "text 36.25,14.625 \"a\" Tahoma 15 #1C2836\n")
        << "the face stands where the key is whole";
}

TEST_F(KeyPainterTest, AFaceStandsInTheMiddle)
{
    const std::string one = painted();
    EXPECT_EQ(one.substr(one.find("text")), "text 44.25,14.625 \"a\" Tahoma 15 #1C2836\n");
    look.face.text = u"http://www.";
    look.area.width = 60;
    const std::string shrunk = painted();
    EXPECT_EQ(shrunk.substr(shrunk.find("text")), "text 6,18.545 \"http://www.\" Tahoma 8.727 #1C2836\n")
        << "six pixels are left at each side";
    look.area.width = 20;
    const std::string tiny = painted();
    EXPECT_EQ(tiny.substr(tiny.find("text")), "text -6.5,20.25 \"http://www.\" Tahoma 6 #1C2836\n")
        << "never smaller than six points";
}

} // namespace phial
