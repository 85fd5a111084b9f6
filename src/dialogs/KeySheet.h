#pragma once

#include "dialogs/KeyHand.h"
#include "dialogs/KeyPainter.h"
#include "dialogs/VariantStrip.h"
#include "visual/PaintSurface.h"

#include <optional>
#include <span>
#include <vector>

namespace phial
{

/// The keys as they are seen on a surface: where each stands, scaled to the surface's size, and how it looks.
/// Only what has changed is painted again.
class KeySheet
{
public:
    /// The surface outlives it.
    explicit KeySheet(PaintSurface& surface) : surface_(surface) {}

    /// The keys and what is down; both outlive the sheet, or the next call.
    void layout(const KeyBoard& board, const KeyHand& hand);
    /// The area of all keys on the keyboard's form, in twips at scale 1.
    const PixelRectangle& designArea() const { return design_; }
    /// How much larger than designed they are.
    double scale() const;

    // Of a key, in pixels of the surface; a key that is not there raises 9.
    PixelRectangle areaOf(std::int32_t index) const { return looks_[positionOf(index)].area; }
    KeyKind kindOf(std::int32_t index) const { return looks_[positionOf(index)].kind; }
    /// None between keys.
    std::optional<std::int32_t> keyAt(PixelPoint point) const;

    /// The surface has another size.
    void resized();
    /// All keys anew, on the surface's ground.
    void paint();
    /// A frame around the keys of a row, from the first to the last.
    void paintLight(std::span<const std::int32_t> lit);
    void paintStrip(const VariantStrip& strip);
    /// Takes over what keys look like now, and has those painted again that have changed when they are next
    /// seen. Gives whether some have; as long as nothing was painted none has.
    bool refresh();

private:
    void place();
    KeyLook placed(const KeyDesign& key) const;
    bool take(KeyLook& look, const KeyDesign& key) const;
    PixelRectangle areaAround(const PixelRectangle& area) const;
    void repaint();
    std::size_t positionOf(std::int32_t index) const;

    PaintSurface& surface_;
    const KeyBoard* board_ = nullptr;
    const KeyHand* hand_ = nullptr;
    PixelRectangle design_;
    KeyPainter painter_;
    double ratio_ = 1;           ///< pixels of the device in one of the surface, as last painted
    std::vector<KeyLook> looks_; ///< in the order of the keys, as they were painted last
    bool isPainted_ = false;
    std::vector<std::size_t> stale_; ///< that look otherwise than they are painted
};

} // namespace phial
