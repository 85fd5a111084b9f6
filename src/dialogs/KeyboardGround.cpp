#include "dialogs/KeyboardGround.h"

#include "core/Palette.h"
#include "visual/DrawDevice.h"
#include "visual/RoundedOutline.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

// In pixels at scale 1.
constexpr double PlateRadius = 16;
constexpr double PlateEdge = 1.5;
constexpr PixelSize Grip{48, 5};
constexpr double GripAbove = 14; // of its middle, from the lower edge

void paintRounded(DrawDevice& device, const PixelRectangle& area, double radius, Colour ground, Colour edge)
{
    device.FillStyle(FillStyle::Solid);
    device.FillColor(ground);
    device.ForeColor(edge);
    device.Polygon(roundedOutline(area, radius));
}

} // namespace

PicturePtr keyboardGround(PixelSize size, double scale)
{
    DrawDevice device(visualHost().createSurface(size, visualHost().pixelRatio()));
    const double edge = std::max(1.0, PlateEdge * scale);
    const double inset = (edge - 1) / 2;
    device.DrawWidth(edge);
    paintRounded(device, {inset, inset, size.width - 2 * inset, size.height - 2 * inset}, PlateRadius * scale,
                 Palette::Footer, Palette::ControlBorder);
    device.DrawWidth(1);
    paintRounded(device,
                 {(size.width - Grip.width * scale) / 2, size.height - (GripAbove + Grip.height / 2) * scale,
                  Grip.width * scale, Grip.height * scale},
                 Grip.height * scale / 2, Palette::ControlBorder, Palette::ControlBorder);
    return device.Image();
}

} // namespace phial
