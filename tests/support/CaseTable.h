#pragma once

#include "core/String.h"
#include "support/Places.h"

#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace phial::test
{

/// One case of a table: its name, and the columns behind the name.
struct CaseRow {
    std::string name; ///< letters and digits, so that it can name a test
    std::vector<String> columns;
};

/// Lets a failing case tell its name.
inline void PrintTo(const CaseRow& row, std::ostream* stream)
{
    *stream << row.name;
}

/// Names the tests of a table after its rows, as last argument of INSTANTIATE_TEST_SUITE_P.
template <typename Info>
std::string caseName(const Info& info)
{
    return info.param.name;
}

namespace detail
{

inline std::string_view withoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\r");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

inline std::vector<std::string_view> columnsOf(std::string_view line)
{
    const std::string_view separator = line.find('\t') == std::string_view::npos ? " | " : "\t";
    std::vector<std::string_view> columns;
    for (;;) {
        const auto end = line.find(separator);
        const std::string_view column = withoutBlanks(line.substr(0, end));
        columns.push_back(column == "\"\"" ? std::string_view() : column);
        if (end == std::string_view::npos) {
            return columns;
        }
        line.remove_prefix(end + separator.size());
    }
}

} // namespace detail

/// Reads a table of `tests/vectors`: one case a line in UTF-8, its columns divided by tabs or by " | ", the
/// name first and `columnCount` more. Blanks around a column do not count; "" stands for an empty one. Empty
/// lines and lines that start with "#" are skipped. Throws for a table that is missing, empty or of another
/// shape.
inline std::vector<CaseRow> readCaseTable(const std::string& fileName, std::size_t columnCount)
{
    std::ifstream file(vectorsFolder() / fileName);
    std::vector<CaseRow> rows;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        const std::string_view text = detail::withoutBlanks(line);
        if (text.empty() || text.front() == '#') {
            continue;
        }
        const auto columns = detail::columnsOf(text);
        if (columns.size() != columnCount + 1) {
            throw std::runtime_error(fileName + ":" + std::to_string(number) + ": " +
                                     std::to_string(columns.size()) + " columns instead of " +
                                     std::to_string(columnCount + 1));
        }
        CaseRow row{std::string(columns.front()), {}};
        for (std::size_t column = 1; column < columns.size(); ++column) {
            row.columns.push_back(fromUtf8(columns[column]));
        }
        rows.push_back(std::move(row));
    }
    if (rows.empty()) {
        throw std::runtime_error(fileName + " is missing or has no cases");
    }
    return rows;
}

} // namespace phial::test
