#pragma once

#include "core/String.h"

namespace phial
{

/// How a name stands in a cell: on one line, or broken at a syllable.
struct NameLines {
    String first;
    String second; ///< empty: one line

    friend bool operator==(const NameLines&, const NameLines&) = default;
};

/// Names that are too long for a cell, by a table; every other one has one line.
NameLines linesOf(StringView name);

} // namespace phial
