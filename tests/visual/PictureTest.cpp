#include "visual/Picture.h"

#include "support/HeadlessSession.h"
#include "support/Raises.h"
#include "visual/ImageList.h"

#include <fstream>

namespace phial::test
{

namespace
{

using PictureTest = HeadlessSession;
using ImageListTest = HeadlessSession;

TEST_F(PictureTest, HoldsItsRatioOfPixelsForEachLogicalOne)
{
    const Picture picture({10, 5}, 1.5);
    EXPECT_EQ(picture.columns(), 15U);
    EXPECT_EQ(picture.rows(), 8U);
    EXPECT_EQ(picture.Width(), 10);
}

TEST_F(PictureTest, IsSeeThroughAtFirstAndOutsideAlways)
{
    Picture picture({4, 4}, 2);
    EXPECT_TRUE(picture.isSeeThrough({1, 1}));
    picture.pixels()[2 * picture.columns() + 2] = 0xFF000000U;
    EXPECT_FALSE(picture.isSeeThrough({1, 1}));
    EXPECT_TRUE(picture.isSeeThrough({-1, 1}));
    EXPECT_TRUE(picture.isSeeThrough({4, 1}));
}

TEST_F(PictureTest, RefusesSizesThatNoMemoryShouldBeTakenFor)
{
    EXPECT_RAISES(Picture({-1, 5}), InvalidArgument);
    EXPECT_RAISES(Picture({1e6, 1e6}), InvalidArgument);
    EXPECT_RAISES(Picture({1e300, 1}), InvalidArgument);
}

TEST_F(PictureTest, MissingFileRaises53AndOneThatIsNoPicture481)
{
    EXPECT_RAISES(LoadPicture(folder.path() + u"none.gif"), FileNotFound);
    std::ofstream(folder.native() / "text.gif") << "no picture at all, for sure";
    EXPECT_EQ(raisedBy([&] { LoadPicture(folder.path() + u"text.gif"); }), 481);
}

TEST_F(ImageListTest, FindsByNumberFromOneAndByKeyWithoutRegardToCase)
{
    ImageList images;
    const auto robot = std::make_shared<Picture>(PixelSize{1, 1});
    images.Add(u"robot", robot);
    images.Add(u"cat", std::make_shared<Picture>(PixelSize{1, 1}));
    EXPECT_EQ(images.Count(), 2);
    EXPECT_EQ(images.Picture(u"ROBOT"), robot);
    EXPECT_EQ(images.Picture(1), robot);
    EXPECT_EQ(images.Key(2), u"cat");
    EXPECT_EQ(images.Index(u"cat"), 2);
}

TEST_F(ImageListTest, RefusesKeysInUseAndEntriesThatAreNotThere)
{
    ImageList images;
    images.Add(u"robot", std::make_shared<Picture>(PixelSize{1, 1}));
    EXPECT_EQ(raisedBy([&] { images.AddFile(u"Robot", u"x.gif"); }), 35602);
    EXPECT_RAISES(images.Picture(0), IndexOutOfBounds);
    EXPECT_RAISES(images.Picture(2), IndexOutOfBounds);
    EXPECT_RAISES(images.Index(u"dog"), IndexOutOfBounds);
}

TEST_F(ImageListTest, DecodesAFileWhenItIsFirstAskedForAndTriesAgainAfterAFailure)
{
    ImageList images;
    images.AddFile(u"late", folder.path() + u"late.gif");
    EXPECT_RAISES(images.Picture(1), FileNotFound);
    const auto picture = std::make_shared<Picture>(PixelSize{1, 1});
    outside.visual().addPicture(folder.native() / "late.gif", picture);
    EXPECT_EQ(images.Picture(1), picture);
    outside.visual().addPicture(folder.native() / "late.gif", nullptr);
    EXPECT_EQ(images.Picture(1), picture) << "decoded once";
}

} // namespace

} // namespace phial::test
