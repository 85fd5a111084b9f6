#include "chem/ElementSymbols.h"

#include <array>
#include <cstdint>

namespace phial
{

namespace
{

constexpr auto Elements = std::to_array<ElementSymbol>({
    {u"H", u"Wasserstoff", u"hydrogen"},
    {u"He", u"Helium", u"helium"},
    {u"Li", u"Lithium", u"lithium"},
    {u"Be", u"Beryllium", u"beryllium"},
    {u"B", u"Bor", u"boron"},
    {u"C", u"Kohlenstoff", u"carbon"},
    {u"N", u"Stickstoff", u"nitrogen"},
    {u"O", u"Sauerstoff", u"oxygen"},
    {u"F", u"Fluor", u"fluorine"},
    {u"Ne", u"Neon", u"neon"},
    {u"Na", u"Natrium", u"sodium"},
    {u"Mg", u"Magnesium", u"magnesium"},
    {u"Al", u"Aluminium", u"aluminium"},
    {u"Si", u"Silicium", u"silicon"},
    {u"P", u"Phosphor", u"phosphorus"},
    {u"S", u"Schwefel", u"sulfur"},
    {u"Cl", u"Chlor", u"chlorine"},
    {u"Ar", u"Argon", u"argon"},
    {u"K", u"Kalium", u"potassium"},
    {u"Ca", u"Calcium", u"calcium"},
    {u"Sc", u"Scandium", u"scandium"},
    {u"Ti", u"Titan", u"titanium"},
    {u"V", u"Vanadium", u"vanadium"},
    {u"Cr", u"Chrom", u"chromium"},
    {u"Mn", u"Mangan", u"manganese"},
    {u"Fe", u"Eisen", u"iron"},
    {u"Co", u"Cobalt", u"cobalt"},
    {u"Ni", u"Nickel", u"nickel"},
    {u"Cu", u"Kupfer", u"copper"},
    {u"Zn", u"Zink", u"zinc"},
    {u"Ga", u"Gallium", u"gallium"},
    {u"Ge", u"Germanium", u"germanium"},
    {u"As", u"Arsen", u"arsenic"},
    {u"Se", u"Selen", u"selenium"},
    {u"Br", u"Brom", u"bromine"},
    {u"Kr", u"Krypton", u"krypton"},
    {u"Rb", u"Rubidium", u"rubidium"},
    {u"Sr", u"Strontium", u"strontium"},
    {u"Y", u"Yttrium", u"yttrium"},
    {u"Zr", u"Zirconium", u"zirconium"},
    {u"Nb", u"Niob", u"niobium"},
    {u"Mo", u"Molybdän", u"molybdenum"},
    {u"Tc", u"Technetium", u"technetium"},
    {u"Ru", u"Ruthenium", u"ruthenium"},
    {u"Rh", u"Rhodium", u"rhodium"},
    {u"Pd", u"Palladium", u"palladium"},
    {u"Ag", u"Silber", u"silver"},
    {u"Cd", u"Cadmium", u"cadmium"},
    {u"In", u"Indium", u"indium"},
    {u"Sn", u"Zinn", u"tin"},
    {u"Sb", u"Antimon", u"antimony"},
    {u"Te", u"Tellur", u"tellurium"},
    {u"I", u"Iod", u"iodine"},
    {u"Xe", u"Xenon", u"xenon"},
    {u"Cs", u"Caesium", u"caesium"},
    {u"Ba", u"Barium", u"barium"},
    {u"La", u"Lanthan", u"lanthanum"},
    {u"Ce", u"Cer", u"cerium"},
    {u"Pr", u"Praseodym", u"praseodymium"},
    {u"Nd", u"Neodym", u"neodymium"},
    {u"Pm", u"Promethium", u"promethium"},
    {u"Sm", u"Samarium", u"samarium"},
    {u"Eu", u"Europium", u"europium"},
    {u"Gd", u"Gadolinium", u"gadolinium"},
    {u"Tb", u"Terbium", u"terbium"},
    {u"Dy", u"Dysprosium", u"dysprosium"},
    {u"Ho", u"Holmium", u"holmium"},
    {u"Er", u"Erbium", u"erbium"},
    {u"Tm", u"Thulium", u"thulium"},
    {u"Yb", u"Ytterbium", u"ytterbium"},
    {u"Lu", u"Lutetium", u"lutetium"},
    {u"Hf", u"Hafnium", u"hafnium"},
    {u"Ta", u"Tantal", u"tantalum"},
    {u"W", u"Wolfram", u"tungsten"},
    {u"Re", u"Rhenium", u"rhenium"},
    {u"Os", u"Osmium", u"osmium"},
    {u"Ir", u"Iridium", u"iridium"},
    {u"Pt", u"Platin", u"platinum"},
    {u"Au", u"Gold", u"gold"},
    {u"Hg", u"Quecksilber", u"mercury"},
    {u"Tl", u"Thallium", u"thallium"},
    {u"Pb", u"Blei", u"lead"},
    {u"Bi", u"Bismut", u"bismuth"},
    {u"Po", u"Polonium", u"polonium"},
    {u"At", u"Astat", u"astatine"},
    {u"Rn", u"Radon", u"radon"},
    {u"Fr", u"Francium", u"francium"},
    {u"Ra", u"Radium", u"radium"},
    {u"Ac", u"Actinium", u"actinium"},
    {u"Th", u"Thorium", u"thorium"},
    {u"Pa", u"Protactinium", u"protactinium"},
    {u"U", u"Uran", u"uranium"},
    {u"Np", u"Neptunium", u"neptunium"},
    {u"Pu", u"Plutonium", u"plutonium"},
    {u"Am", u"Americium", u"americium"},
    {u"Cm", u"Curium", u"curium"},
    {u"Bk", u"Berkelium", u"berkelium"},
    {u"Cf", u"Californium", u"californium"},
    {u"Es", u"Einsteinium", u"einsteinium"},
    {u"Fm", u"Fermium", u"fermium"},
    {u"Md", u"Mendelevium", u"mendelevium"},
    {u"No", u"Nobelium", u"nobelium"},
    {u"Lr", u"Lawrencium", u"lawrencium"},
    {u"Rf", u"Rutherfordium", u"rutherfordium"},
    {u"Db", u"Dubnium", u"dubnium"},
    {u"Sg", u"Seaborgium", u"seaborgium"},
    {u"Bh", u"Bohrium", u"bohrium"},
    {u"Hs", u"Hassium", u"hassium"},
    {u"Mt", u"Meitnerium", u"meitnerium"},
    {u"Ds", u"Darmstadtium", u"darmstadtium"},
    {u"Rg", u"Roentgenium", u"roentgenium"},
    {u"Cn", u"Copernicium", u"copernicium"},
    {u"Nh", u"Nihonium", u"nihonium"},
    {u"Fl", u"Flerovium", u"flerovium"},
    {u"Mc", u"Moscovium", u"moscovium"},
    {u"Lv", u"Livermorium", u"livermorium"},
    {u"Ts", u"Tenness", u"tennessine"},
    {u"Og", u"Oganesson", u"oganesson"},
});
static_assert(Elements.size() == LastElement);

constexpr std::size_t Letters = 26;

/// Where a symbol of the first letter, and of none (0) or one of the second letters, stands.
constexpr auto Places = [] {
    std::array<std::array<std::uint8_t, Letters + 1>, Letters> places{};
    for (std::size_t at = 0; at < Elements.size(); ++at) {
        const StringView symbol = Elements[at].symbol;
        const std::size_t second = symbol.size() > 1 ? symbol[1] - std::size_t{u'a'} + 1 : 0;
        places[symbol[0] - std::size_t{u'A'}][second] = static_cast<std::uint8_t>(at + 1);
    }
    return places;
}();

} // namespace

const ElementSymbol& elementOf(int atomicNumber)
{
    return Elements.at(static_cast<std::size_t>(atomicNumber) - 1);
}

int atomicNumberOf(StringView symbol)
{
    const bool isLetter = symbol.size() == 1;
    const bool isPair = symbol.size() == 2 && symbol[1] != u'\0';
    return isLetter ? atomicNumberOf(symbol[0], u'\0') : isPair ? atomicNumberOf(symbol[0], symbol[1]) : 0;
}

int atomicNumberOf(char16_t first, char16_t second)
{
    if (first < u'A' || first > u'Z' || (second != u'\0' && (second < u'a' || second > u'z'))) {
        return 0;
    }
    const std::size_t column = second == u'\0' ? 0 : second - std::size_t{u'a'} + 1;
    return Places[first - std::size_t{u'A'}][column];
}

} // namespace phial
