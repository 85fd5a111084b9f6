#pragma once

#include "chem/cls_DataElements.h"
#include "common/TaskFile.h"

namespace molmasse
{

/// A mass as the trainer shows it: one decimal, with the sign of the language in force.
phial::String massText(double mass);

/// Whether a list of atoms tells their masses too.
enum class AtomMasses : bool { Hidden, Shown };

/// The atoms of a formula as a pupil would write them down, lines divided by "<br>": "2 × H", or with the
/// table's molar mass "2 × H (1,0 g/mol)".
phial::String atomsCounted(const phial::cls_DataElements& elements, const phial::String& formula,
                           AtomMasses masses);

/// The molar mass worked out in one line: "2 · 1,0 + 16,0 = 2,0 + 16,0 = 18,0 g/mol". The products stand in
/// it where there are some to add. A formula with dots is worked out from its parts:
/// "159,6 + 5 · 18,0 = 159,6 + 90,0 = 249,6 g/mol".
phial::String workedLine(const phial::cls_DataElements& elements, const phial::String& formula);

/// The table's molar masses of the elements in these tasks, in the order of the atomic numbers.
std::vector<learning::ReferenceEntry> massesOfElements(phial::cls_DataElements& elements,
                                                       const std::vector<learning::ListedTask>& tasks);

/// What a pupil may write down who stops too early.
phial::String massOfFirstElement(const phial::cls_DataElements& elements, phial::StringView formula);

} // namespace molmasse
