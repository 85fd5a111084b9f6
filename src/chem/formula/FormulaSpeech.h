#pragma once

#include "chem/formula/FormulaTree.h"

namespace phial
{

// How a formula or an equation is read aloud. A formula that lessons have a name for begins with it.

/// "Sulfat: S O vier, zweifach negativ geladen"
String spokenInGerman(const FormulaTree& tree);
/// "sulfate: S O four, charge two minus"
String spokenInEnglish(const FormulaTree& tree);

} // namespace phial
