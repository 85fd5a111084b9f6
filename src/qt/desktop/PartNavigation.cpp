#include "qt/desktop/PartNavigation.h"

#include <Qt>

#include <limits>

namespace phial::qt
{

namespace
{

constexpr double AsideWeight = 3; // a part that lies aside counts as that much further away

PixelPoint middleOf(const NamedPart& part)
{
    return {part.area.left + part.area.width / 2, part.area.top + part.area.height / 2};
}

struct Direction {
    double x = 0;
    double y = 0;
};

std::optional<Direction> directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return Direction{-1, 0};
    case Qt::Key_Right:
        return Direction{1, 0};
    case Qt::Key_Up:
        return Direction{0, -1};
    case Qt::Key_Down:
        return Direction{0, 1};
    default:
        return std::nullopt;
    }
}

// How far it is in that direction; none when the place lies behind.
std::optional<double> distance(PixelPoint from, PixelPoint to, Direction direction)
{
    const double along = (to.x - from.x) * direction.x + (to.y - from.y) * direction.y;
    const double aside = (to.x - from.x) * direction.y + (to.y - from.y) * direction.x;
    if (along <= 0) {
        return std::nullopt;
    }
    return along + AsideWeight * std::abs(aside);
}

std::optional<std::size_t> firstWithAction(const std::vector<NamedPart>& parts)
{
    for (std::size_t part = 0; part < parts.size(); ++part) {
        if (!parts[part].action.empty()) {
            return part;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::size_t> nextPart(const std::vector<NamedPart>& parts, std::optional<std::size_t> from,
                                    int key)
{
    const auto direction = directionOf(key);
    if (!direction) {
        return std::nullopt;
    }
    if (!from || *from >= parts.size()) {
        return firstWithAction(parts);
    }
    std::optional<std::size_t> nearest;
    double least = std::numeric_limits<double>::max();
    for (std::size_t part = 0; part < parts.size(); ++part) {
        const auto way = distance(middleOf(parts[*from]), middleOf(parts[part]), *direction);
        if (part != *from && !parts[part].action.empty() && way && *way < least) {
            least = *way;
            nearest = part;
        }
    }
    return nearest;
}

} // namespace phial::qt
