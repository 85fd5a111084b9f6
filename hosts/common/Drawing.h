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

/// Up to `most` different elements of the pool, in the order in which they were drawn.
template <typename Task>
std::vector<Task> drawTasks(std::vector<Task> pool, std::size_t most, const RandomBelow& random)
{
    const std::size_t wanted = std::min(pool.size(), most);
    for (std::size_t i = 0; i < wanted; ++i) {
        const auto left = static_cast<int>(pool.size() - i);
        std::swap(pool[i], pool[i + static_cast<std::size_t>(random(left))]);
    }
    pool.resize(wanted);
    return pool;
}

} // namespace learning
