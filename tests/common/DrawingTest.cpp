#include "common/Drawing.h"

#include <gtest/gtest.h>
#include <set>

namespace learning
{
namespace
{

TEST(DrawingTest, TakesAsManyDifferentTasksAsWanted)
{
    std::vector<int> pool;
    for (int i = 0; i < 20; ++i) {
        pool.push_back(i);
    }
    int calls = 0;
    const auto tasks = drawTasks(pool, 10, [&calls](int bound) { return ++calls * 7 % bound; });

    EXPECT_EQ(tasks.size(), 10U);
    EXPECT_EQ(std::set<int>(tasks.begin(), tasks.end()).size(), 10U);
}

TEST(DrawingTest, AShortPoolGivesAllItHas)
{
    EXPECT_EQ(drawTasks(std::vector{1, 2, 3}, 10, [](int) { return 0; }), (std::vector{1, 2, 3}));
}

} // namespace
} // namespace learning
