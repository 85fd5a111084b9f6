#include "periodic/TileHand.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial
{

std::optional<std::int32_t> TileHand::taken() const
{
    return taken_ ? std::optional(taken_->slot) : std::nullopt;
}

void TileHand::press(PixelPoint pointer, double slack)
{
    press_ = Press{tiles_.slotAt(pointer), {}, pointer, pointer, {}, slack, true};
    if (press_->slot) {
        const DragTile& tile = tiles_.at(*press_->slot);
        press_->before = tile.target;
        press_->fromCorner = {pointer.x - tile.area.left, pointer.y - tile.area.top};
    }
}

bool TileHand::move(PixelPoint pointer)
{
    if (!press_ || pointer == press_->last) {
        return false;
    }
    press_->last = pointer;
    const double way = std::max(std::abs(pointer.x - press_->at.x), std::abs(pointer.y - press_->at.y));
    press_->isTap = press_->isTap && way <= press_->slack;
    if (press_->slot) {
        PixelRectangle& area = tiles_.at(*press_->slot).area;
        area.left = std::round(pointer.x - press_->fromCorner.x);
        area.top = std::round(pointer.y - press_->fromCorner.y);
    }
    return true;
}

TileHand::Act TileHand::release(PixelPoint pointer, std::optional<DragTile::Target> cell,
                                const TableGrid& grid)
{
    move(pointer);
    const std::optional<Press> press = std::exchange(press_, std::nullopt);
    if (!press) {
        return {};
    }
    if (press->slot) {
        return releaseTile(*press, grid);
    }
    if (!press->isTap || !taken_) {
        return {};
    }
    if (cell) {
        return put(*cell, grid);
    }
    return DragTiles::homeOf(taken_->slot, grid).contains(pointer) && taken_->before
               ? sendHome(taken_->slot, grid)
               : letGo(grid);
}

/// The tile goes to the cell beneath it in any case; a tap takes or lets go of it then.
TileHand::Act TileHand::releaseTile(const Press& press, const TableGrid& grid)
{
    const std::int32_t slot = *press.slot;
    const bool isOnTable = tiles_.drop(slot, grid);
    if (press.isTap) {
        return taken() == slot ? letGo(grid) : take(slot, press.before, grid);
    }
    if (taken() == slot) {
        taken_.reset();
    }
    letGo(grid);
    return {isOnTable ? Deed::Dropped : press.before ? Deed::SentHome : Deed::LetGo, slot};
}

TileHand::Act TileHand::choose(std::int32_t slot, const TableGrid& grid)
{
    return taken() == slot ? letGo(grid) : take(slot, tiles_.at(slot).target, grid);
}

TileHand::Act TileHand::choose(DragTile::Target cell, const TableGrid& grid)
{
    return taken_ ? put(cell, grid) : Act{};
}

TileHand::Act TileHand::take(std::int32_t slot, const Target& before, const TableGrid& grid)
{
    letGo(grid);
    taken_ = Hold{slot, before};
    return {Deed::Taken, slot};
}

TileHand::Act TileHand::put(DragTile::Target cell, const TableGrid& grid)
{
    const std::int32_t slot = std::exchange(taken_, std::nullopt)->slot;
    tiles_.put(slot, cell, grid);
    return {Deed::Dropped, slot};
}

bool TileHand::cancelPress(const TableGrid& grid)
{
    const std::optional<Press> press = std::exchange(press_, std::nullopt);
    if (!press || !press->slot) {
        return false;
    }
    bringBack(*press->slot, press->before, grid);
    return true;
}

void TileHand::bringBack(std::int32_t slot, const Target& before, const TableGrid& grid)
{
    if (before) {
        tiles_.put(slot, *before, grid);
    } else {
        tiles_.sendHome(slot, grid);
    }
}

TileHand::Act TileHand::letGo(const TableGrid& grid)
{
    const std::optional<Hold> hold = std::exchange(taken_, std::nullopt);
    if (!hold) {
        return {};
    }
    bringBack(hold->slot, hold->before, grid);
    return {Deed::LetGo, hold->slot};
}

TileHand::Act TileHand::sendHome(std::int32_t slot, const TableGrid& grid)
{
    forget(slot);
    tiles_.sendHome(slot, grid);
    return {Deed::SentHome, slot};
}

void TileHand::forget(std::int32_t slot)
{
    if (taken() == slot) {
        taken_.reset();
    }
    if (held() == slot) {
        press_.reset();
    }
}

void TileHand::forget()
{
    taken_.reset();
    press_.reset();
}

} // namespace phial
