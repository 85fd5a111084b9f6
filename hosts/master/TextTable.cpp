#include "master/TextTable.h"

#include <algorithm>
#include <ostream>

namespace phial::master
{

namespace
{

bool isLowHalf(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Signs, each of one or two units.
std::size_t width(StringView text)
{
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, isLowHalf));
}

String fitting(String cell)
{
    if (cell.size() <= TextTable::MaxCell) {
        return cell;
    }
    const std::size_t end =
        isLowHalf(cell[TextTable::MaxCell - 1]) ? TextTable::MaxCell - 2 : TextTable::MaxCell - 1;
    return cell.substr(0, end) + u'\u2026';
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
            widths[column] = std::max(widths[column], width(row[column]));
        }
    }
    for (const auto& row : rows_) {
        String line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            line.append(row[column]).append(widths[column] - width(row[column]) + 2, u' ');
        }
        output << toUtf8(line.substr(0, line.find_last_not_of(u' ') + 1)) << '\n';
    }
}

} // namespace phial::master
