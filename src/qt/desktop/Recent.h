#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace phial::qt
{

/// The few things of a kind that were made last, so that what is painted again and again takes no memory.
template <typename Key, typename Value>
class Recent
{
public:
    /// The one for this key, made by `make()` where it is not among them.
    template <typename Make>
    const Value& get(const Key& key, Make&& make)
    {
        const auto known =
            std::ranges::find_if(entries_, [&](const auto& entry) { return entry && entry->first == key; });
        if (known != entries_.end()) {
            return (*known)->second;
        }
        std::optional<std::pair<Key, Value>>& oldest = entries_.at(next_);
        next_ = (next_ + 1) % entries_.size();
        return oldest.emplace(key, make()).second;
    }

private:
    std::array<std::optional<std::pair<Key, Value>>, 4> entries_;
    std::size_t next_ = 0;
};

} // namespace phial::qt
