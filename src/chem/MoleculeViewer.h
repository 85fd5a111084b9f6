#pragma once

#include "chem/MoleculeTable.h"

/// The viewer RasMol, which shows molecules in three dimensions. Its folder is given with a backslash at its
/// end.
namespace phial
{

/// The table of models in the viewer's folder, which becomes the current one. Empty when there is no such
/// folder or file, and when the file is larger than any table.
MoleculeTable readMolecules(const String& folder);

/// Writes the viewer's script and starts the viewer, or tells the user why it cannot. Gives whether it was
/// started.
///
/// The viewer is the RASWIN32.EXE of its folder where that runs, and otherwise the one that is installed on
/// the computer as `rasmol`. The script "qv.scr" lies in its folder, or, where the installation is not the
/// user's to write, in the user's cache.
bool showMolecule(const MoleculeModel& model, const String& folder);

} // namespace phial
