#include "mascot/AtomGaze.h"

#include "core/Arithmetic.h"
#include "core/RandomSource.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

using EyeMove = enm_DrAtomEyeMove;

constexpr std::int32_t TurnDegrees = 360;
constexpr std::int32_t RollingStep = 30;
constexpr double GazeChangeShare = 0.03;
constexpr double GazeAheadShare = 0.6;
constexpr double GazeHalfTurn = 3.14159;
constexpr double GazeWholeTurn = 6.28318;
constexpr double FarthestPointer = 1e6; // pixels; beyond it the angle is the same

std::int32_t randomAngle(RandomSource& random)
{
    return toWhole(random.next() * TurnDegrees);
}

std::int32_t rolledRight(std::int32_t angle)
{
    angle += RollingStep;
    return angle >= TurnDegrees ? angle - TurnDegrees : angle;
}

std::int32_t rolledLeft(std::int32_t angle)
{
    angle -= RollingStep;
    return angle < 0 ? angle + TurnDegrees : angle;
}

std::int32_t angleBetween(PixelPoint eye, PixelPoint pointer)
{
    const auto pixels = [](double way) {
        return toWhole(std::clamp(way, -FarthestPointer, FarthestPointer));
    };
    return angleTowards(pixels(pointer.x - eye.x), pixels(pointer.y - eye.y));
}

} // namespace

void AtomGaze::step(enm_DrAtomEyeMove move, std::int32_t direction, RandomSource& random)
{
    switch (move) {
    case EyeMove::ID_DrAtomEyeMove_RollingRight:
        left = rolledRight(left);
        right = rolledRight(right);
        return;
    case EyeMove::ID_DrAtomEyeMove_RollingLeft:
        left = rolledLeft(left);
        right = rolledLeft(right);
        return;
    case EyeMove::ID_DrAtomEyeMove_Insane:
        left = randomAngle(random);
        right = randomAngle(random);
        return;
    case EyeMove::ID_DrAtomEyeMove_Smooth:
        if (random.next() < GazeChangeShare) {
            left = right = random.next() < GazeAheadShare ? EyesAhead : randomAngle(random);
        }
        return;
    case EyeMove::ID_DrAtomEyeMove_MouseTracking:
    case EyeMove::ID_DrAtomEyeMove_None:
        break;
    }
    left = right = direction;
}

void AtomGaze::follow(std::optional<PixelPoint> pointer)
{
    left = pointer ? angleBetween(LeftEye, *pointer) : EyesAhead;
    right = pointer ? angleBetween(RightEye, *pointer) : EyesAhead;
}

std::int32_t angleTowards(std::int32_t right, std::int32_t down)
{
    if (right == 0) {
        return down > 0 ? 90 : 270;
    }
    // Rounded, so that with little height it is just the way to the side, whose cosine is 1 or -1.
    const double distance = toWhole(std::hypot(double{1} * right, double{1} * down));
    const double cosine = right / distance;
    double turn = 0;
    if (right == -distance) {
        turn = GazeHalfTurn;
    } else if (right != distance) {
        turn = std::atan(-cosine / std::sqrt(1 - cosine * cosine)) + 2 * std::atan(1.0);
    }
    const std::int32_t angle = toWhole(turn * TurnDegrees / GazeWholeTurn);
    return down < 0 ? TurnDegrees - angle : angle;
}

} // namespace phial
