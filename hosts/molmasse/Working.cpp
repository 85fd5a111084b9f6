#include "molmasse/Working.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/FormulaAnalysis.h"
#include "common/FrameTexts.h"
#include "core/Format.h"
#include "core/NumberText.h"

#include <set>

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

String atomsCounted(const phial::cls_DataElements& elements, const String& formula, AtomMasses masses)
{
    String text;
    for (const phial::AtomCount& atoms : phial::AtomCounts(formula)) {
        if (!text.empty()) {
            text += u"<br>";
        }
        text.append(countText(atoms)).append(Times).append(atoms.symbol);
        if (masses == AtomMasses::Shown) {
            text.append(u" (").append(massOf(elements, atoms.symbol)).append(u"\u00A0g/mol)");
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
    return text.append(u" = ").append(massText(elements.MOL(formula))).append(u"\u00A0g/mol");
}

std::vector<learning::ReferenceEntry> massesOfElements(phial::cls_DataElements& elements,
                                                       const std::vector<learning::ListedTask>& tasks)
{
    std::set<String> symbols;
    for (const learning::ListedTask& task : tasks) {
        std::size_t position = 0;
        for (auto symbol = phial::nextSymbol(task.text, position); !symbol.empty();
             symbol = phial::nextSymbol(task.text, position)) {
            symbols.insert(String(symbol));
        }
    }
    std::vector<learning::ReferenceEntry> entries;
    const bool german = phial::LNG()->EFFECTIVE() == phial::ID_Language_German;
    for (std::int32_t at = 1; at <= elements.COUNT(); ++at) {
        const auto element = elements.ITEM(at);
        if (const String symbol = element->SYMBOL(); symbols.contains(symbol)) {
            const String mass = massOf(elements, symbol);
            entries.push_back(
                {symbol, mass, (german ? element->NAME() : symbol) + u": " + mass + u"\u00A0g/mol"});
        }
    }
    return entries;
}

String massOfFirstElement(const phial::cls_DataElements& elements, phial::StringView formula)
{
    std::size_t position = 0;
    return massOf(elements, phial::nextSymbol(formula, position));
}

} // namespace molmasse
