#pragma once

#include "periodic/PeriodicPlaces.h"

namespace phial
{

class DrawDevice;
struct CellStyle;

/// The captions around the table: groups, periods and their names.
void paintTableLabels(DrawDevice& device, const TableGrid& grid, const CellStyle& style);

/// The rows that tell which orbital each column fills.
void paintElectronStates(DrawDevice& device, const TableGrid& grid, const CellStyle& style);

} // namespace phial
