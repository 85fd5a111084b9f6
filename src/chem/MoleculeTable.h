#pragma once

#include "core/String.h"

#include <cstddef>
#include <vector>

namespace phial
{

/// One row of the table of models.
struct MoleculeModel {
    String name;     ///< of the compound
    double mass = 0; ///< molar, in g/mol
    String formula;  ///< without marks: "C2H6O"
    String file;     ///< of the model, without its ending
};

/// The compounds of which there is a model in three dimensions.
///
/// The table is text, one row a line, with tabs between its columns: name, molar mass (comma or point),
/// formula, the model's file. A formula may have an "@" before each lowered part. Lines are taken without
/// blanks around them, empty ones count as nothing, and "<>" ends the table. What follows the tenth column is
/// not read. A row without a name, or without a file of the table's own folder, is left out, and so is what
/// follows the row number `MaximumRows`.
///
///     Ethanol<tab>46,1<tab>C@2H@6O<tab>ethanol
///
/// A compound may have several rows, for its other names and ways to write it.
class MoleculeTable
{
public:
    static constexpr std::size_t MaximumRows = 10'000;

    MoleculeTable() = default;
    explicit MoleculeTable(StringView text);

    std::size_t size() const { return rows_.size(); }

    /// The first row whose compound has this name, in any case of letters, or exactly this formula; or whose
    /// compound or file is called `name`, in any case of letters. Commas, minus signs and blanks make no
    /// difference, and what is empty without them is not looked for. Null when there is no such row.
    const MoleculeModel* find(StringView nameOrFormula, StringView name = {}) const;

private:
    struct Row {
        MoleculeModel model;
        String nameKey;
        String formulaKey;
        String fileKey;
    };
    void add(StringView line);

    std::vector<Row> rows_;
};

} // namespace phial
