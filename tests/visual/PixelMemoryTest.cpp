#include "visual/PixelMemory.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>

namespace phial::test
{

namespace
{

constexpr std::size_t Large = 2 * PixelMemory::LeastKept;

/// Nothing but memory of that size is kept, whatever other tests have left.
void keepOnly(std::size_t count)
{
    {
        const PixelMemory all(PixelMemory::MostKept);
    }
    const PixelMemory one(count);
}

TEST(PixelMemoryTest, MemoryOfALargePictureServesTheNextOne)
{
    keepOnly(Large);
    const std::uint32_t* before = nullptr;
    {
        PixelMemory memory(Large);
        before = memory.pixels().data();
        std::ranges::fill(memory.pixels(), 7U);
    }
    const std::size_t kept = PixelMemory::kept();
    const PixelMemory next(Large);
    EXPECT_EQ(next.pixels().data(), before);
    EXPECT_EQ(std::ranges::count(next.pixels(), 0U), static_cast<std::ptrdiff_t>(Large)) << "as if fresh";
    EXPECT_EQ(PixelMemory::kept(), kept - Large);
}

TEST(PixelMemoryTest, ServesWhatNeedsUpToAQuarterLess)
{
    for (const std::size_t count : {Large * 4 / 5, Large * 4 / 5 - 1}) {
        keepOnly(Large);
        const std::size_t kept = PixelMemory::kept();
        const PixelMemory memory(count);
        EXPECT_EQ(memory.pixels().size(), count);
        EXPECT_EQ(PixelMemory::kept() < kept, count * 5 >= Large * 4) << count;
    }
    keepOnly(Large);
    const std::size_t kept = PixelMemory::kept();
    const PixelMemory larger(Large + 1);
    EXPECT_EQ(PixelMemory::kept(), kept) << "never too small";
}

TEST(PixelMemoryTest, SmallPicturesKeepNothing)
{
    const std::size_t kept = PixelMemory::kept();
    {
        const PixelMemory memory(PixelMemory::LeastKept - 1);
    }
    EXPECT_EQ(PixelMemory::kept(), kept);
}

TEST(PixelMemoryTest, NoMoreThanTheLimitIsKeptAndTheOldestGoesFirst)
{
    keepOnly(Large);
    const std::uint32_t* newest = nullptr;
    {
        std::deque<PixelMemory> all;
        for (std::size_t count = 0; count <= PixelMemory::MostKept; count += Large) {
            all.emplace_back(Large);
        }
        newest = all.back().pixels().data();
        while (!all.empty()) {
            all.pop_front(); // the newest goes last
        }
    }
    EXPECT_EQ(PixelMemory::kept(), PixelMemory::MostKept);
    bool isThere = false;
    std::deque<PixelMemory> again;
    while (!isThere && again.size() <= PixelMemory::MostKept / Large) {
        again.emplace_back(Large);
        isThere = again.back().pixels().data() == newest;
    }
    EXPECT_TRUE(isThere);
}

TEST(PixelMemoryTest, WhatIsLargerThanTheLimitIsNotKeptAndDrivesNothingOut)
{
    keepOnly(Large);
    {
        const PixelMemory memory(PixelMemory::MostKept + 1);
    }
    EXPECT_EQ(PixelMemory::kept(), Large);
}

TEST(PixelMemoryTest, ACopyHasTheSamePixelsElsewhere)
{
    PixelMemory memory(Large);
    memory.pixels()[5] = 9;
    const PixelMemory copy(memory);
    EXPECT_TRUE(std::ranges::equal(copy.pixels(), memory.pixels()));
    EXPECT_NE(copy.pixels().data(), memory.pixels().data());
}

} // namespace

} // namespace phial::test
