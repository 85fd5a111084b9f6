#pragma once

#include "core/String.h"

namespace phial::test
{

/// The names of the IUPAC in the order of the protons, written down apart from the product's.
inline constexpr StringView EnglishElementNames =
    u"hydrogen helium lithium beryllium boron carbon nitrogen oxygen fluorine neon sodium magnesium "
    u"aluminium silicon phosphorus sulfur chlorine argon potassium calcium scandium titanium vanadium "
    u"chromium manganese iron cobalt nickel copper zinc gallium germanium arsenic selenium bromine "
    u"krypton rubidium strontium yttrium zirconium niobium molybdenum technetium ruthenium rhodium "
    u"palladium silver cadmium indium tin antimony tellurium iodine xenon caesium barium lanthanum "
    u"cerium praseodymium neodymium promethium samarium europium gadolinium terbium dysprosium holmium "
    u"erbium thulium ytterbium lutetium hafnium tantalum tungsten rhenium osmium iridium platinum gold "
    u"mercury thallium lead bismuth polonium astatine radon francium radium actinium thorium "
    u"protactinium uranium neptunium plutonium americium curium berkelium californium einsteinium "
    u"fermium mendelevium nobelium lawrencium rutherfordium dubnium seaborgium bohrium hassium "
    u"meitnerium darmstadtium roentgenium copernicium nihonium flerovium moscovium livermorium "
    u"tennessine oganesson";

} // namespace phial::test
