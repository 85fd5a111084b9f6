#pragma once

#include "visual/Alignment.h"
#include "visual/DrawDevice.h"

#include <optional>
#include <vector>

namespace phial
{

/// The markup of labels: `<br>` and line ends part lines; `<b>`, `<i>` are bold and italic; `<sub>`, `<sup>`
/// stand lower and higher at 0.75 of the size. Tags disregard case and may overlap; a closing tag without an
/// opening one is dropped. Anything else in angle brackets is plain text.
struct MarkupRun {
    String text;
    bool bold = false;
    bool italic = false;
    std::int32_t level = 0; ///< -1 lowered, 1 raised
    bool lineEnd = false;   ///< a line ends behind this run

    friend bool operator==(const MarkupRun&, const MarkupRun&) = default;
};

std::vector<MarkupRun> parseMarkup(StringView text);

/// The text as it reads without tags; lines are parted by LF.
String plainMarkup(StringView text);

/// How a text is read: with markup, or letter by letter, so that tags are seen. Line ends part lines in all.
enum class TextForm : std::int32_t {
    Markup,
    FittedMarkup, ///< words wider than the line are broken
    Plain,        ///< likewise
};

/// Markup set in lines: measured once, drawn as often as needed. All in pixels.
class MarkupLayout
{
public:
    /// Breaks lines at blanks to fit `wrapWidth`, and within longer words where the form says so; none: only
    /// where the text says so.
    MarkupLayout(StringView text, const FontSpec& font, TextMetrics& metrics,
                 std::optional<double> wrapWidth = std::nullopt, TextForm form = TextForm::Markup);

    /// Of the widest line, and of all lines.
    PixelSize size() const { return size_; }
    std::size_t lineCount() const { return lines_.size(); }
    /// Draws within a box, aligned in both directions, in the device's ForeColor. The device is left with the
    /// font of the layout; its unit must be pixels.
    void draw(DrawDevice& device, const PixelRectangle& box, TextSide horizontal, TextSide vertical) const;

private:
    struct Piece {
        String text;
        FontSpec font;
        double x = 0;
        double y = 0; ///< from the line's top
        double width = 0;
    };
    struct Line {
        std::vector<Piece> pieces;
        double width = 0;
    };
    class Setter;

    FontSpec font_;
    double lineHeight_;
    PixelSize size_;
    std::vector<Line> lines_;
};

} // namespace phial
