#include "chem/formula/FormulaComparison.h"

#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"

#include <algorithm>
#include <map>

namespace phial
{

namespace
{

using Atoms = std::map<int, std::pair<Rational, Rational>>; // given and right, by atomic and mass number

int keyOf(const ElementCount& atom)
{
    constexpr int MassNumbers = 1000;
    return atom.element * MassNumbers + atom.massNumber;
}
std::uint8_t elementIn(int key)
{
    constexpr int MassNumbers = 1000;
    return static_cast<std::uint8_t>(key / MassNumbers);
}

const FormulaSpecies& speciesOf(const FormulaTree& tree)
{
    return tree.species.front();
}

std::vector<ElementCount> atomsOfFirst(const FormulaTree& tree)
{
    return tree.species.empty() ? std::vector<ElementCount>()
                                : atomsIn(tree, speciesOf(tree)).value_or(std::vector<ElementCount>());
}

bool sameOrder(const FormulaTree& one, const FormulaTree& other)
{
    const auto symbolsIn = [](const FormulaTree& tree) {
        std::vector<std::uint8_t> symbols;
        for (const FormulaItem& item : tree.items) {
            if (!item.isGroup()) {
                symbols.push_back(item.element);
            }
        }
        return symbols;
    };
    return symbolsIn(one) == symbolsIn(other);
}

bool sameButFactorAndPhase(FormulaTree one, FormulaTree other)
{
    for (FormulaTree* tree : {&one, &other}) {
        tree->species.front().factor = {};
        tree->species.front().phase = FormulaPhase::None;
    }
    return one == other;
}

/// The formula as it is written by whom brackets mean nothing.
std::vector<ElementCount> atomsWithoutBrackets(const FormulaTree& right)
{
    String text = plainFormula(right);
    std::erase_if(text, [](char16_t sign) { return StringView(u"()[]{}").find(sign) != StringView::npos; });
    const FormulaReading reading = readFormula(text);
    return reading ? atomsOfFirst(reading.tree) : std::vector<ElementCount>();
}

FormulaLikeness likenessOf(const FormulaTree& given, const FormulaTree& right,
                           const FormulaComparison& comparison, bool sameElements)
{
    using enum FormulaLikeness;
    const FormulaSpecies& one = speciesOf(given);
    const FormulaSpecies& other = speciesOf(right);
    if (one.particle != other.particle) {
        return ElementsWrong;
    }
    if (comparison.differences.empty()) {
        if (one.charge != other.charge || one.isRadical != other.isRadical) {
            return ChargeWrong;
        }
        if (one.factor != other.factor) {
            return FactorWrong;
        }
        return sameButFactorAndPhase(given, right) ? Same : WrittenOtherwise;
    }
    const bool hasBrackets = std::ranges::any_of(right.items, &FormulaItem::isGroup);
    if (hasBrackets && atomsOfFirst(given) == atomsWithoutBrackets(right)) {
        return BracketForgotten;
    }
    return sameElements ? CountsWrong : ElementsWrong;
}

} // namespace

FormulaComparison compareFormulas(const FormulaTree& given, const FormulaTree& right)
{
    FormulaComparison comparison;
    if (given.species.empty() || right.species.empty()) {
        return comparison;
    }
    Atoms atoms;
    const auto both = [&](const ElementCount& atom) -> std::pair<Rational, Rational>& {
        return atoms.try_emplace(keyOf(atom), Rational{0, 1}, Rational{0, 1}).first->second;
    };
    for (const ElementCount& atom : atomsOfFirst(given)) {
        both(atom).first = atom.count;
    }
    for (const ElementCount& atom : atomsOfFirst(right)) {
        both(atom).second = atom.count;
    }
    bool sameElements = true;
    for (const auto& [key, counts] : atoms) {
        if (counts.first != counts.second) {
            comparison.differences.push_back({elementIn(key), counts.first, counts.second});
        }
        sameElements = sameElements && (counts.first.numerator == 0) == (counts.second.numerator == 0);
    }
    comparison.givenCharge = speciesOf(given).charge;
    comparison.rightCharge = speciesOf(right).charge;
    comparison.isInOrder = sameOrder(given, right);
    comparison.likeness = likenessOf(given, right, comparison, sameElements);
    return comparison;
}

} // namespace phial
