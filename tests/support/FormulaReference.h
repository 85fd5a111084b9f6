#pragma once

#include "core/RuntimeError.h"
#include "core/String.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace phial::test
{

/// Formula analysis told once more, as simply as the notation is explained: a group is cut out and read by
/// the same function, then multiplied. Its time grows with the square of the depth, so it serves short
/// formulas, to compare the fast analysis with.
class FormulaReference
{
public:
    using Counts = std::vector<std::pair<String, double>>;

    static Counts count(StringView formula) { return FormulaReference(formula).read(); }

private:
    explicit FormulaReference(StringView formula) : formula_(formula) {}

    Counts read()
    {
        while (at_ < formula_.size()) {
            const char16_t unit = formula_[at_];
            if (isDigit(unit)) {
                pending_ += unit;
                ++at_;
            } else if (unit == u'(') {
                readGroup();
            } else if (unit >= u'A' && unit <= u'Z') {
                readSymbol();
            } else {
                ++at_;
            }
        }
        bookPending();
        return counts_;
    }

    void readGroup()
    {
        String inner;
        int depth = 1;
        for (++at_; at_ < formula_.size() && depth > 0; ++at_) {
            depth += formula_[at_] == u'(' ? 1 : formula_[at_] == u')' ? -1 : 0;
            if (depth > 0) {
                inner += formula_[at_];
            }
        }
        String digits;
        while (at_ < formula_.size() && isDigit(formula_[at_])) {
            digits += formula_[at_++];
        }
        const Counts innerCounts = count(inner);
        const double multiplier = number(digits);
        if (multiplier > 2147483647.0) {
            throw RuntimeError(ErrorNumber::Overflow);
        }
        for (const auto& [symbol, innerCount] : innerCounts) {
            counts_[slotOf(symbol)].second += innerCount * multiplier;
        }
    }

    void readSymbol()
    {
        bookPending();
        String symbol(1, formula_[at_++]);
        while (at_ < formula_.size() && formula_[at_] >= u'a' && formula_[at_] <= u'z') {
            symbol += formula_[at_++];
        }
        current_ = slotOf(symbol);
        hasCurrent_ = true;
    }

    void bookPending()
    {
        if (hasCurrent_) {
            counts_[current_].second += pending_.empty() ? 1 : number(pending_);
        }
        pending_.clear();
    }

    std::size_t slotOf(const String& symbol)
    {
        const auto found = std::ranges::find(counts_, symbol, &std::pair<String, double>::first);
        if (found != counts_.end()) {
            return static_cast<std::size_t>(found - counts_.begin());
        }
        counts_.emplace_back(symbol, 0);
        return counts_.size() - 1;
    }

    static bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

    static double number(StringView digits)
    {
        double value = 0;
        for (const char16_t digit : digits) {
            value = value * 10 + (digit - u'0');
        }
        return value;
    }

    StringView formula_;
    std::size_t at_ = 0;
    Counts counts_;
    std::size_t current_ = 0;
    bool hasCurrent_ = false;
    String pending_;
};

} // namespace phial::test
