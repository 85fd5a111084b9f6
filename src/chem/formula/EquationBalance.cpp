#include "chem/formula/EquationBalance.h"

#include "chem/formula/CheckedRational.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace phial
{

namespace
{

using Row = std::vector<Rational>;

/// What a row of the system is about: an atomic number, and a mass number. The charge comes behind all
/// elements, neutrons behind it.
using Balanced = std::pair<int, std::int32_t>;
constexpr int ChargeRow = 1000;

/// How much of each element, and what charge, each species has; rows are what is balanced, columns species.
std::optional<std::map<Balanced, Row>> contents(const FormulaTree& equation)
{
    std::map<Balanced, Row> rows;
    const std::size_t columns = equation.species.size();
    const auto at = [&](const Balanced& what) -> Row& {
        return rows.try_emplace(what, Row(columns, Rational{0, 1})).first->second;
    };
    for (std::size_t column = 0; column < columns; ++column) {
        const FormulaSpecies& species = equation.species[column];
        const auto atoms = atomsIn(equation, species);
        if (!atoms) {
            return std::nullopt;
        }
        for (const ElementCount& atom : *atoms) {
            at({atom.element, atom.massNumber})[column] = atom.count;
        }
        if (species.particle == FormulaParticle::Neutron) {
            at({ChargeRow + 1, 0})[column] = {1, 1};
        }
        if (species.charge != 0) {
            at({ChargeRow, 0})[column] = {species.charge, 1};
        }
    }
    return rows;
}

bool isZero(const Rational& number)
{
    return number.numerator == 0;
}

Rational negated(const Rational& number)
{
    return {-number.numerator, number.denominator};
}

/// Takes a multiple of a row from another one; false for numbers too large.
bool subtract(Row& from, const Row& row, const Rational& multiple)
{
    for (std::size_t column = 0; column < row.size(); ++column) {
        const auto part = productOf(row[column], negated(multiple));
        const auto rest = part ? sumOf(from[column], *part) : std::nullopt;
        if (!rest) {
            return false;
        }
        from[column] = *rest;
    }
    return true;
}

/// The reduced echelon form; gives the column of each row's leading one. None for numbers too large.
std::optional<std::vector<std::size_t>> eliminate(std::vector<Row>& rows, std::size_t columns)
{
    std::vector<std::size_t> leading;
    for (std::size_t column = 0; column < columns && leading.size() < rows.size(); ++column) {
        const std::size_t top = leading.size();
        const auto pivot = std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(top), rows.end(),
                                        [&](const Row& row) { return !isZero(row[column]); });
        if (pivot == rows.end()) {
            continue;
        }
        std::iter_swap(pivot, rows.begin() + static_cast<std::ptrdiff_t>(top));
        const Rational lead = rows[top][column];
        for (Rational& number : rows[top]) {
            const auto part = quotientOf(number, lead);
            if (!part) {
                return std::nullopt;
            }
            number = *part;
        }
        for (std::size_t other = 0; other < rows.size(); ++other) {
            const Rational multiple = rows[other][column];
            if (other != top && !isZero(multiple) && !subtract(rows[other], rows[top], multiple)) {
                return std::nullopt;
            }
        }
        leading.push_back(column);
    }
    return leading;
}

/// The smallest whole numbers in the same proportion.
EquationSolution wholeFactors(const std::vector<Rational>& factors)
{
    using Kind = EquationSolution::Kind;
    std::int64_t denominator = 1;
    for (const Rational& factor : factors) {
        if (factor.numerator <= 0) {
            return {Kind::None};
        }
        const auto common = commonMultipleOf(denominator, factor.denominator);
        if (!common) {
            return {Kind::TooLarge};
        }
        denominator = *common;
    }
    std::vector<std::int64_t> whole;
    std::int64_t divisor = 0;
    for (const Rational& factor : factors) {
        const auto number = productOf(factor, {denominator, 1});
        if (!number) {
            return {Kind::TooLarge};
        }
        whole.push_back(number->numerator);
        divisor = std::gcd(divisor, number->numerator);
    }
    for (std::int64_t& number : whole) {
        number /= divisor;
    }
    return {Kind::One, std::move(whole)};
}

std::vector<Rational> ownFactors(const FormulaTree& equation)
{
    std::vector<Rational> factors;
    for (const FormulaSpecies& species : equation.species) {
        factors.push_back(species.factor);
    }
    return factors;
}

} // namespace

std::optional<std::vector<Imbalance>> sidesOf(const FormulaTree& equation, const std::vector<Rational>& given)
{
    const std::vector<Rational> factors = given.empty() ? ownFactors(equation) : given;
    const auto rows = contents(equation);
    if (!rows || factors.size() != equation.species.size()) {
        return std::nullopt;
    }
    std::vector<Imbalance> sides;
    for (const auto& [what, row] : *rows) {
        Imbalance both{static_cast<std::uint8_t>(what.first >= ChargeRow ? 0 : what.first), what.second};
        for (std::size_t column = 0; column < row.size(); ++column) {
            Rational& side = column < equation.leftCount ? both.left : both.right;
            const auto amount = productOf(row[column], factors[column]);
            const auto total = amount ? sumOf(side, *amount) : std::nullopt;
            if (!total) {
                return std::nullopt;
            }
            side = *total;
        }
        sides.push_back(both);
    }
    return sides;
}

std::vector<Imbalance> imbalancesOf(const FormulaTree& equation, const std::vector<Rational>& factors)
{
    auto sides = sidesOf(equation, factors).value_or(std::vector<Imbalance>());
    std::erase_if(sides, [](const Imbalance& both) { return both.left == both.right; });
    return sides;
}

EquationSolution balance(const FormulaTree& equation)
{
    using Kind = EquationSolution::Kind;
    const std::size_t columns = equation.species.size();
    const auto known = contents(equation);
    if (!known) {
        return {Kind::TooLarge};
    }
    std::vector<Row> rows;
    for (const auto& [what, row] : *known) {
        rows.push_back(row);
        for (std::size_t column = equation.leftCount; column < columns; ++column) {
            rows.back()[column] = negated(row[column]);
        }
    }
    const auto leading = eliminate(rows, columns);
    if (!leading) {
        return {Kind::TooLarge};
    }
    if (leading->size() + 1 != columns) {
        return {leading->size() == columns ? Kind::None : Kind::Several};
    }
    std::size_t free = 0; // the one column without a leading one
    while (free < leading->size() && (*leading)[free] == free) {
        ++free;
    }
    std::vector<Rational> factors(columns, Rational{1, 1});
    for (std::size_t row = 0; row < leading->size(); ++row) {
        factors[(*leading)[row]] = negated(rows[row][free]);
    }
    return wholeFactors(factors);
}

} // namespace phial
