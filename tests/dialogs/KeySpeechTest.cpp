#include "dialogs/KeySpeech.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/KeyNumbers.h"
#include "dialogs/KeyVariants.h"
#include "dialogs/TextLayout.h"
#include "support/AppSession.h"

#include <set>

namespace phial
{

namespace
{

namespace keys = test::keys;

class KeySpeechTest : public test::AppSession
{
protected:
    KeySpeechTest() { LNG()->CURRENT(ID_Language_German); }

    KeyBoard board{text_layout::Layout};
};

} // namespace

TEST_F(KeySpeechTest, EachKeyHasANameOfItsOwn)
{
    for (const enm_LanguageC language : {ID_Language_German, ID_Language_English}) {
        LNG()->CURRENT(language);
        std::set<String> names;
        for (const KeyDesign& key : board.keys()) {
            const String name = spokenKey(board, key.index);
            EXPECT_FALSE(name.empty());
            EXPECT_TRUE(names.insert(name).second) << toUtf8(name);
        }
    }
}

TEST_F(KeySpeechTest, AModifierTellsThatItIsLocked)
{
    EXPECT_EQ(spokenKey(board, keys::Shift), u"Umschalttaste");
    board.press(keys::Shift);
    EXPECT_EQ(spokenKey(board, keys::Shift), u"Umschalttaste") << "that it is on is the part's state";
    board.press(keys::Shift);
    EXPECT_EQ(spokenKey(board, keys::Shift), u"Umschalttaste, festgestellt");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(spokenKey(board, keys::Shift), u"Shift, locked");
}

TEST_F(KeySpeechTest, KeysAreNamedByWhatTheyDoNow)
{
    EXPECT_EQ(spokenKey(board, keys::Enter), u"Übernehmen");
    EXPECT_EQ(spokenKey(board, keys::Left), u"Nach links");
    EXPECT_EQ(spokenKey(board, keys::LetterA), u"a");
    board.state(Modifier::Sym, KeyState::Once);
    EXPECT_EQ(spokenKey(board, keys::Enter), u"Neue Zeile");
    EXPECT_EQ(spokenKey(board, keys::Escape), u"Tastatur schließen");
    EXPECT_EQ(spokenKey(board, keys::Eight), u"Eckige Klammer auf");
    board.state(Modifier::Shift, KeyState::Once);
    EXPECT_EQ(spokenKey(board, keys::Enter), u"Neue Zeile");
    EXPECT_EQ(spokenKey(board, keys::Left), u"Zum Anfang");
    EXPECT_EQ(spokenKey(board, keys::Eight), u"Klammer auf");
    EXPECT_EQ(spokenKey(board, keys::LetterA), u"A");
}

TEST_F(KeySpeechTest, EachSignAmongTheVariantsHasWords)
{
    for (const char16_t face : StringView(u"0123456789+-./*=\",?!%$e")) {
        for (const char16_t variant : variantsOf(StringView(&face, 1))) {
            const String name = spokenCharacter(StringView(&variant, 1));
            EXPECT_TRUE(name.size() > 1 || upperCase(variant) != variant) << toUtf8(name);
        }
    }
    EXPECT_EQ(spokenCharacter(u"₂"), u"Tief 2");
    EXPECT_EQ(spokenCharacter(u"³"), u"Hoch 3");
}

TEST(KeyVariants, FollowTheFace)
{
    EXPECT_EQ(variantsOf(u"a"), u"äàâáåæ");
    EXPECT_EQ(variantsOf(u"A"), u"ÄÀÂÁÅÆ");
    EXPECT_EQ(variantsOf(u"s").front(), u'ß');
    EXPECT_EQ(variantsOf(u"S").front(), u'ß') << "it has no capital";
    EXPECT_NE(variantsOf(u"e").find(u'€'), String::npos);
    EXPECT_EQ(variantsOf(u"2"), u"²₂");
    EXPECT_EQ(variantsOf(u"q"), u"");
    EXPECT_EQ(variantsOf(u"www."), u"");
    EXPECT_EQ(variantsOf(u""), u"");
}

} // namespace phial
