#include "dialogs/KeyHand.h"

#include "dialogs/KeyNumbers.h"
#include "dialogs/TextLayout.h"
#include "visual/Typing.h"

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

    /// Gives the key that the press strikes.
    std::optional<std::int32_t> press(std::int32_t finger, std::int32_t index)
    {
        const auto struck = hand.strikeBefore(finger);
        hand.press(finger, index);
        return struck;
    }
};

/// What the strokes type into a field, and nothing for a command.
String typedBy(const KeyDeed& deed)
{
    String typed;
    for (const KeyStroke& stroke : parseKeyNotation(deed.strokes)) {
        if (const char16_t character = sentCharacter(stroke); character != 0 && !isCommand(stroke.Shift)) {
            typed += character;
        }
    }
    return typed;
}

} // namespace

TEST_F(KeyHandTest, AKeyIsStruckWhenItIsLetGo)
{
    EXPECT_EQ(press(0, keys::LetterQ), std::nullopt);
    EXPECT_TRUE(hand.isDown(keys::LetterQ));
    EXPECT_EQ(hand.release(0), keys::LetterQ);
    EXPECT_FALSE(hand.isDown(keys::LetterQ));
    EXPECT_EQ(hand.release(0), std::nullopt);
}

TEST_F(KeyHandTest, TheNextKeyStrikesTheOneBefore)
{
    press(1, keys::LetterQ);
    EXPECT_EQ(press(2, keys::LetterW), keys::LetterQ);
    EXPECT_EQ(hand.release(2), keys::LetterW) << "lifted first, but pressed second";
    EXPECT_EQ(hand.release(1), std::nullopt) << "struck already";
}

TEST_F(KeyHandTest, ModifiersPassOnWhenTheyGoDown)
{
    EXPECT_EQ(press(0, keys::Shift), std::nullopt);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    EXPECT_EQ(hand.release(0), std::nullopt) << "a modifier is not struck";
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeyHandTest, AModifierStrikesTheKeyBefore)
{
    press(1, keys::LetterQ);
    EXPECT_EQ(press(2, keys::Shift), keys::LetterQ);
}

TEST_F(KeyHandTest, ADragStrikesNothing)
{
    press(1, keys::LetterQ);
    hand.cancel();
    EXPECT_FALSE(hand.isDown(keys::LetterQ));
    EXPECT_EQ(hand.release(1), std::nullopt);
}

TEST_F(KeyHandTest, ADragSetsAModifierBack)
{
    board.state(Modifier::Shift, KeyState::Locked);
    press(1, keys::Shift);
    press(2, keys::Shift);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    hand.cancel();
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Locked);
}

TEST_F(KeyHandTest, AModifierThatHasBeenLetGoStays)
{
    press(1, keys::Shift);
    hand.release(1);
    press(1, keys::LetterQ);
    hand.cancel();
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeyHandTest, AHeldModifierServesAllKeysUntilItIsLetGo)
{
    press(1, keys::Shift);
    for (const std::int32_t key : {keys::LetterQ, keys::LetterW}) {
        press(2, key);
        EXPECT_EQ(board.click(*hand.release(2)).strokes.front(), u'+');
    }
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    hand.release(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Off);
}

TEST_F(KeyHandTest, AModifierThatHasServedNobodyStaysOn)
{
    press(1, keys::Shift);
    hand.release(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
    press(2, keys::LetterQ);
    board.click(*hand.release(2));
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Off);
}

TEST_F(KeyHandTest, AHeldLockedModifierStaysLocked)
{
    board.state(Modifier::Shift, KeyState::Once);
    press(1, keys::Shift);
    board.click(keys::LetterQ);
    hand.release(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Locked);
}

TEST_F(KeyHandTest, AFingerThatWasNoPressStrikesNothing)
{
    press(1, keys::LetterQ);
    hand.drop(1);
    EXPECT_EQ(hand.release(1), std::nullopt);
    press(1, keys::Shift);
    press(2, keys::LetterW);
    hand.drop(1);
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Off);
    EXPECT_EQ(hand.release(2), keys::LetterW) << "the other finger is a press still";
    hand.drop(7);
}

TEST_F(KeyHandTest, WhatHasHadItsEffectIsNotStruckAgain)
{
    press(1, keys::LetterQ);
    ASSERT_TRUE(hand.held());
    EXPECT_EQ(hand.held()->index, keys::LetterQ);
    EXPECT_EQ(hand.held()->finger, 1);
    hand.use();
    EXPECT_EQ(hand.release(1), std::nullopt);
    EXPECT_FALSE(hand.held());
    hand.use();
    press(1, keys::LetterQ);
    EXPECT_EQ(hand.release(1), keys::LetterQ);
}

TEST_F(KeyHandTest, TheLatestKeyIsTheOneHeld)
{
    press(1, keys::LetterQ);
    press(2, keys::LetterW);
    EXPECT_EQ(hand.held()->index, keys::LetterW);
    hand.release(2);
    EXPECT_EQ(hand.held()->index, keys::LetterQ);
}

TEST_F(KeyHandTest, AFingerThatWasNeverLetGoPressesAnew)
{
    press(1, keys::LetterQ);
    EXPECT_EQ(press(1, keys::LetterE), std::nullopt);
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
            take(press(finger, key.index));
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

TEST_F(KeyHandTest, AModifierIsNotForTheKeyBefore)
{
    press(1, keys::LetterQ);
    EXPECT_EQ(hand.strikeBefore(2), keys::LetterQ);
    EXPECT_EQ(board.face(keys::LetterQ).text, u"q");
}

TEST_F(KeyHandTest, KeysTypeWhatTheyShowWhateverModifiersAreOn)
{
    std::mt19937 random(92);
    constexpr int Moves = 50'000;
    constexpr std::int32_t Fingers = 3;
    const auto modifiers = std::to_array<std::int32_t>({keys::Shift, keys::Ctrl, keys::Alt, keys::Sym});
    std::array<bool, Fingers> isDown{};
    std::size_t counted = 0;
    const auto strike = [&](std::optional<std::int32_t> key) {
        if (!key) {
            return;
        }
        const String shown = board.face(*key).text;
        const bool isText = board.name(*key) == shown && shown != u"ESC";
        const bool isCommandKey = shown.size() == 1 && !board.isOn(Modifier::Sym) &&
                                  board.isOn(Modifier::Ctrl) != board.isOn(Modifier::Alt);
        const String typed = typedBy(board.click(*key));
        if (isText) {
            EXPECT_EQ(typed, isCommandKey ? String() : shown);
            ++counted;
        }
    };
    for (int move = 0; move < Moves; ++move) {
        const auto finger = static_cast<std::int32_t>(random() % Fingers);
        bool& down = isDown[static_cast<std::size_t>(finger)];
        if (down) {
            strike(hand.release(finger));
        } else {
            const bool isModifier = random() % 3 == 0;
            const std::int32_t key = isModifier
                                         ? modifiers[random() % modifiers.size()]
                                         : text_layout::Keys[random() % text_layout::Keys.size()].index;
            strike(hand.strikeBefore(finger));
            hand.press(finger, key);
        }
        down = !down;
    }
    EXPECT_GT(counted, 10'000U);
}

} // namespace phial
