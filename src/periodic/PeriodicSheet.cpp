#include "periodic/PeriodicSheet.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/RuntimeError.h"
#include "periodic/TableLabels.h"
#include "visual/DrawDevice.h"

#include <algorithm>
#include <numeric>
#include <ranges>

namespace phial
{

namespace
{

constexpr Colour NoElementsGround = QBColor(7); // of a tile

/// The first value; none without a number there.
std::optional<Colour> colourIn(const CoreValueList& values)
{
    std::optional<Colour> colour;
    ignoringErrors([&] {
        if (const Variant first = values.Item(1); !first.isEmpty()) {
            colour = Colour{static_cast<std::uint32_t>(first.toWhole())};
        }
    });
    return colour;
}

Colour shellColour(const CellColours& colours, std::int32_t shell)
{
    return colours.shells[static_cast<std::size_t>(shell - 1)];
}

} // namespace

bool SheetMarks::isPale(StringView symbol, bool isTile) const
{
    if (isPlacing && !isTile) {
        return !faded->Exists(symbol);
    }
    return symbol != highlight && (!highlight.empty() || faded->Exists(symbol));
}

CellLook SheetMarks::lookOf(StringView symbol, bool isTile) const
{
    CellLook look;
    look.isPale = isPale(symbol, isTile);
    look.isGrey = gone->Exists(symbol);
    look.isEmpty = isPlacing && look.isPale && !isTile;
    look.isHighlighted = symbol == highlight;
    if (frames->Exists(symbol)) {
        look.frame = colourIn(frames->Item(symbol).Values());
    }
    return look;
}

void PeriodicSheet::fill(cls_DataElements& table)
{
    cells_.clear();
    corner_ = {};
    style.scale = grid.scale();
    findElements(table);
    for (std::int32_t position = 1; position <= table.COUNT(); ++position) {
        const auto place = placeOf(position);
        if (!place) {
            break;
        }
        const PixelRectangle area = grid.cell(place->column, place->row);
        const Colour base = shellColour(*style.colours, place->shell);
        cells_.push_back({ElementCell::of(table.ITEM(position), area, base, *style.colours), *place});
        corner_ = {std::max(corner_.x, area.right()), std::max(corner_.y, area.bottom())};
        tellTiles(cells_.back());
    }
}

void PeriodicSheet::findElements(cls_DataElements& table)
{
    for (DragTile& tile : tiles) {
        const Variant symbol{tile.symbol};
        if (!tile.symbol.empty() && !tile.element && table.EXISTS(symbol)) {
            tile.element = table.ITEM(symbol, false);
        }
    }
}

void PeriodicSheet::tellTiles(const Cell& cell)
{
    for (DragTile& tile : tiles) {
        if (tile.target == cell.target()) {
            tile.droppedSymbol = cell.painted.element->SYMBOL();
        }
    }
}

std::optional<std::size_t> PeriodicSheet::cellAt(PixelPoint point) const
{
    const auto found = std::find_if(cells_.begin(), cells_.end(),
                                    [=](const Cell& cell) { return cell.painted.area.contains(point); });
    return found == cells_.end() ? std::nullopt
                                 : std::optional(static_cast<std::size_t>(found - cells_.begin()));
}

std::optional<std::size_t> PeriodicSheet::cellOf(const cls_DataElement* element) const
{
    const auto found = std::find_if(cells_.begin(), cells_.end(),
                                    [=](const Cell& cell) { return cell.painted.element.get() == element; });
    return found == cells_.end() ? std::nullopt
                                 : std::optional(static_cast<std::size_t>(found - cells_.begin()));
}

void PeriodicSheet::paint(DrawDevice& device, const cls_DataElement* hovered,
                          std::optional<std::int32_t> leftOut) const
{
    if (grid.cellWidth <= 0 || grid.cellHeight <= 0) {
        return; // no room
    }
    for (std::size_t cell = 0; cell < cells_.size(); ++cell) {
        paintCell(device, cell, cells_[cell].painted.element.get() == hovered);
    }
    paintTableLabels(device, grid, style);
    if (showsElectronStates) {
        paintElectronStates(device, grid, style);
    }
    for (const std::int32_t slot : tilesFromBelow()) {
        if (slot != leftOut) {
            paintTile(device, slot);
        }
    }
}

/// The first one lies on top, and on that the taken one.
std::array<std::int32_t, DragTiles::Slots> PeriodicSheet::tilesFromBelow() const
{
    std::array<std::int32_t, DragTiles::Slots> slots{};
    std::iota(slots.rbegin(), slots.rend(), 0);
    std::stable_partition(slots.begin(), slots.end(),
                          [this](std::int32_t slot) { return marks.taken != slot; });
    return slots;
}

void PeriodicSheet::paintCell(DrawDevice& device, std::size_t cell, bool isHovered) const
{
    const ElementCell& painted = cells_[cell].painted;
    CellLook look = marks.lookOf(painted.element->SYMBOL(), false);
    look.isHovered = isHovered && !QVAPP()->CONFIG()->TOUCHMODE();
    painted.paint(device, style, look);
}

void PeriodicSheet::paintTilesOn(DrawDevice& device, std::size_t cell) const
{
    const PixelRectangle& area = cells_[cell].painted.area;
    for (const std::int32_t slot : tilesFromBelow()) {
        if (tiles.at(slot).area.meets(area)) {
            paintTile(device, slot);
        }
    }
}

void PeriodicSheet::paintTile(DrawDevice& device, std::int32_t slot) const
{
    const DragTile& tile = tiles.at(slot);
    if (tile.symbol.empty()) {
        return;
    }
    ElementCell cell{tile.area, nullptr, tile.symbol, QBColor(0), NoElementsGround};
    if (tile.element) {
        const auto own = cellOf(tile.element.get());
        cell = ElementCell::of(tile.element, tile.area, own ? cells_[*own].painted.base : NoElementsGround,
                               *style.colours);
    }
    CellLook look = marks.lookOf(tile.symbol, true);
    look.isTaken = marks.taken == slot;
    cell.paint(device, style, look);
}

} // namespace phial
