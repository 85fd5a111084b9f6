#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// The sixteen marks of the German school scale. The value is at the same time the number of points of the
/// upper-school scale. Values outside occur: `ctl_Mark.MARKTEXT` makes -1 of "6-".
enum class enm_Mark : std::int32_t {
    ID_Mark_6 = 0,
    ID_Mark_5M = 1,
    ID_Mark_5 = 2,
    ID_Mark_5P = 3,
    ID_Mark_4M = 4,
    ID_Mark_4 = 5,
    ID_Mark_4P = 6,
    ID_Mark_3M = 7,
    ID_Mark_3 = 8,
    ID_Mark_3P = 9,
    ID_Mark_2M = 10,
    ID_Mark_2 = 11,
    ID_Mark_2P = 12,
    ID_Mark_1M = 13,
    ID_Mark_1 = 14,
    ID_Mark_1P = 15,
};

/// One row of the scale.
struct MarkRow {
    enm_Mark mark;
    /// Such as "2+", and in words.
    StringView school;
    StringView words;
    /// The share of the reachable points below which the mark is this one or a worse; 1 itself belongs to the
    /// best mark.
    double below;
};

/// The mark for points out of those reachable: 0 reachable points count as 100, points are kept between 0
/// and the reachable ones. Negative reachable points give the worst mark, and so does what is no finite
/// number.
const MarkRow& markFor(double points, double pointsMax);

} // namespace phial
