#include "dialogs/KeyHand.h"

#include "dialogs/KeyNumbers.h"
#include "dialogs/TextLayout.h"

#include <gtest/gtest.h>
#include <random>

namespace phial
{

namespace
{

namespace keys = test::keys;

class KeyHandTest : public ::testing::Test
{
protected:
    KeyBoard board{text_layout::Layout};
    KeyHand hand{board};
};

} // namespace

TEST_F(KeyHandTest, AKeyIsStruckWhenItIsLetGo)
{
    EXPECT_EQ(hand.press(0, keys::LetterQ), std::nullopt);
    EXPECT_TRUE(hand.isDown(keys::LetterQ));
    EXPECT_EQ(hand.release(0), keys::LetterQ);
    EXPECT_FALSE(hand.isDown(keys::LetterQ));
    EXPECT_EQ(hand.release(0), std::nullopt);
}

TEST_F(KeyHandTest, TheNextKeyStrikesTheOneBefore)
{
    hand.press(1, keys::LetterQ);
    EXPECT_EQ(hand.press(2, keys::LetterW), keys::LetterQ);
    EXPECT_EQ(hand.release(2), keys::LetterW) << "lifted first, but pressed second";
    EXPECT_EQ(hand.release(1), std::nullopt) << "struck already";
}

TEST_F(KeyHandTest, ModifiersPassOnWhenTheyGoDown)
{
    EXPECT_EQ(hand.press(0, keys::Shift), std::nullopt);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    EXPECT_EQ(hand.release(0), std::nullopt) << "a modifier is not struck";
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeyHandTest, AModifierStrikesTheKeyBefore)
{
    hand.press(1, keys::LetterQ);
    EXPECT_EQ(hand.press(2, keys::Shift), keys::LetterQ);
}

TEST_F(KeyHandTest, ADragStrikesNothing)
{
    hand.press(1, keys::LetterQ);
    hand.cancel();
    EXPECT_FALSE(hand.isDown(keys::LetterQ));
    EXPECT_EQ(hand.release(1), std::nullopt);
}

TEST_F(KeyHandTest, ADragSetsAModifierBack)
{
    board.state(Modifier::Shift, KeyState::Locked);
    hand.press(1, keys::Shift);
    hand.press(2, keys::Shift);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    hand.cancel();
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Locked);
}

TEST_F(KeyHandTest, AModifierThatHasBeenLetGoStays)
{
    hand.press(1, keys::Shift);
    hand.release(1);
    hand.press(1, keys::LetterQ);
    hand.cancel();
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeyHandTest, AHeldModifierServesAllKeysUntilItIsLetGo)
{
    hand.press(1, keys::Shift);
    for (const std::int32_t key : {keys::LetterQ, keys::LetterW}) {
        hand.press(2, key);
        EXPECT_EQ(board.click(*hand.release(2)).strokes.front(), u'+');
    }
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    hand.release(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Off);
}

TEST_F(KeyHandTest, AModifierThatHasServedNobodyStaysOn)
{
    hand.press(1, keys::Shift);
    hand.release(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    hand.press(2, keys::LetterQ);
    board.click(*hand.release(2));
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Off);
}

TEST_F(KeyHandTest, AHeldLockedModifierStaysLocked)
{
    board.state(Modifier::Shift, KeyState::Once);
    hand.press(1, keys::Shift);
    board.click(keys::LetterQ);
    hand.release(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Locked);
}

TEST_F(KeyHandTest, AFingerThatWasNoPressStrikesNothing)
{
    hand.press(1, keys::LetterQ);
    hand.drop(1);
    EXPECT_EQ(hand.release(1), std::nullopt);
    hand.press(1, keys::Shift);
    hand.press(2, keys::LetterW);
    hand.drop(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Off);
    EXPECT_EQ(hand.release(2), keys::LetterW) << "the other finger is a press still";
    hand.drop(7);
}

TEST_F(KeyHandTest, WhatHasHadItsEffectIsNotStruckAgain)
{
    hand.press(1, keys::LetterQ);
    ASSERT_TRUE(hand.held());
    EXPECT_EQ(hand.held()->index, keys::LetterQ);
    EXPECT_EQ(hand.held()->finger, 1);
    hand.use();
    EXPECT_EQ(hand.release(1), std::nullopt);
    EXPECT_FALSE(hand.held());
    hand.use();
    hand.press(1, keys::LetterQ);
    EXPECT_EQ(hand.release(1), keys::LetterQ);
}

TEST_F(KeyHandTest, TheLatestKeyIsTheOneHeld)
{
    hand.press(1, keys::LetterQ);
    hand.press(2, keys::LetterW);
    EXPECT_EQ(hand.held()->index, keys::LetterW);
    hand.release(2);
    EXPECT_EQ(hand.held()->index, keys::LetterQ);
}

TEST_F(KeyHandTest, AFingerThatWasNeverLetGoPressesAnew)
{
    hand.press(1, keys::LetterQ);
    EXPECT_EQ(hand.press(1, keys::LetterE), std::nullopt);
    EXPECT_FALSE(hand.isDown(keys::LetterQ));
    EXPECT_EQ(hand.release(1), keys::LetterE);
}

TEST_F(KeyHandTest, TenFingersLoseNoKey)
{
    std::mt19937 random(10);
    constexpr std::int32_t Fingers = 10;
    constexpr int Moves = 50'000;
    std::array<bool, Fingers> isDown{};
    std::vector<std::int32_t> pressed;
    std::vector<std::int32_t> struck;
    const auto take = [&](std::optional<std::int32_t> key) {
        if (key) {
            struck.push_back(*key);
        }
    };
    for (int move = 0; move < Moves; ++move) {
        const auto finger = static_cast<std::int32_t>(random() % Fingers);
        bool& down = isDown[static_cast<std::size_t>(finger)];
        if (down) {
            take(hand.release(finger));
        } else {
            const KeyDesign& key = text_layout::Keys[random() % text_layout::Keys.size()];
            take(hand.press(finger, key.index));
            if (!board.modifier(key.index)) {
                pressed.push_back(key.index);
            }
        }
        down = !down;
    }
    for (std::int32_t finger = 0; finger < Fingers; ++finger) {
        take(hand.release(finger));
    }
    EXPECT_EQ(struck, pressed) << "each once, in their order";
}

} // namespace phial
