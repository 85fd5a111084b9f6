#include "periodic/ctl_PSE.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/CoreDisplay.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CoreTiming.h"
#include "core/CoreWindowOps.h"
#include "mascot/ctl_Bubble.h"
#include "media/cls_AppMedia.h"
#include "periodic/MarksText.h"
#include "periodic/SheetMode.h"
#include "periodic/TableFont.h"
#include "periodic/TableParts.h"
#include "periodic/TableSpeech.h"
#include "visual/ObjectRows.h"
#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

constexpr Colour TableGround = QBColor(15);
constexpr double FirstCell = 32;
constexpr std::int32_t HoldInterval = 500; // milliseconds

template <typename Shared>
void share(Shared& list, Shared value)
{
    if (!value) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    list = std::move(value);
}

void checkCount(std::span<const Variant> arguments, std::size_t least, std::size_t most)
{
    if (arguments.size() < least || arguments.size() > most) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
}

/// The slot that is the one argument.
std::int32_t slotIn(std::span<const Variant> arguments)
{
    checkCount(arguments, 1, 1);
    return arguments.front().toWhole();
}

} // namespace

struct ctl_PSE::Properties {
    using Arguments = std::span<const Variant>;

    static Variant load(ctl_PSE& table, Arguments arguments)
    {
        checkCount(arguments, 1, 2);
        table.LOAD(arguments.front().toText(), arguments.size() > 1 ? arguments[1].toWhole() : ElementFile);
        return {};
    }
    static Variant dragAdd(ctl_PSE& table, Arguments arguments)
    {
        checkCount(arguments, 1, 1);
        table.DRAGADD(arguments.front().toText());
        return {};
    }
    static Variant dragSymbol(ctl_PSE& table, Arguments arguments)
    {
        return table.DRAGSYMBOL(slotIn(arguments));
    }
    static Variant dragSymbolDrop(ctl_PSE& table, Arguments arguments)
    {
        return table.DRAGSYMBOLDROP(slotIn(arguments));
    }
    static Variant dragReset(ctl_PSE& table, Arguments arguments)
    {
        table.DRAGRESET(slotIn(arguments));
        return {};
    }

    static constexpr rows::Table Table{
        rows::property<u"BACKCOLOR">(&ctl_PSE::surface_, &PaintSurface::BackColor, &PaintSurface::BackColor,
                                     TableGround)
            .kept()
            .still(),
        rows::operation<u"LOAD">(&Properties::load),
        rows::property<u"Elements">(&ctl_PSE::Elements, &ctl_PSE::Elements),
        rows::property<u"BUBBLE">(&ctl_PSE::BUBBLE, &ctl_PSE::BUBBLE),
        rows::property<u"FADED">(&ctl_PSE::fadedText, &ctl_PSE::fadedText),
        rows::operation<u"REDRAW">(&ctl_PSE::REDRAW),
        rows::property<u"HIGHLIGHT">(&ctl_PSE::highlight_).then(&ctl_PSE::REDRAW),
        rows::property<u"FIXEDSIZE">(&ctl_PSE::fixedSize_).kept().then(&ctl_PSE::takeSize),
        rows::property<u"MODE">(&ctl_PSE::mode_).kept().then(&ctl_PSE::modeChanged),
        rows::operation<u"DRAGCLEAR">(&ctl_PSE::DRAGCLEAR),
        rows::operation<u"DRAGADD">(&Properties::dragAdd),
        rows::operation<u"DRAGSYMBOL">(&Properties::dragSymbol),
        rows::operation<u"DRAGSYMBOLDROP">(&Properties::dragSymbolDrop),
        rows::operation<u"DRAGRESET">(&Properties::dragReset),
        rows::property<u"ELEKTRONENZUSTAND">(&ctl_PSE::electronStates_).kept(u"ElektronenZustand").still(),
        rows::property<u"HIGHLIGHTS">(&ctl_PSE::framesText, &ctl_PSE::framesText),
        rows::property<u"GONE">(&ctl_PSE::goneText, &ctl_PSE::goneText),
        rows::property<u"Colouring">(&ctl_PSE::colouring_).kept().then(&ctl_PSE::REDRAW),
    };
};

ctl_PSE::ctl_PSE()
    : frame_(*this), surface_(*this), table_(std::make_shared<cls_DataElements>()), watch_(frame_, sheet_),
      holding_(u"tmr_Hold", HoldInterval), hand_(sheet_.tiles)
{
    sheet_.style.fontName = tableFont(visualHost().metrics());
    frame_.canFocus(true);
    frame_.TabStop(true);
    frame_.takesTouch(true);
    watching_ += holding_.Tick.connect([this] { hold(); });
    watching_ += watch_.Ticking.connect([this] {
        if (!frame_.Enabled()) {
            hover(nullptr);
            watch_.watch(nullptr);
        } else if (hasLeft_) {
            dropUnlessPointedAt();
        }
    });
    rows::start<Properties>(*this);
}

ctl_PSE::~ctl_PSE() = default;

PixelSize ctl_PSE::contentSize(std::optional<double> /*width*/) const
{
    constexpr double LeastCell = 24; // in which a symbol can be read
    constexpr double Columns = 18;
    constexpr double Rows = 10;
    return {Columns * LeastCell, Rows * LeastCell};
}

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
void ctl_PSE::Colouring(TableColours value) { rows::set<Properties, u"Colouring">(*this, value); }
void ctl_PSE::FADED(std::shared_ptr<CoreStringList> value) { share(sheet_.marks.faded, std::move(value)); }
void ctl_PSE::GONE(std::shared_ptr<CoreStringList> value) { share(sheet_.marks.gone, std::move(value)); }
void ctl_PSE::HIGHLIGHTS(std::shared_ptr<CoreTokenList> value) { share(sheet_.marks.frames, std::move(value)); }
String ctl_PSE::fadedText() const { return textOf(*FADED()); }
void ctl_PSE::fadedText(const String& value) { FADED(symbolsIn(value)); }
String ctl_PSE::goneText() const { return textOf(*GONE()); }
void ctl_PSE::goneText(const String& value) { GONE(symbolsIn(value)); }
String ctl_PSE::framesText() const { return textOf(*HIGHLIGHTS()); }
void ctl_PSE::framesText(const String& value) { HIGHLIGHTS(framesIn(value)); }
// clang-format on

void ctl_PSE::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    modeChanged();
    takeSize();
}

void ctl_PSE::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

// What is shown.

void ctl_PSE::LOAD(StringView pFile, std::int32_t pKind)
{
    if (pKind != ElementFile) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const bool showsNames = SheetMode::current()->showsNames();
    if (!hasFile_) {
        import(pFile);
    }
    isLoaded_ = true;
    sheet_.grid = {FirstCell, FirstCell};
    sheet_.tiles.layOut(sheet_.grid);
    sheet_.style.showsNames = showsNames;
    REDRAW();
    takeSize();
}

/// Cells and tiles show elements of the new table from here on.
void ctl_PSE::Elements(std::shared_ptr<cls_DataElements> value)
{
    share(table_, std::move(value));
    hasFile_ = table_->COUNT() > 0;
    hover(nullptr);
    watch_.watch(nullptr);
    last_.reset();
    sheet_.tiles.forgetElements();
    REDRAW();
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
    hasFile_ = table_->COUNT() > 0;
}

void ctl_PSE::REDRAW()
{
    sheet_.style.colours = &CellColours::of(colouring_);
    sheet_.marks.highlight = highlight_;
    sheet_.marks.isPlacing = isPlacing();
    sheet_.marks.taken = hand_.taken();
    sheet_.showsElectronStates = electronStates_;
    fill();
    frame_.report(ControlAspect::Accessibility);
    surface_.invalidate();
}

void ctl_PSE::fill()
{
    if (isLoaded_) {
        sheet_.fill(*table_);
    }
}

void ctl_PSE::paint()
{
    ground_.reset();
    if (sheet_.style.colours != &CellColours::of(colouring_)) { // the theme has changed
        sheet_.style.colours = &CellColours::of(colouring_);
        fill();
    }
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
        hover(nullptr); // another cell may be there
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
    hand_.letGo(sheet_.grid);
    hand_.forget();
    sheet_.tiles.layOut(sheet_.grid);
    hover(nullptr);
    watch_.watch(nullptr);
    REDRAW();
}

void ctl_PSE::hidden()
{
    cancelPress();
    hover(nullptr);
    watch_.watch(nullptr);
}

void ctl_PSE::ended()
{
    hidden();
    watch_.bubble(nullptr);
}

void ctl_PSE::BUBBLE(std::shared_ptr<ctl_Bubble> value)
{
    watch_.bubble(std::move(value));
}

// Tiles.

void ctl_PSE::DRAGCLEAR()
{
    hand_.forget();
    sheet_.tiles.clear();
    leaveCursor();
}

void ctl_PSE::DRAGADD(StringView pSymbol)
{
    if (sheet_.tiles.add(String(pSymbol), sheet_.grid)) {
        REDRAW();
    }
}

void ctl_PSE::DRAGRESET(std::int32_t pI)
{
    hand_.forget(pI);
    sheet_.tiles.sendHome(pI, sheet_.grid);
    leaveCursor();
    REDRAW();
}

// For screen readers.

std::vector<NamedPart> ctl_PSE::parts() const
{
    return partsOf(sheet_);
}

void ctl_PSE::activatePart(std::size_t part)
{
    if (const auto slot = slotOfPart(sheet_, part)) {
        finish(hand_.choose(*slot, sheet_.grid));
    } else if (part < sheet_.cells().size()) {
        const PeriodicSheet::Cell& cell = sheet_.cells()[part];
        if (isPlacing()) {
            finish(hand_.choose(cell.target(), sheet_.grid));
        } else {
            choose(cell.painted.element);
        }
    }
}

} // namespace phial
