#include "periodic/PeriodicPlaces.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace phial
{

namespace
{

/// Elements that stand side by side.
struct PlaceRun {
    std::int32_t first; ///< position of the first one
    std::int32_t count;
    ElementPlace place; ///< of the first one

    constexpr bool holds(std::int32_t position) const
    {
        return position >= first && position < first + count;
    }
};

constexpr auto Runs = std::to_array<PlaceRun>({
    {1, 1, {0, 0, 1}},   {2, 1, {0, 17, 1}},   {3, 2, {1, 0, 2}},   {5, 6, {1, 12, 2}},  {11, 2, {2, 0, 3}},
    {13, 6, {2, 12, 3}}, {19, 2, {3, 0, 4}},   {21, 10, {3, 2, 3}}, {31, 6, {3, 12, 4}}, {37, 2, {4, 0, 5}},
    {39, 10, {4, 2, 4}}, {49, 6, {4, 12, 5}},  {55, 2, {5, 0, 6}},  {57, 1, {5, 2, 5}},  {58, 14, {8, 4, 4}},
    {72, 9, {5, 3, 5}},  {81, 6, {5, 12, 6}},  {87, 2, {6, 0, 7}},  {89, 1, {6, 2, 6}},  {90, 14, {9, 4, 5}},
    {104, 9, {6, 3, 6}}, {113, 6, {6, 12, 7}},
});

} // namespace

std::optional<ElementPlace> placeOf(std::int32_t position)
{
    const auto run =
        std::find_if(Runs.begin(), Runs.end(), [=](const PlaceRun& each) { return each.holds(position); });
    if (run == Runs.end()) {
        return std::nullopt;
    }
    ElementPlace place = run->place;
    place.column += position - run->first;
    return place;
}

float TableGrid::scale() const
{
    constexpr double UsualCell = 32;
    return static_cast<float>(std::min(cellWidth, cellHeight) / UsualCell);
}

PixelRectangle TableGrid::area(double column, double row, double columns, double rows) const
{
    const double left = std::round(column * cellWidth);
    const double top = std::round(row * cellHeight);
    return {left, top, std::round((column + columns) * cellWidth) - left,
            std::round((row + rows) * cellHeight) - top};
}

PixelRectangle TableGrid::cell(std::int32_t column, std::int32_t row) const
{
    return area(column + FirstColumn, row + FirstRow, 1, 1);
}

} // namespace phial
