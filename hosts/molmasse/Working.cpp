#include "molmasse/Working.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/ElementNames.h"
#include "chem/FormulaAnalysis.h"
#include "chem/cls_DataElement.h"
#include "common/FrameTexts.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "molmasse/SaltParts.h"

#include <set>

namespace molmasse
{

using phial::String;

namespace
{

constexpr phial::StringView Times = u" \u00D7 "; // so often that atom
constexpr phial::StringView Dot = u" \u00B7 ";   // so often that mass

String countText(double count)
{
    return phial::plainText(count, u',');
}

String massOf(const phial::cls_DataElements& elements, phial::StringView symbol)
{
    return massText(elements.MOL(symbol));
}

String sum(const std::vector<String>& terms)
{
    String text;
    for (const String& term : terms) {
        text.append(text.empty() ? u"" : u" + ").append(term);
    }
    return text;
}

/// Masses that are multiplied and added up, as they are written down.
class Worked
{
public:
    void add(double times, double mass)
    {
        const String single = massText(mass);
        isMultiplied_ = isMultiplied_ || times != 1;
        factors_.push_back(times == 1 ? single : countText(times).append(Dot).append(single));
        products_.push_back(massText(times * mass));
    }
    String line() const
    {
        String text = sum(factors_);
        if (isMultiplied_ && products_.size() > 1) {
            text.append(u" = ").append(sum(products_));
        }
        return text;
    }

private:
    std::vector<String> factors_;
    std::vector<String> products_;
    bool isMultiplied_ = false;
};

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
        text.append(countText(atoms.count)).append(Times).append(atoms.symbol);
        if (masses == AtomMasses::Shown) {
            text.append(u" (").append(massOf(elements, atoms.symbol)).append(u"\u00A0g/mol)");
        }
    }
    return text;
}

String workedLine(const phial::cls_DataElements& elements, const String& formula)
{
    Worked worked;
    const std::vector<SaltPart> parts = saltParts(formula);
    if (parts.size() > 1) {
        for (const SaltPart& part : parts) {
            worked.add(static_cast<double>(part.times), elements.MOL(part.formula));
        }
    } else {
        for (const phial::AtomCount& atom : phial::AtomCounts(formula)) {
            worked.add(atom.count, elements.MOL(atom.symbol));
        }
    }
    return worked.line().append(u" = ").append(massText(elements.MOL(joined(parts)))).append(u"\u00A0g/mol");
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
    for (std::int32_t at = 1; at <= elements.COUNT(); ++at) {
        const auto element = elements.ITEM(at);
        if (const String symbol = element->SYMBOL(); symbols.contains(symbol)) {
            const String mass = massOf(elements, symbol);
            String spoken = phial::LNG()->TRANSLATE(element->NAME(), englishNameOf(*element));
            spoken.append(u": ").append(mass).append(u"\u00A0g/mol");
            entries.push_back({symbol, mass, spoken});
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
