#include "visual/Picture.h"

#include "support/HeadlessSession.h"
#include "support/Raises.h"
#include "visual/ImageList.h"

#include <fstream>
#include <map>

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

TEST_F(PictureTest, IsItsOwnVersionWithoutFinerOnes)
{
    const Picture picture({8, 8});
    EXPECT_EQ(&picture.versionFor(0.5), &picture);
    EXPECT_EQ(&picture.versionFor(3), &picture);
}

/// A picture that has the named finer versions, and what it was asked for.
struct Versions {
    explicit Versions(std::map<int, PicturePtr> has) : finer(std::move(has))
    {
        picture.finer([this](int ratio) {
            asked.push_back(ratio);
            return finer.at(ratio);
        });
    }
    const Picture& at(int ratio) const { return *finer.at(ratio); }

    std::map<int, PicturePtr> finer;
    std::vector<int> asked;
    Picture picture{{8, 8}};
};

PicturePtr pictureOfEight(double ratio)
{
    return std::make_shared<Picture>(PixelSize{8, 8}, ratio);
}

TEST_F(PictureTest, TakesTheCoarsestVersionThatIsFineEnough)
{
    const Versions versions({{2, pictureOfEight(2)}, {3, pictureOfEight(3)}});
    EXPECT_EQ(&versions.picture.versionFor(1), &versions.picture);
    EXPECT_TRUE(versions.asked.empty());
    EXPECT_EQ(&versions.picture.versionFor(1.25), &versions.at(2));
    EXPECT_EQ(&versions.picture.versionFor(2), &versions.at(2));
    EXPECT_EQ(&versions.picture.versionFor(2.25), &versions.at(3));
    EXPECT_EQ(&versions.picture.versionFor(8), &versions.at(3));
}

TEST_F(PictureTest, TakesTheFinestVersionWhereNoneIsFineEnough)
{
    const Versions onlyTwo({{2, pictureOfEight(2)}});
    EXPECT_EQ(&onlyTwo.picture.versionFor(4), &onlyTwo.at(2));
    const Versions onlyThree({{3, pictureOfEight(3)}});
    EXPECT_EQ(&onlyThree.picture.versionFor(1.25), &onlyThree.at(3));
}

TEST_F(PictureTest, AsksForEachVersionOnce)
{
    const Versions none({});
    for (int times = 0; times < 2; ++times) {
        EXPECT_EQ(&none.picture.versionFor(3), &none.picture);
    }
    EXPECT_EQ(none.asked, (std::vector{3, 2}));
}

TEST_F(PictureTest, DoesWithoutAVersionOfAnotherSize)
{
    const Versions other({{2, std::make_shared<Picture>(PixelSize{8, 9}, 2)}});
    EXPECT_EQ(&other.picture.versionFor(2), &other.picture);
}

TEST_F(PictureTest, SharesItsVersionsWithItsCopies)
{
    const Versions versions({{2, pictureOfEight(2)}});
    EXPECT_EQ(&versions.picture.copy()->versionFor(2), &versions.at(2));
}

TEST_F(PictureTest, OfAFileHasTheFilesBesideItAsFinerVersions)
{
    const PicturePtr finest = pictureOfEight(3);
    outside.visual().addPicture(folder.native() / "cat.gif", pictureOfEight(1));
    outside.visual().addPicture(folder.native() / "cat@3x.png", finest);
    const PicturePtr picture = LoadPicture(folder.path() + u"cat.gif");
    EXPECT_EQ(&picture->versionFor(1), picture.get());
    EXPECT_EQ(&picture->versionFor(2), finest.get());
}

TEST_F(PictureTest, WithHardEdgesIsShownItselfAtHalfItsSizeOnly)
{
    Versions versions({{2, pictureOfEight(2)}});
    versions.picture.pixels()[3] = 0xFF102030U;
    EXPECT_EQ(&versions.picture.versionFor(0.5), &versions.picture);
    EXPECT_EQ(&versions.picture.versionFor(0.75), &versions.at(2));
    EXPECT_EQ(&versions.picture.versionFor(1), &versions.at(2));
}

TEST_F(PictureTest, WithSoftEdgesIsShownItselfAtItsSize)
{
    Versions versions({{2, pictureOfEight(2)}});
    versions.picture.pixels()[3] = 0xFF102030U;
    versions.picture.pixels()[4] = 0x80081018U;
    EXPECT_EQ(&versions.picture.versionFor(1), &versions.picture);
}

TEST_F(PictureTest, OfAFileIsShownAsItIsWhereTheFileBesideItIsBroken)
{
    outside.visual().addPicture(folder.native() / "cat.gif", pictureOfEight(1));
    std::ofstream(folder.native() / "cat@3x.png") << "no picture at all, for sure";
    const PicturePtr picture = LoadPicture(folder.path() + u"cat.gif");
    EXPECT_EQ(&picture->versionFor(3), picture.get());
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
