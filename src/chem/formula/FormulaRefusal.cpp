#include "chem/formula/FormulaRefusal.h"

#include "chem/ElementSymbols.h"
#include "chem/formula/FormulaTongue.h"

namespace phial
{

namespace
{

/// {1} is the part that is wrong; "German|English".
StringView sentenceOf(FormulaFault fault)
{
    switch (fault) {
    case FormulaFault::Empty:
        return u"Hier steht noch keine Formel.|There is no formula yet.";
    case FormulaFault::UnknownSymbol:
        return u"„{1}“ ist kein Elementsymbol.|“{1}” is no element symbol.";
    case FormulaFault::SmallLetter:
        return u"Ein Elementsymbol beginnt mit einem großen Buchstaben, nicht mit „{1}“.|"
               u"An element symbol begins with a capital letter, not with “{1}”.";
    case FormulaFault::CapitalPair:
        return u"{1} gibt es nicht.|There is no {1}.";
    case FormulaFault::ZeroCount:
        return u"Eine Null kann hier nicht stehen: Was nullmal vorkommt, lässt man weg.|"
               u"A zero cannot stand here: what occurs no times is left out.";
    case FormulaFault::NumberTooLarge:
        return u"Die Zahl „{1}“ ist zu groß.|The number “{1}” is too large.";
    case FormulaFault::NumberMisplaced:
        return u"Die Zahl „{1}“ gehört hier zu nichts: Vor ihr muss ein Symbol oder eine Klammer stehen.|"
               u"The number “{1}” belongs to nothing: a symbol or a bracket must stand before it.";
    case FormulaFault::EmptyBracket:
        return u"Die Klammer ist leer.|The bracket is empty.";
    case FormulaFault::BracketNotClosed:
        return u"Die Klammer „{1}“ wird nicht geschlossen.|The bracket “{1}” is not closed.";
    case FormulaFault::BracketNotOpened:
        return u"Zur Klammer „{1}“ fehlt der Anfang.|The bracket “{1}” has no beginning.";
    case FormulaFault::BracketsMixed:
        return u"Die Klammer „{1}“ passt nicht zu der, die offen ist.|"
               u"The bracket “{1}” does not match the one that is open.";
    case FormulaFault::ChargeAmbiguous:
        return u"„{1}“ lässt sich auf zwei Arten lesen. Schreibe ^ vor die Ladung.|"
               u"“{1}” can be read in two ways. Write ^ before the charge.";
    case FormulaFault::ChargeWithoutSign:
        return u"Zur Ladung „{1}“ fehlt das Vorzeichen + oder -.|The charge “{1}” has no sign + or -.";
    case FormulaFault::ChargeNotAtEnd:
        return u"Die Ladung „{1}“ gehört an das Ende der Formel.|"
               u"The charge “{1}” belongs at the end of the formula.";
    case FormulaFault::SignUnexpected:
        return u"„{1}“ kann hier nicht stehen.|“{1}” cannot stand here.";
    case FormulaFault::SpeciesMissing:
        return u"Bei „{1}“ fehlt eine Formel.|A formula is missing at “{1}”.";
    case FormulaFault::NotOneFormula:
        return u"Gefragt ist eine einzige Formel, ohne „{1}“.|A single formula is asked for, without “{1}”.";
    case FormulaFault::ArrowMissing:
        return u"Zur Gleichung fehlt der Pfeil.|The equation has no arrow.";
    case FormulaFault::ArrowTwice:
        return u"Eine Gleichung hat nur einen Pfeil.|An equation has only one arrow.";
    }
    return {};
}

/// Behind a pair of capitals it is told what the right symbol means.
String suggestionOf(const FormulaRefusal& refusal, FormulaTongue tongue)
{
    if (refusal.suggestions.empty()) {
        return {};
    }
    const String& first = refusal.suggestions.front();
    if (const int element = atomicNumberOf(first);
        refusal.fault == FormulaFault::CapitalPair && element > 0) {
        const ElementSymbol& meant = elementOf(element);
        const StringView name = tongue == FormulaTongue::German ? meant.german : meant.english;
        return replaced(replaced(inTongue(u" {1} ist {2}.| {1} is {2}.", tongue), u"{1}", first), u"{2}",
                        name);
    }
    String all = first;
    if (refusal.suggestions.size() > 1) {
        all += String(inTongue(u" oder | or ", tongue)) + refusal.suggestions[1];
    }
    return replaced(inTongue(u" Meinst du {1}?| Do you mean {1}?", tongue), u"{1}", all);
}

String sentence(const FormulaRefusal& refusal, FormulaTongue tongue)
{
    return replaced(inTongue(sentenceOf(refusal.fault), tongue), u"{1}", refusal.part) +
           suggestionOf(refusal, tongue);
}

} // namespace

String germanSentence(const FormulaRefusal& refusal)
{
    return sentence(refusal, FormulaTongue::German);
}

String englishSentence(const FormulaRefusal& refusal)
{
    return sentence(refusal, FormulaTongue::English);
}

} // namespace phial
