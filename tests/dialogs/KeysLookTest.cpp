#include "dialogs/KeysTest.h"
#include "support/Raises.h"

namespace phial::test
{

TEST_F(KeysTest, OnlyWhatHasChangedIsPaintedAgain)
{
    const std::size_t before = drawn().size();
    tap(keys::Shift);
    const std::string news = outside.visual().drawing(*keys).substr(before);
    EXPECT_NE(news.find("\"Q\" Tahoma"), std::string::npos);
    EXPECT_NE(news.find("\"http://\""), std::string::npos);
    EXPECT_EQ(news.find("\"Strg\""), std::string::npos);
    EXPECT_EQ(news.find("clear"), std::string::npos);
}

TEST_F(KeysTest, AKeyThatIsErasedByItsNeighbourIsPaintedAgain)
{
    drawn();
    touch.press(1, *keys, middle(keys::Enter));
    const std::string all = outside.visual().drawing(*keys);
    const std::size_t erased = all.rfind("box ");
    std::size_t signs = 0; // ENTER and UP, whose boxes meet
    for (std::size_t at = all.find("polygon", erased); at != std::string::npos;
         at = all.find("polygon", at + 1)) {
        ++signs;
    }
    EXPECT_EQ(signs, 2U);
}

TEST_F(KeysTest, SpeaksTheLanguageInForce)
{
    drawn();
    LNG()->CURRENT(ID_Language_English);
    keys->refresh();
    EXPECT_NE(outside.visual().drawing(*keys).find("\"Ctrl\""), std::string::npos);
    EXPECT_EQ(nameOf(keys::Backspace), u"Delete character");
}

TEST_F(KeysTest, TheirAreaHoldsAllKeysWhereverTheFirstStands)
{
    constexpr KeyDesign Keys[] = {
        {.index = 1, .caption = u"a", .left = 720, .top = 720},
        {.index = 2, .caption = u"b", .left = 1440, .top = 0},
        {.index = 3, .caption = u"c", .left = 0, .top = 1440},
    };
    keys->layout({.keys = Keys, .levels = {}, .named = {}});
    EXPECT_EQ(keys->designArea(), (PixelRectangle{0, 0, 2160, 2160}));
    keys->layout(text_layout::Layout); // whose tables outlive it
}

TEST_F(KeysTest, KeysFillWhateverSizeItIsGiven)
{
    keys->frame().Move(0, 0, 1440, 480);
    EXPECT_EQ(keys->areaOf(keys::Enter).right(), 1440);
    EXPECT_EQ(keys->areaOf(1).height, 96);
    EXPECT_RAISES(keys->areaOf(99), IndexOutOfBounds);
}

TEST_F(KeysTest, AllCapsAndFacesArePainted)
{
    const std::string all = drawn();
    const auto count = [&](const std::string& what) {
        std::size_t found = 0;
        for (std::size_t at = all.find(what); at != std::string::npos; at = all.find(what, at + 1)) {
            ++found;
        }
        return found;
    };
    EXPECT_EQ(count("\nimage "), text_layout::Keys.size());
    EXPECT_EQ(count("\nimage 48x48 "), 50U);
    EXPECT_NE(all.find("image 80x96 "), std::string::npos) << "ENTER";
}

TEST_F(KeysTest, AnotherSizeIsPaintedAnew)
{
    drawn();
    keys->frame().Move(0, 0, 1440, 480);
    const std::string all = drawn();
    EXPECT_NE(all.find("image 96x96 "), std::string::npos);
    EXPECT_EQ(all.find("image 48x48 "), std::string::npos);
}

} // namespace phial::test
