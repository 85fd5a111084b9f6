#include "molmasse/Working.h"

#include "chem/FormulaAnalysis.h"
#include "common/FrameTexts.h"
#include "core/Format.h"
#include "core/NumberText.h"

namespace molmasse
{

using phial::String;

namespace
{

constexpr phial::StringView Times = u" \u00D7 ";

String countText(const phial::AtomCount& atoms)
{
    return phial::plainText(atoms.count, u',');
}

String massOf(const phial::cls_DataElements& elements, phial::StringView symbol)
{
    return massText(elements.MOL(symbol));
}

} // namespace

String massText(double mass)
{
    String text = phial::formatPattern(mass, u"0.0");
    text[text.size() - 2] = learning::decimalSign();
    return text;
}

String formulaLine(phial::StringView formula)
{
    constexpr char16_t LoweredZero = u'\u2080';
    String line(formula);
    bool isIndex = false; // a number in front belongs to no symbol
    for (char16_t& unit : line) {
        if (isIndex && phial::isDigit(unit)) {
            unit = static_cast<char16_t>(LoweredZero + (unit - u'0'));
        } else {
            isIndex = !phial::isDigit(unit) && unit != u' ' && unit != u'(';
        }
    }
    return line;
}

String atomsCounted(const phial::cls_DataElements& elements, const String& formula, AtomMasses masses)
{
    String text;
    for (const phial::AtomCount& atoms : phial::AtomCounts(formula)) {
        if (!text.empty()) {
            text += u"<br>";
        }
        text.append(countText(atoms)).append(Times).append(atoms.symbol);
        if (masses == AtomMasses::Shown) {
            text.append(u" (").append(massOf(elements, atoms.symbol)).append(u" g/mol)");
        }
    }
    return text;
}

String workedLine(const phial::cls_DataElements& elements, const String& formula)
{
    String text;
    for (const phial::AtomCount& atoms : phial::AtomCounts(formula)) {
        if (!text.empty()) {
            text += u" + ";
        }
        if (atoms.count != 1) {
            text.append(countText(atoms)).append(Times);
        }
        text += massOf(elements, atoms.symbol);
    }
    return text.append(u" = ").append(massText(elements.MOL(formula))).append(u" g/mol");
}

String massOfFirstElement(const phial::cls_DataElements& elements, phial::StringView formula)
{
    std::size_t position = 0;
    return massOf(elements, phial::nextSymbol(formula, position));
}

} // namespace molmasse
