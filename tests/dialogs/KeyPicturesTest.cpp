#include "dialogs/KeyPictures.h"

#include "core/CoreTheme.h"
#include "core/SessionState.h"
#include "support/AppSession.h"

namespace phial::test
{

namespace
{

class KeyPicturesTest : public AppSession
{
protected:
    PicturePtr ground(PixelSize size = {222, 340}, double scale = 1)
    {
        return KeyPictures::current()->ground(size, scale);
    }
    PicturePtr cap(double ratio = 1) { return KeyPictures::current()->cap(look, ratio); }

    KeyLook look{.area = {10, 20, 48, 48}, .face = {.text = u"a"}};
};

} // namespace

TEST_F(KeyPicturesTest, TheNextKeyboardOfTheSameLookFindsItsGround)
{
    const PicturePtr first = ground();
    EXPECT_EQ(first->size(), (PixelSize{222, 340}));
    EXPECT_EQ(ground(), first);
    EXPECT_NE(ground({222, 341}), first);
    EXPECT_NE(ground({222, 340}, 1.5), first);
    EXPECT_EQ(ground(), first) << "others have not replaced it";
}

TEST_F(KeyPicturesTest, AGroundIsPaintedForItsScreen)
{
    const PicturePtr first = ground();
    outside.visual().pixelRatio(2);
    EXPECT_NE(ground(), first);
    outside.visual().pixelRatio(1);
    EXPECT_EQ(ground(), first);
}

TEST_F(KeyPicturesTest, OtherColoursArePaintedAnew)
{
    const PicturePtr firstGround = ground();
    const PicturePtr firstCap = cap();
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_NE(ground(), firstGround);
    EXPECT_NE(cap(), firstCap);
    const std::size_t dark = KeyPictures::current()->kept();
    coreTheme().SetColours(ColourSet::Light);
    EXPECT_NE(ground(), firstGround);
    cap();
    EXPECT_EQ(KeyPictures::current()->kept(), dark) << "those of colours that are gone are not kept";
}

TEST_F(KeyPicturesTest, KeysThatDifferInPlaceAndFaceShareTheirCap)
{
    const PicturePtr first = cap();
    EXPECT_EQ(first->size(), (PixelSize{48, 48}));
    look.area.left = look.area.top = 100;
    look.face = {.text = u"Strg"};
    EXPECT_EQ(cap(), first);
    EXPECT_NE(cap(2), first) << "at another ratio";
    look.isPressed = true;
    EXPECT_NE(cap(), first);
}

TEST_F(KeyPicturesTest, AGroundIsNoCapOfItsSize)
{
    look.area = {0, 0, 222, 340};
    EXPECT_NE(PicturePtr(cap()), ground());
}

TEST_F(KeyPicturesTest, WhatWasDrawnFirstGoesWhenThereIsTooMuch)
{
    const PicturePtr first = ground({512, 512});
    for (int size = 513; size < 516; ++size) {
        ground({512, double{1} * size});
    }
    const PicturePtr last = ground({512, 512}, 2);
    EXPECT_LE(KeyPictures::current()->kept(), KeyPictures::MostKept);
    EXPECT_EQ(ground({512, 512}, 2), last);
    EXPECT_NE(ground({512, 512}), first);
}

TEST_F(KeyPicturesTest, WhatIsLargerThanAllThatIsKeptIsGivenAllTheSame)
{
    const PicturePtr large = ground({1200, 1000});
    EXPECT_EQ(large->size(), (PixelSize{1200, 1000}));
    EXPECT_EQ(KeyPictures::current()->kept(), 0U);
    EXPECT_NE(ground({1200, 1000}), large);
}

TEST_F(KeyPicturesTest, AFreshRunBeginsWithoutPictures)
{
    ground();
    EXPECT_GT(KeyPictures::current()->kept(), 0U);
    session.reset();
    session.emplace(outside.platform());
    EXPECT_EQ(KeyPictures::current()->kept(), 0U);
}

} // namespace phial::test
