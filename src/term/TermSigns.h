#pragma once

#include "term/TermBrackets.h"
#include "term/TermRules.h"
#include "visual/Geometry.h"

#include <cstdint>
#include <optional>

namespace phial
{

class DrawDevice;
class TermLayout;

/// One walk through a term or a part of it.
struct TermWalk {
    bool drawing; // the first walk measures, the second draws
    std::size_t position;
    double base;   // top of the line, a whole number
    double anchor; // X behind the last character in normal mode
    TermRules rules{};
    std::optional<PixelPoint> stroke = std::nullopt; // where it begins
};

/// The line in which a part of a term is written.
struct TermLine {
    TermRange part;
    String fontName;
    double fontSize;
    double height;
};

/// How the single characters and signs of a term are written, all but the fraction.
class TermSigns
{
public:
    /// With a layout the drawing walk fills that instead of drawing.
    TermSigns(DrawDevice& device, StringView term, TermLayout* layout)
        : device_(device), term_(term), layout_(layout)
    {
    }

    /// Writes, or measures, the sign at the walk's position. The device has the line's font, and its current
    /// point is in the line. Gives the number of units used.
    std::size_t write(TermWalk& walk, const TermLine& line);

private:
    void put(const TermWalk& walk, StringView text);
    void moveX(double distance);
    void startStroke(TermWalk& walk);
    void drawCharacter(TermWalk& walk, const TermLine& line, const TermSign& sign);
    void drawApproximately(const TermWalk& walk, const TermLine& line);
    void drawMiddleDot(const TermWalk& walk, const TermLine& line);
    void drawArrow(const TermWalk& walk, const TermLine& line, StringView arrow);
    void drawCorrespondence(const TermWalk& walk, const TermLine& line);

    DrawDevice& device_;
    StringView term_;
    TermLayout* layout_;
};

} // namespace phial
