// Any text is a table of models: the first line is looked for in the table that the rest tells.

#include "chem/MoleculeTable.h"
#include "fuzz/FuzzInput.h"

#include <cmath>

namespace
{

using namespace phial;
using fuzz::require;

/// A file name leads nowhere else, and adds nothing to the script that it stands in.
void requireHarmless(const MoleculeModel& model)
{
    require(!model.name.empty() && !model.file.empty());
    require(model.file.find_first_of(u"\\/:;\"' \t\r\n") == String::npos);
    require(model.formula.find(u'@') == String::npos);
    require(std::isfinite(model.mass));
}

void requireFoundAgain(const MoleculeTable& table, const MoleculeModel& model)
{
    const bool hasLetters = model.name.find_first_not_of(u",- ") != String::npos;
    require(hasLetters == (table.find(model.name) != nullptr));
    require(hasLetters == (table.find(upperCase(model.name)) != nullptr));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const String text = fuzz::textOf(data, size);
    const StringView wanted = StringView(text).substr(0, text.find(u'\n'));
    const StringView rows = StringView(text).substr(wanted.size());
    const MoleculeTable table(rows);
    require(table.size() <= MoleculeTable::MaximumRows);
    for (const MoleculeModel* model : {table.find(wanted), table.find({}, wanted)}) {
        if (model) {
            requireHarmless(*model);
            requireFoundAgain(table, *model);
        }
    }
    return 0;
}
