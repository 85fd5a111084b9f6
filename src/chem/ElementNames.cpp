#include "chem/ElementNames.h"

#include "chem/cls_DataElement.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

struct EnglishName {
    StringView symbol;
    StringView name;
};

/// As within a sentence.
constexpr auto EnglishNames = std::to_array<EnglishName>({
    {u"H", u"hydrogen"},     {u"He", u"helium"},       {u"Li", u"lithium"},      {u"Be", u"beryllium"},
    {u"B", u"boron"},        {u"C", u"carbon"},        {u"N", u"nitrogen"},      {u"O", u"oxygen"},
    {u"F", u"fluorine"},     {u"Ne", u"neon"},         {u"Na", u"sodium"},       {u"Mg", u"magnesium"},
    {u"Al", u"aluminium"},   {u"Si", u"silicon"},      {u"P", u"phosphorus"},    {u"S", u"sulfur"},
    {u"Cl", u"chlorine"},    {u"Ar", u"argon"},        {u"K", u"potassium"},     {u"Ca", u"calcium"},
    {u"Sc", u"scandium"},    {u"Ti", u"titanium"},     {u"V", u"vanadium"},      {u"Cr", u"chromium"},
    {u"Mn", u"manganese"},   {u"Fe", u"iron"},         {u"Co", u"cobalt"},       {u"Ni", u"nickel"},
    {u"Cu", u"copper"},      {u"Zn", u"zinc"},         {u"Ga", u"gallium"},      {u"Ge", u"germanium"},
    {u"As", u"arsenic"},     {u"Se", u"selenium"},     {u"Br", u"bromine"},      {u"Kr", u"krypton"},
    {u"Rb", u"rubidium"},    {u"Sr", u"strontium"},    {u"Y", u"yttrium"},       {u"Zr", u"zirconium"},
    {u"Nb", u"niobium"},     {u"Mo", u"molybdenum"},   {u"Tc", u"technetium"},   {u"Ru", u"ruthenium"},
    {u"Rh", u"rhodium"},     {u"Pd", u"palladium"},    {u"Ag", u"silver"},       {u"Cd", u"cadmium"},
    {u"In", u"indium"},      {u"Sn", u"tin"},          {u"Sb", u"antimony"},     {u"Te", u"tellurium"},
    {u"I", u"iodine"},       {u"Xe", u"xenon"},        {u"Cs", u"caesium"},      {u"Ba", u"barium"},
    {u"La", u"lanthanum"},   {u"Ce", u"cerium"},       {u"Pr", u"praseodymium"}, {u"Nd", u"neodymium"},
    {u"Pm", u"promethium"},  {u"Sm", u"samarium"},     {u"Eu", u"europium"},     {u"Gd", u"gadolinium"},
    {u"Tb", u"terbium"},     {u"Dy", u"dysprosium"},   {u"Ho", u"holmium"},      {u"Er", u"erbium"},
    {u"Tm", u"thulium"},     {u"Yb", u"ytterbium"},    {u"Lu", u"lutetium"},     {u"Hf", u"hafnium"},
    {u"Ta", u"tantalum"},    {u"W", u"tungsten"},      {u"Re", u"rhenium"},      {u"Os", u"osmium"},
    {u"Ir", u"iridium"},     {u"Pt", u"platinum"},     {u"Au", u"gold"},         {u"Hg", u"mercury"},
    {u"Tl", u"thallium"},    {u"Pb", u"lead"},         {u"Bi", u"bismuth"},      {u"Po", u"polonium"},
    {u"At", u"astatine"},    {u"Rn", u"radon"},        {u"Fr", u"francium"},     {u"Ra", u"radium"},
    {u"Ac", u"actinium"},    {u"Th", u"thorium"},      {u"Pa", u"protactinium"}, {u"U", u"uranium"},
    {u"Np", u"neptunium"},   {u"Pu", u"plutonium"},    {u"Am", u"americium"},    {u"Cm", u"curium"},
    {u"Bk", u"berkelium"},   {u"Cf", u"californium"},  {u"Es", u"einsteinium"},  {u"Fm", u"fermium"},
    {u"Md", u"mendelevium"}, {u"No", u"nobelium"},     {u"Lr", u"lawrencium"},   {u"Rf", u"rutherfordium"},
    {u"Db", u"dubnium"},     {u"Sg", u"seaborgium"},   {u"Bh", u"bohrium"},      {u"Hs", u"hassium"},
    {u"Mt", u"meitnerium"},  {u"Ds", u"darmstadtium"}, {u"Rg", u"roentgenium"},  {u"Cn", u"copernicium"},
    {u"Nh", u"nihonium"},    {u"Fl", u"flerovium"},    {u"Mc", u"moscovium"},    {u"Lv", u"livermorium"},
    {u"Ts", u"tennessine"},  {u"Og", u"oganesson"},
});

} // namespace

String englishNameOf(const cls_DataElement& element)
{
    const String symbol = element.SYMBOL();
    const auto* const found = std::ranges::find(EnglishNames, StringView(symbol), &EnglishName::symbol);
    if (found == EnglishNames.end() || !element.MATCH(found->name, true)) {
        return element.NAME();
    }
    return upperCase(found->name.substr(0, 1)) + String(found->name.substr(1));
}

} // namespace phial
