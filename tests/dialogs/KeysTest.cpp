#include "dialogs/KeysTest.h"

#include "headless/Hand.h"

namespace phial::test
{

TEST_F(KeysTest, ATapStrikesAKey)
{
    tap(keys::LetterQ);
    EXPECT_THAT(log, ElementsAre("pressed", "released", "q"));
}

TEST_F(KeysTest, TheMouseIsAFinger)
{
    const PixelPoint at = middle(keys::LetterA);
    headless::click(*keys, at.x, at.y);
    EXPECT_THAT(log, ElementsAre("pressed", "released", "a"));
}

TEST_F(KeysTest, TwoFingersTypeInTheOrderInWhichTheyPress)
{
    touch.press(1, *keys, middle(keys::LetterQ));
    touch.press(2, *keys, middle(keys::LetterW));
    touch.release(2);
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("q", "w"));
}

TEST_F(KeysTest, ShiftIsSeenAndFallsBack)
{
    tap(keys::Shift);
    EXPECT_EQ(keys->board().face(keys::LetterQ).text, u"Q");
    EXPECT_EQ(nameOf(keys::LetterQ), u"Q");
    tap(keys::LetterQ);
    EXPECT_EQ(nameOf(keys::LetterQ), u"q");
    EXPECT_THAT(struck(), ElementsAre("Q"));
}

TEST_F(KeysTest, APressBetweenKeysIsForTheWindow)
{
    touch.press(1, *keys, {715, 170}); // beside UP and below nothing
    touch.release(1);
    tap(keys::Up);
    EXPECT_EQ(log.front(), "pressed");
    EXPECT_EQ(log[1], "released");
}

TEST_F(KeysTest, EnterStandsAroundTheKeyForUp)
{
    const PixelRectangle enter = keys->areaOf(keys::Enter);
    const PixelRectangle up = keys->areaOf(keys::Up);
    EXPECT_GT(up.right(), enter.left) << "their boxes meet";
    touch.press(1, *keys, {enter.left + 1, enter.bottom() - 2});
    touch.release(1);
    touch.press(1, *keys, {enter.left + 1, enter.top + 2});
    touch.release(1);
    touch.press(1, *keys, {enter.right() - 1, enter.bottom() - 2});
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("UP", "ENTER", "ENTER"));
}

TEST_F(KeysTest, ADragStrikesNothing)
{
    touch.press(1, *keys, middle(keys::Shift));
    keys->cancelPresses();
    touch.release(1);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Off);
    touch.press(1, *keys, middle(keys::LetterQ));
    keys->cancelPresses();
    touch.release(1);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, WhoeverHearsOfAPressMayCancelIt)
{
    connections += keys->PRESSED.connect([this](const PointerEvent&) { keys->cancelPresses(); });
    tap(keys::Shift);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Off);
    tap(keys::LetterQ);
    keys->scanInterval(800);
    tap(keys::LetterQ);
    outside.advance(0.8);
    EXPECT_THAT(drawn(), HasSubstr("box 2,50 716x44")) << "rows still";
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, BackspaceIsStruckAgainAndAgain)
{
    touch.press(1, *keys, middle(keys::Backspace));
    outside.advance(Hold - 0.01);
    EXPECT_THAT(log, ElementsAre("pressed"));
    outside.advance(0.01);
    EXPECT_THAT(log, ElementsAre("pressed", "released", "BACKSPACE"));
    outside.advance(3 * Repeat);
    touch.release(1);
    outside.advance(1);
    EXPECT_THAT(struck(), ElementsAre("BACKSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE"));
}

TEST_F(KeysTest, AHeldKeyBeginsAnewAfterARepeatedOne)
{
    touch.press(1, *keys, middle(keys::Backspace));
    outside.advance(Hold + Repeat);
    touch.release(1);
    log.clear();
    touch.press(1, *keys, middle(keys::Up));
    outside.advance(Hold - 0.01);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, LettersDoNotRepeat)
{
    touch.press(1, *keys, middle(keys::LetterQ));
    outside.advance(2);
    EXPECT_THAT(struck(), IsEmpty());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("q"));
}

TEST_F(KeysTest, AScreenReaderPressesKeys)
{
    keys->activatePart(14);
    keys->activatePart(1000);
    EXPECT_THAT(struck(), ElementsAre("q"));
}

TEST_F(KeysTest, NeverTakesTheFocus)
{
    EXPECT_FALSE(keys->frame().canFocus());
    EXPECT_TRUE(keys->frame().takesTouch());
}

TEST_F(KeysTest, WhatIsHiddenStrikesNothing)
{
    touch.press(1, *keys, middle(keys::Backspace));
    keys->frame().Visible(false);
    outside.advance(2);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, AGestureOfTheDesktopStrikesNothing)
{
    touch.press(1, *keys, middle(keys::Shift));
    touch.press(2, *keys, middle(keys::LetterQ));
    touch.press(3, *keys, middle(keys::Enter));
    touch.cancel();
    EXPECT_THAT(struck(), ElementsAre("Q")) << "which the third finger had struck";
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Off);
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    touch.cancel();
    EXPECT_TRUE(keys->showsVariants());
}

TEST_F(KeysTest, ATapOfAnotherFingerDoesNotEndWhatIsHeld)
{
    touch.press(1, *keys, middle(keys::Backspace));
    outside.advance(Hold);
    touch.press(2, *keys, middle(keys::LetterQ));
    touch.release(2);
    log.clear();
    outside.advance(Hold + 2 * Repeat);
    EXPECT_THAT(struck(), ElementsAre("BACKSPACE", "BACKSPACE", "BACKSPACE"));
}

TEST_F(KeysTest, TellsWhereEachFingerIs)
{
    std::vector<std::pair<std::int32_t, PixelPoint>> told;
    connections += keys->PRESSED.connect([&](const PointerEvent& event) {
        told.push_back({event.Touch, {event.X, event.Y}});
    });
    connections += keys->MOVED.connect([&](const PointerEvent& event) {
        told.push_back({event.Touch, {event.X, event.Y}});
    });
    connections += keys->RELEASED.connect([&](std::int32_t finger) { told.push_back({finger, {}}); });
    touch.press(1, *keys, {5, 6});
    touch.press(2, *keys, {50, 60});
    touch.move(1, {7, 8});
    touch.release(2);
    touch.release(1);
    const std::vector<std::pair<std::int32_t, PixelPoint>> expected{
        {1, {5, 6}}, {2, {50, 60}}, {1, {12, 14}}, {2, {}}, {1, {}}};
    EXPECT_EQ(told, expected);
}

} // namespace phial::test
