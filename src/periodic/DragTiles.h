#pragma once

#include "core/String.h"
#include "periodic/PeriodicPlaces.h"

#include <array>
#include <memory>
#include <optional>

namespace phial
{

class cls_DataElement;

/// A tile with a symbol that is put on the table.
struct DragTile {
    /// The cell on which it was let go, by the elements' rows and columns.
    struct Target {
        std::int32_t column = 0;
        std::int32_t row = 0;

        friend bool operator==(const Target&, const Target&) = default;
    };

    String symbol;                            ///< empty: the slot is free
    std::shared_ptr<cls_DataElement> element; ///< null for a symbol that no element has
    PixelRectangle area;
    std::optional<Target> target; ///< none: at home
    String droppedSymbol;         ///< of the element in the target's cell; empty for none
};

/// The eleven slots for tiles, counted from 0.
class DragTiles
{
public:
    static constexpr std::int32_t Slots = 11;

    /// The place of a slot in the free row between the periods and the two rows below them.
    static PixelRectangle homeOf(std::int32_t slot, const TableGrid& grid);
    /// The same by the elements' columns and rows; it stands between two columns for every second slot.
    static double homeColumn(std::int32_t slot);
    static constexpr std::int32_t HomeRow = 7;

    /// Raises 9 outside.
    DragTile& at(std::int32_t slot);
    const DragTile& at(std::int32_t slot) const;

    /// Frees all slots.
    void clear() { tiles_ = {}; }
    /// Fills the first free slot; null when there is none.
    DragTile* add(String symbol, const TableGrid& grid);
    /// Where the elements have been exchanged: which one is a tile's own, and which lies under it.
    void forgetElements();
    /// Back to its place below the table.
    void sendHome(std::int32_t slot, const TableGrid& grid);
    /// The slot whose tile holds the point, the lowest one first.
    std::optional<std::int32_t> slotAt(PixelPoint point) const;
    /// The slot whose tile lies on that cell, the lowest one first.
    std::optional<std::int32_t> slotOn(DragTile::Target cell) const;
    /// Which of the tiles on the cell of that one is next: the one after the taken tile where that lies there
    /// too, the taken one itself where it is the last, else that one.
    std::int32_t nextOnCellOf(std::int32_t slot, std::optional<std::int32_t> taken) const;
    /// Lets go of a tile where it is: it takes the cell in which its middle lies, and gives true; in
    /// their own row and outside of the table it goes home.
    bool drop(std::int32_t slot, const TableGrid& grid);
    /// Puts a tile on a cell.
    void put(std::int32_t slot, DragTile::Target target, const TableGrid& grid);
    /// All where they belong in another grid.
    void layOut(const TableGrid& grid);

    auto begin() const { return tiles_.begin(); }
    auto end() const { return tiles_.end(); }
    auto begin() { return tiles_.begin(); }
    auto end() { return tiles_.end(); }

private:
    std::array<DragTile, Slots> tiles_;
};

} // namespace phial
