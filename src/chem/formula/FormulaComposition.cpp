#include "chem/formula/FormulaComposition.h"

#include "chem/ElementSymbols.h"
#include "chem/formula/CheckedRational.h"

#include <algorithm>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <tuple>

namespace phial
{

namespace
{

auto orderOf(const ElementCount& count)
{
    return std::tuple(count.element, count.massNumber);
}

/// Adds up the atoms of a part, each multiplied by the groups that it stands in.
constexpr std::size_t UsualAtoms = 16;

class AtomSum
{
public:
    explicit AtomSum(const FormulaTree& tree) : tree_(tree)
    {
        counts_.reserve(std::min(tree.items.size(), UsualAtoms));
    }

    bool add(const FormulaPart& part)
    {
        factors_.assign(1, {part.factor, part.end});
        for (std::uint32_t at = part.first; at < part.end; ++at) {
            while (factors_.size() > 1 && factors_.back().end <= at) {
                factors_.pop_back();
            }
            const FormulaItem& item = tree_.items[at];
            const auto factor = productOf(factors_.back().factor, {item.count, 1});
            if (!factor) {
                return false;
            }
            if (item.isGroup()) {
                factors_.push_back({*factor, item.end});
            } else {
                counts_.push_back({item.element, item.massNumber, *factor});
            }
        }
        return true;
    }

    std::optional<std::vector<ElementCount>> sums()
    {
        std::ranges::sort(counts_, {}, orderOf);
        std::vector<ElementCount> sums;
        for (const ElementCount& each : counts_) {
            if (sums.empty() || orderOf(sums.back()) != orderOf(each)) {
                sums.push_back(each);
                continue;
            }
            const auto total = sumOf(sums.back().count, each.count);
            if (!total) {
                return std::nullopt;
            }
            sums.back().count = *total;
        }
        return sums;
    }

private:
    struct Factor {
        Rational factor;
        std::uint32_t end; ///< of the group
    };

    const FormulaTree& tree_;
    static constexpr std::size_t InlineBytes = 1024; // for ordinary formulas
    alignas(std::max_align_t) std::byte buffer_[InlineBytes];
    std::pmr::monotonic_buffer_resource memory_{buffer_, InlineBytes};
    std::pmr::vector<Factor> factors_{&memory_};
    std::pmr::vector<ElementCount> counts_{&memory_};
};

String numberOf(std::int64_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// What makes all counts whole numbers; 0 for too large a one.
std::int64_t commonDenominator(const std::vector<ElementCount>& atoms)
{
    std::int64_t denominator = 1;
    for (const ElementCount& atom : atoms) {
        denominator = commonMultipleOf(denominator, atom.count.denominator).value_or(0);
        if (denominator == 0) {
            break;
        }
    }
    return denominator;
}

std::optional<double> massOfOne(const ElementCount& atom, const MassOfElement& massOf)
{
    constexpr std::int32_t Deuterium = 2;
    constexpr std::int32_t Tritium = 3;
    constexpr double DeuteriumMass = 2.0141;
    constexpr double TritiumMass = 3.0160;
    if (atom.massNumber == 0) {
        return massOf(elementOf(atom.element).symbol);
    }
    if (atom.element == 1 && atom.massNumber == Deuterium) {
        return DeuteriumMass;
    }
    return atom.element == 1 && atom.massNumber == Tritium ? TritiumMass : atom.massNumber;
}

std::optional<std::vector<double>> massesIn(const FormulaTree& tree, const FormulaSpecies& species,
                                            const MassOfElement& massOf)
{
    const auto atoms = atomsIn(tree, species);
    if (!atoms) {
        return std::nullopt;
    }
    std::vector<double> masses;
    for (const ElementCount& atom : *atoms) {
        const auto mass = massOfOne(atom, massOf);
        if (!mass) {
            return std::nullopt;
        }
        masses.push_back(*mass * static_cast<double>(atom.count.numerator) /
                         static_cast<double>(atom.count.denominator));
    }
    return masses;
}

} // namespace

std::optional<std::vector<ElementCount>> atomsIn(const FormulaTree& tree, const FormulaSpecies& species)
{
    AtomSum sum(tree);
    for (std::uint32_t part = species.first; part < species.end; ++part) {
        if (!sum.add(tree.parts[part])) {
            return std::nullopt;
        }
    }
    return sum.sums();
}

String hillFormula(const FormulaTree& tree, const FormulaSpecies& species)
{
    constexpr std::uint8_t Carbon = 6;
    constexpr std::uint8_t Hydrogen = 1;
    auto atoms = atomsIn(tree, species).value_or(std::vector<ElementCount>());
    const bool isOrganic = std::ranges::find(atoms, Carbon, &ElementCount::element) != atoms.end();
    const auto rank = [isOrganic](const ElementCount& atom) {
        const int group = !isOrganic ? 2 : atom.element == Carbon ? 0 : atom.element == Hydrogen ? 1 : 2;
        return std::tuple(group, elementOf(atom.element).symbol, atom.massNumber);
    };
    std::ranges::sort(atoms, {}, rank);
    const std::int64_t denominator = commonDenominator(atoms);
    String text;
    for (const ElementCount& atom : atoms) {
        const auto count = productOf(atom.count, {denominator, 1});
        if (!count || denominator == 0) {
            return {};
        }
        text += atom.massNumber > 0 ? u"^" + numberOf(atom.massNumber) : String();
        text += elementOf(atom.element).symbol;
        text += count->numerator == 1 ? String() : numberOf(count->numerator);
    }
    const std::int64_t charge = species.charge * denominator;
    if (!text.empty() && charge != 0) {
        const std::int64_t size = charge < 0 ? -charge : charge;
        text += u"^" + (size > 1 ? numberOf(size) : String()) + (charge < 0 ? u"-" : u"+");
    }
    return text;
}

std::optional<double> molarMassOf(const FormulaTree& tree, const FormulaSpecies& species,
                                  const MassOfElement& massOf)
{
    const auto masses = massesIn(tree, species, massOf);
    if (!masses) {
        return std::nullopt;
    }
    double sum = 0;
    for (const double mass : *masses) {
        sum += mass;
    }
    return sum;
}

std::vector<double> massFractionsOf(const FormulaTree& tree, const FormulaSpecies& species,
                                    const MassOfElement& massOf)
{
    auto masses = massesIn(tree, species, massOf).value_or(std::vector<double>());
    double sum = 0;
    for (const double mass : masses) {
        sum += mass;
    }
    for (double& mass : masses) {
        mass /= sum;
    }
    return masses;
}

} // namespace phial
