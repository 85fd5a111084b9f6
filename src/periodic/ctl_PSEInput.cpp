#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/CoreRoot.h"
#include "core/CoreTiming.h"
#include "media/cls_AppMedia.h"
#include "periodic/TableParts.h"
#include "periodic/TableSpeech.h"
#include "periodic/ctl_PSE.h"
#include "visual/PointerPlace.h"

#include <algorithm>
#include <utility>

/// What pointer, fingers and keys make of the periodic table.
namespace phial
{

namespace
{

constexpr double MouseSlack = 4; // pixels that a tap may stray
constexpr double TouchSlack = 10;

} // namespace

// The pointer.

/// A touch brings no move before its press, and none behind its end.
void ctl_PSE::pointerDown(const PointerEvent& event)
{
    if (isOtherFinger(event)) {
        return;
    }
    if (event.Touch > 0) {
        hover(nullptr); // what an earlier touch has left
    }
    if (event.Button != PointerButton::Left) {
        return;
    }
    pointerMove(event);
    finger_ = event.Touch;
    if (isPlacing()) {
        hand_.press({event.X, event.Y}, event.Touch > 0 ? TouchSlack : MouseSlack);
    } else if (const auto cell = sheet_.cellOf(hover_.get())) {
        const ElementPlace& place = sheet_.cells()[*cell].place;
        putCursor({double{1} * place.row, double{1} * place.column});
        waitForHold();
    }
}

void ctl_PSE::waitForHold()
{
    isHoldUsed_ = false;
    holding_.Enabled(false);
    holding_.Enabled(true);
}

/// One that has strayed to another element holds that.
void ctl_PSE::hold()
{
    const auto self = weak_from_this().lock();
    holding_.Enabled(false);
    const auto element = hover_;
    if (finger_ && element && !isPlacing()) {
        bool isUsed = false;
        HELD.raise(element, isUsed);
        isHoldUsed_ = isUsed;
    }
}

void ctl_PSE::pointerMove(const PointerEvent& event)
{
    if (isOtherFinger(event)) {
        return;
    }
    if (hasLostButton(event)) {
        cancelPress();
    } else if (isPlacing()) {
        moveTile({event.X, event.Y});
    } else {
        point({event.X, event.Y});
    }
}

void ctl_PSE::pointerUp(const PointerEvent& event)
{
    if (isOtherFinger(event)) {
        return;
    }
    if (event.Button != PointerButton::Left) {
        return;
    }
    pointerMove(event);
    finger_.reset();
    holding_.Enabled(false);
    if (std::exchange(isHoldUsed_, false)) {
        return;
    }
    if (isPlacing()) {
        releaseTile(event);
    } else if (event.Touch == 0) {
        release();
    } else if (!watch_.isTelling()) {
        release();
        hover(nullptr);
    }
}

/// The mouse has been let go where nobody has told the table.
bool ctl_PSE::hasLostButton(const PointerEvent& event) const
{
    constexpr auto Left = static_cast<std::int32_t>(PointerButton::Left);
    return hand_.held() && event.Touch == 0 && (static_cast<std::int32_t>(event.Button) & Left) == 0;
}

/// No release will come.
void ctl_PSE::cancelPress()
{
    finger_.reset();
    holding_.Enabled(false);
    isHoldUsed_ = false;
    if (hand_.cancelPress(sheet_.grid)) {
        REDRAW();
    }
}

bool ctl_PSE::isOtherFinger(const PointerEvent& event) const
{
    return finger_ && *finger_ != event.Touch;
}

/// The bubble that comes beneath the pointer lets it leave as well.
void ctl_PSE::pointerLeave()
{
    hasLeft_ = true;
    dropUnlessPointedAt();
}

/// Where the desktop does not tell the pointer, it has left unless the bubble has come beneath it.
void ctl_PSE::dropUnlessPointedAt()
{
    const auto cell = sheet_.cellOf(hover_.get());
    const auto cursor = pointerFrom(frame_);
    const bool isThere = cursor ? cell && sheet_.cells()[*cell].painted.area.contains(*cursor)
                                : watch_.isTelling() && watch_.bubbleArea().contains(pointed_);
    if (!isThere) {
        hover(nullptr);
    }
}

void ctl_PSE::point(PixelPoint place)
{
    hasLeft_ = false;
    pointed_ = place;
    const auto cell = sheet_.cellAt(place);
    hover(cell ? sheet_.cells()[*cell].painted.element : nullptr);
    watch_.place();
}

void ctl_PSE::hover(std::shared_ptr<cls_DataElement> element)
{
    if (element == hover_) {
        return;
    }
    const auto before = std::exchange(hover_, std::move(element));
    repaintCellOf(before.get());
    repaintCellOf(hover_.get());
    if (hover_ || watch_.element() == before) {
        watch_.watch(hover_);
    }
}

void ctl_PSE::repaintCellOf(const cls_DataElement* element)
{
    if (const auto cell = sheet_.cellOf(element)) {
        surface_.drawWithin(sheet_.cells()[*cell].painted.area, [&] {
            sheet_.paintCell(surface_.device(), *cell, element == hover_.get());
            sheet_.paintTilesOn(surface_.device(), *cell);
        });
    }
}

void ctl_PSE::release()
{
    if (hover_) {
        choose(hover_);
    } else if (last_) {
        CLICKOUTSIDE.raise();
    }
}

void ctl_PSE::choose(std::shared_ptr<cls_DataElement> element)
{
    const auto self = weak_from_this().lock();
    if (element == last_) {
        CLICKAGAIN.raise(element);
        return;
    }
    QVAPP()->MEDIA()->CLICK();
    CLICK.raise(element);
    last_ = std::move(element);
}

// Tiles in the hand.

/// What the tile has covered is painted again, from a picture of the table without it.
void ctl_PSE::moveTile(PixelPoint pointer)
{
    const auto slot = hand_.held();
    const PixelRectangle before = slot ? sheet_.tiles.at(*slot).area : PixelRectangle();
    if (!hand_.move(pointer) || !slot) {
        return;
    }
    DrawDevice& device = surface_.device();
    if (!ground_) {
        device.Cls();
        sheet_.paint(device, nullptr, *slot);
        ground_ = device.Image()->copy();
        sheet_.paintTile(device, *slot);
        return;
    }
    surface_.drawWithin(before.united(sheet_.tiles.at(*slot).area), [&] {
        device.PaintPicture(ground_, before, before.left, before.top, before.width, before.height);
        sheet_.paintTile(device, *slot);
    });
}

void ctl_PSE::releaseTile(const PointerEvent& event)
{
    const PixelPoint pointer{event.X, event.Y};
    const bool hasTile = hand_.held().has_value();
    const TileHand::Act act = hand_.release(pointer, placeAt(pointer), sheet_.grid);
    if (act.deed != TileHand::Deed::Nothing) {
        putCursor(stopOf(sheet_.tiles.at(act.slot), act.slot, 0));
        finish(act);
    } else if (!hasTile) {
        release();
    }
}

/// Where an element stands.
std::optional<DragTile::Target> ctl_PSE::placeAt(PixelPoint pointer) const
{
    const auto cell = sheet_.cellAt(pointer);
    return cell ? std::optional(sheet_.cells()[*cell].target()) : std::nullopt;
}

void ctl_PSE::finish(const TileHand::Act& act)
{
    using enum TileHand::Deed;
    if (act.deed == Nothing) {
        return;
    }
    const auto self = weak_from_this().lock();
    REDRAW();
    frame_.announce(spokenAct(act, sheet_.tiles));
    if (act.deed == Dropped || act.deed == SentHome) {
        DROPPED.raise(act.slot);
    }
}

// Keys.

/// Tiles come and go, so a place is looked for anew. Who comes to tiles stands on the first one.
std::optional<std::size_t> ctl_PSE::cursorAmong(std::span<const CursorStop> stops) const
{
    if (cursor_ || stops.empty() || !frame_.hasFocus()) {
        return cursor_ ? nearestStop(stops, *cursor_) : std::nullopt;
    }
    const auto tile = std::ranges::find(stops, false, &CursorStop::isElement);
    return tile == stops.end() ? 0 : static_cast<std::size_t>(tile - stops.begin());
}

std::optional<CursorStop> ctl_PSE::cursorStop() const
{
    const auto stops = stopsOf(sheet_);
    const auto at = cursorAmong(stops);
    return at ? std::optional(stops[*at]) : std::nullopt;
}

std::optional<std::size_t> ctl_PSE::currentPart() const
{
    const auto stop = cursorStop();
    return stop ? std::optional(stop->part) : std::nullopt;
}

std::optional<PixelRectangle> ctl_PSE::currentPartArea() const
{
    const auto part = currentPart();
    return part ? std::optional(areaOfPart(sheet_, *part)) : std::nullopt;
}

void ctl_PSE::putCursor(const CursorStop& stop)
{
    cursor_ = stop;
    frame_.report(ControlAspect::CurrentPart);
}

/// The host has changed the tiles: the next keys are for those.
void ctl_PSE::leaveCursor()
{
    cursor_.reset();
    frame_.report(ControlAspect::CurrentPart);
}

void ctl_PSE::lostFocus()
{
    watch_.watch(hover_);
}

void ctl_PSE::keyDown(KeyEvent& event)
{
    const auto self = weak_from_this().lock();
    const bool isPlain = event.Shift == 0;
    const auto step = cursorStepOf(event);
    const bool isPress = isPlain && (event.is(Key::Return) || event.is(Key::Space));
    const bool isRemoval = isPlain && (event.is(Key::Delete) || event.is(Key::Backspace));
    const bool isUsed = step                    ? moveCursor(*step)
                        : isPress               ? (event.isRepeat ? holdCursor() : pressCursor())
                        : event.is(Key::Escape) ? escape()
                                                : isRemoval && sendCursorHome();
    if (isUsed) {
        event.KeyCode = 0;
    }
}

bool ctl_PSE::wantsKey(Key key) const
{
    return key == Key::Escape ? hand_.taken() || watch_.isTelling() : cursorStop().has_value();
}

/// Gives whether there is a cursor, moved or not.
bool ctl_PSE::moveCursor(CursorStep step)
{
    const auto stops = stopsOf(sheet_);
    if (stops.empty()) {
        return false;
    }
    const auto from = cursorAmong(stops);
    reach(stops[from ? stopAfter(stops, *from, step) : 0]);
    return true;
}

/// The bubble comes there as it does for the pointer.
void ctl_PSE::reach(const CursorStop& stop)
{
    putCursor(stop);
    if (!isPlacing()) {
        watch_.watch(sheet_.cells()[stop.part].painted.element);
    }
}

void ctl_PSE::keyPress(KeyPressEvent& event)
{
    const auto stops = stopsOf(sheet_);
    const auto from = cursor_ ? nearestStop(stops, *cursor_) : std::nullopt;
    if (const auto found =
            letters_.find(event.KeyAscii, coreRoot().CoreTiming().Now(), symbolsAt(sheet_, stops), from)) {
        event.KeyAscii = 0;
        reach(stops[*found]);
    }
}

/// Of tiles that lie on each other each press takes the next one.
bool ctl_PSE::pressCursor()
{
    isHoldTold_ = false;
    const auto stop = cursorStop();
    if (!stop) {
        return false;
    }
    if (const auto slot = slotOfPart(sheet_, stop->part)) {
        finish(hand_.choose(sheet_.tiles.nextOnCellOf(*slot, hand_.taken()), sheet_.grid));
    } else {
        activatePart(stop->part);
    }
    return true;
}

/// The key repeats: the first time it has been held. Gives whether there is a cursor.
bool ctl_PSE::holdCursor()
{
    const auto stop = cursorStop();
    if (stop && !isPlacing() && !std::exchange(isHoldTold_, true)) {
        const auto element = sheet_.cells()[stop->part].painted.element;
        bool isUsed = false;
        HELD.raise(element, isUsed);
    }
    return stop.has_value();
}

bool ctl_PSE::escape()
{
    if (hand_.taken()) {
        finish(hand_.letGo(sheet_.grid));
        return true;
    }
    const bool wasTelling = watch_.isTelling();
    watch_.hush();
    return wasTelling;
}

/// Gives whether there was a tile to send home.
bool ctl_PSE::sendCursorHome()
{
    const auto stop = cursorStop();
    const auto slot = stop ? slotOfPart(sheet_, stop->part) : std::nullopt;
    if (!slot || !sheet_.tiles.at(*slot).target) {
        return false;
    }
    finish(hand_.sendHome(*slot, sheet_.grid));
    return true;
}

} // namespace phial
