#pragma once

#include "core/CoreStringList.h"
#include "core/CoreTokenList.h"
#include "periodic/CellPainting.h"
#include "periodic/DragTiles.h"
#include "periodic/PeriodicPlaces.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace phial
{

class cls_DataElements;
class DrawDevice;

/// Which elements stand out, and how. The lists are never null.
struct SheetMarks {
    String highlight; ///< the symbol that all others are pale beside; empty for none
    std::shared_ptr<CoreStringList> faded = std::make_shared<CoreStringList>(); ///< pale
    std::shared_ptr<CoreStringList> gone = std::make_shared<CoreStringList>();  ///< grey
    std::shared_ptr<CoreTokenList> frames = std::make_shared<CoreTokenList>();  ///< symbols with a colour
    bool isPlacing = false;            ///< tiles are put on: elements that are not faded are empty places
    std::optional<std::int32_t> taken; ///< the slot of a tile that is to be put elsewhere

    /// Whether an element is pale, a cell or a tile.
    bool isPale(StringView symbol, bool isTile) const;
    CellLook lookOf(StringView symbol, bool isTile) const;
};

/// The cells of a periodic table and the tiles on it: where they are and how they are painted. It knows
/// nothing of pointers.
class PeriodicSheet
{
public:
    struct Cell {
        ElementCell painted;
        ElementPlace place;

        DragTile::Target target() const { return {place.column, place.row}; }
    };

    TableGrid grid;
    CellStyle style;
    SheetMarks marks;
    bool showsElectronStates = false;
    DragTiles tiles;

    /// Works out all cells from the table; elements that it lacks leave gaps. Tiles learn which element is
    /// theirs and on which one they lie.
    void fill(cls_DataElements& table);
    const std::vector<Cell>& cells() const { return cells_; }
    /// The greatest right and bottom of all cells.
    PixelPoint corner() const { return corner_; }

    /// The first cell that holds the point.
    std::optional<std::size_t> cellAt(PixelPoint point) const;
    std::optional<std::size_t> cellOf(const cls_DataElement* element) const;

    /// All of it upon a ground that is clear, `hovered` standing out, and without the tile of one slot.
    void paint(DrawDevice& device, const cls_DataElement* hovered,
               std::optional<std::int32_t> leftOut = std::nullopt) const;
    void paintCell(DrawDevice& device, std::size_t cell, bool isHovered) const;
    /// What lies on a cell that has been painted.
    void paintTilesOn(DrawDevice& device, std::size_t cell) const;
    /// Nothing for a free slot.
    void paintTile(DrawDevice& device, std::int32_t slot) const;

private:
    void findElements(cls_DataElements& table);
    void tellTiles(const Cell& cell);
    std::array<std::int32_t, DragTiles::Slots> tilesFromBelow() const;

    std::vector<Cell> cells_;
    PixelPoint corner_;
};

} // namespace phial
