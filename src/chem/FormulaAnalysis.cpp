#include "chem/FormulaAnalysis.h"

#include "core/RuntimeError.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <utility>

namespace phial
{

namespace
{

constexpr bool isCapital(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z';
}
constexpr bool isSmall(char16_t unit)
{
    return unit >= u'a' && unit <= u'z';
}

// The end of the symbol that starts at `position`.
std::size_t symbolEnd(StringView formula, std::size_t position)
{
    do {
        ++position;
    } while (position < formula.size() && isSmall(formula[position]));
    return position;
}

// Reads the digits at `position` as the multiplier of a group and moves behind them; 0 without a digit.
std::int32_t readMultiplier(StringView formula, std::size_t& position)
{
    constexpr std::int64_t Largest = std::numeric_limits<std::int32_t>::max();
    std::int64_t multiplier = 0;
    for (; position < formula.size() && isDigit(formula[position]); ++position) {
        multiplier = multiplier * 10 + (formula[position] - u'0');
        if (multiplier > Largest) {
            throw RuntimeError(ErrorNumber::Overflow);
        }
    }
    return static_cast<std::int32_t>(multiplier);
}

// The multiplier of every group in the order of the opening brackets. Brackets are matched once, here: the
// number behind a group is needed when the group begins, and looking for its end each time would cost the
// square of the depth. A group without an end has no number, hence 0.
std::pmr::vector<std::int32_t> groupMultipliers(StringView formula, std::pmr::memory_resource& memory)
{
    std::pmr::vector<std::int32_t> multipliers(&memory);
    std::pmr::vector<std::size_t> open(&memory);
    for (std::size_t position = formula.find(u'('); position < formula.size();) {
        const char16_t unit = formula[position++];
        if (unit == u'(') {
            open.push_back(multipliers.size());
            multipliers.push_back(0);
        } else if (unit == u')' && !open.empty()) {
            multipliers[open.back()] = readMultiplier(formula, position);
            open.pop_back();
        }
    }
    return multipliers;
}

// A product in which 0 wins over an infinite count: a group that does not count adds nothing.
double product(double left, double right)
{
    return left == 0 || right == 0 ? 0 : left * right;
}

// The walk over one formula. A group starts afresh, and what the text around it was about waits on a stack.
class FormulaReader
{
public:
    FormulaReader(StringView formula, std::pmr::memory_resource& memory, std::pmr::vector<AtomCount>& atoms)
        : formula_(formula), atoms_(atoms), slots_(&memory), around_(&memory),
          multipliers_(groupMultipliers(formula, memory))
    {
    }

    void read()
    {
        for (std::size_t position = 0; position < formula_.size();) {
            const char16_t unit = formula_[position];
            if (isCapital(unit)) {
                const std::size_t end = symbolEnd(formula_, position);
                startSymbol(formula_.substr(position, end - position));
                position = end;
                continue;
            }
            ++position;
            if (isDigit(unit)) {
                addDigit(unit);
            } else if (unit == u'(') {
                beginGroup();
            } else if (unit == u')' && !around_.empty()) {
                endGroup();
                readMultiplier(formula_, position);
            }
        }
        while (!around_.empty()) {
            endGroup();
        }
        bookPending();
    }

private:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    struct Group {
        std::size_t current = None; // the symbol that pending digits belong to; in front of the first, none
        double pending = 0;
        bool hasPending = false;
        double factor = 1; // the multipliers of this group and of all around it
    };

    void addDigit(char16_t digit)
    {
        group_.pending = group_.pending * 10 + (digit - u'0');
        group_.hasPending = true;
    }

    void startSymbol(StringView symbol)
    {
        bookPending();
        group_.current = slotOf(symbol);
    }

    // Adds the pending number, 1 if there is none, to the current symbol.
    void bookPending()
    {
        if (group_.current != None) {
            atoms_[group_.current].count += product(group_.hasPending ? group_.pending : 1, group_.factor);
        }
        group_.pending = 0;
        group_.hasPending = false;
    }

    void beginGroup()
    {
        around_.push_back(group_);
        group_ = Group{.factor = product(group_.factor, multipliers_[groupsBegun_++])};
    }

    void endGroup()
    {
        bookPending();
        group_ = around_.back();
        around_.pop_back();
    }

    std::size_t slotOf(StringView symbol)
    {
        if (atoms_.size() < LinearSearch) {
            const auto found = std::ranges::find(atoms_, symbol, &AtomCount::symbol);
            if (found == atoms_.end()) {
                atoms_.push_back({symbol});
                return atoms_.size() - 1;
            }
            return static_cast<std::size_t>(found - atoms_.begin());
        }
        if (slots_.empty()) {
            for (std::size_t slot = 0; slot < atoms_.size(); ++slot) {
                slots_.emplace(atoms_[slot].symbol, slot);
            }
        }
        const auto [entry, isNew] = slots_.emplace(symbol, atoms_.size());
        if (isNew) {
            atoms_.push_back({symbol});
        }
        return entry->second;
    }

    static constexpr std::size_t LinearSearch = 16;

    StringView formula_;
    std::pmr::vector<AtomCount>& atoms_;
    std::pmr::unordered_map<StringView, std::size_t> slots_; // used from LinearSearch symbols on
    std::pmr::vector<Group> around_;
    std::pmr::vector<std::int32_t> multipliers_;
    std::size_t groupsBegun_ = 0;
    Group group_;
};

} // namespace

StringView nextSymbol(StringView formula, std::size_t& position)
{
    while (position < formula.size() && !isCapital(formula[position])) {
        ++position;
    }
    if (position == formula.size()) {
        return {};
    }
    const std::size_t start = std::exchange(position, symbolEnd(formula, position));
    return formula.substr(start, position - start);
}

AtomCounts::AtomCounts(StringView formula)
{
    atoms_.reserve(8);
    FormulaReader(formula, memory_, atoms_).read();
}

} // namespace phial
