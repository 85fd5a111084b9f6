#include "master/Seats.h"

#include <gtest/gtest.h>

using namespace phial;
using namespace phial::master;

namespace
{

const std::vector<Seat> Some{{u"a", 5}, {u"a", 3}, {u"b", 1}, {u"a", 4}, {u"c", 2}};

TEST(Seats, ThereIsRoomBelowTheBounds)
{
    const Seating seating = seatingFor(u"a", Some, 4, 6);
    EXPECT_TRUE(seating.isAdmitted);
    EXPECT_FALSE(seating.leaves);
    EXPECT_FALSE(seating.addressIsFull || seating.allAreFull);
}

TEST(Seats, OfAComputerWithTooManyTheQuietestLeaves)
{
    const Seating seating = seatingFor(u"a", Some, 3, 10);
    EXPECT_TRUE(seating.isAdmitted && seating.addressIsFull && !seating.allAreFull);
    EXPECT_EQ(seating.leaves, 1U);
    EXPECT_FALSE(seatingFor(u"b", Some, 3, 10).leaves) << "others are not concerned";
}

TEST(Seats, WhenAllAreTakenOneOfThoseWhoHaveMostLeaves)
{
    const Seating seating = seatingFor(u"d", Some, 4, 5);
    EXPECT_TRUE(seating.isAdmitted && seating.allAreFull && !seating.addressIsFull);
    EXPECT_EQ(seating.leaves, 1U) << "though others are quieter";
    EXPECT_EQ(seatingFor(u"d", {{u"a", 2}, {u"b", 1}, {u"c", 3}}, 4, 3).leaves, 1U);
}

TEST(Seats, WhoIsBusyStays)
{
    EXPECT_EQ(seatingFor(u"a", {{u"a", 1, true}, {u"a", 2}}, 2, 10).leaves, 1U);
    const Seating full = seatingFor(u"a", {{u"a", 1, true}, {u"a", 2, true}, {u"b", 0}}, 2, 10);
    EXPECT_FALSE(full.isAdmitted || full.leaves);
    EXPECT_TRUE(full.addressIsFull);
    EXPECT_FALSE(seatingFor(u"c", {{u"a", 1, true}, {u"b", 2, true}}, 2, 2).isAdmitted);
}

TEST(Seats, TheFirstOneIsAlwaysAdmitted)
{
    EXPECT_TRUE(seatingFor(u"a", {}, 1, 1).isAdmitted);
}

} // namespace
