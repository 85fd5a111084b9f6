#include "dialogs/SignPainter.h"

#include "dialogs/KeySigns.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace phial
{

namespace
{

// Figures are drawn in a square of this edge.
constexpr double FigureEdge = 24;

/// Arrows point to the left; others are turned from it.
constexpr auto PlainArrow = std::to_array<PixelPoint>(
    {{3, 12}, {11, 5.5}, {11, 10.75}, {21, 10.75}, {21, 13.25}, {11, 13.25}, {11, 18.5}});
constexpr auto HeavyArrow =
    std::to_array<PixelPoint>({{2, 12}, {12, 3}, {12, 8}, {22, 8}, {22, 16}, {12, 16}, {12, 21}});
constexpr auto CheckMark =
    std::to_array<PixelPoint>({{2.5, 13}, {5.5, 10}, {9.5, 14}, {18.5, 5}, {21.5, 8}, {9.5, 20}});
constexpr auto ReturnArrow = std::to_array<PixelPoint>(
    {{3, 14.5}, {10, 8.5}, {10, 13}, {18, 13}, {18, 5}, {21, 5}, {21, 16}, {10, 16}, {10, 20.5}});
constexpr auto TabLeft =
    std::to_array<PixelPoint>({{4, 7}, {9, 3}, {9, 6}, {22, 6}, {22, 8}, {9, 8}, {9, 11}});
constexpr auto TabLeftStop = std::to_array<PixelPoint>({{1, 3}, {3, 3}, {3, 11}, {1, 11}});
constexpr auto TabRight =
    std::to_array<PixelPoint>({{20, 17}, {15, 13}, {15, 16}, {2, 16}, {2, 18}, {15, 18}, {15, 21}});
constexpr auto TabRightStop = std::to_array<PixelPoint>({{21, 13}, {23, 13}, {23, 21}, {21, 21}});

enum class Turn : std::uint8_t { Left, Right, Up, Down };

PixelPoint turned(PixelPoint point, Turn turn)
{
    switch (turn) {
    case Turn::Left:
        break;
    case Turn::Right:
        return {FigureEdge - point.x, point.y};
    case Turn::Up:
        return {point.y, point.x};
    case Turn::Down:
        return {point.y, FigureEdge - point.x};
    }
    return point;
}

struct SignFigure {
    char16_t sign;
    std::span<const PixelPoint> points;
    Turn turn = Turn::Left;
    bool isOutlined = false;
};
/// A sign of several figures has as many rows.
constexpr auto SignFigures = std::to_array<SignFigure>({
    {KeySigns::Left, PlainArrow, Turn::Left},
    {KeySigns::Right, PlainArrow, Turn::Right},
    {KeySigns::Up, PlainArrow, Turn::Up},
    {KeySigns::Down, PlainArrow, Turn::Down},
    {KeySigns::HeavyLeft, HeavyArrow, Turn::Left},
    {KeySigns::HeavyRight, HeavyArrow, Turn::Right},
    {KeySigns::HeavyUp, HeavyArrow, Turn::Up},
    {KeySigns::HeavyDown, HeavyArrow, Turn::Down},
    {KeySigns::OutlinedLeft, HeavyArrow, Turn::Left, true},
    {KeySigns::OutlinedUp, HeavyArrow, Turn::Up, true},
    {KeySigns::BothWays, TabLeft},
    {KeySigns::BothWays, TabLeftStop},
    {KeySigns::BothWays, TabRight},
    {KeySigns::BothWays, TabRightStop},
    {KeySigns::Check, CheckMark},
    {KeySigns::NewLine, ReturnArrow},
});

void paintFigure(DrawDevice& device, const SignFigure& figure, const PixelRectangle& square)
{
    std::vector<PixelPoint> points;
    for (const PixelPoint point : figure.points) {
        const PixelPoint at = turned(point, figure.turn);
        points.push_back({square.left + at.x * square.width / FigureEdge - 0.5,
                          square.top + at.y * square.height / FigureEdge - 0.5});
    }
    device.FillStyle(figure.isOutlined ? FillStyle::Transparent : FillStyle::Solid);
    device.Polygon(points);
}

} // namespace

void paintSign(DrawDevice& device, char16_t sign, const PixelRectangle& square, Colour colour)
{
    constexpr double OutlineWidth = 2; // in the figures' square
    device.ForeColor(colour);
    device.FillColor(colour);
    bool isKnown = false;
    for (const SignFigure& figure : SignFigures) {
        if (figure.sign == sign) {
            isKnown = true;
            device.DrawWidth(figure.isOutlined ? std::max(1.0, OutlineWidth * square.width / FigureEdge) : 1);
            paintFigure(device, figure, square);
        }
    }
    device.DrawWidth(1);
    if (!isKnown) {
        device.CurrentX(square.left);
        device.CurrentY(square.top);
        device.Print(String(1, sign));
    }
}

} // namespace phial
