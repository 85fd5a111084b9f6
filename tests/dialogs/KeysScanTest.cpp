#include "dialogs/KeysTest.h"
#include "support/Raises.h"

namespace phial::test
{

TEST_F(KeysTest, AScanStrikesKeysWithASingleSwitch)
{
    constexpr double Step = 0.8;
    keys->scanInterval(800);
    outside.advance(2 * Step);                   // the row of "a"
    touch.press(1, *keys, middle(keys::Escape)); // anywhere
    touch.release(1);
    outside.advance(Step); // behind "www."
    EXPECT_EQ(preview(Key::Space).KeyCode, 0);
    EXPECT_THAT(struck(), ElementsAre("a"));
}

TEST_F(KeysTest, TheSwitchDoesNotRepeat)
{
    keys->scanInterval(800);
    KeyEvent held{static_cast<std::int32_t>(Key::Return), 0, true};
    keys->previewKey(held);
    keys->previewKey(held);
    EXPECT_EQ(held.KeyCode, 0);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, WhatLightsUpHasAFrame)
{
    keys->scanInterval(800);
    EXPECT_NE(drawn().find("line #1C2836 w4"), std::string::npos) << drawn();
    outside.advance(0.8);
    const PixelRectangle second = keys->areaOf(13);
    EXPECT_NE(drawn().find("box " + std::to_string(static_cast<int>(second.left) + 2) + "," +
                           std::to_string(static_cast<int>(second.top) + 2)),
              std::string::npos)
        << drawn();
}

TEST_F(KeysTest, AModifierIsStruckByTheSwitchToo)
{
    keys->scanInterval(800);
    outside.advance(3 * 0.8);
    preview(Key::Space);
    preview(Key::Space);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeysTest, AScanEndsWithItsInterval)
{
    keys->scanInterval(800);
    keys->scanInterval(0);
    EXPECT_NE(preview(Key::Space).KeyCode, 0);
    EXPECT_EQ(drawn().find(" w4"), std::string::npos);
    EXPECT_RAISES(keys->scanInterval(-1), InvalidArgument);
}

TEST_F(KeysTest, KeysThatAreNotSeenAreNotScanned)
{
    keys->scanInterval(800);
    keys->frame().Visible(false);
    EXPECT_NE(preview(Key::Space).KeyCode, 0);
    keys->frame().Visible(true);
    EXPECT_EQ(preview(Key::Space).KeyCode, 0);
}

TEST_F(KeysTest, WhatTheSwitchHasChosenLightsUpItsWholeTime)
{
    keys->scanInterval(800);
    outside.advance(0.7);
    preview(Key::Space); // the first row; its first key lights up
    outside.advance(0.7);
    preview(Key::Space);
    EXPECT_THAT(struck(), ElementsAre("ESC"));
}

TEST_F(KeysTest, TheFrameSurroundsTheRow)
{
    keys->scanInterval(800);
    EXPECT_NE(drawn().find("box 2,2 716x44 line #1C2836 w4"), std::string::npos) << drawn();
}

TEST_F(KeysTest, AHeldSwitchIsNoDragAnyMore)
{
    keys->scanInterval(800);
    outside.advance(2 * 0.8);
    preview(Key::Space);
    outside.advance(0.8); // "a"
    touch.press(1, *keys, middle(keys::Escape));
    EXPECT_THAT(log, ElementsAre("pressed"));
    outside.advance(Hold);
    EXPECT_THAT(log, ElementsAre("pressed", "released"));
}

TEST_F(KeysTest, ASwitchThatIsHeldWhenTheScanEndsDoesNothing)
{
    keys->scanInterval(800);
    touch.press(1, *keys, middle(keys::LetterA));
    keys->scanInterval(0);
    outside.advance(2 * Hold);
    touch.release(1);
    EXPECT_FALSE(keys->showsVariants());
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, ADragIsNoPressOfTheSwitch)
{
    keys->scanInterval(800);
    touch.press(1, *keys, middle(keys::LetterA));
    keys->cancelPresses();
    touch.release(1);
    outside.advance(0.8);
    EXPECT_THAT(drawn(), HasSubstr("box 2,50 716x44")) << "rows still";
}

TEST_F(KeysTest, TheHeldSwitchShowsVariantsWhichLightUpInTurn)
{
    keys->scanInterval(800);
    outside.advance(2 * 0.8);
    preview(Key::Space);
    outside.advance(0.8); // "a"
    touch.press(1, *keys, middle(keys::Escape));
    outside.advance(Hold);
    EXPECT_TRUE(keys->showsVariants());
    touch.release(1);
    EXPECT_TRUE(keys->showsVariants()) << "letting it go is no second press";
    outside.advance(0.8);
    EXPECT_EQ(keys->frame().announcement(), u"à");
    preview(Key::Space);
    EXPECT_THAT(struck(), ElementsAre("à"));
    EXPECT_FALSE(keys->showsVariants());
}

TEST_F(KeysTest, VariantsThatNobodyChoosesGoAfterTwoRounds)
{
    keys->scanInterval(800);
    outside.advance(2 * 0.8);
    preview(Key::Space);
    outside.advance(0.8);
    touch.press(1, *keys, middle(keys::Escape));
    outside.advance(Hold);
    touch.release(1);
    outside.advance(11 * 0.8);
    EXPECT_TRUE(keys->showsVariants());
    outside.advance(0.8);
    EXPECT_FALSE(keys->showsVariants());
}

TEST_F(KeysTest, ASwitchOfTheDeskStrikesWhenItIsLetGo)
{
    keys->scanInterval(800);
    outside.advance(2 * 0.8);
    preview(Key::Return);
    outside.advance(0.8); // "a"
    keyDown(Key::Return);
    EXPECT_THAT(struck(), IsEmpty());
    EXPECT_EQ(keyUp(Key::Return).KeyCode, 0);
    EXPECT_THAT(struck(), ElementsAre("a"));
    EXPECT_NE(keyUp(Key::Return).KeyCode, 0);
    EXPECT_NE(keyUp(Key::Delete).KeyCode, 0);
}

TEST_F(KeysTest, AHeldSwitchOfTheDeskShowsVariants)
{
    for (const Key key : {Key::Space, Key::Return}) {
        keys->scanInterval(800);
        log.clear();
        outside.advance(2 * 0.8);
        preview(key);
        outside.advance(0.8); // "a"
        keyDown(key);
        outside.advance(Hold - 0.05);
        keyDown(key, true);
        EXPECT_FALSE(keys->showsVariants());
        outside.advance(0.05);
        EXPECT_TRUE(keys->showsVariants());
        keyDown(key, true);
        EXPECT_NE(keyUp(key).KeyCode, 0) << "letting it go is no second press";
        EXPECT_TRUE(keys->showsVariants());
        outside.advance(0.8);
        preview(key);
        EXPECT_THAT(struck(), ElementsAre("à"));
    }
}

TEST_F(KeysTest, ASwitchThatIsHeldOnAKeyWithoutVariantsStrikesIt)
{
    keys->scanInterval(5000);
    outside.advance(3 * 5);
    preview(Key::Space); // Shift lights up
    keyDown(Key::Space);
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    keyUp(Key::Space);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeysTest, ADragIsNoPressOfTheSwitchOfTheDesk)
{
    keys->scanInterval(800);
    keyDown(Key::Space);
    keys->cancelPresses();
    EXPECT_NE(keyUp(Key::Space).KeyCode, 0);
    outside.advance(0.8);
    EXPECT_THAT(drawn(), HasSubstr("box 2,50 716x44")) << "rows still";
}

} // namespace phial::test
