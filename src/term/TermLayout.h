#pragma once

#include "core/Colour.h"
#include "core/String.h"
#include "visual/FontSpec.h"
#include "visual/Geometry.h"

#include <cstdint>
#include <vector>

namespace phial
{

class DrawDevice;
class TextMetrics;

/// A place at which TermDraw would draw the caret.
struct TermCaretPlace {
    std::int32_t index = 0; ///< as pCaret
    std::int32_t x = 0;     ///< as rCaretX

    friend bool operator==(const TermCaretPlace&, const TermCaretPlace&) = default;
};

/// A term that has been set out and can be drawn again and again, for what is drawn much more often than it
/// changes: its texts and lines where TermDraw draws them, and the places of its caret. Neighbours that look
/// alike are drawn as one text, which is several times as fast as one by one. Empty at first; layOutTerm
/// fills it.
class TermLayout
{
public:
    /// By rising index.
    std::vector<TermCaretPlace> places() const;

    /// The room that all of it takes, in the scale of a device with that metrics; empty where there is
    /// nothing.
    PixelRectangle extent(TextMetrics& metrics) const;

    /// Draws everything so far to the right of its place, with the caret at one of the places; -1: without.
    void draw(DrawDevice& device, std::int32_t distance, std::int32_t caret) const;

    // For whoever sets the term out, with a device in the state in which it would draw.
    void addText(const DrawDevice& device, StringView text, double width);
    void addLine(const DrawDevice& device, PixelPoint from, PixelPoint to);
    void addPlace(const DrawDevice& device, std::int32_t index);

private:
    /// A text, or a line where that is empty.
    struct Mark {
        PixelPoint from;
        PixelPoint to; ///< behind the text, in its line
        Colour colour;
        FontSpec font;
        String text;
        bool mayGrow = false; ///< no neighbour changes the look of its characters
    };
    struct Place {
        std::int32_t index;
        double x;
        Colour colour;
    };

    void drawCaret(DrawDevice& device, const Place& place, std::int32_t distance) const;

    std::vector<Mark> marks_;
    std::vector<Place> places_;
};

} // namespace phial
