#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace learning
{

/// Gives a whole number from 0 up to the bound, exclusive.
using RandomBelow = std::function<int(int bound)>;

/// The session's random numbers.
int randomBelow(int bound);

/// Up to `most` different elements of the pool in the order in which they were drawn, those that are
/// preferred before all others.
template <typename Task, typename Preferred>
std::vector<Task> drawTasks(std::vector<Task> pool, std::size_t most, const RandomBelow& random,
                            const Preferred& preferred)
{
    const auto others = std::stable_partition(pool.begin(), pool.end(), preferred);
    const auto wanted = pool.begin() + static_cast<std::ptrdiff_t>(std::min(pool.size(), most));
    for (auto next = pool.begin(); next != wanted; ++next) {
        const auto end = next < others ? others : pool.end();
        std::iter_swap(next, next + random(static_cast<int>(end - next)));
    }
    pool.erase(wanted, pool.end());
    return pool;
}

} // namespace learning
