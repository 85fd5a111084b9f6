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

} // namespace phial
