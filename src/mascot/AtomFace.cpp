#include "mascot/AtomFace.h"

#include "core/Arithmetic.h"

#include <cmath>
#include <optional>

namespace phial
{

namespace
{

constexpr double MouthHalfTurn = 3.14159; // radians
constexpr double MouthWholeTurn = 6.28318;
constexpr double NearZero = 0.0001; // an end at 0 itself would have no radius

constexpr PixelPoint MouthCentre{51, 62};
constexpr Colour MouthDark = RGB(50, 0, 0);
constexpr Colour MouthRed = RGB(255, 0, 0);

constexpr double SmileBand = 0.01; // an opening as small is a smile
constexpr double LeastBand = 0.2;  // what stays between two halves that are turned the same way

constexpr double EyeReach = 6; // how far an eye of no size looks aside

/// None for an eye that looks ahead, and for one that has no room to look aside.
std::optional<PixelPoint> eyeOffset(std::int32_t angle, std::int32_t eyeSize)
{
    const double reach = EyeReach - eyeSize / 2.0;
    if (angle == EyesAhead || reach <= 0) {
        return std::nullopt;
    }
    const double turn = angle * 2.0 * MouthHalfTurn / 360;
    return PixelPoint{static_cast<double>(toWhole(std::cos(turn) * reach)),
                      static_cast<double>(toWhole(std::sin(turn) * reach))};
}

void paintClosedEye(DrawDevice& device, PixelPoint centre, Colour colour)
{
    constexpr double HalfWidth = 3;
    device.Line(centre.x - HalfWidth, centre.y, centre.x + HalfWidth, centre.y, colour);
}

/// Half of the mouth, filled and with its radii, or its curve alone.
void paintHalf(DrawDevice& device, double radius, Colour colour, CircleAngles angles, double aspect)
{
    device.Circle(MouthCentre.x, MouthCentre.y, radius, colour, angles, aspect);
}

constexpr CircleAngles UpperPie{-NearZero, -MouthHalfTurn};
constexpr CircleAngles LowerPie{-MouthHalfTurn, -MouthWholeTurn};
constexpr CircleAngles UpperCurve{NearZero, MouthHalfTurn};
constexpr CircleAngles LowerCurve{MouthHalfTurn, MouthWholeTurn};

} // namespace

MouthShape mouthShape(double open)
{
    MouthShape shape;
    if (open >= -SmileBand && open <= SmileBand) {
        shape = {-0.1, 0.3};
    } else if (open > 0) {
        shape = {open / 20, open / 10};
    } else {
        shape = {-open / 10, open / 10};
    }
    if (shape.lower < 0 && shape.upper > 0 && -shape.lower + LeastBand > shape.upper) {
        shape.lower = -shape.upper + LeastBand;
    }
    if (shape.lower > 0 && shape.upper < 0 && -shape.upper + LeastBand > shape.lower) {
        shape.upper = -shape.lower + LeastBand;
    }
    return shape;
}

void AtomFace::paint(DrawDevice& device) const
{
    device.FillStyle(FillStyle::Solid);
    paintEyes(device);
    paintMouth(device);
}

void AtomFace::paintEyes(DrawDevice& device) const
{
    if (eyeSize <= 0) {
        paintClosedEye(device, AtomGaze::LeftEye, eyeColour);
        paintClosedEye(device, AtomGaze::RightEye, eyeColour);
        return;
    }
    device.FillColor(eyeColour);
    const PixelPoint left = eyeOffset(gaze.left, eyeSize).value_or(PixelPoint());
    const PixelPoint right = eyeOffset(gaze.right, eyeSize).value_or(left);
    device.Circle(AtomGaze::LeftEye.x + left.x, AtomGaze::LeftEye.y + left.y, eyeSize, eyeColour);
    device.Circle(AtomGaze::RightEye.x + right.x, AtomGaze::RightEye.y + right.y, eyeSize, eyeColour);
}

void AtomFace::paintMouth(DrawDevice& device) const
{
    const MouthShape shape = mouthShape(mouthOpen);
    device.FillColor(MouthDark);
    if (shape.upper > 0) {
        paintHalf(device, mouthSize, MouthDark, UpperPie, shape.upper);
    }
    if (shape.lower > 0) {
        paintHalf(device, mouthSize, MouthDark, LowerPie, shape.lower);
    }
    device.FillColor(MouthRed);
    if (shape.upper < 0) {
        paintHalf(device, mouthSize, MouthRed, LowerPie, -shape.upper);
    }
    if (shape.lower < 0) {
        paintHalf(device, mouthSize, MouthRed, UpperPie, -shape.lower);
    }
    device.FillColor(MouthDark);
    if (shape.upper > 0) {
        paintHalf(device, mouthSize, MouthDark, UpperCurve, shape.upper);
    }
    if (shape.lower > 0) {
        paintHalf(device, mouthSize, MouthDark, LowerCurve, shape.lower);
    }
}

} // namespace phial
