#pragma once

#include "core/String.h"

#include <cstddef>
#include <memory_resource>
#include <vector>

namespace phial
{

/// The next symbol of a formula at or behind `position`: a capital A to Z and the small letters a to z that
/// follow it. Moves `position` behind the symbol; gives an empty view, and the end as position, when there is
/// none.
StringView nextSymbol(StringView formula, std::size_t& position);

/// How often a symbol occurs in a formula.
struct AtomCount {
    StringView symbol; ///< a part of the formula's text
    double count = 0;
};

/// The atoms of a sum formula in plain notation, such as Ca(OH)2: one entry a symbol, in the order of first
/// appearance. The formula's text must outlive this object.
///
/// Any text is taken: what is neither a digit, a round bracket nor part of a symbol is skipped. What follows
/// from the notation, and stays so:
///
/// | Formula    | Counts                 | Since |
/// |------------|------------------------|-------|
/// | CH3COOH    | C 2, H 4, O 2          | an element written twice is added up |
/// | Al2(SO4)3  | Al 2, S 3, O 12        | the number behind a group multiplies it |
/// | Na(OH)     | Na 1, O 0, H 0         | a group counts only with a number written behind it |
/// | Ca2(OH)2   | Ca 2, O 2, H 2         | a number before a group waits for the next capital or the end |
/// | (OH        | O 0, H 0               | a group without an end runs to the end, and has no number |
/// | 2H2O       | H 2, O 1               | a number in front belongs to no symbol |
/// | SO4^2-     | S 1, O 42              | digits join across what is skipped; charges are not understood |
///
/// Time and memory are in proportion to the length of the formula, however deep its groups nest. Counts are
/// doubles: exact up to 2^53, infinite beyond their range.
class AtomCounts
{
public:
    /// Reads the formula. Raises 6 when the number behind a group does not fit into 32 bits.
    explicit AtomCounts(StringView formula);
    AtomCounts(const AtomCounts&) = delete;
    AtomCounts& operator=(const AtomCounts&) = delete;

    auto begin() const { return atoms_.begin(); }
    auto end() const { return atoms_.end(); }
    std::size_t size() const { return atoms_.size(); }

private:
    // An ordinary formula fits in here, so that reading it takes no memory from the heap.
    static constexpr std::size_t InlineBytes = 1024;
    alignas(std::max_align_t) std::byte buffer_[InlineBytes];
    std::pmr::monotonic_buffer_resource memory_{buffer_, InlineBytes};
    std::pmr::vector<AtomCount> atoms_{&memory_};
};

} // namespace phial
