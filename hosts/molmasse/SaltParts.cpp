#include "molmasse/SaltParts.h"

#include "chem/formula/FormulaReader.h"
#include "core/NumberText.h"

#include <algorithm>
#include <span>

namespace molmasse
{

using phial::String;
using phial::StringView;

namespace
{

constexpr StringView Dots = u"*\u00B7";

/// The text of a part, its factor left out.
String partText(StringView formula, std::span<const phial::FormulaItem> items)
{
    std::uint32_t end = 0;
    for (const phial::FormulaItem& item : items) {
        end = std::max(end, item.span.start + item.span.length);
    }
    const std::uint32_t start = items.front().span.start;
    return String(formula.substr(start, end - start));
}

} // namespace

std::vector<SaltPart> saltParts(StringView formula)
{
    if (formula.find_first_of(Dots) == StringView::npos) {
        return {{String(formula), 1}};
    }
    const phial::FormulaReading reading = phial::readFormula(formula);
    constexpr std::size_t LeastParts = 2; // a dot at the end is none between parts
    if (!reading || reading.tree.parts.size() < LeastParts) {
        return {};
    }
    std::vector<SaltPart> parts;
    for (const phial::FormulaPart& part : reading.tree.parts) {
        if (part.factor.denominator != 1) {
            return {};
        }
        const auto items = std::span(reading.tree.items).subspan(part.first, part.end - part.first);
        parts.push_back({partText(formula, items), part.factor.numerator});
    }
    return parts;
}

String joined(const std::vector<SaltPart>& parts)
{
    String formula;
    for (const SaltPart& part : parts) {
        if (part.times == 1) {
            formula += part.formula;
        } else {
            formula.append(u"(")
                .append(part.formula)
                .append(u")")
                .append(phial::plainText(static_cast<double>(part.times), u','));
        }
    }
    return formula;
}

String withoutDots(StringView formula)
{
    return joined(saltParts(formula));
}

} // namespace molmasse
