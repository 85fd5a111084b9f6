#pragma once

#include "puzzle/ElementFacts.h"

namespace puzzle
{

/// What a wrong place shows about how it was chosen.
enum class PlaceSlip : std::uint8_t {
    MassOrder,     ///< neighbours whose masses are in the other order: Te and I, Ar and K, Co and Ni
    OtherRowBelow, ///< lanthanides and actinides
    BelongsBelow,  ///< in the table instead of below it
    BelongsAbove,  ///< below the table instead of in it
    SameGroup,
    SamePeriod,
    SimilarSymbol, ///< Na and N, K and Kr, P and Pb
    NonMetal,      ///< among the metals
    Metal,         ///< among the non-metals
    SubGroup,      ///< in a main group instead
    MainGroup,     ///< in a subgroup instead
    Elsewhere,
};

/// A slip, and where the right place is as seen from the wrong one.
struct PlaceDiagnosis {
    PlaceSlip slip = PlaceSlip::Elsewhere;
    int down = 0;  ///< rows; up for less than 0
    int right = 0; ///< places of the same row, gaps not counted; left for less than 0

    friend bool operator==(const PlaceDiagnosis&, const PlaceDiagnosis&) = default;
};

/// What led from an element to the place of another one. `right` tells about the same row alone.
PlaceDiagnosis slipOf(const ElementFacts& element, const ElementFacts& place);

/// The same as a friendly sentence for the pupil, in the language in force.
phial::String explained(const PlaceDiagnosis& diagnosis, const ElementFacts& element,
                        const ElementFacts& place);

} // namespace puzzle
