#pragma once

#include "periodic/ElementWatch.h"
#include "periodic/PeriodicSheet.h"
#include "periodic/TableCursor.h"
#include "periodic/TileHand.h"
#include "visual/PaintHints.h"
#include "visual/PaintSurface.h"
#include "visual/Timer.h"
#include "visual/UserControl.h"

#include <memory>
#include <optional>

namespace phial
{

class cls_DataElement;
class cls_DataElements;
class ctl_Bubble;

enum class enm_PSEMode : std::int32_t {
    ID_PSEMode_Normal = 0,
    ID_PSEMode_Place = 1, ///< tiles with symbols are put on the table
};

/// The periodic table: a control that draws itself on a grid of 19 by 12.5 cells, tells of the element under
/// the pointer and of clicks, and takes tiles for exercises. Its elements are of its own; before LOAD it
/// shows its ground alone.
///
/// **Keys** move a cursor over cells and tiles (TableCursor): arrows, Home, End, letters. Enter or the space
/// bar press what it stands on, and Escape ends the bubble. In place mode Enter takes a tile and puts it on a
/// cell, Escape lets it go, Delete and Backspace send the one at the cursor home. **Tiles** are dragged, or
/// taken by a tap and put down by another (TileHand). A **finger** that rests on an element opens the bubble
/// instead of pressing.
///
/// Lists of symbols are shared with the host, which calls REDRAW when it has changed one. REDRAW works out
/// the cells at once and marks the control for painting.
///
/// Persisted: "BACKCOLOR", "FIXEDSIZE", "MODE", "ElektronenZustand", and "Colouring" where it is not Classic.
class ctl_PSE final : public UserControl, public PaintHints
{
public:
    ctl_PSE();
    ~ctl_PSE() override;

    /// White at first.
    Colour BACKCOLOR() const { return surface_.BackColor(); }
    void BACKCOLOR(Colour value);
    /// What a file holds; there is but one kind.
    static constexpr std::int32_t ElementFile = 1;
    /// Reads the elements from a file for cls_DataElements::IMPORT, unless a file has been read or a table
    /// with elements given already, and shows them: as names, if the session's SheetMode says so by then,
    /// else as symbols. Raises IMPORT's errors, and 5 for another kind.
    void LOAD(StringView pFile, std::int32_t pKind = ElementFile);
    /// The control's table of elements, never null. A host may change it and call REDRAW, or give another
    /// (91 for null), which is shown at once if something is; then hover and last click are forgotten.
    std::shared_ptr<cls_DataElements> Elements() const { return table_; }
    void Elements(std::shared_ptr<cls_DataElements> value);
    /// The bubble that tells of an element when the pointer has rested on it for half a second. None at
    /// first.
    std::shared_ptr<ctl_Bubble> BUBBLE() const { return watch_.bubble(); }
    void BUBBLE(std::shared_ptr<ctl_Bubble> value);
    /// Symbols that are drawn pale; in place mode those that are not. Null raises 91, as for HIGHLIGHTS and
    /// GONE. By name such a list is a text, "He Ne", and one that is written becomes a new list.
    std::shared_ptr<CoreStringList> FADED() const { return sheet_.marks.faded; }
    void FADED(std::shared_ptr<CoreStringList> value);
    void REDRAW();
    /// The symbol beside which all others are pale; empty for none.
    const String& HIGHLIGHT() const { return highlight_; }
    void HIGHLIGHT(String value);
    /// True: the cells follow the control's size. False, as at first: the control has the size of its cells.
    bool FIXEDSIZE() const { return fixedSize_; }
    void FIXEDSIZE(bool value);
    enm_PSEMode MODE() const { return mode_; }
    void MODE(enm_PSEMode value);
    /// Frees all slots for tiles. Behind this and DRAGRESET the cursor begins anew, at the first tile at
    /// home.
    void DRAGCLEAR();
    /// Puts a tile with that symbol into the first free one of eleven slots; without a free one nothing
    /// happens.
    void DRAGADD(StringView pSymbol);
    /// The symbol of a tile, and of the element on which it lies. Slots count from 0; raises 9 outside.
    const String& DRAGSYMBOL(std::int32_t pI) const { return sheet_.tiles.at(pI).symbol; }
    const String& DRAGSYMBOLDROP(std::int32_t pI) const { return sheet_.tiles.at(pI).droppedSymbol; }
    /// Sends a tile back below the table. Raises 9 outside.
    void DRAGRESET(std::int32_t pI);
    /// Whether the rows of electron states are drawn, from the next REDRAW on.
    bool ELEKTRONENZUSTAND() const { return electronStates_; }
    void ELEKTRONENZUSTAND(bool value);
    /// Further frames: a symbol with its colour as first value. By name a text: "Cl 65280 Na 255".
    std::shared_ptr<CoreTokenList> HIGHLIGHTS() const { return sheet_.marks.frames; }
    void HIGHLIGHTS(std::shared_ptr<CoreTokenList> value);
    /// Symbols that are drawn grey.
    std::shared_ptr<CoreStringList> GONE() const { return sheet_.marks.gone; }
    void GONE(std::shared_ptr<CoreStringList> value);

    /// With which colours cells are painted; Classic at first.
    TableColours Colouring() const { return colouring_; }
    void Colouring(TableColours value);

    /// A press on an element, on the same one again, and beside all of them once there was one.
    Event<const std::shared_ptr<cls_DataElement>&> CLICK;
    Event<const std::shared_ptr<cls_DataElement>&> CLICKAGAIN;
    Event<> CLICKOUTSIDE;
    /// A finger, the mouse or Enter has held an element for half a second. A handler that has used this sets
    /// the flag, and letting go presses nothing then.
    Event<const std::shared_ptr<cls_DataElement>&, bool&> HELD;
    /// The user has put the tile of that slot elsewhere, by drag, tap or key: onto the table, where
    /// DRAGSYMBOLDROP tells the element, or home.
    Event<std::int32_t> DROPPED;

    StringView typeName() const override { return u"ctl_PSE"; }
    MemberTable members() const override;
    PixelSize contentSize(std::optional<double> width = std::nullopt) const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::Table; }
    std::vector<NamedPart> parts() const override;
    void activatePart(std::size_t part) override;
    bool movesThroughParts() const override { return true; }
    std::optional<std::size_t> currentPart() const override;
    bool coversAll() const override { return true; }
    std::optional<PixelRectangle> currentPartArea() const override;
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void resized() override;
    void paint() override;
    void hidden() override;
    void ended() override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void pointerLeave() override;
    void keyDown(KeyEvent& event) override;
    void keyPress(KeyPressEvent& event) override;
    bool wantsKey(Key key) const override;
    void lostFocus() override;

private:
    struct Properties;
    String fadedText() const;
    void fadedText(const String& value);
    String goneText() const;
    void goneText(const String& value);
    String framesText() const;
    void framesText(const String& value);
    void import(StringView file);
    void fill();
    void takeSize();
    void fitCellsToSize();
    void fitSizeToCells();
    void modeChanged();
    bool isPlacing() const { return mode_ == enm_PSEMode::ID_PSEMode_Place; }

    bool isOtherFinger(const PointerEvent& event) const;
    bool hasLostButton(const PointerEvent& event) const;
    void cancelPress();
    void point(PixelPoint place);
    void dropUnlessPointedAt();
    void hover(std::shared_ptr<cls_DataElement> element);
    void repaintCellOf(const cls_DataElement* element);
    void release();
    void waitForHold();
    void hold();
    void choose(std::shared_ptr<cls_DataElement> element);

    void moveTile(PixelPoint pointer);
    void releaseTile(const PointerEvent& event);
    std::optional<DragTile::Target> placeAt(PixelPoint pointer) const;
    void finish(const TileHand::Act& act);

    std::optional<std::size_t> cursorAmong(std::span<const CursorStop> stops) const;
    std::optional<CursorStop> cursorStop() const;
    void putCursor(const CursorStop& stop);
    void leaveCursor();
    void reach(const CursorStop& stop);
    bool moveCursor(CursorStep step);
    bool pressCursor();
    bool holdCursor();
    bool escape();
    bool sendCursorHome();

    ControlFrame frame_;
    PaintSurface surface_;
    std::shared_ptr<cls_DataElements> table_;
    PeriodicSheet sheet_;
    bool hasFile_ = false;  ///< the table has been read
    bool isLoaded_ = false; ///< and is shown
    String highlight_;
    bool fixedSize_ = false;
    enm_PSEMode mode_{};
    bool electronStates_ = false;
    TableColours colouring_{};

    std::shared_ptr<cls_DataElement> hover_;
    std::shared_ptr<cls_DataElement> last_; ///< clicked
    ElementWatch watch_;
    Connections watching_;
    PixelPoint pointed_;                 ///< where the pointer was last, of its own moves
    bool hasLeft_ = false;               ///< the pointer, as far as is known
    std::optional<std::int32_t> finger_; ///< that is down; 0 for the mouse
    Timer holding_;
    bool isHoldUsed_ = false; ///< by a handler, during the present press
    bool isHoldTold_ = false; ///< of the key that is down
    TileHand hand_;
    PicturePtr ground_;                ///< while a tile is moved: the table without it
    std::optional<CursorStop> cursor_; ///< of the keys; none until they or a press come
    LetterSearch letters_;
};

} // namespace phial
