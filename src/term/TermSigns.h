#pragma once

#include "term/TermBrackets.h"
#include "visual/Geometry.h"

#include <cstdint>
#include <optional>

namespace phial
{

class DrawDevice;

/// Where a character of a term stands.
enum class TermLevel : std::int8_t { Superscript = -1, Normal = 0, Subscript = 1 };

/// One walk through a term or a part of it.
struct TermWalk {
    bool drawing; // the first walk measures, the second draws
    std::size_t position;
    double base;   // top of the line, a whole number
    double anchor; // X behind the last character in normal mode
    TermLevel mode = TermLevel::Normal;
    bool forced = false;
    bool plain = true;
    std::optional<PixelPoint> stroke = std::nullopt; // where it begins
};

/// The line in which a part of a term is written.
struct TermLine {
    TermRange part;
    String fontName;
    double fontSize;
    double height;
};

/// The rules by which the single characters and signs of a term are written, all but the fraction.
class TermSigns
{
public:
    /// `isSeen` false: the drawing walk, too, only moves the current point.
    TermSigns(DrawDevice& device, StringView term, bool isSeen)
        : device_(device), term_(term), isSeen_(isSeen)
    {
    }

    /// Writes, or measures, the character at the walk's position by the first rule that fits it. The device
    /// has the line's font, and its current point is in the line. Gives the number of characters used.
    std::size_t write(TermWalk& walk, const TermLine& line);

private:
    char16_t neighbour(const TermWalk& walk, const TermLine& line, std::ptrdiff_t offset) const;
    void put(const TermWalk& walk, StringView text);
    void put(const TermWalk& walk, char16_t c) { put(walk, StringView(&c, 1)); }
    std::size_t printPlain(TermWalk& walk, char16_t c);
    std::size_t jumpToAnchor(TermWalk& walk, TermLevel mode);
    std::size_t startStroke(TermWalk& walk);
    void moveX(double distance);
    std::size_t drawApproximately(TermWalk& walk, const TermLine& line);
    std::size_t drawMiddleDot(TermWalk& walk, const TermLine& line);
    std::size_t drawArrow(TermWalk& walk, const TermLine& line, char16_t arrow);
    std::size_t drawCorrespondence(TermWalk& walk, const TermLine& line);
    bool isCharge(const TermWalk& walk, const TermLine& line) const;
    std::size_t drawIndexed(TermWalk& walk, const TermLine& line, char16_t c);

    DrawDevice& device_;
    StringView term_;
    bool isSeen_;
};

} // namespace phial
