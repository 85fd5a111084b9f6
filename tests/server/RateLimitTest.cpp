#include "server/RateLimit.h"

#include <gtest/gtest.h>

using namespace phial;

namespace
{

int passing(RateLimit& limit, double now, int asked)
{
    int passed = 0;
    for (int i = 0; i < asked; ++i) {
        passed += limit.pass(now) ? 1 : 0;
    }
    return passed;
}

TEST(RateLimit, LetsSomePassAtOnceAndThenKeepsTheRate)
{
    RateLimit limit(10, 5);
    EXPECT_EQ(passing(limit, 1000, 20), 5);
    EXPECT_EQ(passing(limit, 1000.25, 20), 2);
    EXPECT_EQ(passing(limit, 1000.5, 20), 3); // with the half that was left
}

TEST(RateLimit, SavesUpNoMoreThanItLetsPassAtOnce)
{
    RateLimit limit(10, 5);
    passing(limit, 1000, 20);
    EXPECT_EQ(passing(limit, 5000, 20), 5);
}

TEST(RateLimit, IsNotFilledByAClockThatRunsBackwards)
{
    RateLimit limit(10, 1);
    EXPECT_TRUE(limit.pass(1000));
    EXPECT_FALSE(limit.pass(900));
    EXPECT_TRUE(limit.pass(900.5));
}

} // namespace
