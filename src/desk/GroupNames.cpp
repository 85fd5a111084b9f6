#include "desk/GroupNames.h"

namespace phial
{

namespace
{

/// Methane comes twice, the dichromate has that charge, and the hexacyanoferrate lacks a letter in German.
constexpr GroupName Groups[] = {
    {u" Ammonium-| Ammonium", u"NH@4|^+|"},
    {u" -bromid| -bromide", u"Br^-|"},
    {u" -bromat| -bromate", u"BrO@3|^-|"},
    {u" -carbid| -carbide", u"C^4-|"},
    {u" -ethanat| -ethanoate", u"CH@3|CO@2|^-|"},
    {u" -tartrat| -tartrate", u"C@4|H@4|CO@6|^-|"},
    {u" -cyanid| -cyanide", u"CN^-|"},
    {u" -carbonat| -carbonate", u"CO@3|^2-|"},
    {u" -oxalat| -oxalate", u"C@2|O@4|^2-|"},
    {u" -chlorid| -chloride", u"Cl^-|"},
    {u" -hypochlorit| -hypochlorite", u"ClO^-|"},
    {u" -chlorat| -chlorate", u"ClO@3|^-|"},
    {u" -perchlorat| -perchlorate", u"ClO@4|^-|"},
    {u" -chromat| -chromate", u"CrO@4|^2-|"},
    {u" -dichromat| -dichromate", u"Cr@2|O@7|^7-|", false},
    {u" -fluorid| -fluoride", u"F^-|"},
    {u" -hexacynoferrat| -hexacyanoferrate", u"Fe(CN)@6|^3-|", false},
    {u" -iodid| -iodide", u"I^-|"},
    {u" -permanganat| -permanganate", u"MnO@4|^-|"},
    {u" -nitrid| -nitride", u"N|^3-|"},
    {u" -nitrit| -nitrite", u"NO@2|^-|"},
    {u" -nitrat| -nitrate", u"NO@3|^-|"},
    {u" -oxid| -oxide", u"O^2-|"},
    {u" -peroxid| -peroxide", u"O@2|^2-|"},
    {u" -hydroxid| -hydroxide", u"OH^-|"},
    {u" -phosphat| -phosphate", u"PO@4|^3-|"},
    {u" -sulfid| -sulfide", u"S^2-|"},
    {u" -sulfit| -sulfite", u"SO@3|^2-|"},
    {u" -sulfat| -sulfate", u"SO@4|^2-|"},
    {u" -thiosulfat| -thiosulfate", u"S@2|O@3|^2-|"},
    {u" -hydrogen- !!!| hydrogen- !!!", u"H^+|", false},
    {u" Ammoniak | Ammonia ", u"NH@3|"},
    {u" Methan | Methane ", u"CH@4|"},
    {u" Salzsäure | Hydrochloric acid ", u"HCl in H@2|O"},
    {u" Salpetersäure | Nitric acid ", u"HNO@3|"},
    {u" Phosphorsäure | Phosphoric acid ", u"H@3|PO@4|"},
    {u" Essigsäure | Acetic acid ", u"CH@3|CO@2|H"},
    {u" Ameisensäure | Formic acid ", u"HCO@2|H"},
    {u" Schwefelsäure | Sulfuric acid ", u"H@2|SO@4|"},
    {u" Schweflige Säure| Sulfurous acid", u"H@2|SO@3|"},
    {u" Hydrid | Hydride ", u"H^-|"},
    {u" -peroxodisulfat| -peroxodisulfate", u"S@2|O@8|^2-|"},
    {u" Methan | Methane ", u"CH@4|"},
    {u" Ethan | Ethane ", u"C@2|H@6|"},
    {u" Propan | Propane ", u"C@3|H@8|"},
    {u" Butan | Butane ", u"C@4|H@10|"},
    {u" -thiocyanat| -thiocyanate", u"SCN^-|"},
    {u" Pentan | Pentane ", u"C@5|H@12|"},
    {u" Oxonium| Oxonium", u"H@3|O^+|"},
};

} // namespace

std::span<const GroupName> groupNames()
{
    return Groups;
}

} // namespace phial
