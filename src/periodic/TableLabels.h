#pragma once

#include "periodic/PeriodicPlaces.h"

namespace phial
{

class DrawDevice;

/// The captions around the table: groups, periods and their names.
void paintTableLabels(DrawDevice& device, const TableGrid& grid);

/// The rows that tell which orbital each column fills.
void paintElectronStates(DrawDevice& device, const TableGrid& grid);

} // namespace phial
