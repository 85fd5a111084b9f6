#pragma once

#include "dialogs/KeyBoard.h"

#include <optional>
#include <span>
#include <vector>

namespace phial
{

/// Reaches all keys with a single switch: rows light up one after the other, the switch chooses one, then its
/// keys light up, and the switch strikes one. Who misses the key gets the rows again after two rounds.
class KeyScan
{
public:
    /// The longest that a row is gone through without a choice.
    static constexpr std::size_t Rounds = 2;

    explicit KeyScan(std::span<const KeyDesign> keys);

    /// The next row or key lights up.
    void step();
    /// The switch was pressed: chooses the row, or gives the key that it strikes and goes back to the rows.
    std::optional<std::int32_t> press();
    /// The indices of the keys that light up, from left to right: a row's or a single one.
    std::vector<std::int32_t> lit() const;

private:
    std::vector<std::vector<std::int32_t>> rows_; ///< from top to bottom
    std::size_t row_ = 0;
    std::optional<std::size_t> key_; ///< in the chosen row
    std::size_t round_ = 0;
};

} // namespace phial
