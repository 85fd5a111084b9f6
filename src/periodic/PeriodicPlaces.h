#pragma once

#include "visual/Geometry.h"

#include <cstdint>
#include <optional>

namespace phial
{

/// Where the periodic table has an element: rows and columns are those of the elements, from 0. The rows 8
/// and 9 are the two below the table.
struct ElementPlace {
    std::int32_t row = 0;
    std::int32_t column = 0;
    /// The principal quantum number of the orbital that is being filled, 1 to 7: n for s and p, n - 1 for d,
    /// n - 2 for f. The period is the row and one, in all but the two rows below the table.
    std::int32_t shell = 0;

    friend bool operator==(const ElementPlace&, const ElementPlace&) = default;
};

/// The place of the element that stands at this position in a list ordered by proton numbers, from 1. It
/// follows from the position alone. None for a position beyond 118.
std::optional<ElementPlace> placeOf(std::int32_t position);

/// The grid of 19 by 12.5 cells that the table stands on. Its first column and its first two rows are there
/// for captions. In pixels.
struct TableGrid {
    static constexpr double Columns = 19;
    static constexpr double Rows = 12.5;
    static constexpr double FirstColumn = 1; ///< of the elements
    static constexpr double FirstRow = 2;

    double cellWidth = 32;
    double cellHeight = 32;

    /// By how much everything is larger than with cells of 32 pixels, in the direction in which that is less.
    float scale() const;
    PixelPoint offset() const { return {FirstColumn * cellWidth, FirstRow * cellHeight}; }
    /// An area of the whole grid. Edges are whole pixels, so that neighbours leave no gap.
    PixelRectangle area(double column, double row, double columns, double rows) const;
    /// The cell of an element's row and column.
    PixelRectangle cell(std::int32_t column, std::int32_t row) const;

    friend bool operator==(const TableGrid&, const TableGrid&) = default;
};

} // namespace phial
