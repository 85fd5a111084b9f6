#include "dialogs/DialogKeyboardTest.h"
#include "dialogs/ScanChoice.h"
#include "dialogs/TextLayout.h"
#include "headless/Hand.h"
#include "visual/Label.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <random>
#include <vector>

namespace phial::test
{

TEST_F(DialogKeyboardTest, TypesWhatItsKeysShow)
{
    open(target<TextBox>());
    tapAll({keys::LetterA, keys::Shift, keys::LetterQ, keys::LetterW});
    EXPECT_EQ(input()->Text(), u"aQw");
}

TEST_F(DialogKeyboardTest, ShiftPressedOnceIsForOneKey)
{
    open(target<TextBox>());
    tap(keys::Shift);
    EXPECT_EQ(face(keys::LetterA), u"A");
    tap(keys::LetterA);
    EXPECT_EQ(input()->Text(), u"A");
    EXPECT_EQ(state(Modifier::Shift), KeyState::Off);
    EXPECT_EQ(face(keys::LetterA), u"a");
}

TEST_F(DialogKeyboardTest, ShiftPressedTwiceStaysUntilTheThirdPress)
{
    open(target<TextBox>());
    tapAll({keys::Shift, keys::Shift, keys::LetterA, keys::LetterQ});
    EXPECT_EQ(state(Modifier::Shift), KeyState::Locked);
    tapAll({keys::Shift, keys::LetterA});
    EXPECT_EQ(input()->Text(), u"AQa");
}

TEST_F(DialogKeyboardTest, TypesSymbols)
{
    open(target<TextBox>());
    tapAll({keys::Sym, keys::LetterE, keys::Sym, keys::LetterQ, keys::Sym, keys::Eight});
    EXPECT_EQ(input()->Text(), u"€@[");
}

TEST_F(DialogKeyboardTest, TypesAtTheCaretOverWhatIsSelected)
{
    const auto box = target<TextBox>();
    box->Text(u"abc");
    open(box);
    input()->SelStart(1);
    input()->SelLength(1);
    tap(keys::LetterQ);
    EXPECT_EQ(input()->Text(), u"aqc");
    tap(keys::Backspace);
    EXPECT_EQ(input()->Text(), u"ac");
    tap(keys::Left);
    EXPECT_EQ(input()->SelStart(), 0);
}

TEST_F(DialogKeyboardTest, TypesIntoItsInputWhateverHasTheFocus)
{
    open(target<TextBox>());
    keyboard.form().focus(nullptr);
    tap(keys::LetterA);
    EXPECT_EQ(input()->Text(), u"a");
    EXPECT_EQ(keyboard.form().ActiveControl(), input());
}

TEST_F(DialogKeyboardTest, AKeyThatCannotBeSentLeavesItOpen)
{
    open(target<TextBox>());
    input()->Enabled(false); // it cannot take the focus
    tapAll({keys::Shift, keys::LetterA});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(input()->Text(), u"");
}

TEST_F(DialogKeyboardTest, ClearsTheText)
{
    const auto box = target<TextBox>();
    box->Text(u"abc");
    open(box);
    tapAll({keys::Shift, keys::Clear});
    EXPECT_EQ(input()->Text(), u"");
    EXPECT_EQ(state(Modifier::Shift), KeyState::Off);
    EXPECT_EQ(box->Text(), u"abc");
}

TEST_F(DialogKeyboardTest, ALockedTextIsOnlyShown)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->Text(u"abc");
    box->Locked(true);
    open(box);
    tapAll({keys::Clear, keys::LetterA, keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"abc");
}

TEST_F(DialogKeyboardTest, EnterWithSymAddsALine)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->Text(u"ab");
    open(box);
    input()->SelStart(1);
    tapAll({keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"a\r\nb");
    EXPECT_EQ(input()->SelStart(), 3);
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 12);
    EXPECT_EQ(state(Modifier::Sym), KeyState::Off);
    EXPECT_FALSE(keyboard.Accepted());
    outside.advance(0.2);
    EXPECT_TRUE(isOpen());
}

TEST_F(DialogKeyboardTest, EnterWithSymDoesNothingWhereThereIsOneLine)
{
    open(target<TextBox>());
    tapAll({keys::LetterA, keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"a");
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 20);
    EXPECT_FALSE(keyboard.Accepted());
}

TEST_F(DialogKeyboardTest, ALineHasToFitIntoTheGreatestLength)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->MaxLength(4);
    box->Text(u"abc");
    open(box);
    tapAll({keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"abc");
    input()->SelStart(2);
    input()->SelLength(1);
    tapAll({keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"ab\r\n");
}

TEST_F(DialogKeyboardTest, AVariantIsTypedAsItIs)
{
    open(target<TextBox>());
    keyPad()->VARIANT.raise(u"à");
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"à");
}

TEST_F(DialogKeyboardTest, NoKeyOfTwoHandsIsLost)
{
    open(target<TextBox>());
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.press(2, *keyPad(), middle(keys::LetterQ));
    touch.release(1);
    touch.release(2);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"aq");
}

TEST_F(DialogKeyboardTest, AScanTypesABlank)
{
    chooseScan(800);
    const auto box = target<TextBox>();
    open(box);
    outside.advance(4 * 0.8); // the last row
    headless::type(keyboard.form(), u" ");
    outside.advance(2 * 0.8); // behind Ctrl and Alt
    headless::type(keyboard.form(), u" ");
    outside.runPending();
    EXPECT_EQ(input()->Text(), u" ");
}

TEST_F(DialogKeyboardTest, CtrlAndAltTypeSymbols)
{
    open(target<TextBox>());
    tapAll({keys::Ctrl, keys::Alt, keys::LetterE});
    EXPECT_EQ(input()->Text(), u"€");
    tapAll({keys::Ctrl, keys::Alt, keys::Alt, keys::LetterE});
    EXPECT_EQ(input()->Text(), u"€e") << "once and locked have no bit in common";
}

TEST_F(DialogKeyboardTest, TenFingersAndADeskTypeEachKeyOnceAndInItsOrder)
{
    constexpr std::int32_t Fingers = 10;
    constexpr int Moves = 3000; // 60 seconds, a move every 20 milliseconds
    struct Finger {
        std::int32_t key = 0;
        bool isDown = false;
    };
    std::mt19937 random(60);
    open(target<TextBox>());
    keyPad()->offersVariants(false);
    std::vector<std::int32_t> characters;
    for (const KeyDesign& key : text_layout::Keys) {
        if (face(key.index).size() == 1 && keyPad()->board().name(key.index).size() == 1) {
            characters.push_back(key.index);
        }
    }
    ASSERT_GT(characters.size(), 40U);
    std::array<Finger, Fingers> fingers{};
    std::map<String, std::ptrdiff_t> presses;
    String expected;
    std::optional<std::size_t> waiting; // whose key the next press strikes
    const auto strikeWaiting = [&] {
        if (waiting) {
            expected += face(fingers[*waiting].key);
            waiting.reset();
        }
    };
    const auto letGo = [&](std::size_t number) {
        touch.release(static_cast<std::int32_t>(number));
        fingers[number].isDown = false;
        if (waiting == number) {
            strikeWaiting();
        }
    };
    for (int move = 0; move < Moves; ++move) {
        const std::size_t number = random() % (Fingers + 1);
        const std::int32_t key = characters[random() % characters.size()];
        if (number == Fingers) { // the desk's keys pass a key that is still down
            headless::type(keyboard.form(), u"0");
            expected += u'0';
            ++presses[u"0"];
        } else if (fingers[number].isDown) {
            letGo(number);
        } else {
            strikeWaiting();
            touch.press(static_cast<std::int32_t>(number), *keyPad(), middle(key));
            fingers[number] = {key, true};
            waiting = number;
            ++presses[face(key)];
        }
        outside.advance(0.02);
        outside.runPending();
    }
    for (std::size_t number = 0; number < fingers.size(); ++number) {
        if (fingers[number].isDown) {
            letGo(number);
        }
    }
    outside.runPending();
    const String typed = input()->Text();
    EXPECT_EQ(toUtf8(typed), toUtf8(expected));
    EXPECT_EQ(presses.size(), characters.size());
    for (const auto& [character, count] : presses) {
        EXPECT_EQ(std::ranges::count(typed, character.front()), count) << toUtf8(character);
    }
}

TEST_F(DialogKeyboardTest, ThousandsOfTapsTypeWhatTheKeysShow)
{
    std::mt19937 random(9);
    constexpr int Taps = 4000;
    const auto modifiers = std::to_array<std::int32_t>({keys::Shift, keys::Ctrl, keys::Alt, keys::Sym});
    open(target<TextBox>());
    KeyBoard& board = keyPad()->board();
    for (int at = 0; at < Taps; ++at) {
        if (random() % 3 == 0) {
            tap(modifiers[random() % modifiers.size()]);
            continue;
        }
        const std::int32_t key = text_layout::Keys[random() % text_layout::Keys.size()].index;
        const String shown = board.face(key).text;
        if (board.name(key) != shown || shown == u"ESC") {
            continue; // it moves, deletes or ends
        }
        const bool isCommand = shown.size() == 1 && !board.isOn(Modifier::Sym) &&
                               board.isOn(Modifier::Ctrl) != board.isOn(Modifier::Alt);
        String expected = input()->Text();
        if (!isCommand) {
            expected.replace(static_cast<std::size_t>(input()->SelStart()),
                             static_cast<std::size_t>(input()->SelLength()), shown);
        }
        tap(key);
        ASSERT_EQ(toUtf8(input()->Text()), toUtf8(expected)) << at << " " << toUtf8(shown);
    }
    EXPECT_FALSE(input()->Text().empty());
}

TEST_F(DialogKeyboardTest, ShiftIsNotForTheLetterOnWhichAFingerStillLies)
{
    open(target<TextBox>());
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.press(2, *keyPad(), middle(keys::Shift));
    touch.release(1);
    touch.press(1, *keyPad(), middle(keys::LetterQ));
    touch.release(2);
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"aQ");
}

TEST_F(DialogKeyboardTest, AKeyThatClosesTheWindowIsTheLast)
{
    open(target<TextBox>());
    tap(keys::Sym);
    touch.press(1, *keyPad(), middle(keys::Escape));
    touch.press(2, *keyPad(), middle(keys::LetterA));
    EXPECT_FALSE(isOpen());
    outside.advance(2);
    EXPECT_FALSE(keyPad()->showsVariants());
}

// Lines.

TEST_F(DialogKeyboardTest, ATextOfOneLineIsEditedInOneLine)
{
    const auto label = target<Label>();
    label->Caption(u"Eine lange Beschriftung");
    open(label);
    EXPECT_FALSE(input()->MultiLine());
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 20);
}

TEST_F(DialogKeyboardTest, AnAddedLineMakesAPageOfIt)
{
    const auto label = target<Label>();
    label->Caption(u"ab");
    open(label);
    input()->SelStart(1);
    tapAll({keys::Sym, keys::Enter});
    EXPECT_TRUE(input()->MultiLine());
    EXPECT_EQ(input()->Text(), u"a\r\nb");
    EXPECT_EQ(input()->SelStart(), 3);
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 12);
    EXPECT_EQ(input()->frame().pixelRectangle(), (PixelRectangle{228, 9, 447, 54}));
    tap(keys::Backspace);
    EXPECT_EQ(input()->Text(), u"ab");
    EXPECT_TRUE(input()->MultiLine()) << "it stays one";
}

TEST_F(DialogKeyboardTest, CtrlReturnOfTheDeskAddsALine)
{
    const auto label = target<Label>();
    open(label);
    headless::type(keyboard.form(), u"a^{enter}b^{enter}c");
    EXPECT_EQ(input()->Text(), u"a\r\nb\r\nc");
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 12);
    EXPECT_FALSE(keyboard.Accepted());
}

TEST_F(DialogKeyboardTest, CtrlReturnAddsNoLineWhereTheTargetHasOne)
{
    open(target<TextBox>());
    headless::type(keyboard.form(), u"a^{enter}b");
    EXPECT_EQ(input()->Text(), u"ab");
    EXPECT_FALSE(keyboard.Accepted());
}

TEST_F(DialogKeyboardTest, CtrlReturnAddsNoLineToLinesThatTheTargetCannotHave)
{
    const auto box = target<TextBox>();
    box->Text(u"a\r\nb");
    open(box);
    headless::type(keyboard.form(), u"^{enter}c");
    EXPECT_EQ(input()->Text(), u"a\r\nbc");
}

TEST_F(DialogKeyboardTest, PastedLinesMakeAPage)
{
    open(target<Label>());
    input()->inputText(u"a", 1, 0);
    input()->inputText(u"a1\n2\r3", 6, 0);
    EXPECT_TRUE(input()->MultiLine());
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 12);
    EXPECT_EQ(input()->Text(), u"a1\r\n2\r\n3");
    EXPECT_EQ(input()->SelStart(), 8);
}

TEST_F(DialogKeyboardTest, PastedLineEndsAreBlanksWhereTheTargetHasOneLine)
{
    const auto box = target<TextBox>();
    box->Text(u"ab");
    open(box);
    input()->inputText(u"a1\r\n2\n3b", 7, 0);
    EXPECT_FALSE(input()->MultiLine());
    EXPECT_EQ(input()->Text(), u"a1 2 3b");
    EXPECT_EQ(input()->SelStart(), 6);
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 20);
}

TEST_F(DialogKeyboardTest, LinesThatTheTargetCannotHaveStayButBecomeNoMore)
{
    const auto box = target<TextBox>();
    box->Text(u"a\r\nb\r\nc");
    open(box);
    input()->inputText(u"a\r\nb1\r\n2\r\nc", 7, 0);
    EXPECT_EQ(input()->Text(), u"a\r\nb1 2\r\nc");
    EXPECT_EQ(input()->SelStart(), 7);
    input()->inputText(u"a\r\nc", 3, 0);
    EXPECT_EQ(input()->Text(), u"a\r\nc");
}

TEST_F(DialogKeyboardTest, PastedLineEndsThatHaveNoRoomAreBlanks)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->MaxLength(4);
    open(box);
    input()->inputText(u"a\nb", 3, 0);
    EXPECT_EQ(input()->Text(), u"a\r\nb");
    input()->inputText(u"", 0, 0);
    input()->inputText(u"a\nbc", 4, 0);
    EXPECT_EQ(input()->Text(), u"a bc");
}

} // namespace phial::test
