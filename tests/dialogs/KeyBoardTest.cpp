#include "dialogs/KeyBoard.h"

#include "dialogs/KeySigns.h"
#include "dialogs/PeriodicKeyLayout.h"
#include "dialogs/TermKeyLayout.h"
#include "dialogs/TextLayout.h"
#include "support/CaseTable.h"
#include "support/Raises.h"
#include "visual/Typing.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>

namespace phial
{

namespace
{

constexpr auto AllModifiers =
    std::to_array<Modifier>({Modifier::Shift, Modifier::Ctrl, Modifier::Alt, Modifier::Sym});

std::int32_t indexOf(const KeyBoard& board, StringView base)
{
    const auto keys = board.keys();
    const auto key = std::ranges::find_if(keys, [&](const KeyDesign& each) { //
        return board.base(each.index) == base;
    });
    return key == keys.end() ? -1 : key->index;
}

void takeStates(KeyBoard& board, StringView states)
{
    for (std::size_t which = 0; which < AllModifiers.size(); ++which) {
        board.state(AllModifiers[which], static_cast<KeyState>(states[which] - u'0'));
    }
}

String statesOf(const KeyBoard& board)
{
    String states;
    for (const Modifier modifier : AllModifiers) {
        states += static_cast<char16_t>(u'0' + static_cast<char16_t>(board.state(modifier)));
    }
    return states;
}

String told(const KeyFace& face)
{
    return replaced(face.text, u"|", u":") + (face.isEmpty ? u" grey" : u"");
}

String told(const KeyDeed& deed)
{
    switch (deed.kind) {
    case KeyDeed::Kind::Nothing:
        return u"NOTHING";
    case KeyDeed::Kind::Send:
        return deed.strokes;
    case KeyDeed::Kind::Clear:
        return u"CLEAR";
    case KeyDeed::Kind::Accept:
        return u"ACCEPT";
    case KeyDeed::Kind::AddLine:
        return u"LINE";
    case KeyDeed::Kind::Abort:
        return u"ABORT";
    }
    return {};
}

/// What a field gets to hold of what is sent; commands and keys without a character leave nothing.
String typed(const KeyDeed& deed)
{
    String text;
    for (const KeyStroke& stroke : parseKeyNotation(deed.strokes)) {
        KeyStroke sent = stroke;
        sent.character = sentCharacter(stroke);
        const char16_t character = stroke.key == Key::None ? typedCharacter(sent) : u'\0';
        if (character != 0) {
            text += character;
        }
    }
    return text;
}

class KeyBoardCases : public ::testing::TestWithParam<test::CaseRow>
{
};

TEST_P(KeyBoardCases, ShowSendAndFallBack)
{
    const auto& columns = GetParam().columns;
    KeyBoard board(text_layout::Layout);
    takeStates(board, columns[0]);
    const std::int32_t index = indexOf(board, columns[1]);
    ASSERT_GE(index, 0);
    EXPECT_EQ(told(board.face(index)), columns[2]);
    EXPECT_EQ(told(board.click(index)), columns[3]);
    EXPECT_EQ(statesOf(board), columns[4]);
}

class TermKeyCases : public ::testing::TestWithParam<test::CaseRow>
{
};

TEST_P(TermKeyCases, ShowSendAndFallBack)
{
    const auto& columns = GetParam().columns;
    ASSERT_TRUE(columns[0] == u"term" || columns[0] == u"periodic");
    KeyBoard board(columns[0] == u"term" ? term_key_layout::Layout : periodic_key_layout::Layout);
    takeStates(board, columns[1]);
    const std::int32_t index = indexOf(board, columns[2]);
    ASSERT_GE(index, 0);
    EXPECT_EQ(told(board.face(index)), columns[3]);
    const KeyDeed deed = board.click(index);
    EXPECT_EQ(told(deed), columns[4]);
    EXPECT_EQ(typed(deed), columns[5] == u"-" && columns[2] != u"-" ? u"" : columns[5]);
    EXPECT_EQ(statesOf(board), columns[6]);
}

INSTANTIATE_TEST_SUITE_P(TermKeys, TermKeyCases, ::testing::ValuesIn(test::readCaseTable("termkeys.txt", 7)),
                         test::caseName<::testing::TestParamInfo<test::CaseRow>>);

INSTANTIATE_TEST_SUITE_P(Keys, KeyBoardCases, ::testing::ValuesIn(test::readCaseTable("keyboard.txt", 5)),
                         test::caseName<::testing::TestParamInfo<test::CaseRow>>);

} // namespace

TEST(KeyBoard, HasSixtyKeysInSevenSizes)
{
    const KeyBoard board(text_layout::Layout);
    EXPECT_EQ(board.keys().size(), 60U);
    std::set<std::int32_t> indices;
    std::set<std::pair<double, double>> sizes;
    for (const KeyDesign& key : board.keys()) {
        indices.insert(key.index);
        sizes.emplace(key.width, key.height);
    }
    EXPECT_EQ(indices.size(), board.keys().size());
    EXPECT_EQ(*indices.rbegin(), 59);
    EXPECT_EQ(sizes.size(), 7U);
}

TEST(KeyBoard, RowsFillTheSameWidth)
{
    const KeyBoard board(text_layout::Layout);
    std::map<double, double> ends;
    for (const KeyDesign& key : board.keys()) {
        ends[key.top] = std::max(ends[key.top], key.left + key.width);
    }
    EXPECT_EQ(ends, (std::map<double, double>{
                        {1020, 11025}, {1740, 11025}, {2460, 11025}, {3180, 10305}, {3900, 11025}}));
}

TEST(KeyBoard, AModifierGoesOnAtEachPress)
{
    KeyBoard board(text_layout::Layout);
    const std::int32_t shift = indexOf(board, u"SHIFT");
    EXPECT_TRUE(board.press(shift));
    EXPECT_EQ(board.state(shift), KeyState::Once);
    EXPECT_TRUE(board.press(shift));
    EXPECT_EQ(board.state(shift), KeyState::Locked);
    EXPECT_TRUE(board.press(shift));
    EXPECT_EQ(board.state(shift), KeyState::Off);
}

TEST(KeyBoard, AHeldModifierFallsBackOnlyWhenItHasServedThisTime)
{
    KeyBoard board(text_layout::Layout);
    board.state(Modifier::Shift, KeyState::Once);
    board.hold(Modifier::Shift, true);
    board.click(indexOf(board, u"a"));
    EXPECT_TRUE(board.hold(Modifier::Shift, false));
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Off);
    board.state(Modifier::Shift, KeyState::Once);
    board.hold(Modifier::Shift, true);
    EXPECT_FALSE(board.hold(Modifier::Shift, false));
    EXPECT_EQ(board.state(Modifier::Shift), KeyState::Once);
}

TEST(KeyBoard, OtherKeysHaveNoState)
{
    KeyBoard board(text_layout::Layout);
    const std::int32_t key = indexOf(board, u"a");
    EXPECT_FALSE(board.press(key));
    EXPECT_EQ(board.state(key), KeyState::Off);
    EXPECT_EQ(statesOf(board), u"0000");
}

TEST(KeyBoard, RefusesIndicesThatItDoesNotHave)
{
    KeyBoard board(text_layout::Layout);
    EXPECT_RAISES((board.face(60)), IndexOutOfBounds);
    EXPECT_RAISES((board.click(-1)), IndexOutOfBounds);
    constexpr auto Beyond = std::to_array<KeyDesign>({{1001, u"a"}});
    EXPECT_RAISES(KeyBoard({Beyond, {}, {}}), IndexOutOfBounds);
    constexpr auto Before = std::to_array<KeyDesign>({{-1, u"a"}});
    EXPECT_RAISES(KeyBoard({Before, {}, {}}), IndexOutOfBounds);
    constexpr auto Ends = std::to_array<KeyDesign>({{0, u"a"}, {1000, u"b"}});
    EXPECT_EQ(KeyBoard({Ends, {}, {}}).face(1000).text, u"b");
}

TEST(KeyBoard, TheTagIsTheNameInUpperCase)
{
    constexpr auto Keys = std::to_array<KeyDesign>({{0, u"x", u"clear"}, {1, u"b", u"ok"}, {2, u"xX"}});
    KeyBoard board({Keys, {}, {}});
    EXPECT_EQ(board.name(0), u"CLEAR");
    EXPECT_EQ(board.click(0).kind, KeyDeed::Kind::Clear);
    EXPECT_EQ(board.click(1).kind, KeyDeed::Kind::Accept);
    EXPECT_EQ(board.name(2), u"xX") << "a caption stays as it is";
}

TEST(KeyBoard, ATagInBracesIsSentAsItStands)
{
    constexpr auto Keys =
        std::to_array<KeyDesign>({{0, u"(", u"{(}"}, {1, u"x", u"{1"}, {2, u"x", u"2}"}, {13, u"x", u"*"}});
    KeyBoard board({Keys, {}, {}});
    EXPECT_EQ(board.click(0).strokes, u"{(}");
    EXPECT_EQ(board.click(1).strokes, u"{{}1") << "one brace is a character";
    EXPECT_EQ(board.click(2).strokes, u"2{}}");
    EXPECT_EQ(board.click(13).strokes, u"{*}");
}

TEST(KeyBoard, AProgramGivesKeysAMeaningOfItsOwn)
{
    constexpr auto Keys = std::to_array<KeyDesign>({{35, u"xx"}, {36, u"xx"}});
    KeyBoard board({Keys, {}, {}});
    EXPECT_EQ(board.click(35).strokes, u"xx");
    board.rename(35, u"½", u"()/()");
    EXPECT_EQ(board.face(35).text, u"½");
    EXPECT_EQ(board.click(35).strokes, u"{(}{)}/{(}{)}");
    EXPECT_EQ(board.click(36).strokes, u"xx");
}

TEST(KeyBoard, ATextForAKeyIsTypedAsItIs)
{
    KeyBoard board(text_layout::Layout);
    takeStates(board, u"1020");
    EXPECT_EQ(told(board.type(u"é~")), u"é{~}");
    EXPECT_EQ(statesOf(board), u"0020");
}

TEST(KeyBoard, AKeyOfOneCharacterTypesWhatItShows)
{
    constexpr int Combinations = 81;
    for (int combination = 0; combination < Combinations; ++combination) {
        String states;
        for (int rest = combination, digit = 0; digit < 4; ++digit, rest /= 3) {
            states += static_cast<char16_t>(u'0' + rest % 3);
        }
        for (const KeyDesign& key : text_layout::Keys) {
            KeyBoard board(text_layout::Layout);
            takeStates(board, states);
            const KeyFace face = board.face(key.index);
            const bool ctrl = board.isOn(Modifier::Ctrl);
            const bool isCommand = ctrl != board.isOn(Modifier::Alt) && !board.isOn(Modifier::Sym);
            if (!face.isSign && face.text.size() == 1 && key.tag.empty() && !isCommand) {
                EXPECT_EQ(toUtf8(typed(board.click(key.index))), toUtf8(face.text)) << toUtf8(states);
            }
        }
    }
}

TEST(KeyBoard, RandomTapsGiveTheTextThatTheFacesSay)
{
    std::mt19937 random(15);
    KeyBoard board(text_layout::Layout);
    String shown;
    String sent;
    constexpr int Taps = 20'000;
    for (int tap = 0; tap < Taps; ++tap) {
        const KeyDesign& key = text_layout::Keys[random() % text_layout::Keys.size()];
        if (board.modifier(key.index) == Modifier::Ctrl || board.modifier(key.index) == Modifier::Alt) {
            continue; // commands type nothing
        }
        board.press(key.index);
        const KeyFace face = board.face(key.index);
        const KeyDeed deed = board.click(key.index);
        if (key.tag.empty()) {
            shown += face.text;
            sent += typed(deed);
        }
    }
    EXPECT_EQ(toUtf8(sent), toUtf8(shown));
    EXPECT_GT(shown.size(), 10'000U);
}

TEST(KeyBoard, SignsAreNoLetters)
{
    const KeyBoard board(text_layout::Layout);
    EXPECT_TRUE(board.face(indexOf(board, u"LEFT")).isSign);
    EXPECT_FALSE(board.face(indexOf(board, u"ß")).isSign);
    EXPECT_EQ(board.face(indexOf(board, u"LEFT")).text, String(1, KeySigns::Left));
    EXPECT_EQ(board.face(indexOf(board, u"ENTER")).text, String(1, KeySigns::Check));
}

} // namespace phial
