#include "core/Arithmetic.h"
#include "core/Variant.h"
#include "dialogs/KeysTest.h"

namespace phial::test
{

TEST_F(KeysTest, AHeldLetterShowsItsVariants)
{
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    EXPECT_TRUE(keys->showsVariants());
    EXPECT_THAT(log, ElementsAre("pressed", "released")) << "what is held drags no window";
    EXPECT_EQ(keys->frame().announcement(), u"ä");
    EXPECT_EQ(keys->parts().size(), text_layout::Keys.size() + 6);
    EXPECT_EQ(keys->parts().back().name, u"æ");
    touch.release(1);
    EXPECT_TRUE(keys->showsVariants()) << "a finger that does not slide leaves them to the next tap";
    const PixelRectangle second = keys->parts()[text_layout::Keys.size() + 1].area;
    touch.press(1, *keys, {second.left + 5, second.top + 5});
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("à"));
    EXPECT_FALSE(keys->showsVariants());
}

TEST_F(KeysTest, TheFingerSlidesOntoAVariant)
{
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    const PixelRectangle third = keys->parts()[text_layout::Keys.size() + 2].area;
    const PixelPoint from = middle(keys::LetterA);
    touch.move(1, {third.left + 5 - from.x, third.top + 5 - from.y});
    EXPECT_TRUE(keys->parts()[text_layout::Keys.size() + 2].state.pressed);
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("â"));
}

TEST_F(KeysTest, ArrowsReachVariants)
{
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    EXPECT_EQ(preview(Key::Right).KeyCode, 0);
    EXPECT_EQ(preview(Key::Left).KeyCode, 0);
    preview(Key::Left);
    EXPECT_EQ(keys->frame().announcement(), u"æ");
    preview(Key::Return);
    EXPECT_THAT(struck(), ElementsAre("æ"));
}

TEST_F(KeysTest, EscapeAndOtherKeysEndTheVariants)
{
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    EXPECT_EQ(preview(Key::Escape).KeyCode, 0);
    EXPECT_FALSE(keys->showsVariants());
    EXPECT_NE(preview(Key::Escape).KeyCode, 0) << "the next one is the form's";
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    EXPECT_NE(preview(Key::Delete).KeyCode, 0) << "it goes on to the field";
    EXPECT_FALSE(keys->showsVariants());
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, ATapBesideVariantsIsAKey)
{
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    tap(keys::Enter);
    EXPECT_FALSE(keys->showsVariants());
    EXPECT_THAT(struck(), ElementsAre("ENTER"));
}

TEST_F(KeysTest, VariantsCanBeLeftOut)
{
    keys->offersVariants(false);
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("a"));
}

TEST_F(KeysTest, VariantsOfTheFirstRowStandBelow)
{
    touch.press(1, *keys, middle(keys::Two));
    outside.advance(Hold);
    EXPECT_EQ(keys->parts().back().area.top, keys->areaOf(keys::Two).bottom());
}

TEST_F(KeysTest, VariantsArePainted)
{
    touch.press(1, *keys, middle(keys::LetterA));
    outside.advance(Hold);
    const std::string all = drawn();
    for (const char* variant : {"\"ä\" Tahoma", "\"à\" Tahoma", "\"æ\" Tahoma"}) {
        EXPECT_NE(all.find(variant), std::string::npos) << variant;
    }
    const PixelRectangle first = keys->parts()[text_layout::Keys.size()].area;
    const String at =
        u"box " + Variant(toWhole(first.left)).toText() + u"," + Variant(toWhole(first.top)).toText();
    EXPECT_THAT(all, HasSubstr(toUtf8(at + u" 288x48 line"))) << "a frame";
    keys->activatePart(text_layout::Keys.size() + 6); // one beyond the last
    EXPECT_THAT(struck(), IsEmpty());
    keys->activatePart(text_layout::Keys.size() + 5);
    EXPECT_THAT(struck(), ElementsAre("æ"));
}

TEST_F(KeysTest, TheKeyForClearingOffersNoVariants)
{
    constexpr std::int32_t Clear = 59;
    touch.press(1, *keys, middle(Clear));
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("CLEAR"));
}

TEST_F(KeysTest, ALetterThatTheNextKeyHasStruckOffersNoVariants)
{
    touch.press(1, *keys, middle(keys::LetterA));
    touch.press(2, *keys, middle(keys::LetterQ));
    touch.release(2);
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("a", "q"));
}

} // namespace phial::test
