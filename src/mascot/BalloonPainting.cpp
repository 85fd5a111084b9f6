#include "mascot/BalloonPainting.h"

#include "core/Arithmetic.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

// Angles in radians. A whole turn falls a little short, and a negative zero would give no radius.
constexpr double Half = 3.14159;
constexpr double Quarter = Half / 2;
constexpr double ThreeQuarters = 9.42477 / 2;
constexpr double Whole = 6.28318;
constexpr double NearlyZero = 0.0001;

/// A corner of the body: where its centre lies, and its arc; the pie has the same angles, negative.
struct Corner {
    bool atRight;
    bool atBottom;
    double start;
    double end;
};
constexpr auto Corners = std::to_array<Corner>({
    {false, false, Quarter, Half},
    {true, false, 0, Quarter},
    {false, true, Half, ThreeQuarters},
    {true, true, ThreeQuarters, Whole},
});

/// One balloon with the radius that its body has room for.
class Outline
{
public:
    Outline(DrawDevice& device, const BalloonBox& body, std::int32_t radius)
        : device_(device), body_(body), radius_(std::min({radius, body.width / 2, body.height / 2}))
    {
    }

    bool isRound() const { return radius_ > 0; }

    /// The cross of two boxes that leaves the corners out; `inset` leaves the border out as well.
    void fillCross(Colour colour, std::int32_t inset) const
    {
        fill(body_.left + radius_, body_.top + inset, body_.right() - radius_, body_.bottom() - inset,
             colour);
        fill(body_.left + inset, body_.top + radius_, body_.right() - inset, body_.bottom() - radius_,
             colour);
    }
    void fillBox(Colour colour, std::int32_t inset) const
    {
        fill(body_.left + inset, body_.top + inset, body_.right() - inset, body_.bottom() - inset, colour);
    }
    void fillCorners(Colour colour) const
    {
        for (const Corner& corner : Corners) {
            circle(corner, colour, {-std::max(corner.start, NearlyZero), -corner.end});
        }
    }
    void drawCorners(Colour colour) const
    {
        for (const Corner& corner : Corners) {
            circle(corner, colour, {corner.start, corner.end});
        }
    }
    /// The straight edges between the corners end one pixel behind them, since a line leaves its last pixel
    /// out.
    void drawEdges(Colour colour) const
    {
        const double left = body_.left + radius_;
        const double right = body_.left + body_.width - radius_;
        const double top = body_.top + radius_;
        const double bottom = body_.top + body_.height - radius_;
        device_.Line(left, body_.top, right, body_.top, colour);
        device_.Line(body_.left, top, body_.left, bottom, colour);
        device_.Line(left, body_.bottom(), right, body_.bottom(), colour);
        device_.Line(body_.right(), top, body_.right(), bottom, colour);
    }
    void drawBox(Colour colour) const
    {
        device_.Line(body_.left, body_.top, body_.right(), body_.bottom(), colour, LineShape::Box);
    }

private:
    void fill(double left, double top, double right, double bottom, Colour colour) const
    {
        if (left <= right && top <= bottom) { // a box can be drawn from any corner, and would turn over
            device_.Line(left, top, right, bottom, colour, LineShape::Filled);
        }
    }
    void circle(const Corner& corner, Colour colour, CircleAngles angles) const
    {
        device_.Circle(corner.atRight ? body_.right() - radius_ : body_.left + radius_,
                       corner.atBottom ? body_.bottom() - radius_ : body_.top + radius_, radius_, colour,
                       angles);
    }

    DrawDevice& device_;
    BalloonBox body_;
    std::int32_t radius_;
};

void paintTail(DrawDevice& device, const std::optional<BalloonTail>& tail, const BalloonBox& body,
               Colour border)
{
    if (const auto points = tail ? tail->points(body) : std::nullopt) {
        device.ForeColor(border);
        device.Polygon(*points);
    }
}

void fillBody(const Outline& outline, Colour colour)
{
    if (outline.isRound()) {
        outline.fillCross(colour, 0);
        outline.fillCorners(colour);
    } else {
        outline.fillBox(colour, 0);
    }
}

} // namespace

BalloonBox BalloonBox::movedBy(std::int32_t x, std::int32_t y) const
{
    return {toWhole(double{1} * left + x), toWhole(double{1} * top + y), width, height};
}

std::optional<TailPlace> BalloonTail::place() const
{
    constexpr auto Places = std::to_array<TailPlace>({
        {true, true, true},
        {true, true, false},
        {true, false, true},
        {true, false, false},
        {false, false, true},
        {false, false, false},
        {false, true, true},
        {false, true, false},
    });
    const auto number = static_cast<std::uint32_t>(side);
    return number < Places.size() ? std::optional(Places[number]) : std::nullopt;
}

BalloonBox BalloonTail::bodyWithin(const BalloonBox& all) const
{
    BalloonBox body = all;
    if (const auto sits = place()) {
        std::int32_t& extent = sits->isBeside ? body.width : body.height;
        std::int32_t& start = sits->isBeside ? body.left : body.top;
        extent = toWhole(double{1} * extent - distance);
        start = sits->atNearEdge ? toWhole(double{1} * start + distance) : start;
    }
    return body;
}

std::optional<std::array<PixelPoint, 3>> BalloonTail::points(const BalloonBox& body) const
{
    const auto sits = place();
    if (!sits) {
        return std::nullopt;
    }
    const double edge = sits->isBeside ? (sits->atNearEdge ? body.left : body.right())
                                       : (sits->atNearEdge ? body.top : body.bottom());
    const double end = sits->isBeside ? (sits->atNearEnd ? body.top : body.bottom())
                                      : (sits->atNearEnd ? body.left : body.right());
    const double outwards = sits->atNearEdge ? -1 : 1;
    const double inwards = sits->atNearEnd ? 1 : -1;
    const double far = double{1} * distance + size;
    std::array<PixelPoint, 3> points{{{edge + outwards * distance, end},
                                      {edge - outwards, end + inwards * far},
                                      {edge - outwards, end + inwards * distance}}};
    if (!sits->isBeside) {
        for (PixelPoint& point : points) {
            std::swap(point.x, point.y);
        }
    }
    return points;
}

void BalloonLook::paintShadow(DrawDevice& device, const BalloonBox& body) const
{
    const Outline outline(device, body, radius);
    device.FillStyle(FillStyle::Solid);
    device.FillColor(fill);
    fillBody(outline, fill);
    paintTail(device, tail, body, border);
    if (outline.isRound()) {
        outline.fillCross(fill, 1);
    }
}

void BalloonLook::paint(DrawDevice& device, const BalloonBox& body) const
{
    const Outline outline(device, body, radius);
    device.FillStyle(FillStyle::Solid);
    device.FillColor(fill);
    fillBody(outline, fill);
    outline.isRound() ? outline.drawEdges(border) : outline.drawBox(border);
    paintTail(device, tail, body, border);
    // What the tail's base has drawn over the body goes again, and with it the border between them.
    outline.isRound() ? outline.fillCross(fill, 1) : outline.fillBox(fill, 1);
    device.FillStyle(FillStyle::Transparent);
    if (outline.isRound()) {
        outline.drawCorners(border);
    }
}

} // namespace phial
