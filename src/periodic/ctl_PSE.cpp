#include "periodic/ctl_PSE.h"

#include "app/cls_App.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/CoreDisplay.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CoreWindowOps.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "mascot/ctl_Bubble.h"
#include "media/cls_AppMedia.h"
#include "periodic/ElementBubble.h"
#include "periodic/SheetMode.h"
#include "visual/PropertyRows.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial
{

namespace
{

constexpr Colour TableGround = QBColor(15);
constexpr StringView TableFont = u"Calibri";
constexpr double FirstCell = 32;
constexpr std::int32_t BubbleInterval = 100; // milliseconds
constexpr std::int32_t BubbleTick = 5;       // at which the bubble comes

String stateOf(const cls_DataElement& element)
{
    return element.GAS()      ? LNG()->TRANSLATE(u"Gas", u"gas")
           : element.LIQUID() ? LNG()->TRANSLATE(u"Flüssigkeit", u"liquid")
                              : LNG()->TRANSLATE(u"Feststoff", u"solid");
}

/// "Sauerstoff, O, 8, 16,0 Gramm pro Mol, Gas"
String spoken(const cls_DataElement& element)
{
    return element.NAME() + u", " + element.SYMBOL() + u", " + plainText(element.PROTONS()) + u", " +
           formatPattern(element.MOL(), u"#0.0") + u" " +
           LNG()->TRANSLATE(u"Gramm pro Mol", u"grams per mole") + u", " + stateOf(element);
}

template <typename Shared>
void share(Shared& list, Shared value)
{
    if (!value) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    list = std::move(value);
}

} // namespace

struct ctl_PSE::Properties {
    static Variant load(ctl_PSE& table, std::span<const Variant> arguments)
    {
        if (arguments.size() != 1) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        table.LOAD(arguments.front().toText());
        return {};
    }

    static constexpr rows::Table Table{
        rows::property<u"BACKCOLOR">(&ctl_PSE::surface_, &PaintSurface::BackColor, &PaintSurface::BackColor,
                                     TableGround)
            .kept()
            .still(),
        rows::operation<u"LOAD">(&Properties::load),
        rows::operation<u"REDRAW">(&ctl_PSE::REDRAW),
        rows::property<u"HIGHLIGHT">(&ctl_PSE::highlight_).then(&ctl_PSE::REDRAW),
        rows::property<u"FIXEDSIZE">(&ctl_PSE::fixedSize_).kept().then(&ctl_PSE::takeSize),
        rows::property<u"MODE">(&ctl_PSE::mode_).kept().then(&ctl_PSE::modeChanged),
        rows::operation<u"DRAGCLEAR">(&ctl_PSE::DRAGCLEAR),
        rows::property<u"ELEKTRONENZUSTAND">(&ctl_PSE::electronStates_).kept(u"ElektronenZustand").still(),
    };
};

ctl_PSE::ctl_PSE()
    : frame_(*this), surface_(*this), table_(std::make_unique<cls_DataElements>()),
      bubbleTimer_(u"tmr_Bubble", BubbleInterval)
{
    sheet_.style.fontName = TableFont;
    ticking_ = bubbleTimer_.Tick.connect([this] { bubbleTick(); });
    rows::start<Properties>(*this);
}

ctl_PSE::~ctl_PSE() = default;

MemberTable ctl_PSE::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_PSE::BACKCOLOR(Colour value) { rows::set<Properties, u"BACKCOLOR">(*this, value); }
void ctl_PSE::HIGHLIGHT(String value) { rows::set<Properties, u"HIGHLIGHT">(*this, std::move(value)); }
void ctl_PSE::FIXEDSIZE(bool value) { rows::set<Properties, u"FIXEDSIZE">(*this, value); }
void ctl_PSE::MODE(enm_PSEMode value) { rows::set<Properties, u"MODE">(*this, value); }
void ctl_PSE::ELEKTRONENZUSTAND(bool value) { rows::set<Properties, u"ELEKTRONENZUSTAND">(*this, value); }
void ctl_PSE::FADED(std::shared_ptr<CoreStringList> value) { share(sheet_.marks.faded, std::move(value)); }
void ctl_PSE::GONE(std::shared_ptr<CoreStringList> value) { share(sheet_.marks.gone, std::move(value)); }
void ctl_PSE::HIGHLIGHTS(std::shared_ptr<CoreTokenList> value) { share(sheet_.marks.frames, std::move(value)); }
// clang-format on

void ctl_PSE::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    takeSize();
}

void ctl_PSE::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

// What is shown.

void ctl_PSE::LOAD(StringView pFile)
{
    sheet_.grid = {FirstCell, FirstCell};
    sheet_.style.showsNames = SheetMode::current()->showsNames();
    if (!hasFile_) {
        import(pFile);
    }
    isLoaded_ = true;
    REDRAW();
    takeSize();
}

/// What a file that breaks off has brought is dropped, so that the next one is read from the start.
void ctl_PSE::import(StringView file)
{
    try {
        table_->IMPORT(file);
    } catch (...) {
        table_->DATABASE()->Clear();
        throw;
    }
    hasFile_ = true;
}

void ctl_PSE::REDRAW()
{
    sheet_.marks.highlight = highlight_;
    sheet_.marks.isPlacing = isPlacing();
    sheet_.showsElectronStates = electronStates_;
    ground_.reset();
    if (isLoaded_) {
        sheet_.fill(*table_);
    }
    frame_.report(ControlAspect::Accessibility);
    surface_.invalidate();
}

void ctl_PSE::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    if (isLoaded_) {
        sheet_.paint(device, hover_.get());
    }
}

void ctl_PSE::resized()
{
    surface_.resized();
    takeSize();
}

void ctl_PSE::takeSize()
{
    if (fixedSize_) {
        fitCellsToSize();
    } else {
        fitSizeToCells();
    }
}

void ctl_PSE::fitCellsToSize()
{
    const PixelSize size = surface_.size();
    const TableGrid fitting{std::max(0.0, size.width / TableGrid::Columns - 1),
                            std::max(0.0, size.height / TableGrid::Rows - 1)};
    if (fitting != sheet_.grid) {
        sheet_.grid = fitting;
        sheet_.tiles.layOut(sheet_.grid);
        REDRAW();
    }
}

void ctl_PSE::fitSizeToCells()
{
    const PixelRectangle place = frame_.pixelRectangle();
    frame_.pixelRectangle({place.left, place.top, sheet_.grid.cellWidth * TableGrid::Columns + 1,
                           sheet_.grid.cellHeight * TableGrid::Rows + 1});
}

void ctl_PSE::modeChanged()
{
    hold_.reset();
    hover(nullptr);
    REDRAW();
}

void ctl_PSE::hidden()
{
    hover(nullptr);
}

void ctl_PSE::ended()
{
    hover(nullptr);
    bubble_.reset();
}

// The pointer.

/// A touch brings no move before its press.
void ctl_PSE::pointerDown(const PointerEvent& event)
{
    pointerMove(event);
    if (isPlacing() && event.Button == PointerButton::Left) {
        takeTile({event.X, event.Y});
    }
}

void ctl_PSE::pointerMove(const PointerEvent& event)
{
    if (hold_) {
        moveTile({event.X, event.Y});
    } else if (!isPlacing()) {
        point({event.X, event.Y});
    }
}

void ctl_PSE::pointerUp(const PointerEvent& event)
{
    pointerMove(event);
    if (hold_) {
        dropTile();
    } else if (event.Button == PointerButton::Left) {
        release();
    }
}

/// The bubble that comes beneath the pointer lets it leave as well.
void ctl_PSE::pointerLeave()
{
    hasLeft_ = true;
    dropUnlessPointedAt();
}

void ctl_PSE::dropUnlessPointedAt()
{
    const auto cell = sheet_.cellOf(hover_.get());
    const CoreWindowOps& windows = coreRoot().CoreSystem().CoreWindowOps();
    std::int32_t x = 0;
    std::int32_t y = 0;
    coreRoot().CoreDisplay().CursorPos(x, y);
    const PixelPoint place{double{1} * x - windows.ScreenLeft(hWnd()),
                           double{1} * y - windows.ScreenTop(hWnd())};
    if (!cell || !sheet_.cells()[*cell].painted.area.contains(place)) {
        hover(nullptr);
    }
}

void ctl_PSE::point(PixelPoint place)
{
    hasLeft_ = false;
    const auto cell = sheet_.cellAt(place);
    hover(cell ? sheet_.cells()[*cell].painted.element : nullptr);
    placeBubble();
}

void ctl_PSE::hover(std::shared_ptr<cls_DataElement> element)
{
    if (element == hover_) {
        return;
    }
    const auto before = std::exchange(hover_, std::move(element));
    repaintCellOf(before.get());
    repaintCellOf(hover_.get());
    if (bubble_) {
        bubble_->Visible(false);
    }
    ticks_ = 0;
    bubbleTimer_.Enabled(false); // counts from now on
    bubbleTimer_.Enabled(hover_ && bubble_);
}

void ctl_PSE::repaintCellOf(const cls_DataElement* element)
{
    if (const auto cell = sheet_.cellOf(element)) {
        sheet_.paintCell(surface_.device(), *cell, element == hover_.get());
    }
}

void ctl_PSE::release()
{
    if (hover_) {
        choose(hover_);
    } else if (last_) {
        CLICKOUTSIDE.emit();
    }
}

void ctl_PSE::choose(std::shared_ptr<cls_DataElement> element)
{
    const auto self = weak_from_this().lock();
    if (element == last_) {
        CLICKAGAIN.emit(element);
        return;
    }
    QVAPP()->MEDIA()->CLICK();
    CLICK.emit(element);
    last_ = std::move(element);
}

// The bubble.

void ctl_PSE::BUBBLE(std::shared_ptr<ctl_Bubble> value)
{
    bubble_ = std::move(value);
    bubbleTimer_.Enabled(hover_ && bubble_);
}

void ctl_PSE::placeBubble()
{
    const auto cell = sheet_.cellOf(hover_.get());
    if (!cell || !bubble_) {
        return;
    }
    const PixelRectangle now = bubble_->frame().pixelRectangle();
    const auto place =
        BubblePlace::beside(sheet_.cells()[*cell].painted.area, {now.width, now.height}, sheet_.corner());
    if (bubble_->ZIPSIDE() != place.side) {
        bubble_->ZIPSIDE(place.side);
    }
    // Both corners as the form has them, since the bubble may stand in another container.
    const PixelPoint table = frame_.originOnForm();
    const PixelPoint bubble = bubble_->frame().originOnForm();
    bubble_->frame().pixelRectangle({now.left + table.x - bubble.x + place.corner.x,
                                     now.top + table.y - bubble.y + place.corner.y, now.width, now.height});
}

void ctl_PSE::bubbleTick()
{
    if (hasLeft_) {
        dropUnlessPointedAt();
    }
    if (!bubble_ || !hover_) {
        ticks_ = 0;
        bubbleTimer_.Enabled(false);
        return;
    }
    if (++ticks_ == BubbleTick) {
        bubble_->TEXT(bubbleText(*hover_));
        placeBubble();
        bubble_->Visible(true);
        bubble_->frame().ZOrder();
    }
}

// Tiles.

void ctl_PSE::DRAGCLEAR()
{
    hold_.reset();
    sheet_.tiles.clear();
}

void ctl_PSE::DRAGADD(StringView pSymbol)
{
    if (DragTile* const tile = sheet_.tiles.add(String(pSymbol), sheet_.grid)) {
        const Variant symbol{String(pSymbol)};
        if (table_->EXISTS(symbol)) {
            tile->element = table_->ITEM(symbol, false);
        }
        REDRAW();
    }
}

void ctl_PSE::DRAGRESET(std::int32_t pI)
{
    sheet_.tiles.sendHome(pI, sheet_.grid);
    REDRAW();
}

void ctl_PSE::takeTile(PixelPoint pointer)
{
    if (const auto slot = sheet_.tiles.slotAt(pointer)) {
        const PixelRectangle& area = sheet_.tiles.at(*slot).area;
        hold_ = {*slot, {pointer.x - area.left, pointer.y - area.top}};
    }
}

/// What the tile has covered is painted again, from a picture of the table without it.
void ctl_PSE::moveTile(PixelPoint pointer)
{
    DragTile& tile = sheet_.tiles.at(hold_->slot);
    DrawDevice& device = surface_.device();
    if (!ground_) {
        device.Cls();
        sheet_.paint(device, nullptr, hold_->slot);
        ground_ = device.Image()->copy();
    } else {
        device.PaintPicture(ground_, tile.area, tile.area.left, tile.area.top, tile.area.width,
                            tile.area.height);
    }
    tile.area.left = std::round(pointer.x - hold_->at.x);
    tile.area.top = std::round(pointer.y - hold_->at.y);
    sheet_.paintTile(device, tile);
}

void ctl_PSE::dropTile()
{
    const std::int32_t slot = std::exchange(hold_, std::nullopt)->slot;
    sheet_.tiles.drop(slot, sheet_.grid);
    REDRAW();
}

// For screen readers and the keyboard.

std::vector<NamedPart> ctl_PSE::parts() const
{
    constexpr std::int32_t Periods = 7; // behind them is a free row, which has no number
    std::vector<NamedPart> all;
    for (const PeriodicSheet::Cell& cell : sheet_.cells()) {
        const std::int32_t row = cell.place.row < Periods ? cell.place.row + 1 : cell.place.row;
        all.push_back({cell.painted.area, PartRole::Cell, spoken(*cell.painted.element),
                       LNG()->TRANSLATE(u"Drücken", u"Press"), PartState{}, row, cell.place.column + 1});
    }
    return all;
}

void ctl_PSE::activatePart(std::size_t part)
{
    if (part < sheet_.cells().size()) {
        choose(sheet_.cells()[part].painted.element);
    }
}

} // namespace phial
