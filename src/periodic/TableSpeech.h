#pragma once

#include "periodic/PeriodicSheet.h"
#include "periodic/TileHand.h"

namespace phial
{

/// What screen readers say of the table and of what is done with it, in the language in force. Where tiles
/// are to be placed nothing gives away which element belongs to an empty place.

/// "Sauerstoff, O, 8, 16,0 Gramm pro Mol, Gas", "Oxygen, O, 8, 16.0 grams per mole, gas"
String spokenElement(const cls_DataElement& element);
/// "Gruppe 17, Periode 3"; of the two rows below the table "Lanthanide, Platz 2", and where no element can be
/// "ein Feld neben den Elementen".
String spokenPlace(DragTile::Target place);
/// A cell while tiles are placed: "Gruppe 17, Periode 3, leer", or the symbol of the tile on it.
String spokenCell(DragTile::Target place, const DragTiles& tiles);
/// "Cl, noch nicht eingeordnet", "Cl auf Gruppe 17, Periode 3"
String spokenTile(const DragTile& tile);
/// "Cl genommen", "Cl auf Gruppe 17, Periode 3"; empty for nothing.
String spokenAct(const TileHand::Act& act, const DragTiles& tiles);

} // namespace phial
