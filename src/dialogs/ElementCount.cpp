#include "dialogs/ElementCount.h"

namespace phial
{

namespace
{

/// One more than a number of any length.
String oneMore(String digits)
{
    for (std::size_t at = digits.size(); at-- > 0;) {
        if (digits[at] != u'9') {
            ++digits[at];
            return digits;
        }
        digits[at] = u'0';
    }
    return u"1" + digits;
}

} // namespace

std::optional<String> countedUp(StringView term, StringView symbol)
{
    // Where there are digits alone, npos and 1 make 0.
    const StringView formula = term.substr(0, term.find_last_not_of(u"0123456789") + 1);
    if (symbol.empty() || !formula.ends_with(symbol)) {
        return std::nullopt;
    }
    const String count(term.substr(formula.size()));
    return String(formula) + oneMore(count.empty() ? u"1" : count);
}

} // namespace phial
