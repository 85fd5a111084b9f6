#pragma once

#include "visual/Geometry.h"

namespace phial
{

/// How a page is seen through its view: whole at first, or enlarged about a point. It never leaves a gap
/// beside it where it has enough to fill the view, and stands in the middle where it has not.
class PageZoom
{
public:
    static constexpr double Most = 4;

    /// Another page, whole.
    void reset(PixelSize page, PixelSize view);
    double factor() const { return factor_; }
    bool isEnlarged() const { return factor_ > 1; }
    /// Where the page lies in its view.
    PixelRectangle place() const { return place_; }
    /// The part of the page, as it is enlarged, that is seen.
    PixelRectangle seenPart() const;

    /// Enlarges by a factor, below 1 for less; what lies at the point of the view stays there.
    void enlarge(double by, PixelPoint at);
    void move(double x, double y);

private:
    void hold();

    PixelSize page_;
    PixelSize view_;
    double factor_ = 1;
    PixelRectangle place_;
};

} // namespace phial
