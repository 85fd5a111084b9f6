#include "periodic/DragTiles.h"

#include "core/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial
{

namespace
{

constexpr std::int32_t TableColumns = 18;
constexpr std::int32_t TableRows = 10;

/// The tiles' own row is none of the table.
bool isOnTable(double column, double row)
{
    return column >= 0 && column < TableColumns && row >= 0 && row < TableRows && row != DragTiles::HomeRow;
}

} // namespace

double DragTiles::homeColumn(std::int32_t slot)
{
    constexpr double FirstHome = 3; // of the whole grid
    constexpr double Distance = 1.5;
    return slot * Distance + FirstHome - TableGrid::FirstColumn;
}

PixelRectangle DragTiles::homeOf(std::int32_t slot, const TableGrid& grid)
{
    return grid.area(homeColumn(slot) + TableGrid::FirstColumn, HomeRow + TableGrid::FirstRow, 1, 1);
}

DragTile& DragTiles::at(std::int32_t slot)
{
    if (slot < 0 || slot >= Slots) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return tiles_[static_cast<std::size_t>(slot)];
}

const DragTile& DragTiles::at(std::int32_t slot) const
{
    return const_cast<DragTiles&>(*this).at(slot);
}

DragTile* DragTiles::add(String symbol, const TableGrid& grid)
{
    const auto free = std::find_if(begin(), end(), [](const DragTile& tile) { return tile.symbol.empty(); });
    if (free == end()) {
        return nullptr;
    }
    const auto slot = static_cast<std::int32_t>(free - begin());
    *free = {std::move(symbol), nullptr, homeOf(slot, grid), {}, {}};
    return &*free;
}

void DragTiles::forgetElements()
{
    for (DragTile& tile : tiles_) {
        tile.element.reset();
        tile.droppedSymbol.clear();
    }
}

void DragTiles::sendHome(std::int32_t slot, const TableGrid& grid)
{
    DragTile& tile = at(slot);
    tile.area = homeOf(slot, grid);
    tile.target.reset();
    tile.droppedSymbol.clear();
}

std::optional<std::int32_t> DragTiles::slotAt(PixelPoint point) const
{
    const auto held = std::find_if(begin(), end(), [=](const DragTile& tile) {
        return !tile.symbol.empty() && tile.area.contains(point);
    });
    return held == end() ? std::nullopt : std::optional(static_cast<std::int32_t>(held - begin()));
}

std::optional<std::int32_t> DragTiles::slotOn(DragTile::Target cell) const
{
    const auto lying = std::find_if(
        begin(), end(), [=](const DragTile& tile) { return !tile.symbol.empty() && tile.target == cell; });
    return lying == end() ? std::nullopt : std::optional(static_cast<std::int32_t>(lying - begin()));
}

std::int32_t DragTiles::nextOnCellOf(std::int32_t slot, std::optional<std::int32_t> taken) const
{
    const auto& cell = at(slot).target;
    if (!cell || !taken || at(*taken).target != cell) {
        return slot;
    }
    for (std::int32_t next = *taken + 1; next < Slots; ++next) {
        if (!at(next).symbol.empty() && at(next).target == cell) {
            return next;
        }
    }
    return *taken;
}

bool DragTiles::drop(std::int32_t slot, const TableGrid& grid)
{
    const PixelRectangle& area = at(slot).area;
    const PixelPoint offset = grid.offset();
    const double column = std::floor((area.left + area.width / 2 - offset.x) / grid.cellWidth);
    const double row = std::floor((area.top + area.height / 2 - offset.y) / grid.cellHeight);
    if (!isOnTable(column, row)) {
        sendHome(slot, grid);
        return false;
    }
    put(slot, {static_cast<std::int32_t>(column), static_cast<std::int32_t>(row)}, grid);
    return true;
}

void DragTiles::put(std::int32_t slot, DragTile::Target target, const TableGrid& grid)
{
    DragTile& tile = at(slot);
    tile.target = target;
    tile.area = grid.cell(target.column, target.row);
    tile.droppedSymbol.clear();
}

void DragTiles::layOut(const TableGrid& grid)
{
    for (std::int32_t slot = 0; slot < Slots; ++slot) {
        DragTile& tile = at(slot);
        tile.area = tile.target ? grid.cell(tile.target->column, tile.target->row) : homeOf(slot, grid);
    }
}

} // namespace phial
