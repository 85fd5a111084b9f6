#include "master/TextTable.h"

#include "master/ShownText.h"

#include <algorithm>
#include <ostream>

namespace phial::master
{

namespace
{

/// A cell as it stands in a line, whoever has written it.
String fitting(StringView text)
{
    const String cell = shownSafely(text);
    if (columnsOf(cell) <= TextTable::MaxCell) {
        return isolated(cell);
    }
    return isolated(String(firstColumns(cell, TextTable::MaxCell - 1)) + u'\u2026');
}

} // namespace

TextTable::TextTable(std::vector<String> header)
{
    add(std::move(header));
}

void TextTable::add(std::vector<String> row)
{
    std::ranges::transform(row, row.begin(), fitting);
    rows_.push_back(std::move(row));
}

void TextTable::write(std::ostream& output) const
{
    std::vector<std::size_t> widths(rows_.front().size());
    for (const auto& row : rows_) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], columnsOf(row[column]));
        }
    }
    for (const auto& row : rows_) {
        String line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            line.append(row[column]).append(widths[column] - columnsOf(row[column]) + 2, u' ');
        }
        output << toUtf8(line.substr(0, line.find_last_not_of(u' ') + 1)) << '\n';
    }
}

} // namespace phial::master
