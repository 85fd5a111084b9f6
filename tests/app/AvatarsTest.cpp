#include "app/screen/Avatars.h"

#include "app/AppTest.h"
#include "app/screen/frm_Resource.h"
#include "support/Raises.h"
#include "visual/ImageList.h"
#include "visual/PictureBox.h"

namespace phial
{

namespace
{

class Avatars : public AppTest
{
protected:
    Avatars()
    {
        makeFolder(u"avatar\\");
        QVAPP()->URL()->RESOURCEAVATARS(path(u"avatar\\"));
    }

    void makeAvatar(StringView file) { makeFile(u"avatar\\" + String(file), u"no picture"); }

    std::shared_ptr<ImageList> store()
    {
        return session->sharedForm<frm_Resource>()->part<ImageList>(u"img_Avatars");
    }
    PicturePtr defaultPicture()
    {
        return session->sharedForm<frm_Resource>()->part<PictureBox>(u"pic_AvatarDefault")->Picture();
    }
};

TEST_F(Avatars, BearTheirFilesNamesInLowerCase)
{
    makeAvatar(u"Robot.GIF");
    makeAvatar(u"Ärztin.gif");
    AvatarImagesLoad();
    EXPECT_EQ(store()->Count(), 2);
    EXPECT_EQ(AvatarImageIndex(u"robot"), 1);
    EXPECT_EQ(AvatarImageKey(2), u"ärztin");
    EXPECT_EQ(AvatarImageKey(u"robot"), u"robot");
}

TEST_F(Avatars, AreGifFilesOfTheFolderItself)
{
    makeAvatar(u"a.gif");
    makeAvatar(u"b.png");
    makeAvatar(u"deeper\\c.gif");
    AvatarImagesLoad();
    EXPECT_EQ(store()->Count(), 1);
}

TEST_F(Avatars, AreNotDoubledByASecondLoad)
{
    makeAvatar(u"a.gif");
    AvatarImagesLoad();
    AvatarImagesLoad();
    EXPECT_EQ(store()->Count(), 1);
}

TEST_F(Avatars, OfTheSameNameCountOnce)
{
    makeAvatar(u"a.gif");
    makeAvatar(u"A.gif");
    AvatarImagesLoad();
    EXPECT_EQ(store()->Count(), 1);
}

TEST_F(Avatars, AreGoneAfterClearing)
{
    makeAvatar(u"a.gif");
    AvatarImagesLoad();
    AvatarImagesClear();
    EXPECT_EQ(store()->Count(), 0);
}

TEST_F(Avatars, AreNoneInAMissingFolder)
{
    QVAPP()->URL()->RESOURCEAVATARS(path(u"nowhere\\"));
    AvatarImagesLoad();
    EXPECT_EQ(store()->Count(), 0);
}

TEST_F(Avatars, AreDecodedAtTheirFirstUseOnly)
{
    makeAvatar(u"a.gif");
    AvatarImagesLoad();
    const auto picture = std::make_shared<Picture>(PixelSize{48, 48});
    outside.visual().addPicture(nativePath(path(u"avatar\\a.gif")), picture);
    EXPECT_EQ(AvatarImageGet(u"a"), picture);
    EXPECT_EQ(AvatarImageGet(1), picture);
}

TEST_F(Avatars, HaveADefaultForAnUnknownKey)
{
    const PicturePtr picture = AvatarImageGet(u"nobody");
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture, defaultPicture());
    EXPECT_EQ(AvatarImageGet(0), picture);
    EXPECT_EQ(AvatarImageGet(Variant()), picture);
}

TEST_F(Avatars, HaveADefaultForAFileThatIsNoPicture)
{
    makeAvatar(u"a.gif");
    AvatarImagesLoad();
    EXPECT_EQ(AvatarImageGet(u"a"), defaultPicture());
}

TEST_F(Avatars, RaiseForTheKeyAndIndexOfAnUnknownOne)
{
    EXPECT_RAISES(AvatarImageKey(1), IndexOutOfBounds);
    EXPECT_RAISES(AvatarImageIndex(u"nobody"), IndexOutOfBounds);
}

} // namespace

} // namespace phial
