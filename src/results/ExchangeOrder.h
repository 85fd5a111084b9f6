#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>
#include <type_traits>
#include <vector>

namespace phial
{

/// The order of entries of which only the ranks are known: see exchangeOrder. Ranks are whole numbers from 0
/// without gaps; the greatest comes first. Gives for each place the entry that stands there in the end.
std::vector<std::size_t> exchangeOrderOfRanks(std::span<const std::size_t> ranks);

namespace detail
{

template <typename Key>
bool comparesWithOthers(const Key& key)
{
    if constexpr (std::is_floating_point_v<Key>) {
        return !std::isnan(key);
    } else {
        return true;
    }
}

} // namespace detail

/// The order in which an exchange sort leaves entries with these keys, from the greatest to the least:
///
///     for each i, for each j behind it: if key j > key i, the entries i and j change places
///
/// That sort is not stable, and equal keys come out in the very order in which it leaves them. A key that
/// compares with nothing (not-a-number) keeps its place. The result names for each place, from 0, the entry
/// that stands there in the end; it is empty when nothing changes place. Takes one pass for keys in order,
/// otherwise n log n steps.
template <typename Key>
std::vector<std::size_t> exchangeOrder(const std::vector<Key>& keys)
{
    std::vector<std::size_t> places;
    places.reserve(keys.size());
    for (std::size_t place = 0; place < keys.size(); ++place) {
        if (detail::comparesWithOthers(keys[place])) {
            places.push_back(place);
        }
    }
    const auto greater = [&](std::size_t left, std::size_t right) { return keys[left] > keys[right]; };
    if (std::ranges::is_sorted(places, greater)) {
        return {};
    }

    std::vector<std::size_t> rising(places.size());
    std::iota(rising.begin(), rising.end(), std::size_t{0});
    std::ranges::sort(rising, [&](std::size_t left, std::size_t right) {
        return keys[places[left]] < keys[places[right]];
    });
    std::vector<std::size_t> ranks(places.size());
    for (std::size_t next = 1; next < rising.size(); ++next) {
        const bool isGreater = keys[places[rising[next]]] > keys[places[rising[next - 1]]];
        ranks[rising[next]] = ranks[rising[next - 1]] + (isGreater ? 1 : 0);
    }

    const std::vector<std::size_t> sorted = exchangeOrderOfRanks(ranks);
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (std::size_t place = 0; place < places.size(); ++place) {
        order[places[place]] = places[sorted[place]];
    }
    return order;
}

} // namespace phial
