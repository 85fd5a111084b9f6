#pragma once

#include "core/Moment.h"
#include "core/String.h"
#include "visual/Alignment.h"

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace phial
{

/// A column of a printed list.
struct PrintedColumn {
    /// Where its texts begin, end or have their middle, as a share of the width between the margins.
    double place;
    StringView title;
    Alignment align = Alignment::Left;
    /// The text by whose width the title is placed, when it is another than the title.
    StringView titleMeasure = {};
};

/// The texts of a row, one for each column; rows count from 1.
using PrintedRow = std::function<std::vector<String>(std::int32_t position)>;

/// Prints a list on the system's printer, in landscape: the title, the rows under the columns' titles, which
/// every page repeats, and a line that tells when and by whom it was printed. Line ends and tabs in a text
/// are blanks; one that is too long for its column is clipped where the next one begins. A printer's failure
/// is raised.
void printList(StringView title, std::span<const PrintedColumn> columns, std::int32_t rows,
               const PrintedRow& row);

/// A moment as lists print it: "HH:MM:SS dd.mm.yyyy", or empty for one that the calendar does not have.
String printedMoment(Moment moment);

} // namespace phial
