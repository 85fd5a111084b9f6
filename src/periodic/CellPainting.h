#pragma once

#include "core/Colour.h"
#include "core/String.h"
#include "periodic/CellColours.h"
#include "visual/Geometry.h"

#include <memory>
#include <optional>

namespace phial
{

class cls_DataElement;
class DrawDevice;

/// Sizes of text in points, for cells of 32 pixels.
namespace cell_design
{
inline constexpr double TextSize = 10.0;
inline constexpr double SmallSize = 6.5;
/// A text that its place has no room for is set smaller, down to this share.
inline constexpr double LeastShare = 0.5;
} // namespace cell_design

/// What all cells of a table have in common.
struct CellStyle {
    float scale = 1; ///< 1 for cells of 32 pixels
    String fontName;
    bool showsNames = false; ///< names instead of symbols
    const CellColours* colours = &CellColours::of(TableColours::Classic);

    double textSize() const; ///< of the symbol or the name, in points
};

/// How a cell is painted now.
struct CellLook {
    bool isPale = false;
    bool isGrey = false; ///< its ground, whether pale or not
    bool isHovered = false;
    bool isEmpty = false; ///< a place to put a tile on: without its text
    bool isHighlighted = false;
    bool isTaken = false;        ///< a tile that is to be put elsewhere
    std::optional<Colour> frame; ///< a further frame, upon that of the highlight
};

/// A cell of the table, or a tile. What is painted stays within its area.
struct ElementCell {
    PixelRectangle area;
    std::shared_ptr<cls_DataElement> element; ///< null for a tile whose symbol no element has
    String symbol;
    Colour text;
    Colour base; ///< of its ground

    /// With the colour of text that tells the element's state of matter.
    static ElementCell of(std::shared_ptr<cls_DataElement> element, const PixelRectangle& area, Colour base,
                          const CellColours& colours);

    void paint(DrawDevice& device, const CellStyle& style, const CellLook& look) const;
};

} // namespace phial
