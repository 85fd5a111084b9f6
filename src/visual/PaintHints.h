#pragma once

#include "visual/Geometry.h"

#include <optional>

namespace phial
{

/// What a painted control tells so that it is shown faster. A control that can tell it derives from this
/// beside UserControl.
class PaintHints
{
public:
    /// Whether `paint` leaves no pixel see-through, so that what lies below needs no painting. Where the
    /// control's ground or a colour is made see-through, that counts instead.
    virtual bool coversAll() const = 0;
    /// The area of currentPart(), which is asked for at each painting and so without the parts' names.
    virtual std::optional<PixelRectangle> currentPartArea() const = 0;
    /// Whether it paints the controls within it itself and hands presses on to them, so that an adapter makes
    /// no widgets for them.
    virtual bool showsChildren() const { return false; }

protected:
    ~PaintHints() = default;
};

} // namespace phial
