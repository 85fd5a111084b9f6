#include "periodic/NameLines.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

struct BrokenName {
    StringView name; ///< as the element files have it
    StringView first;
    StringView second;
};

/// Behind the names of older files those of today's.
constexpr auto BrokenNames = std::to_array<BrokenName>({
    {u"Wasserstoff", u"Wasser-", u"stoff"},   {u"Kohlenstoff", u"Kohlen-", u"stoff"},
    {u"Stickstoff", u"Stick-", u"stoff"},     {u"Sauerstoff", u"Sauer-", u"stoff"},
    {u"Magnesium", u"Magne-", u"sium"},       {u"Aluminium", u"Alumi-", u"nium"},
    {u"Phosphor", u"Phos-", u"phor"},         {u"Rubidium", u"Rubi-", u"dium"},
    {u"Strontium", u"Stron-", u"tium"},       {u"Germanium", u"Germa-", u"nium"},
    {u"Scandium", u"Scan-", u"dium"},         {u"Vanadium", u"Vana-", u"dium"},
    {u"Molybdaen", u"Molyb-", u"daen"},       {u"Technetium", u"Techne-", u"tium"},
    {u"Quecksilber", u"Queck-", u"silber"},   {u"Rutherfordium", u"Ruther-", u"fordium"},
    {u"Seaborgium", u"Seabor-", u"gium"},     {u"Meitnerium", u"Meit-", u"rium"},
    {u"Darmstadtium", u"Darm-", u"stadtium"}, {u"Copernicum", u"Coperni-", u"cum"},
    {u"Roentgenium", u"Roent-", u"genium"},   {u"Ununtrium", u"Unun-", u"trium"},
    {u"Promethium", u"Prome-", u"thium"},     {u"Gadolinium", u"Gadoli-", u"nium"},
    {u"Dysprosium", u"Dyspro-", u"sium"},     {u"Protactinium", u"Protac-", u"tinium"},
    {u"Plutonium", u"Pluto-", u"nium"},       {u"Californium", u"Califor-", u"nium"},
    {u"Mendelevium", u"Mende-", u"levium"},   {u"Lawrencium", u"Lawren-", u"cium"},
    {u"Molybdän", u"Molyb-", u"dän"},         {u"Copernicium", u"Coperni-", u"cium"},
    {u"Nihonium", u"Niho-", u"nium"},         {u"Nobelium", u"Nobe-", u"lium"},
    {u"Beryllium", u"Beryl-", u"lium"},       {u"Zirconium", u"Zirco-", u"nium"},
    {u"Ruthenium", u"Ruthe-", u"nium"},       {u"Palladium", u"Palla-", u"dium"},
    {u"Praseodym", u"Praseo-", u"dym"},       {u"Ytterbium", u"Ytter-", u"bium"},
    {u"Neptunium", u"Neptu-", u"nium"},       {u"Americium", u"Ameri-", u"cium"},
    {u"Berkelium", u"Berke-", u"lium"},       {u"Einsteinium", u"Einstei-", u"nium"},
    {u"Flerovium", u"Flero-", u"vium"},       {u"Moscovium", u"Mosco-", u"vium"},
    {u"Livermorium", u"Livermo-", u"rium"},   {u"Oganesson", u"Oganes-", u"son"},
    {u"Francium", u"Fran-", u"cium"},         {u"Actinium", u"Acti-", u"nium"},
    {u"Europium", u"Euro-", u"pium"},         {u"Samarium", u"Sama-", u"rium"},
    {u"Lutetium", u"Lute-", u"tium"},         {u"Rhenium", u"Rhe-", u"nium"},
    {u"Dubnium", u"Dub-", u"nium"},           {u"Polonium", u"Polo-", u"nium"},
    {u"Cadmium", u"Cad-", u"mium"},           {u"Rhodium", u"Rho-", u"dium"},
    {u"Holmium", u"Hol-", u"mium"},           {u"Fermium", u"Fer-", u"mium"},
});

} // namespace

NameLines linesOf(StringView name)
{
    const auto broken = std::find_if(BrokenNames.begin(), BrokenNames.end(),
                                     [&](const BrokenName& each) { return each.name == name; });
    if (broken == BrokenNames.end()) {
        return {String(name), {}};
    }
    return {String(broken->first), String(broken->second)};
}

} // namespace phial
