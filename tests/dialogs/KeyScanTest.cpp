#include "dialogs/KeyScan.h"

#include "dialogs/KeyNumbers.h"
#include "dialogs/TextLayout.h"

#include <gmock/gmock-more-matchers.h>
#include <gtest/gtest.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto FewKeys = std::to_array<KeyDesign>({
    {.index = 3, .caption = u"d", .left = 720, .top = 720},
    {.index = 0, .caption = u"a", .left = 0, .top = 0},
    {.index = 2, .caption = u"c", .left = 0, .top = 720},
    {.index = 1, .caption = u"b", .left = 720, .top = 0},
});

} // namespace

TEST(KeyScan, RowsLightUpInTurn)
{
    KeyScan scan(FewKeys);
    EXPECT_THAT(scan.lit(), ElementsAre(0, 1));
    scan.step();
    EXPECT_THAT(scan.lit(), ElementsAre(2, 3));
    scan.step();
    EXPECT_THAT(scan.lit(), ElementsAre(0, 1));
}

TEST(KeyScan, TheSwitchChoosesARowAndThenAKey)
{
    KeyScan scan(FewKeys);
    scan.step();
    EXPECT_EQ(scan.press(), std::nullopt);
    EXPECT_THAT(scan.lit(), ElementsAre(2));
    scan.step();
    EXPECT_THAT(scan.lit(), ElementsAre(3));
    EXPECT_EQ(scan.press(), 3);
    EXPECT_THAT(scan.lit(), ElementsAre(0, 1)) << "the rows begin anew";
}

TEST(KeyScan, AMissedKeyComesOnceMoreAndThenTheRowsDo)
{
    KeyScan scan(FewKeys);
    scan.step();
    scan.press();
    for (int step = 0; step < 3; ++step) {
        scan.step();
        EXPECT_EQ(scan.lit().size(), 1U);
    }
    scan.step();
    EXPECT_THAT(scan.lit(), ElementsAre(2, 3)) << "at the row that was chosen";
    scan.press();
    scan.step();
    scan.step();
    EXPECT_EQ(scan.lit().size(), 1U) << "the rounds count anew";
}

TEST(KeyScan, ReachesEveryKey)
{
    for (const KeyDesign& key : text_layout::Keys) {
        KeyScan scan(text_layout::Keys);
        const auto has = [&] { return std::ranges::count(scan.lit(), key.index) > 0; };
        int steps = 0;
        for (; !has() && steps < 100; ++steps) {
            scan.step();
        }
        scan.press();
        for (; !has() && steps < 100; ++steps) {
            scan.step();
        }
        EXPECT_EQ(scan.press(), key.index);
        EXPECT_LT(steps, 20) << "no key is far";
    }
}

TEST(KeyScan, WithoutKeysNothingHappens)
{
    KeyScan scan({});
    scan.step();
    EXPECT_EQ(scan.press(), std::nullopt);
    EXPECT_THAT(scan.lit(), IsEmpty());
}

} // namespace phial
