#include "desk/OxidationExamples.h"

#include "chem/formula/OxidationNumbers.h"

namespace phial
{

namespace
{

constexpr OxidationLine Lines[] = {
    {OxidationRule::Element, {{u"O2", u"O", u"0"}, {u"Fe", u"Fe", u"0"}}},
    {OxidationRule::SimpleIon, {{u"Na^+", u"Na", u"+I"}, {u"S^2-", u"S", u"-II"}}},
    {OxidationRule::Fluorine, {{u"HF", u"F", u"-I"}, {u"OF2", u"F", u"-I"}}},
    {OxidationRule::Metal, {{u"NaCl", u"Na", u"+I"}, {u"Al2O3", u"Al", u"+III"}}},
    {OxidationRule::Hydride, {{u"NaH", u"H", u"-I"}, {u"CaH2", u"H", u"-I"}}},
    {OxidationRule::Hydrogen, {{u"H2O", u"H", u"+I"}, {u"NH3", u"H", u"+I"}}},
    {OxidationRule::Peroxide, {{u"H2O2", u"O", u"-I"}, {u"KO2", u"O", u"-1/2"}}},
    {OxidationRule::Oxygen, {{u"CO2", u"O", u"-II"}, {u"SO4^2-", u"O", u"-II"}}},
    {OxidationRule::Electronegative, {{u"PCl3", u"Cl", u"-I"}, {u"FeS", u"S", u"-II"}}},
    {OxidationRule::Sum, {{u"H2SO4", u"S", u"+VI"}, {u"MnO4^-", u"Mn", u"+VII"}}},
};

} // namespace

std::span<const OxidationLine> oxidationLines()
{
    return Lines;
}

} // namespace phial
