#include "visual/Shape.h"

#include "visual/PropertyRows.h"
#include "visual/RoundedOutline.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr double LargestRadius = 12; // of rounded corners, in pixels

/// The largest square in the middle of an area.
PixelRectangle squareIn(const PixelRectangle& area)
{
    const double side = std::min(area.width, area.height);
    return {area.left + (area.width - side) / 2, area.top + (area.height - side) / 2, side, side};
}

void paintOval(DrawDevice& device, const PixelRectangle& area, Colour border)
{
    const double radiusX = (area.width - 1) / 2;
    const double radiusY = (area.height - 1) / 2;
    if (radiusX <= 0 || radiusY <= 0) {
        return;
    }
    device.Circle(area.left + radiusX, area.top + radiusY, std::max(radiusX, radiusY), border, std::nullopt,
                  radiusY / radiusX);
}

} // namespace

struct Shape::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Shape">(&Shape::kind_),
        rows::property<u"BorderColor">(&Shape::borderColor_),
        rows::property<u"BorderWidth">(&Shape::borderWidth_).raisingUnless(rows::isNotNegative),
        rows::property<u"FillColor">(&Shape::fillColor_),
        rows::property<u"FillStyle">(&Shape::fillStyle_),
    };
};

Shape::Shape() : frame_(*this), surface_(*this)
{
    surface_.transparent(true);
    surface_.paintsDirectly(true);
    surface_.MaskPicture(std::make_shared<Picture>(PixelSize{})); // a hole all over: every click goes through
}

MemberTable Shape::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void Shape::Kind(ShapeKind value) { rows::set<Properties, u"Shape">(*this, value); }
void Shape::BorderColor(Colour value) { rows::set<Properties, u"BorderColor">(*this, value); }
void Shape::BorderWidth(std::int32_t value) { rows::set<Properties, u"BorderWidth">(*this, value); }
void Shape::FillColor(Colour value) { rows::set<Properties, u"FillColor">(*this, value); }
void Shape::FillStyle(phial::FillStyle value) { rows::set<Properties, u"FillStyle">(*this, value); }
// clang-format on

void Shape::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const bool outlined = borderWidth_ > 0;
    device.DrawWidth(std::max(1, borderWidth_));
    device.FillColor(fillColor_);
    device.FillStyle(fillStyle_);
    const Colour border = outlined ? borderColor_ : fillColor_;
    if (!outlined && fillStyle_ == phial::FillStyle::Transparent) {
        return;
    }
    const PixelSize size = surface_.size();
    const double inset = outlined ? borderWidth_ / 2 : 0;
    const PixelRectangle whole{inset, inset, size.width - 2 * inset, size.height - 2 * inset};
    const PixelRectangle area =
        kind_ == ShapeKind::Square || kind_ == ShapeKind::Circle ? squareIn(whole) : whole;
    switch (kind_) {
    case ShapeKind::Oval:
    case ShapeKind::Circle:
        paintOval(device, area, border);
        break;
    case ShapeKind::RoundedRectangle:
        device.ForeColor(border);
        device.Polygon(roundedOutline(area, LargestRadius));
        break;
    case ShapeKind::Rectangle:
    case ShapeKind::Square:
        if (fillStyle_ == phial::FillStyle::Solid) {
            device.Line(area.left, area.top, area.right() - 1, area.bottom() - 1, fillColor_,
                        LineShape::Filled);
        }
        device.Line(area.left, area.top, area.right() - 1, area.bottom() - 1, border, LineShape::Box);
        break;
    }
}

} // namespace phial
