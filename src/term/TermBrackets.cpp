#include "term/TermBrackets.h"

#include <algorithm>

namespace phial
{

TermBrackets::TermBrackets(StringView term) : term_(term)
{
    if (term.find(u'(') != StringView::npos) {
        closing_.assign(term.size(), None);
        std::vector<std::size_t> open;
        for (std::size_t i = 0; i < term.size(); ++i) {
            if (term[i] == u'(') {
                open.push_back(i);
            } else if (term[i] == u')' && !open.empty()) {
                closing_[open.back()] = i;
                open.pop_back();
            }
        }
    }
    if (term.find(u' ') != StringView::npos) {
        nextBlank_.assign(term.size() + 1, term.size());
        std::size_t blank = term.size();
        for (std::size_t i = term.size(); i-- > 0;) {
            blank = term[i] == u' ' ? i : blank;
            nextBlank_[i] = blank;
        }
    }
}

TermFraction TermBrackets::fractionAt(std::size_t open, std::size_t end) const
{
    const std::size_t close = closing_[open];
    if (close == None || close + 2 >= end || term_[close + 1] != u'/' || term_[close + 2] != u'(') {
        return {};
    }
    const std::size_t lowerOpen = close + 2;
    const std::size_t lowerEnd = std::min(closing_[lowerOpen], end);
    return {.numerator = {open + 1, close},
            .denominator = {lowerOpen + 1, lowerEnd},
            .next = std::min(lowerEnd + 1, end),
            .found = true};
}

std::size_t TermBrackets::firstBlank(TermRange part) const
{
    return nextBlank_.empty() ? part.end : std::min(nextBlank_[part.begin], part.end);
}

} // namespace phial
