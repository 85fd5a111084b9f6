#pragma once

#include "periodic/DragTiles.h"

#include <cstdint>
#include <optional>

namespace phial
{

/// The hand that puts tiles on the table. It drags one with the pointer, or takes one by a tap or a key and
/// puts it down by another. It moves the tiles; showing and telling it is for the caller.
///
///     nothing ── press on a tile ──► holds it ── release where it was pressed ──► taken
///        ▲                              └──────── release elsewhere: dropped ──► nothing
///        └── taken: a cell (dropped), the tile again or anything else (let go), its home (sent home)
///
/// A tile that is let go goes back to where it was taken. There is one taken tile at most: another one that
/// is chosen is taken instead.
class TileHand
{
public:
    enum class Deed {
        Nothing,
        Taken,
        LetGo,
        Dropped,  ///< onto the table, where the tile's target tells
        SentHome, ///< from the table
    };
    struct Act {
        Deed deed = Deed::Nothing;
        std::int32_t slot = 0;

        friend bool operator==(const Act&, const Act&) = default;
    };

    explicit TileHand(DragTiles& tiles) : tiles_(tiles) {}

    std::optional<std::int32_t> taken() const;
    /// The tile beneath the press.
    std::optional<std::int32_t> held() const { return press_ ? press_->slot : std::nullopt; }

    /// A press. Up to `slack` pixels away from it, a release is a tap.
    void press(PixelPoint pointer, double slack);
    /// Gives whether the pointer has moved since the press, so that the held tile, if any, is elsewhere.
    bool move(PixelPoint pointer);
    /// `cell` is where an element stands beneath the pointer.
    Act release(PixelPoint pointer, std::optional<DragTile::Target> cell, const TableGrid& grid);

    /// No release will come: the held tile is back where it was. Gives whether there is one.
    bool cancelPress(const TableGrid& grid);

    /// What a key chooses: a tile, or a cell without one.
    Act choose(std::int32_t slot, const TableGrid& grid);
    Act choose(DragTile::Target cell, const TableGrid& grid);
    /// The taken tile, if any, is let go.
    Act letGo(const TableGrid& grid);
    Act sendHome(std::int32_t slot, const TableGrid& grid);

    /// Somebody else has moved that tile, or all of them.
    void forget(std::int32_t slot);
    void forget();

private:
    using Target = std::optional<DragTile::Target>; ///< none: at home

    struct Press {
        std::optional<std::int32_t> slot;
        Target before; ///< of that tile
        PixelPoint at;
        PixelPoint last;
        PixelPoint fromCorner; ///< of the tile
        double slack;
        bool isTap; ///< so far
    };
    struct Hold {
        std::int32_t slot;
        Target before;
    };

    void bringBack(std::int32_t slot, const Target& before, const TableGrid& grid);
    Act take(std::int32_t slot, const Target& before, const TableGrid& grid);
    Act put(DragTile::Target cell, const TableGrid& grid);
    Act releaseTile(const Press& press, const TableGrid& grid);

    DragTiles& tiles_;
    std::optional<Press> press_;
    std::optional<Hold> taken_;
};

} // namespace phial
