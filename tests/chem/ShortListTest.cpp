#include "chem/formula/ShortList.h"

#include <gmock/gmock.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using Numbers = ShortList<int, 3>;

struct Place {
    int row = 7;
    int column = 7;

    friend bool operator==(const Place&, const Place&) = default;
};

TEST(ShortList, HoldsItemsInItselfAndThenElsewhere)
{
    Numbers list;
    EXPECT_TRUE(list.empty());
    for (int number = 1; number <= 3; ++number) {
        list.push_back(number);
    }
    EXPECT_EQ(static_cast<void*>(list.data()), static_cast<void*>(&list.front()));
    const auto* const here = reinterpret_cast<const char*>(&list);
    EXPECT_LT(reinterpret_cast<const char*>(list.data()), here + sizeof(list));
    EXPECT_THAT(list, ElementsAre(1, 2, 3));
    list.push_back(list.front());
    EXPECT_THAT(list, ElementsAre(1, 2, 3, 1));
    EXPECT_EQ(list.back(), 1);
    list[1] = 7;
    EXPECT_THAT(list, ElementsAre(1, 7, 3, 1));
    list.clear();
    EXPECT_TRUE(list.empty());
    list.push_back(5);
    EXPECT_THAT(list, ElementsAre(5));
}

TEST(ShortList, IsCopiedWithItsItems)
{
    const Numbers few{1, 2};
    const Numbers many{1, 2, 3, 4, 5};
    Numbers copied = few;
    EXPECT_THAT(copied, ElementsAre(1, 2));
    copied = many;
    EXPECT_THAT(copied, ElementsAre(1, 2, 3, 4, 5));
    copied = few;
    EXPECT_THAT(copied, ElementsAre(1, 2));
    const Numbers* const same = &copied;
    copied = *same;
    EXPECT_THAT(copied, ElementsAre(1, 2));
    EXPECT_THAT(many, ElementsAre(1, 2, 3, 4, 5));
}

TEST(ShortList, IsMovedAndLeavesNothing)
{
    for (const int count : {2, 5}) {
        Numbers list;
        for (int number = 0; number < count; ++number) {
            list.push_back(number);
        }
        Numbers moved = std::move(list);
        EXPECT_EQ(moved.size(), static_cast<std::size_t>(count));
        EXPECT_TRUE(list.empty()); // NOLINT(bugprone-use-after-move): it can be used again
        list.push_back(9);
        EXPECT_THAT(list, ElementsAre(9));
        Numbers& same = moved;
        moved = std::move(same);
        EXPECT_EQ(moved.size(), static_cast<std::size_t>(count));
        moved = std::move(list);
        EXPECT_THAT(moved, ElementsAre(9));
    }
}

TEST(ShortList, AppendsFreshItemsToFill)
{
    ShortList<Place, 1> list;
    list.append().row = 1;
    list.append().column = 2;
    EXPECT_THAT(list, ElementsAre(Place{1, 7}, Place{7, 2}));
    list.pop_back();
    EXPECT_EQ(list.size(), 1U);
    list.append();
    EXPECT_EQ(list.back(), Place{}) << "not what was there";
}

TEST(ShortList, ReservedRoomMovesNothing)
{
    Numbers list;
    list.reserve(10);
    list.push_back(1);
    const int* const place = list.data();
    for (int number = 2; number <= 10; ++number) {
        list.push_back(number);
    }
    EXPECT_EQ(list.data(), place);
}

} // namespace

} // namespace phial
