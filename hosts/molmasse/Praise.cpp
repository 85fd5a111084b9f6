#include "molmasse/Praise.h"

#include "chem/FormulaAnalysis.h"
#include "molmasse/SaltParts.h"

#include <algorithm>

namespace molmasse
{

using phial::StringView;

namespace
{

/// What there is to see in a formula.
struct Traits {
    bool isHydrate = false;
    int brackets = 0;
    int depth = 0; ///< of brackets within brackets
    double symbols = 0;
    double elements = 0;
    double atoms = 0;
    double mostOfOne = 0;
};

Traits traitsOf(StringView formula)
{
    Traits traits;
    int open = 0;
    for (const char16_t unit : formula) {
        open += unit == u'(' ? 1 : unit == u')' ? -1 : 0;
        traits.brackets += unit == u'(' ? 1 : 0;
        traits.depth = std::max(traits.depth, open);
    }
    std::size_t position = 0;
    while (!phial::nextSymbol(formula, position).empty()) {
        ++traits.symbols;
    }
    const phial::String counted = withoutDots(formula);
    traits.isHydrate = counted != formula;
    const phial::AtomCounts atoms(counted);
    traits.elements = static_cast<double>(atoms.size());
    for (const phial::AtomCount& atom : atoms) {
        traits.atoms += atom.count;
        traits.mostOfOne = std::max(traits.mostOfOne, atom.count);
    }
    return traits;
}

struct Praise {
    bool (*fits)(const Traits& traits);
    StringView text;
};

constexpr Praise Table[] = {
    {[](const Traits& traits) { return traits.isHydrate; },
     u"Auch hinter dem Punkt alles mitgezählt.|All behind the dot counted too."},
    {[](const Traits& traits) { return traits.depth > 1; },
     u"Klammer in der Klammer richtig aufgelöst.|Bracket within a bracket worked out."},
    {[](const Traits& traits) { return traits.brackets > 1; },
     u"Jede Klammer richtig mitgezählt.|Each bracket counted rightly."},
    {[](const Traits& traits) { return traits.brackets == 1; },
     u"Klammer richtig mitgezählt.|Bracket counted rightly."},
    {[](const Traits& traits) { return traits.atoms >= 20; },
     u"Bei so vielen Atomen keines vergessen.|So many atoms, and none left out."},
    {[](const Traits& traits) { return traits.mostOfOne >= 10; },
     u"Auch die großen Zahlen sicher malgenommen.|The large numbers multiplied safely too."},
    {[](const Traits& traits) { return traits.brackets == 0 && traits.symbols > traits.elements; },
     u"Gleiche Atome gut zusammengezählt.|Atoms of a kind added up well."},
    {[](const Traits& traits) { return traits.elements >= 4; },
     u"Alle Elemente sind dabei.|All the elements are there."},
    {[](const Traits& traits) { return traits.elements == 1 && traits.atoms > 1; },
     u"Die kleine Zahl richtig beachtet.|The small number was not overlooked."},
    {[](const Traits& traits) { return traits.elements > 1 && traits.atoms == traits.elements; },
     u"Die Atommassen richtig zusammengezählt.|The atomic masses added up rightly."},
    {[](const Traits& traits) { return traits.atoms > traits.elements; },
     u"Alle kleinen Zahlen mitgerechnet.|All the small numbers taken in."},
    {[](const Traits&) { return true; }, u"Sauber gerechnet.|Cleanly worked out."},
};

} // namespace

std::vector<StringView> masteredIn(StringView formula)
{
    const Traits traits = traitsOf(formula);
    std::vector<StringView> texts;
    for (const Praise& praise : Table) {
        if (praise.fits(traits)) {
            texts.push_back(praise.text);
        }
    }
    return texts;
}

} // namespace molmasse
