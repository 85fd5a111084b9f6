#include "chem/MoleculeTable.h"

#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace phial
{

namespace
{

constexpr std::size_t UsualRows = 1000;
constexpr StringView TableEnd = u"<>";
constexpr StringView ModelEnding = u".pdb";

constexpr std::size_t MostColumns = 10;
enum Column : std::size_t { Name, Mass, Formula, File };

using RowColumns = std::array<StringView, MostColumns>;

RowColumns columnsOf(StringView line)
{
    RowColumns columns;
    for (StringView& column : columns) {
        const std::size_t tab = line.find(u'\t');
        column = line.substr(0, tab);
        if (tab == StringView::npos) {
            break;
        }
        line.remove_prefix(tab + 1);
    }
    return columns;
}

/// Takes the next line off the text.
StringView takeLine(StringView& text)
{
    const std::size_t end = text.find(u'\n');
    StringView line = text.substr(0, end);
    text = end == StringView::npos ? StringView() : text.substr(end + 1);
    if (line.ends_with(u'\r')) {
        line.remove_suffix(1);
    }
    return line;
}

/// What texts are compared by.
String key(StringView text)
{
    String kept(text);
    std::erase_if(kept, [](char16_t unit) { return unit == u',' || unit == u'-' || unit == u' '; });
    return kept;
}

String withoutEnding(StringView file)
{
    const bool hasEnding = file.size() > ModelEnding.size() &&
                           equalsIgnoringCase(file.substr(file.size() - ModelEnding.size()), ModelEnding);
    return String(hasEnding ? file.substr(0, file.size() - ModelEnding.size()) : file);
}

/// Whether it can stand in the viewer's script and lies beside the table.
bool isPlainFileName(StringView file)
{
    return !file.empty() && file.find_first_of(u"\\/:\"'; ") == StringView::npos &&
           std::ranges::all_of(file, [](char16_t unit) { return unit >= u' '; });
}

} // namespace

MoleculeTable::MoleculeTable(StringView text)
{
    rows_.reserve(UsualRows);
    while (!text.empty() && rows_.size() < MaximumRows) {
        const String line = trimmed(takeLine(text));
        if (line == TableEnd) {
            break;
        }
        add(line);
    }
}

void MoleculeTable::add(StringView line)
{
    const RowColumns columns = columnsOf(line);
    const String file = withoutEnding(trimmed(columns[File]));
    String name = trimmed(columns[Name]);
    if (name.empty() || !isPlainFileName(file)) {
        return;
    }
    const double mass = numberAtStart(replaced(columns[Mass], u",", u".")).value;
    String formula = trimmed(replaced(columns[Formula], u"@", u""));
    String nameKey = key(name);
    String formulaKey = key(formula);
    String fileKey = key(file);
    rows_.push_back({.model = {std::move(name), mass, std::move(formula), file},
                     .nameKey = std::move(nameKey),
                     .formulaKey = std::move(formulaKey),
                     .fileKey = std::move(fileKey)});
}

const MoleculeModel* MoleculeTable::find(StringView nameOrFormula, StringView name) const
{
    const String wanted = key(nameOrFormula);
    const String wantedName = key(name);
    const auto found = std::ranges::find_if(rows_, [&](const Row& row) {
        const bool isWanted =
            !wanted.empty() && (equalsIgnoringCase(row.nameKey, wanted) || row.formulaKey == wanted);
        return isWanted || (!wantedName.empty() && (equalsIgnoringCase(row.nameKey, wantedName) ||
                                                    equalsIgnoringCase(row.fileKey, wantedName)));
    });
    return found == rows_.end() ? nullptr : &found->model;
}

} // namespace phial
