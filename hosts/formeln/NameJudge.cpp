#include "formeln/NameJudge.h"

#include "common/FrameTexts.h"
#include "core/CoreStringOps.h"

#include <algorithm>
#include <array>
#include <utility>

namespace formeln
{

using phial::String;
using phial::StringView;

namespace
{

struct Replacement {
    StringView from;
    StringView to;
};

/// Letters that are written for the same sound. What is longer stands first.
constexpr auto SameSounds = std::to_array<Replacement>({
    {u"ph", u"f"},
    {u"ä", u"e"},
    {u"ö", u"oe"},
    {u"ü", u"ue"},
    {u"ß", u"ss"},
    {u"k", u"c"},
    {u"z", u"c"},
    {u"y", u"i"},
    {u" ", u""},
    {u"\u00A0", u""},
    {u"-", u""},
    {u"\u2010", u""},
    {u"\u2011", u""},
});

/// What is taken away, or made alike, to see whether two names differ in nothing else.
constexpr auto Endings = std::to_array<Replacement>({
    {u"at", u"#"},
    {u"it", u"#"},
    {u"id", u"#"},
    {u"an", u"~"},
    {u"en", u"~"},
    {u"in", u"~"},
});
constexpr auto Counts = std::to_array<Replacement>({
    {u"mono", u""},
    {u"penta", u""},
    {u"tetra", u""},
    {u"hexa", u""},
    {u"deca", u""},
    {u"tri", u""},
    {u"di", u""},
});
constexpr auto Hydrogen = std::to_array<Replacement>({{u"dihidrogen", u""}, {u"hidrogen", u""}});

template <std::size_t Size>
String replacedAll(String text, const std::array<Replacement, Size>& table)
{
    for (const Replacement& row : table) {
        text = phial::replaced(text, row.from, row.to);
    }
    return text;
}

/// What is compared of a name.
String folded(StringView name)
{
    return replacedAll(phial::lowerCase(name), SameSounds);
}

String withoutNumeral(const String& name)
{
    const auto open = name.find(u'(');
    const auto close = name.find(u')', open);
    return open == String::npos || close == String::npos ? name
                                                         : name.substr(0, open) + name.substr(close + 1);
}

String withoutIon(const String& name)
{
    constexpr StringView Ion = u"ion";
    return name.ends_with(Ion) ? name.substr(0, name.size() - Ion.size()) : name;
}

/// How many letters must be put in, left out or replaced; counted no further than `most` + 1.
std::size_t lettersApart(const String& one, const String& other, std::size_t most)
{
    const std::size_t difference =
        one.size() > other.size() ? one.size() - other.size() : other.size() - one.size();
    if (difference > most) {
        return most + 1;
    }
    std::vector<std::size_t> row(other.size() + 1);
    for (std::size_t at = 0; at < row.size(); ++at) {
        row[at] = at;
    }
    for (std::size_t i = 1; i <= one.size(); ++i) {
        std::size_t before = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t replacing = before + (one[i - 1] == other[j - 1] ? 0 : 1);
            before = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replacing});
        }
    }
    return std::min(row.back(), most + 1);
}

bool isMisspelt(const String& typed, const String& name)
{
    constexpr std::size_t ShortName = 5; // below it each letter counts
    constexpr std::size_t LongName = 12;
    const std::size_t allowed = name.size() < ShortName ? 0 : name.size() < LongName ? 1 : 2;
    return lettersApart(typed, name, allowed) <= allowed;
}

NameMatch matchOfOne(const String& typed, const String& name, bool ionMayBeLeftOut)
{
    if (typed == name || (ionMayBeLeftOut && typed == withoutIon(name))) {
        return NameMatch::Same;
    }
    if (replacedAll(typed, Endings) == replacedAll(name, Endings)) {
        return NameMatch::OtherEnding;
    }
    if (withoutNumeral(typed) == withoutNumeral(name)) {
        return NameMatch::NumeralWrong;
    }
    if (replacedAll(typed, Hydrogen) == replacedAll(name, Hydrogen)) {
        return NameMatch::HydrogenWrong;
    }
    if (replacedAll(typed, Counts) == replacedAll(name, Counts)) {
        return NameMatch::CountWrong;
    }
    if (typed == withoutIon(name)) {
        return NameMatch::IonMissing;
    }
    return isMisspelt(typed, name) ? NameMatch::Misspelt : NameMatch::Other;
}

} // namespace

NameMatch matchOf(StringView typed, const std::vector<String>& names, bool ionMayBeLeftOut)
{
    const String answer = folded(typed);
    NameMatch best = NameMatch::Other;
    for (const String& name : names) {
        best = std::min(best, matchOfOne(answer, folded(name), ionMayBeLeftOut));
    }
    return best;
}

std::vector<String> namesIn(StringView column)
{
    std::vector<String> names;
    for (const StringView piece : phial::split(column, u"/")) {
        String name = phial::trimmed(piece);
        if (!name.empty()) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

String explained(NameMatch match)
{
    using learning::translate;
    switch (match) {
    case NameMatch::Same:
    case NameMatch::Other:
        break;
    case NameMatch::Misspelt:
        return translate(u"Fast! Prüfe noch einmal, wie der Name geschrieben wird.",
                         u"Nearly! Check once more how the name is spelt.");
    case NameMatch::OtherEnding:
        return translate(u"Achte auf die Endung: -id, -it und -at stehen für verschiedene Ionen, "
                         u"-an, -en und -in für verschiedene Bindungen.",
                         u"Mind the ending: -ide, -ite and -ate stand for different ions, "
                         u"-ane, -ene and -yne for different bonds.");
    case NameMatch::NumeralWrong:
        return translate(u"Achte auf die römische Zahl: Sie nennt die Ladung des Metall-Ions.",
                         u"Mind the Roman numeral: it tells the charge of the metal ion.");
    case NameMatch::CountWrong:
        return translate(u"Achte auf das Zahlwort: mono, di, tri, tetra, penta …",
                         u"Mind the number word: mono, di, tri, tetra, penta …");
    case NameMatch::HydrogenWrong:
        return translate(u"Achte auf den Wasserstoff: Hydrogen steht im Namen, wenn das Ion ihn enthält.",
                         u"Mind the hydrogen: it stands in the name when the ion holds it.");
    case NameMatch::IonMissing:
        return translate(u"Gefragt ist das Ion: Das gehört in den Namen.",
                         u"The ion is asked for: that belongs into the name.");
    }
    return {};
}

} // namespace formeln
