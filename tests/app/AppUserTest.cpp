#include "app/RecentNames.h"
#include "app/UserTest.h"
#include "app/cls_AppUser.h"
#include "support/Raises.h"

namespace phial
{

namespace
{

using AppUser = UserTest;

TEST_F(AppUser, BeginsAsTheLatestEntry)
{
    storeNames({u"Maxi:robot", u"Uli:fox"});
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Maxi");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"robot");
}

TEST_F(AppUser, IsTheLoginWithoutAnEntry)
{
    outside.machine().UserName(u"login");
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"login");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"");
}

TEST_F(AppUser, EntryWithoutColonIsANameWithoutAvatar)
{
    storeNames({u"Maxi"});
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Maxi");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"");
}

TEST_F(AppUser, EntryIsDividedAtItsFirstColon)
{
    storeNames({u"a:b:robot"});
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"a");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"b:robot");
}

TEST_F(AppUser, LockGivesTheLoginWhateverWasStored)
{
    storeNames({u"Maxi:robot"});
    QVAPP()->USER()->SCREENNAMELOCK(true);
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"pupil");
    QVAPP()->USER()->SCREENNAME(u"Uli");
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"pupil");
    QVAPP()->USER()->SCREENNAMELOCK(false);
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Uli");
}

TEST_F(AppUser, NameIsStoredWithoutAnyTest)
{
    const auto user = QVAPP()->USER();
    for (const String& name : {String(10'000, u'x'), String(u"a:b"), String(u"\x0001\r\n"),
                               String(u"\u0634\u0645\u0633"), String(u"\U0001F9EA")}) {
        user->SCREENNAME(name);
        EXPECT_EQ(user->SCREENNAME(), name);
    }
}

TEST_F(AppUser, GivesAvatarsByIndexAndId)
{
    makeAvatars(3);
    const auto user = QVAPP()->USER();
    EXPECT_EQ(user->AVATARS(), 3);
    EXPECT_EQ(user->AVATARID(2), u"a02");
    EXPECT_EQ(user->AVATARINDEX(u"a03"), 3);
    EXPECT_EQ(user->AVATARICON(1), AvatarImageGet(u"a01"));
}

TEST_F(AppUser, UnknownAvatarHasTheDefaultPictureButNoIdAndIndex)
{
    const auto user = QVAPP()->USER();
    EXPECT_EQ(user->AVATARICON(u"nobody"), AvatarImageGet(u"nobody"));
    ASSERT_NE(user->AVATARICON(u"nobody"), nullptr);
    EXPECT_RAISES(user->AVATARID(1), IndexOutOfBounds);
    EXPECT_RAISES(user->AVATARINDEX(u"nobody"), IndexOutOfBounds);
}

TEST_F(AppUser, RemembersANameOnceAndFirst)
{
    storeNames({u"Maxi:robot", u"Uli:fox", u"Maxi:fox"});
    rememberName({u"Uli", u"fox"});
    EXPECT_EQ(storedNames(), CoreStringList({u"Uli:fox", u"Maxi:robot", u"Maxi:fox"}));
}

TEST_F(AppUser, RemembersAllNamesWithoutLimit)
{
    constexpr std::int32_t Many = 300;
    for (std::int32_t number = 1; number <= Many; ++number) {
        rememberName({u"name" + plainText(number), u"fox"});
    }
    EXPECT_EQ(storedNames().Count(), Many);
    EXPECT_EQ(recentNames().front(), (RecentName{u"name300", u"fox"}));
}

TEST_F(AppUser, UnusualNamesComeBackAsTheyWere)
{
    for (const String& name : {String(10'000, u'x'), String(u"\x0001\r\n|{}"), String(u"\u0634\u0645\u0633"),
                               String(u"\U0001F9EA")}) {
        rememberName({name, u"fox"});
        EXPECT_EQ(recentNames().front(), (RecentName{name, u"fox"}));
    }
}

TEST_F(AppUser, CanBeReplacedLikeEverySubObject)
{
    const auto other = std::make_shared<cls_AppUser>();
    QVAPP()->USER(other);
    EXPECT_EQ(QVAPP()->USER(), other);
}

} // namespace

} // namespace phial
