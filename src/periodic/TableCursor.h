#pragma once

#include "core/String.h"
#include "visual/Input.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace phial
{

/// A place where the cursor of the periodic table can stand, by the elements' rows and columns. A tile at
/// home stands between two columns.
struct CursorStop {
    double row = 0;
    double column = 0;
    bool isElement = true; ///< and no tile that lies on none
    std::size_t part = 0;  ///< which of the control's parts is there

    bool isAt(const CursorStop& other) const { return row == other.row && column == other.column; }
};

enum class CursorStep { Left, Right, Up, Down, RowStart, RowEnd, First, Last };

/// What a key means for the cursor; none for all others. Arrows, Home and End count alone, Home and End with
/// Ctrl as well.
std::optional<CursorStep> cursorStepOf(const KeyEvent& key);

/// The stop that a step from another one leads to; the same where there is no way on.
///
/// - Left and right stay in the row and leap over gaps: from hydrogen to helium. The two rows below the table
///   are left where they belong: left of cerium is lanthanum, right of lutetium hafnium, and likewise for
///   the actinides.
/// - Up and down stay in the column and leap over gaps: down from boron is aluminium, up from it is nothing.
///   From, to and between the rows that stand below the periods (tiles, lanthanides, actinides) the nearest
///   column counts, of two the left one.
/// - The start and the end of a row; the first and the last element of the table.
std::size_t stopAfter(std::span<const CursorStop> stops, std::size_t from, CursorStep step);

/// The stop that is nearest to a place; none without stops.
std::optional<std::size_t> nearestStop(std::span<const CursorStop> stops, const CursorStop& place);

/// Which symbol letters mean that are typed one after the other.
class LetterSearch
{
public:
    /// Letters within so many seconds belong together.
    static constexpr double Patience = 1;

    /// The symbol that a letter, typed at a time in seconds, leads to, without regard to case; none where no
    /// symbol begins so. Letters that follow quickly spell a symbol ("c" and "l": Cl). Otherwise the letter
    /// begins anew: with the symbol that it is itself, else with the first that begins with it; and where
    /// `from` begins with it, with the next one, round and round.
    std::optional<std::size_t> find(char16_t letter, double seconds, std::span<const String> symbols,
                                    std::optional<std::size_t> from);

private:
    String typed_;
    double last_ = 0;
};

} // namespace phial
