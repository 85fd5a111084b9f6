#pragma once

#include "core/String.h"

#include <cstddef>
#include <vector>

namespace phial
{

/// A part of a term, as positions [begin, end).
struct TermRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Numerator and denominator of a fraction, and where the walk goes on behind it.
struct TermFraction {
    TermRange numerator;
    TermRange denominator;
    std::size_t next = 0;
    bool found = false;
};

/// The brackets and blanks of a term, found once so that every later question takes constant time, however
/// deep the term is nested.
class TermBrackets
{
public:
    explicit TermBrackets(StringView term);

    /// The fraction that starts at the "(" at `open`, seen within the part of the term that ends at `end`.
    /// The numerator must be closed and followed by "/("; an unclosed denominator runs to `end`.
    TermFraction fractionAt(std::size_t open, std::size_t end) const;

    /// Position of the first blank in the part; its end when there is none.
    std::size_t firstBlank(TermRange part) const;

private:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    StringView term_;
    std::vector<std::size_t> closing_;   // for each "(" the position of its ")", else None
    std::vector<std::size_t> nextBlank_; // for each position, the end too, the next blank at or behind it
};

} // namespace phial
