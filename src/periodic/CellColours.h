#pragma once

#include "core/Colour.h"

#include <array>
#include <cstdint>
#include <optional>

namespace phial
{

/// The sets of colours of a periodic table.
enum class TableColours : std::int32_t {
    Classic = 0,      ///< a colour for each shell, with red and blue texts
    HighContrast = 1, ///< every text has a contrast of 4.5 to 1 or more on its cell
    Distinct = 2,     ///< shells that differ for everybody, whatever colours they see
    ByTheme = 3,      ///< HighContrast where the theme has it, else Classic cells with captions to fit
};

/// What the cells of one set are painted with. In all but the classic one a sign tells the state of matter
/// besides the text's colour.
struct CellColours {
    std::array<Colour, 7> shells; ///< of a cell's ground, by its shell, from 1
    Colour solid;                 ///< of the symbol or name, by the state of matter
    Colour liquid;
    Colour gas;
    Colour protons;
    std::optional<Colour> mass;     ///< none: the cell's ground, darkened
    std::optional<Colour> paleText; ///< of all texts of a pale cell; none: their own, paled
    Colour caption;                 ///< a role is taken as it can be read on the table's ground
    Colour highlight;               ///< the frame of the highlighted element
    double shade;                   ///< by how many percent a ground begins lighter and ends darker
    bool hasStateSigns;

    /// Resolves ByTheme; a value outside of the named ones is the classic set.
    static const CellColours& of(TableColours set);
};

} // namespace phial
