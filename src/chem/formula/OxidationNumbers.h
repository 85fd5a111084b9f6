#pragma once

#include "chem/formula/FormulaTree.h"

#include <optional>
#include <vector>

namespace phial
{

/// Why an atom has its oxidation number, as lessons put it; IUPAC, Red Book 2005, IR-4.6 and IR-5.4.2.
enum class OxidationRule : std::uint8_t {
    Element,         ///< an element by itself has 0
    SimpleIon,       ///< an ion of one element has its charge
    Fluorine,        ///< always -I
    Metal,           ///< alkali metals +I, alkaline earth metals +II, aluminium +III
    Hydrogen,        ///< +I
    Hydride,         ///< hydrogen beside metals, boron or silicon alone: -I
    Oxygen,          ///< -II
    Peroxide,        ///< oxygen in peroxides -I, in hyperoxides -1/2
    Electronegative, ///< the one that draws electrons most has the charge of its simple ion
    Sum              ///< what is left: all numbers add up to the charge
};

/// Why there are no oxidation numbers.
enum class OxidationFault : std::uint8_t {
    NoAtoms,     ///< an electron or a neutron
    SeveralOpen, ///< the rules leave more than one element open
    Unusual,     ///< the rules lead to a number that the element cannot have, or to a wrong sum
    TooLarge     ///< numbers that have no room in 64 bits
};

struct OxidationNumber {
    std::uint32_t item = 0; ///< the atom, of FormulaTree::items
    Rational number{0, 1};
    OxidationRule rule = OxidationRule::Sum;
    /// Whether it is the mean of atoms that differ: several of carbon, or a fraction as in Fe3O4.
    bool isMean = false;
};

struct OxidationNumbers {
    std::vector<OxidationNumber> numbers{}; ///< one an atom of the formula, in its order; empty with a fault
    std::optional<OxidationFault> fault{};
};

/// The oxidation numbers of one species by the rules of school lessons. The ions that lessons know count by
/// themselves, so that the nitrogens of NH4NO3 differ, and so do the parts of a hydrate.
OxidationNumbers oxidationNumbersOf(const FormulaTree& tree, const FormulaSpecies& species);

/// As one writes it: `+VI`, `-II`, `0`, `+8/3`.
String writtenOxidationNumber(const Rational& number);

// In one sentence for a pupil.
String germanSentence(OxidationRule rule);
String englishSentence(OxidationRule rule);
String germanSentence(OxidationFault fault);
String englishSentence(OxidationFault fault);

} // namespace phial
