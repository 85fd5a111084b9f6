#include "periodic/TableParts.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElement.h"
#include "periodic/TableSpeech.h"

#include <algorithm>

namespace phial
{

namespace
{

/// The slots whose tiles are parts.
std::vector<std::int32_t> slotsOf(const PeriodicSheet& sheet)
{
    std::vector<std::int32_t> slots;
    for (std::int32_t slot = 0; slot < DragTiles::Slots && sheet.marks.isPlacing; ++slot) {
        if (!sheet.tiles.at(slot).symbol.empty()) {
            slots.push_back(slot);
        }
    }
    return slots;
}

NamedPart cellPart(const PeriodicSheet& sheet, const PeriodicSheet::Cell& cell)
{
    constexpr std::int32_t Periods = 7; // behind them is the row for tiles, which has no number
    const DragTile::Target place = cell.target();
    const bool isBare = sheet.marks.lookOf(cell.painted.symbol, false).isEmpty || sheet.tiles.slotOn(place);
    return {.area = cell.painted.area,
            .role = PartRole::Cell,
            .name = sheet.marks.isPlacing && isBare ? spokenCell(place, sheet.tiles)
                                                    : spokenElement(*cell.painted.element),
            .action = sheet.marks.isPlacing ? LNG()->TRANSLATE(u"Hierher legen", u"Put here")
                                            : LNG()->TRANSLATE(u"Drücken", u"Press"),
            .row = cell.place.row < Periods ? cell.place.row + 1 : cell.place.row,
            .column = cell.place.column + 1};
}

NamedPart tilePart(const PeriodicSheet& sheet, std::int32_t slot)
{
    const DragTile& tile = sheet.tiles.at(slot);
    const bool isTaken = sheet.marks.taken == slot;
    return {.area = tile.area,
            .role = PartRole::Button,
            .name = spokenTile(tile),
            .action =
                isTaken ? LNG()->TRANSLATE(u"Loslassen", u"Let go") : LNG()->TRANSLATE(u"Nehmen", u"Take"),
            .state = {.pressed = isTaken}};
}

} // namespace

std::vector<NamedPart> partsOf(const PeriodicSheet& sheet)
{
    std::vector<NamedPart> all;
    for (const PeriodicSheet::Cell& cell : sheet.cells()) {
        all.push_back(cellPart(sheet, cell));
    }
    for (const std::int32_t slot : slotsOf(sheet)) {
        all.push_back(tilePart(sheet, slot));
    }
    return all;
}

std::optional<std::int32_t> slotOfPart(const PeriodicSheet& sheet, std::size_t part)
{
    const auto slots = slotsOf(sheet);
    const std::size_t cells = sheet.cells().size();
    return part >= cells && part - cells < slots.size() ? std::optional(slots[part - cells]) : std::nullopt;
}

PixelRectangle areaOfPart(const PeriodicSheet& sheet, std::size_t part)
{
    const auto slot = slotOfPart(sheet, part);
    return slot ? sheet.tiles.at(*slot).area : sheet.cells().at(part).painted.area;
}

CursorStop stopOf(const DragTile& tile, std::int32_t slot, std::size_t part)
{
    return tile.target
               ? CursorStop{double{1} * tile.target->row, double{1} * tile.target->column, false, part}
               : CursorStop{DragTiles::HomeRow, DragTiles::homeColumn(slot), false, part};
}

std::vector<CursorStop> stopsOf(const PeriodicSheet& sheet)
{
    std::vector<CursorStop> stops;
    for (const PeriodicSheet::Cell& cell : sheet.cells()) {
        stops.push_back({double{1} * cell.place.row, double{1} * cell.place.column, true, stops.size()});
    }
    const std::size_t cells = stops.size();
    std::size_t part = cells;
    for (const std::int32_t slot : slotsOf(sheet)) {
        const CursorStop stop = stopOf(sheet.tiles.at(slot), slot, part++);
        const auto there =
            std::ranges::find_if(stops, [&](const CursorStop& known) { return known.isAt(stop); });
        if (there == stops.end()) {
            stops.push_back(stop);
        } else if (there->part < cells) {
            there->part = stop.part; // the lowest slot lies on top
        }
    }
    return stops;
}

std::vector<String> symbolsAt(const PeriodicSheet& sheet, std::span<const CursorStop> stops)
{
    std::vector<String> symbols;
    for (const CursorStop& stop : stops) {
        if (const auto slot = slotOfPart(sheet, stop.part)) {
            symbols.push_back(sheet.tiles.at(*slot).symbol);
        } else {
            symbols.push_back(sheet.marks.isPlacing ? String() : sheet.cells()[stop.part].painted.symbol);
        }
    }
    return symbols;
}

} // namespace phial
