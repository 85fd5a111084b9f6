#pragma once

#include "chem/formula/FormulaTree.h"

#include <functional>
#include <optional>
#include <vector>

namespace phial
{

/// How many atoms of an element there are. Isotopes that the formula names count by themselves.
struct ElementCount {
    std::uint8_t element = 0;    ///< atomic number
    std::int32_t massNumber = 0; ///< 0 for the natural mixture
    Rational count{0, 1};

    friend bool operator==(const ElementCount&, const ElementCount&) = default;
};

/// The atoms of one species, without its factor, by atomic number and mass number. Groups and the factors of
/// hydrate parts are multiplied out. None where a number becomes too large for 64 bits.
std::optional<std::vector<ElementCount>> atomsIn(const FormulaTree& tree, const FormulaSpecies& species);

/// The sum formula in Hill's order: C, H, then all others by the alphabet; without carbon all by the alphabet
/// (E. A. Hill, J. Am. Chem. Soc. 1900, 22, 478). As plain text, with the charge;
/// where a hydrate's factor is a fraction, the smallest whole multiple. Empty for numbers too large.
String hillFormula(const FormulaTree& tree, const FormulaSpecies& species);

/// A mass in g/mol by symbol; none for an element that the table does not have.
using MassOfElement = std::function<std::optional<double>(StringView symbol)>;

/// The molar mass of one species in g/mol, without its factor, by these masses and unrounded. Deuterium and
/// tritium have their own mass (CIAAW 2021: 2.0141, 3.0160), other isotopes their mass number. None where a
/// mass is missing.
std::optional<double> molarMassOf(const FormulaTree& tree, const FormulaSpecies& species,
                                  const MassOfElement& massOf);

/// What share of a species' mass its elements have, 0 to 1, in the order of atomsIn; empty where a mass is
/// missing.
std::vector<double> massFractionsOf(const FormulaTree& tree, const FormulaSpecies& species,
                                    const MassOfElement& massOf);

} // namespace phial
