#include "server/MasterPatience.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(MasterPatience, AllowsAMinuteOfSilenceInAll)
{
    MasterPatience patience;
    double now = 1000;
    for (const double wanted : {4.0, 6.0, 8.0, 10.0, 12.0, 14.0}) {
        EXPECT_EQ(patience.allowed(wanted), wanted);
        patience.begins(now);
        now += wanted;
        patience.ends(now);
        now += 100; // between two waits nobody waits
    }
    EXPECT_EQ(patience.allowed(30), 60 - 54);
    patience.begins(now);
    patience.ends(now + 6);
    EXPECT_EQ(patience.allowed(30), 0.25);
    EXPECT_EQ(patience.allowed(0.1), 0.1);
}

TEST(MasterPatience, IsRenewedByASignOfLife)
{
    MasterPatience patience;
    patience.begins(0);
    patience.ends(60);
    patience.signOfLife(61);
    EXPECT_EQ(patience.allowed(30), 30);
    patience.begins(100);
    patience.signOfLife(110);
    patience.ends(115);
    EXPECT_EQ(patience.allowed(60), 55);
}

TEST(MasterPatience, CountsWaitsWithinWaitsOnce)
{
    MasterPatience patience;
    patience.begins(0);
    patience.begins(5);
    patience.ends(15);
    patience.ends(20);
    EXPECT_EQ(patience.allowed(60), 40);
}

TEST(MasterPatience, HasLimitsOfItsOwn)
{
    MasterPatience patience({.silence = 2, .knock = 1});
    patience.begins(0);
    patience.ends(1.5);
    EXPECT_EQ(patience.allowed(10), 1);
}

} // namespace
} // namespace phial
