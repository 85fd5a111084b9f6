#include "results/ExchangeOrder.h"

#include "core/String.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace phial
{

namespace
{

/// The exchange sort itself, word for word, on numbers of entries.
template <typename Key>
std::vector<std::size_t> literalOrder(const std::vector<Key>& keys)
{
    std::vector<std::size_t> entries(keys.size());
    std::iota(entries.begin(), entries.end(), std::size_t{0});
    for (std::size_t i = 0; i < entries.size(); ++i) {
        for (std::size_t j = i + 1; j < entries.size(); ++j) {
            if (keys[entries[j]] > keys[entries[i]]) {
                std::swap(entries[i], entries[j]);
            }
        }
    }
    return entries;
}

/// The order in full; where nothing changes place it is not given.
template <typename Key>
std::vector<std::size_t> fullOrder(const std::vector<Key>& keys)
{
    std::vector<std::size_t> order = exchangeOrder(keys);
    if (order.empty()) {
        order.resize(keys.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
    }
    return order;
}

std::vector<double> randomKeys(std::mt19937& random, std::size_t most, int differentKeys)
{
    std::vector<double> keys(std::uniform_int_distribution<std::size_t>(0, most)(random));
    for (double& key : keys) {
        key = std::uniform_int_distribution<int>(1, differentKeys)(random);
    }
    return keys;
}

TEST(ExchangeOrder, PutsTheGreatestFirst)
{
    EXPECT_THAT(exchangeOrder(std::vector<double>{3, 1, 7}), testing::ElementsAre(2, 0, 1));
}

TEST(ExchangeOrder, IsNotGivenWhereNothingChangesPlace)
{
    EXPECT_TRUE(exchangeOrder(std::vector<double>{}).empty());
    EXPECT_TRUE(exchangeOrder(std::vector<double>{5}).empty());
    EXPECT_TRUE(exchangeOrder(std::vector<double>{5, 4, 4, 4, 1}).empty());
}

TEST(ExchangeOrder, MovesTheFirstOfEqualsBehindTheOthers)
{
    EXPECT_THAT(exchangeOrder(std::vector<double>{1, 1, 1, 2}), testing::ElementsAre(3, 1, 2, 0));
}

TEST(ExchangeOrder, IsThatOfTheLiteralSortForEveryShortList)
{
    for (std::size_t length = 0; length <= 7; ++length) {
        std::vector<double> keys(length, 0);
        bool more = true;
        while (more) {
            ASSERT_EQ(fullOrder(keys), literalOrder(keys)) << testing::PrintToString(keys);
            const auto place = std::ranges::find_if(keys, [](double key) { return key < 3; });
            std::fill(keys.begin(), place, 0);
            more = place != keys.end();
            if (more) {
                ++*place;
            }
        }
    }
}

TEST(ExchangeOrder, IsThatOfTheLiteralSortForRandomListsWithManyTies)
{
    std::mt19937 random(20260302);
    for (int round = 0; round < 3000; ++round) {
        const std::vector<double> keys = randomKeys(random, 60, 1 + round % 40);
        ASSERT_EQ(fullOrder(keys), literalOrder(keys)) << testing::PrintToString(keys);
    }
    for (int round = 0; round < 10; ++round) {
        const std::vector<double> keys = randomKeys(random, 1500, 1 + round * 20);
        ASSERT_EQ(fullOrder(keys), literalOrder(keys));
    }
}

TEST(ExchangeOrder, ComparesTextsByTheirUnits)
{
    const std::vector<StringView> keys = {u"anna", u"Zoe", u"äon", u"anna", u"Anna", u"", u"zoe"};
    EXPECT_EQ(fullOrder(keys), literalOrder(keys));
    EXPECT_EQ(fullOrder(keys).front(), 2U);
}

TEST(ExchangeOrder, LeavesWhatComparesWithNothingInItsPlace)
{
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(exchangeOrder(std::vector<double>{1, None, 2}), testing::ElementsAre(2, 1, 0));

    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        std::vector<double> keys = randomKeys(random, 20, 6);
        for (double& key : keys) {
            key = key == 3 ? None : key;
        }
        ASSERT_EQ(fullOrder(keys), literalOrder(keys)) << testing::PrintToString(keys);
    }
}

} // namespace

} // namespace phial
