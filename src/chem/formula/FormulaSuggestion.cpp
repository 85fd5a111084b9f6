#include "chem/formula/FormulaSuggestion.h"

#include "chem/ElementSymbols.h"
#include "chem/formula/FormulaReader.h"

#include <algorithm>
#include <array>
#include <utility>

namespace phial
{

namespace
{

constexpr std::size_t LongestMended = 60; // units
constexpr std::size_t MostSuggestions = 2;

bool isPlainLetter(char16_t unit)
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}
bool isSmallLetter(char16_t unit)
{
    return unit >= u'a' && unit <= u'z';
}

/// Elements of school lessons are meant more often than others.
bool isRare(StringView symbol)
{
    constexpr auto Common = std::to_array<StringView>({u"H",  u"C",  u"N",  u"O",  u"F",  u"Na", u"Mg", u"Al",
                                                       u"Si", u"P",  u"S",  u"Cl", u"K",  u"Ca", u"Fe", u"Cu",
                                                       u"Zn", u"Br", u"Ag", u"I",  u"Ba", u"Pb"});
    return std::ranges::find(Common, symbol) == Common.end();
}

/// Letters as symbols; those of few rare elements, and then of few symbols, are likelier.
struct Division {
    String text{};
    int rare = 0;
    int symbols = 0;

    friend Division operator+(const Division& one, const Division& other)
    {
        return {one.text + other.text, one.rare + other.rare, one.symbols + other.symbols};
    }
};
constexpr int MostRare = 2; // what has so many is meant by nobody

void keepBest(std::vector<Division>& divisions)
{
    std::ranges::stable_sort(divisions, {},
                             [](const Division& each) { return std::pair(each.rare, each.symbols); });
    divisions.resize(std::min(divisions.size(), MostSuggestions));
}

/// The likeliest divisions of a run of letters in any case; none where it cannot be divided. With
/// `keepsCapitals` each capital begins a symbol.
std::vector<Division> divisionsOf(StringView letters, bool keepsCapitals)
{
    std::vector<std::vector<Division>> rest(letters.size() + 1); // from each letter on
    rest.back() = {{}};
    for (std::size_t at = letters.size(); at-- > 0;) {
        for (std::size_t length = 1; length <= std::min<std::size_t>(2, letters.size() - at); ++length) {
            String symbol{upperCase(letters[at])};
            if (length == 2) {
                symbol += lowerCase(letters[at + 1]);
            }
            const bool breaksCapital = length == 2 && keepsCapitals && !isSmallLetter(letters[at + 1]);
            if (breaksCapital || atomicNumberOf(symbol) == 0) {
                continue;
            }
            for (const Division& behind : rest[at + length]) {
                rest[at].push_back(Division{symbol, isRare(symbol) ? 1 : 0, 1} + behind);
            }
        }
        keepBest(rest[at]);
    }
    return rest.front();
}

/// The likeliest texts with all runs of letters divided.
std::vector<Division> mended(StringView text, bool keepsCapitals)
{
    std::vector<Division> results{{}};
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at;
        while (end < text.size() && isPlainLetter(text[end])) {
            ++end;
        }
        if (end == at) {
            for (Division& result : results) {
                result.text += text[at];
            }
            ++at;
            continue;
        }
        std::vector<Division> longer;
        for (const Division& run : divisionsOf(text.substr(at, end - at), keepsCapitals)) {
            for (const Division& result : results) {
                longer.push_back(result + run);
            }
        }
        keepBest(longer);
        results = std::move(longer);
        at = end;
    }
    return results;
}

} // namespace

std::vector<String> suggestedFormulas(StringView text)
{
    std::vector<String> suggestions;
    if (text.size() > LongestMended) {
        return suggestions;
    }
    for (const bool keepsCapitals : {true, false}) {
        for (const Division& division : mended(text, keepsCapitals)) {
            if (division.rare < MostRare && division.text != text && readFormula(division.text)) {
                suggestions.push_back(division.text);
            }
        }
        if (!suggestions.empty()) {
            break;
        }
    }
    return suggestions;
}

} // namespace phial
