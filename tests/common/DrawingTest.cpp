#include "common/Drawing.h"

#include <gtest/gtest.h>
#include <set>

namespace learning
{
namespace
{

constexpr auto none = [](int) { return false; };

TEST(DrawingTest, TakesAsManyDifferentTasksAsWanted)
{
    std::vector<int> pool;
    for (int i = 0; i < 20; ++i) {
        pool.push_back(i);
    }
    int calls = 0;
    const auto tasks = drawTasks(
        pool, 10, [&calls](int bound) { return ++calls * 7 % bound; }, none);

    EXPECT_EQ(tasks.size(), 10U);
    EXPECT_EQ(std::set<int>(tasks.begin(), tasks.end()).size(), 10U);
}

TEST(DrawingTest, AShortPoolGivesAllItHas)
{
    EXPECT_EQ(drawTasks(
                  std::vector{1, 2, 3}, 10, [](int) { return 0; }, none),
              (std::vector{1, 2, 3}));
}

TEST(DrawingTest, BeginsWithWhatIsPreferred)
{
    const auto last = [](int bound) { return bound - 1; };
    const auto isEven = [](int task) { return task % 2 == 0; };
    EXPECT_EQ(drawTasks(std::vector{1, 2, 3, 4, 5}, 4, last, isEven), (std::vector{4, 2, 5, 1}));
    EXPECT_EQ(drawTasks(std::vector{2, 4, 6}, 2, last, isEven), (std::vector{6, 2}));
}

} // namespace
} // namespace learning
