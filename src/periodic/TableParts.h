#pragma once

#include "periodic/PeriodicSheet.h"
#include "periodic/TableCursor.h"
#include "visual/UserControl.h"

#include <optional>
#include <span>
#include <vector>

namespace phial
{

/// The parts of a periodic table that can be named and reached: its cells in their order, and behind them,
/// while tiles are placed, the tiles.
std::vector<NamedPart> partsOf(const PeriodicSheet& sheet);
/// The tile that is a part; none for a cell.
std::optional<std::int32_t> slotOfPart(const PeriodicSheet& sheet, std::size_t part);
/// The same area that partsOf tells.
PixelRectangle areaOfPart(const PeriodicSheet& sheet, std::size_t part);

/// Where the cursor can stand: on each cell, or on the upper tile there, and on tiles that lie elsewhere.
std::vector<CursorStop> stopsOf(const PeriodicSheet& sheet);
/// What each of these stops shows: its symbol, or nothing where the element is to be found.
std::vector<String> symbolsAt(const PeriodicSheet& sheet, std::span<const CursorStop> stops);
/// The place of a tile, as a stop of that part.
CursorStop stopOf(const DragTile& tile, std::int32_t slot, std::size_t part);

} // namespace phial
