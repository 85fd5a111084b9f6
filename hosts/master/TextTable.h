#pragma once

#include "core/String.h"

#include <cstddef>
#include <iosfwd>
#include <vector>

namespace phial::master
{

/// Rows of texts in aligned columns, for a terminal. What a cell holds stays in it: it is shown safely, on
/// its own writing direction, and one that is too long ends in `…`.
class TextTable
{
public:
    /// In columns of the terminal.
    static constexpr std::size_t MaxCell = 32;

    explicit TextTable(std::vector<String> header);

    /// As many cells as the header has.
    void add(std::vector<String> row);
    bool isEmpty() const { return rows_.size() == 1; }

    void write(std::ostream& output) const;

private:
    std::vector<std::vector<String>> rows_; // the header in front
};

} // namespace phial::master
