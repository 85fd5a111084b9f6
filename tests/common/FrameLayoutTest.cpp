#include "common/FrameLayout.h"

#include "common/FrameDesign.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

/// What the pages need of a window is seen in it.
void expectWhole(const Arrangement& now)
{
    EXPECT_GE(now.area.width, frame_design::Width - 1e-6);
    EXPECT_GE(now.area.height, now.header + now.footer + frame_design::PageHeight - 1e-6);
    EXPECT_GE(now.page.y, now.header - 1e-6);
    EXPECT_LE(now.page.y + frame_design::PageHeight, now.area.height - now.footer + 1e-6);
}

TEST(FrameLayoutTest, ADesignSizedWindowShowsTheDesign)
{
    EXPECT_EQ(arrange({900, 640}), (Arrangement{1, {900, 640}, 64, 40, {0, 64}}));
}

TEST(FrameLayoutTest, AWideWindowIsFilledInHeightAndThePagesStandInTheMiddle)
{
    const Arrangement now = arrange({1920, 1080});
    EXPECT_DOUBLE_EQ(now.zoom, 1080.0 / 640);
    EXPECT_DOUBLE_EQ(now.area.height, 640);
    EXPECT_DOUBLE_EQ(now.page.x, (1920 / now.zoom - 900) / 2);
    expectWhole(now);
}

TEST(FrameLayoutTest, AHighWindowIsFilledInWidth)
{
    const Arrangement now = arrange({900, 1200});
    EXPECT_EQ(now.zoom, 1);
    EXPECT_DOUBLE_EQ(now.page.y, 64 + (1200 - 104 - 536) / 2.0);
    expectWhole(now);
}

// A notebook of 1024 by 600 with a title bar.
TEST(FrameLayoutTest, InALowWindowHeaderAndFooterGiveWayFirst)
{
    const Arrangement some = arrange({1024, 630});
    EXPECT_EQ(some.zoom, 1);
    EXPECT_EQ(some.header, 56.5);
    EXPECT_EQ(some.footer, 37.5);
    expectWhole(some);

    const Arrangement low = arrange({1024, 572});
    EXPECT_DOUBLE_EQ(low.zoom, (572.0 - 36) / 588);
    EXPECT_NEAR(low.header, 52, 1e-6);
    EXPECT_NEAR(low.footer * low.zoom, 36, 1e-6) << "a button's height";
    expectWhole(low);
}

TEST(FrameLayoutTest, TheFooterHasRoomForAFingerHoweverSmallTheDesignIsShown)
{
    for (const phial::PixelSize inside :
         {phial::PixelSize{675, 477}, {675, 640}, {720, 540}, {800, 560}, {1024, 560}, {5000, 5000}}) {
        const Arrangement now = arrange(inside);
        EXPECT_GE(now.footer * now.zoom, 36 - 1e-6) << inside.width;
        expectWhole(now);
    }
}

TEST(FrameLayoutTest, ShowsTheWholeDesignInEachWindowThatSchoolsHave)
{
    for (const phial::PixelSize inside : {phial::PixelSize{1024, 560},
                                          {1024, 600},
                                          {1093, 580},
                                          {1280, 800},
                                          {1366, 728},
                                          {1024, 768},
                                          {1920, 1080},
                                          {2560, 1440},
                                          {3840, 2160},
                                          {675, 477}}) {
        SCOPED_TRACE(inside.width);
        expectWhole(arrange(inside));
    }
}

TEST(FrameLayoutTest, TheZoomHasItsBounds)
{
    EXPECT_EQ(arrange({100, 100}).zoom, 0.75);
    EXPECT_EQ(arrange({9000, 9000}).zoom, 4);
}

} // namespace
} // namespace learning
