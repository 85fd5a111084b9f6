#pragma once

#include "visual/Form.h"

#include <vector>

namespace learning
{

/// How the design is shown in a window.
struct Arrangement {
    double zoom;           ///< pixels of the window for one of the design
    phial::PixelSize area; ///< the window's inside, in pixels of the design as all that follows
    double header;
    double footer;
    phial::PixelPoint page; ///< corner of the pages

    friend bool operator==(const Arrangement&, const Arrangement&) = default;
};

/// Fits the design into a window whose inside has that many pixels of the desktop: as large as width and
/// height allow, from three quarters to four times. In a window that is too low header and footer give way
/// first. The pages stand in the middle between them.
Arrangement arrange(phial::PixelSize inside);

/// Keeps the frame's window arranged: header and footer over its whole width, the title at the left, all else
/// of the two at their distance from the right edge, the pages in the middle, and all of it zoomed.
class FrameLayout
{
public:
    /// The form's controls stand where the design has put them.
    explicit FrameLayout(phial::Form& form);

    /// Follows the window's size.
    void follow();

private:
    struct Piece {
        phial::ControlPtr control;
        phial::PixelRectangle place; ///< in the design
    };

    void placeBar(const std::vector<Piece>& pieces, double width, double height, double designHeight,
                  double edge);
    static std::vector<Piece> piecesIn(const phial::Container& container);

    phial::Form& form_;
    std::vector<Piece> header_;
    std::vector<Piece> footer_;
    std::vector<phial::ControlPtr> pages_;
};

} // namespace learning
