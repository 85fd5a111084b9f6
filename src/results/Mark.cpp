#include "results/Mark.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace phial
{

namespace
{

using enum enm_Mark;

constexpr double PointsMaxIfNone = 100;

constexpr std::array<MarkRow, 16> MarkRows = {{
    {ID_Mark_6, u"6", u"Ungenügend", 0.10},
    {ID_Mark_5M, u"5-", u"Mangelhaft minus", 0.20},
    {ID_Mark_5, u"5", u"Mangelhaft", 0.30},
    {ID_Mark_5P, u"5+", u"Mangelhaft plus", 0.40},
    {ID_Mark_4M, u"4-", u"Ausreichend minus", 0.45},
    {ID_Mark_4, u"4", u"Ausreichend", 0.50},
    {ID_Mark_4P, u"4+", u"Ausreichend plus", 0.55},
    {ID_Mark_3M, u"3-", u"Befriedigend minus", 0.60},
    {ID_Mark_3, u"3", u"Befriedigend", 0.65},
    {ID_Mark_3P, u"3+", u"Befriedigend plus", 0.70},
    {ID_Mark_2M, u"2-", u"Gut minus", 0.75},
    {ID_Mark_2, u"2", u"Gut", 0.80},
    {ID_Mark_2P, u"2+", u"Gut plus", 0.85},
    {ID_Mark_1M, u"1-", u"Sehr gut minus", 0.90},
    {ID_Mark_1, u"1", u"Sehr gut", 0.95},
    {ID_Mark_1P, u"1+", u"Sehr gut plus", 1.00},
}};

constexpr bool riseTogether()
{
    for (std::size_t row = 1; row < MarkRows.size(); ++row) {
        if (static_cast<std::size_t>(MarkRows[row].mark) != row ||
            MarkRows[row].below <= MarkRows[row - 1].below) {
            return false;
        }
    }
    return true;
}
static_assert(riseTogether());

} // namespace

const MarkRow& markFor(double points, double pointsMax)
{
    if (!std::isfinite(points) || !std::isfinite(pointsMax)) {
        return MarkRows.front();
    }
    if (pointsMax == 0) {
        pointsMax = PointsMaxIfNone;
    }
    // Less than nothing falls to the lowest row and more than the maximum to the highest by themselves.
    const double ratio = pointsMax > 0 ? points / pointsMax : 0;
    const auto* const found =
        std::ranges::find_if(MarkRows, [ratio](const MarkRow& row) { return ratio < row.below; });
    return found != MarkRows.end() ? *found : MarkRows.back();
}

} // namespace phial
