#pragma once

#include "dialogs/KeyBoard.h"

#include <array>

/// Layouts of keys that stand side by side in rows.
namespace phial::key_rows
{

inline constexpr double Left = 225;
/// The usual width and height of a key.
inline constexpr double Key = 720;

/// Puts the keys of a row side by side.
template <std::size_t Count>
constexpr std::array<KeyDesign, Count> row(double top, double left, std::array<KeyDesign, Count> keys)
{
    for (KeyDesign& key : keys) {
        key.left = left;
        key.top = top;
        left += key.width;
    }
    return keys;
}

/// The same from the usual left edge on.
template <std::size_t Count>
constexpr std::array<KeyDesign, Count> row(double top, std::array<KeyDesign, Count> keys)
{
    return row(top, Left, keys);
}

template <std::size_t... Counts>
constexpr auto joined(const std::array<KeyDesign, Counts>&... parts)
{
    std::array<KeyDesign, (Counts + ...)> all{};
    std::size_t next = 0;
    const auto take = [&](const auto& part) {
        for (const KeyDesign& key : part) {
            all[next++] = key;
        }
    };
    (take(parts), ...);
    return all;
}

} // namespace phial::key_rows
