#include "dialogs/TermVariants.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/ElementSymbols.h"
#include "chem/formula/FormulaReader.h"
#include "dialogs/TermKeyLayout.h"
#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>
#include <set>

namespace phial::test
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TermVariants : public AppSession
{
protected:
    static constexpr std::int32_t Multiply = 13; // which shows an "x"

    TermVariants() { LNG()->CURRENT(ID_Language_German); }

    std::vector<KeyVariant> of(StringView base)
    {
        for (const KeyDesign& key : term_key_layout::Keys) {
            if (key.caption == base && key.index != Multiply) {
                return termVariants(board, key.index);
            }
        }
        ADD_FAILURE() << "no such key";
        return {};
    }
    std::vector<std::string> typed(StringView base)
    {
        std::vector<std::string> all;
        for (const KeyVariant& variant : of(base)) {
            all.push_back(toUtf8(variant.text));
        }
        return all;
    }
    std::vector<std::string> spoken(StringView base)
    {
        std::vector<std::string> all;
        for (const KeyVariant& variant : of(base)) {
            all.push_back(toUtf8(variant.spoken));
        }
        return all;
    }

    KeyBoard board{term_key_layout::Layout};
};

TEST_F(TermVariants, ALetterOffersItsElementsThoseOfLessonsFirst)
{
    EXPECT_THAT(typed(u"c"),
                ElementsAre("C", "Ca", "Cl", "Co", "Cr", "Cu", "Cd", "Ce", "Cf", "Cm", "Cn", "Cs"));
    EXPECT_THAT(typed(u"k"), ElementsAre("K", "Kr"));
    EXPECT_THAT(typed(u"z"), ElementsAre("Zn", "Zr"));
    EXPECT_THAT(typed(u"x"), ElementsAre("Xe")) << "one that the key alone does not type";
    EXPECT_THAT(typed(u"h"), ElementsAre("H", "He", "Hg", "Hf", "Ho", "Hs"));
    EXPECT_FALSE(of(u"c").front().isTerm);
}

TEST_F(TermVariants, ALetterWithoutFurtherElementsOffersNothing)
{
    for (const StringView letter : {u"j", u"q", u"v", u"w"}) {
        EXPECT_THAT(typed(letter), IsEmpty()) << toUtf8(letter);
    }
}

TEST_F(TermVariants, EachElementIsOfferedOnceOrTypedByItsKey)
{
    std::set<String> all{u"V", u"W", u"U"};
    for (const KeyDesign& key : term_key_layout::Keys) {
        if (key.caption.size() == 1 && key.caption.front() >= u'a' && key.caption.front() <= u'z' &&
            key.tag.empty()) {
            for (const KeyVariant& variant : termVariants(board, key.index)) {
                EXPECT_TRUE(all.insert(variant.text).second) << toUtf8(variant.text);
                EXPECT_NE(atomicNumberOf(variant.text), 0) << toUtf8(variant.text);
            }
        }
    }
    EXPECT_EQ(all.size(), std::size_t{LastElement});
}

TEST_F(TermVariants, ElementsAreOfferedWithShiftToo)
{
    board.state(Modifier::Shift, KeyState::Once);
    EXPECT_THAT(typed(u"z"), ElementsAre("Zn", "Zr"));
}

TEST_F(TermVariants, ADigitIsRaisedAndLowered)
{
    EXPECT_THAT(typed(u"2"), ElementsAre("^2", "µ2"));
    EXPECT_THAT(typed(u"0"), ElementsAre("^0", "µ0"));
    EXPECT_TRUE(of(u"2").front().isTerm);
    EXPECT_THAT(spoken(u"2"), ElementsAre("Hoch 2", "Tief 2"));
}

TEST_F(TermVariants, MinusOffersArrowsAndABracketTheFraction)
{
    EXPECT_THAT(typed(u"-"), ElementsAre("->", " ⇌ ", "<-"));
    EXPECT_THAT(spoken(u"-"), ElementsAre("Reaktionspfeil", "Gleichgewichtspfeil", "Pfeil nach links"));
    EXPECT_THAT(typed(u"("), ElementsAre("()/()"));
    EXPECT_THAT(spoken(u"("), ElementsAre("Bruch"));
    board.state(Modifier::Shift, KeyState::Once);
    EXPECT_THAT(typed(u"-"), IsEmpty()) << "it is an underline now";
}

TEST_F(TermVariants, OtherKeysOfferNothing)
{
    for (const StringView key : {u")", u"^", u"+", u",", u".", u" ", u"ï", u"C", u"OK", u"ñ", u"xx"}) {
        EXPECT_THAT(typed(key), IsEmpty()) << toUtf8(key);
    }
    EXPECT_THAT(termVariants(board, Multiply), IsEmpty()) << "the multiplication sign is no letter";
}

TEST_F(TermVariants, AreSpokenInBothLanguages)
{
    EXPECT_THAT(spoken(u"k"), ElementsAre("Kalium", "Krypton"));
    LNG()->CURRENT(ID_Language_English);
    EXPECT_THAT(spoken(u"k"), ElementsAre("potassium", "krypton"));
    EXPECT_THAT(spoken(u"2"), ElementsAre("Raised 2", "Lowered 2"));
    EXPECT_THAT(spoken(u"-"), ElementsAre("Reaction arrow", "Equilibrium arrow", "Arrow to the left"));
    EXPECT_THAT(spoken(u"("), ElementsAre("Fraction"));
}

TEST_F(TermVariants, ADigitBesideARaisedOneStandsBesideIt)
{
    EXPECT_EQ(variantBehind(u"10", u"^2"), u"^2");
    EXPECT_EQ(variantBehind(u"10^2", u"^3"), u"#^3");
    EXPECT_EQ(variantBehind(u"10^2#^3", u"^1"), u"#^1");
    EXPECT_EQ(variantBehind(u"Cµ6", u"µ1"), u"#µ1");
    EXPECT_EQ(variantBehind(u"SOµ4", u"^2"), u"^2") << "above the index";
    EXPECT_EQ(variantBehind(u"H2", u"^2"), u"^2");
    EXPECT_EQ(variantBehind(u"^", u"^2"), u"^2");
    EXPECT_EQ(variantBehind({}, u"µ2"), u"µ2");
}

TEST_F(TermVariants, AnElementOffersTheIonsThatHaveAName)
{
    const auto ions = ionVariants(u"Fe");
    ASSERT_EQ(ions.size(), 2U);
    EXPECT_EQ(ions[0], (KeyVariant{u"Fe^2+", u"Fe^2+", u"Eisen(II)-Ion", true}));
    EXPECT_EQ(ions[1].text, u"Fe^3+");
    EXPECT_EQ(ionVariants(u"C").size(), 0U) << "those of calcium are not its own";
    EXPECT_EQ(ionVariants(u"He").size(), 0U);
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(ionVariants(u"Ca").front().spoken, u"calcium ion");
}

TEST_F(TermVariants, AnIonBehindItsOwnSymbolAddsItsCharge)
{
    EXPECT_EQ(variantBehind(u"Fe", u"Fe^2+"), u"^2+");
    EXPECT_EQ(variantBehind(u"2Na", u"Na^+"), u"^+");
    EXPECT_EQ(variantBehind(u"Fe ", u"Fe^2+"), u"Fe^2+");
    EXPECT_EQ(variantBehind({}, u"Fe^2+"), u"Fe^2+");
    EXPECT_EQ(variantBehind(u"Na", u"Na"), u"Na");
}

TEST_F(TermVariants, NoBlankIsDoubled)
{
    EXPECT_EQ(variantBehind(u"H2", u" ⇌ "), u" ⇌ ");
    EXPECT_EQ(variantBehind(u"H2 ", u" ⇌ "), u"⇌ ");
    EXPECT_EQ(variantBehind({}, u" ⇌ "), u"⇌ ");
    EXPECT_EQ(variantBehind(u"H2 ", u"->"), u"->");
    EXPECT_TRUE(readEquation(u"H2 + I2 ⇌ 2HI"));
}

TEST_F(TermVariants, TheCaretComesBehindThemAndIntoTheNumerator)
{
    EXPECT_EQ(caretInVariant(u"()/()"), 1U);
    EXPECT_EQ(caretInVariant(u"Ca"), 2U);
    EXPECT_EQ(caretInVariant({}), 0U);
}

} // namespace

} // namespace phial::test
