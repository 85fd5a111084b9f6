#include "app/DialogUserTest.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

TEST_F(DialogUserTest, BeginsWithTheLoginAndTheFirstAvatar)
{
    makeAvatars(4);
    outside.machine().UserName(u"login");
    look([&] {
        EXPECT_EQ(name(), u"login");
        EXPECT_EQ(marker(), (PixelPoint{1, 1}));
        EXPECT_TRUE(get<Shape>(u"shp_Avatar")->Visible());
    });
}

TEST_F(DialogUserTest, UnknownAvatarOfTheLatestEntryLeavesTheFirstSelected)
{
    makeAvatars(4);
    storeNames({u"Maxi:gone"});
    EXPECT_TRUE(play([&] {
        EXPECT_EQ(name(), u"Maxi");
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"a01");
}

TEST_F(DialogUserTest, ClickTakesTheAvatarOfTheCell)
{
    makeAvatars(5);
    play([&] {
        clickCell(1, 1);
        EXPECT_EQ(marker(), (PixelPoint{51, 51}));
        EXPECT_EQ(confirmedAvatar(), u"a04");
    });
}

TEST_F(DialogUserTest, ClickBesideTheLastAvatarDoesNothing)
{
    makeAvatars(3);
    play([&] {
        clickCell(0, 1);
        clickCell(1, 1);
        EXPECT_EQ(marker(), (PixelPoint{1, 51}));
        EXPECT_EQ(confirmedAvatar(), u"a03");
    });
}

TEST_F(DialogUserTest, ListHasARowForTwoAvatars)
{
    const std::pair<std::int32_t, double> heights[] = {{0, 0}, {1, 50}, {2, 50}, {5, 150}, {12, 300}};
    for (const auto& [count, height] : heights) {
        makeAvatars(count);
        look([&, height = height] {
            EXPECT_EQ(avatars()->Height(), height);
            EXPECT_FALSE(bar()->Enabled());
        });
    }
}

TEST_F(DialogUserTest, LongListIsScrolledByTheDifferenceOfTheHeights)
{
    makeAvatars(30);
    look([&] {
        EXPECT_TRUE(bar()->Enabled());
        EXPECT_EQ(bar()->Max(), 15 * 50 - 300);
        bar()->inputScroll(120);
        EXPECT_EQ(avatars()->Top(), -120);
        headless::turnWheel(*avatars(), -1);
        EXPECT_EQ(avatars()->Top(), -170);
        headless::turnWheel(*get<Shape>(u"shp_Avatar"), 100);
        EXPECT_EQ(avatars()->Top(), 0);
        headless::turnWheel(*avatars(), -100);
        EXPECT_EQ(avatars()->Top(), -450);
    });
}

TEST_F(DialogUserTest, OnlyTheAvatarsInViewArePainted)
{
    makeAvatars(30);
    look([&] {
        const auto painted = [&] { return outside.visual().drawing(*avatars()); };
        EXPECT_THAT(painted(), HasSubstr("1,1 48x48"));
        EXPECT_THAT(painted(), HasSubstr("51,251 48x48"));
        EXPECT_THAT(painted(), Not(HasSubstr(",301 ")));
        bar()->inputScroll(120);
        EXPECT_THAT(painted(), HasSubstr("1,-19 48x48")) << "row 2 has gone by its upper part";
        EXPECT_THAT(painted(), HasSubstr("51,281 48x48"));
    });
}

TEST_F(DialogUserTest, DraggingTheListScrollsItAndSelectsNothing)
{
    makeAvatars(30);
    look([&] {
        headless::drag(*avatars(), {20, 280}, {20, 80});
        EXPECT_EQ(avatars()->Top(), -200);
        EXPECT_EQ(marker(), (PixelPoint{1, 1}));
        headless::drag(*avatars(), {70, 225}, {72, 228});
        EXPECT_EQ(avatars()->Top(), -200);
        EXPECT_EQ(marker(), (PixelPoint{51, 201}));
    });
}

TEST_F(DialogUserTest, SelectedAvatarIsInView)
{
    makeAvatars(30);
    storeNames({u"Maxi:a30"});
    look([&] {
        EXPECT_EQ(avatars()->Top(), -450);
        headless::click(*get<PictureBox>(u"pic_Last", 0));
        EXPECT_TRUE(isInView(14));
    });
}

TEST_F(DialogUserTest, KeysMoveTheMarkAndTheList)
{
    makeAvatars(30);
    look([&] {
        avatars()->SetFocus();
        headless::type(*dialog, u"{DOWN}{RIGHT}");
        EXPECT_EQ(marker(), (PixelPoint{51, 51}));
        headless::type(*dialog, u"{UP}{LEFT}{LEFT}{UP}");
        EXPECT_EQ(marker(), (PixelPoint{1, 1}));
        headless::type(*dialog, u"{END}");
        EXPECT_EQ(marker(), (PixelPoint{51, 701}));
        EXPECT_TRUE(isInView(14));
        headless::type(*dialog, u"{PGUP}");
        EXPECT_EQ(marker(), (PixelPoint{51, 401}));
        EXPECT_TRUE(isInView(8));
        headless::type(*dialog, u"{HOME}{PGDN}");
        EXPECT_EQ(marker(), (PixelPoint{1, 301}));
    });
}

TEST_F(DialogUserTest, WorksWithoutAnyAvatar)
{
    QVAPP()->URL()->RESOURCEAVATARS(path(u"nowhere\\"));
    makeAvatars(0);
    EXPECT_TRUE(play([&] {
        EXPECT_FALSE(get<Shape>(u"shp_Avatar")->Visible());
        avatars()->SetFocus();
        headless::type(*dialog, u"{DOWN}{END}");
        enter(u"Maxi");
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"");
    EXPECT_EQ(storedNames().First(), u"Maxi:");
}

TEST_F(DialogUserTest, BrokenPictureCanBeChosenLikeAnyOther)
{
    makeFile(u"avatar\\a02.gif", u"no picture");
    makeAvatars(1);
    play([&] {
        clickCell(1, 0);
        EXPECT_EQ(confirmedAvatar(), u"a02");
    });
}

TEST_F(DialogUserTest, ReachesTheLastOfFiveThousandAvatars)
{
    constexpr std::int32_t Many = 5000;
    makeAvatars(Many);
    play([&] {
        EXPECT_EQ(avatars()->Height(), Many / 2 * 50);
        EXPECT_LE(avatars()->surface().image(2.3)->Height(), get<PictureBox>(u"pic_AvatarHolder")->Height());
        avatars()->SetFocus();
        headless::type(*dialog, u"{END}");
        EXPECT_TRUE(isInView(Many / 2 - 1));
        EXPECT_EQ(confirmedAvatar(), QVAPP()->USER()->AVATARID(Many));
    });
}

} // namespace

} // namespace phial
