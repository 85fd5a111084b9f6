#include "dialogs/FormulaOffers.h"

#include "chem/formula/FormulaNames.h"

#include <algorithm>
#include <tuple>

namespace phial
{

namespace
{

constexpr StringView Openings = u"([{";

bool isLetterOfSymbols(char16_t unit)
{
    const char16_t small = lowerCase(unit);
    return small >= u'a' && small <= u'z';
}

/// Whether a plus or minus sign behind the text is that of a charge, and divides nothing.
bool isBehindCharge(StringView before)
{
    while (!before.empty() && isDigit(before.back())) {
        before.remove_suffix(1);
    }
    return !before.empty() && before.back() == u'^';
}

bool belongsToFormula(StringView before, char16_t unit)
{
    constexpr StringView Signs = u"()[]{}^*";
    return isDigit(unit) || isLetterOfSymbols(unit) || Signs.find(unit) != StringView::npos ||
           ((unit == u'+' || unit == u'-') && isBehindCharge(before));
}

/// Without the factor in front of it.
StringView begunFormula(StringView before)
{
    std::size_t first = before.size();
    while (first > 0 && belongsToFormula(before.substr(0, first - 1), before[first - 1])) {
        --first;
    }
    while (first < before.size() && isDigit(before[first])) {
        ++first;
    }
    return before.substr(first);
}

bool beginsLike(StringView formula, StringView begun)
{
    const auto small = [](char16_t unit) { return lowerCase(unit); };
    return formula.size() >= begun.size() &&
           std::ranges::equal(formula.substr(0, begun.size()), begun, {}, small, small);
}

std::vector<const FormulaName*> formulasLike(StringView begun)
{
    std::vector<const FormulaName*> all;
    for (const FormulaName& each : formulaNames()) {
        if (beginsLike(each.formula, begun)) {
            all.push_back(&each);
        }
    }
    std::ranges::stable_sort(all, {}, [&](const FormulaName* each) {
        return std::tuple(each->formula == begun, !each->formula.starts_with(begun), each->formula.size());
    });
    return all;
}

} // namespace

FormulaOffers offersBehind(StringView before, std::size_t most)
{
    StringView begun = begunFormula(before);
    while (std::ranges::any_of(begun, isLetterOfSymbols)) {
        FormulaOffers offers{begun.size(), formulasLike(begun)};
        if (!offers.formulas.empty()) {
            offers.formulas.resize(std::min(most, offers.formulas.size()));
            return offers;
        }
        if (Openings.find(begun.front()) == StringView::npos) {
            break;
        }
        begun.remove_prefix(1); // the bracket is the term's own
    }
    return {};
}

} // namespace phial
