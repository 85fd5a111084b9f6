#include "desk/SheetEntries.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/ElementSymbols.h"
#include "chem/cls_DataElement.h"
#include "chem/cls_DataElements.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/OxidationNumbers.h"
#include "core/CoreStringOps.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "desk/AcidTable.h"
#include "desk/GroupNames.h"
#include "desk/OlderNotation.h"
#include "desk/OxidationExamples.h"
#include "desk/pHRulesDesign.h"
#include "periodic/ElementFile.h"
#include "term/TermSpeech.h"

#include <algorithm>

namespace phial
{

namespace
{

String say(StringView both)
{
    return LNG()->TRANSLATEAUTO(both);
}

/// The older notation of a label's markup, whose formulas have no other tags.
String notationOf(StringView markup)
{
    String notation = replaced(replaced(markup, u"<sub>", u"@"), u"<sup>", u"^");
    notation = replaced(replaced(notation, u"</sub>", u"|"), u"</sup>", u"|");
    return replaced(replaced(notation, u"<b>", u""), u"</b>", u"");
}

/// As one types it: "SO42-".
String typedFormula(StringView notation)
{
    return replaced(termOfOlderNotation(notation), u"^", u"");
}

String spokenFormula(StringView notation)
{
    return spokenTerm(termOfOlderNotation(notation));
}

/// Those of which lessons speak; somebody who practises need not know the others.
bool isTaught(StringView symbol)
{
    constexpr StringView Rarer[] = {u"Ag", u"Cd", u"Sn", u"I",  u"Xe", u"Cs", u"Ba",
                                    u"W",  u"Pt", u"Au", u"Hg", u"Pb", u"Rn", u"U"};
    constexpr int LastUsual = 38;
    return atomicNumberOf(symbol) <= LastUsual || std::ranges::find(Rarer, symbol) != std::end(Rarer);
}

SheetEntry entryOf(const cls_DataElement& element)
{
    const String symbol = element.SYMBOL();
    const int number = atomicNumberOf(symbol);
    const String name =
        number > 0 ? LNG()->TRANSLATE(element.NAME(), elementOf(number).english) : element.NAME();
    const String mass = plainText(element.MOL(), currentLocale().decimalSign) + u" g/mol";
    const String protons = plainText(element.PROTONS());
    SheetEntry entry{.sheet = ReferenceSheet::Elements,
                     .subject = name,
                     .content = symbol + say(u", Ordnungszahl |, atomic number ") + protons + u", " + mass,
                     .spoken = {},
                     .otherwise = symbol,
                     .question = {},
                     .answer = symbol,
                     .spokenAnswer = {}};
    if (isTaught(symbol)) {
        entry.question = say(u"Welches Symbol hat |What is the symbol of ") + name + u"?";
    }
    return entry;
}

void addElements(std::vector<SheetEntry>& entries)
{
    cls_DataElements elements;
    ignoringErrors([&] { elements.IMPORT(elementFile()); });
    for (std::int32_t at = 1; at <= elements.COUNT(); ++at) {
        entries.push_back(entryOf(*elements.ITEM(at)));
    }
}

void addGroups(std::vector<SheetEntry>& entries)
{
    for (const GroupName& group : groupNames()) {
        const String name = trimmed(LNG()->TRANSLATEAUTO(group.name));
        const String formula = unicodeOfOlderNotation(group.formula);
        SheetEntry entry{.sheet = ReferenceSheet::Groups,
                         .subject = name,
                         .content = formula,
                         .spoken = spokenFormula(group.formula),
                         .otherwise = typedFormula(group.formula),
                         .question = {},
                         .answer = formula,
                         .spokenAnswer = spokenFormula(group.formula)};
        const bool isThere = std::ranges::find(entries, name, &SheetEntry::subject) != entries.end();
        if (group.isAsked && !isThere) {
            entry.question = LNG()->TRANSLATE(u"Welche Formel gehört zu „{1}“?",
                                              u"Which formula belongs to “{1}”?", {Variant(name)});
        }
        entries.push_back(std::move(entry));
    }
}

void addOxidationNumbers(std::vector<SheetEntry>& entries)
{
    for (const auto& [rule, examples] : oxidationLines()) {
        for (const OxidationExample& example : examples) {
            const String formula = unicodeFormula(readFormula(example.formula).tree);
            const String where = String(example.symbol) + u" in " + formula;
            const String number(example.number);
            String content = number + u"   ";
            content += LNG()->TRANSLATE(germanSentence(rule), englishSentence(rule));
            entries.push_back(
                {.sheet = ReferenceSheet::OxidationNumbers,
                 .subject = where,
                 .content = std::move(content),
                 .spoken = {},
                 .otherwise = replaced(example.formula, u"^", u""),
                 .question =
                     say(u"Welche Oxidationszahl hat |What is the oxidation number of ") + where + u"?",
                 .answer = number,
                 .spokenAnswer = {}});
        }
    }
}

void addRulesOfPh(std::vector<SheetEntry>& entries)
{
    constexpr StringView LineEnd = u"<br>";
    for (const ControlDesign& control : tool_ph_rules_design::Design.controls) {
        const String rule = LNG()->TRANSLATEAUTO(control.text);
        if (rule.find(LineEnd) != String::npos) {
            entries.push_back(
                {.sheet = ReferenceSheet::Acids,
                 .subject = unicodeOfOlderNotation(notationOf(CoreStringOps::Before(rule, LineEnd))),
                 .content = unicodeOfOlderNotation(notationOf(CoreStringOps::After(rule, LineEnd))),
                 .spoken = {},
                 .otherwise = {},
                 .question = {},
                 .answer = {},
                 .spokenAnswer = {}});
        }
    }
}

void addAcids(std::vector<SheetEntry>& entries)
{
    for (const Acid& acid : acids()) {
        const String base = unicodeOfOlderNotation(notationOf(acid.base));
        const String formula = unicodeOfOlderNotation(notationOf(acid.acid));
        const auto told = [&](StringView formulaOfBase) {
            return LNG()->TRANSLATE(u"Base {1}, pKs {2}", u"Base {1}, pKa {2}",
                                    {Variant(String(formulaOfBase)), Variant(String(acid.pKs))});
        };
        entries.push_back(
            {.sheet = ReferenceSheet::Acids,
             .subject = formula,
             .content = told(base),
             .spoken = told(spokenFormula(notationOf(acid.base))),
             .otherwise = typedFormula(notationOf(acid.acid)) + u" " + typedFormula(notationOf(acid.base)),
             .question = say(u"Welche Base gehört zu |Which base belongs to ") + formula + u"?",
             .answer = base,
             .spokenAnswer = spokenFormula(notationOf(acid.base))});
    }
}

/// How well an entry fits: 0 best; none where a word is missing.
std::optional<int> rankOf(const SheetEntry& entry, StringView sought)
{
    const String subject = lowerCase(entry.subject);
    const String otherwise = lowerCase(entry.otherwise);
    const String all = subject + u" " + otherwise + u" " + lowerCase(entry.content) + u" " +
                       lowerCase(sheetName(entry.sheet));
    for (const StringView word : split(sought, u" ")) {
        if (all.find(word) == String::npos) {
            return std::nullopt;
        }
    }
    const StringView bare = StringView(subject).substr(subject.starts_with(u'-') ? 1 : 0);
    if (sought.empty() || bare == sought || otherwise == sought) {
        return 0;
    }
    return bare.starts_with(sought) || otherwise.starts_with(sought) ? 1 : 2;
}

} // namespace

String sheetName(ReferenceSheet sheet)
{
    switch (sheet) {
    case ReferenceSheet::Elements:
        return say(u"Periodensystem|Periodic table");
    case ReferenceSheet::Groups:
        return say(u"Namen von Gruppen|Names of groups");
    case ReferenceSheet::OxidationNumbers:
        return say(u"Oxidationszahlen|Oxidation numbers");
    case ReferenceSheet::Acids:
        break;
    }
    return say(u"Säuren und pH-Wert|Acids and pH");
}

std::vector<SheetEntry> sheetEntries()
{
    std::vector<SheetEntry> entries;
    addElements(entries);
    addGroups(entries);
    addOxidationNumbers(entries);
    addAcids(entries);
    addRulesOfPh(entries);
    return entries;
}

std::vector<SheetEntry> entriesFound(std::span<const SheetEntry> entries, StringView sought,
                                     std::optional<ReferenceSheet> sheet)
{
    const String wanted = lowerCase(trimmed(sought));
    std::vector<std::pair<int, const SheetEntry*>> ranked;
    for (const SheetEntry& entry : entries) {
        if (sheet && entry.sheet != *sheet) {
            continue;
        }
        if (const auto rank = rankOf(entry, wanted)) {
            ranked.emplace_back(*rank, &entry);
        }
    }
    std::ranges::stable_sort(ranked, {}, [](const auto& found) { return found.first; });
    std::vector<SheetEntry> found;
    found.reserve(ranked.size());
    for (const auto& [rank, entry] : ranked) {
        found.push_back(*entry);
    }
    return found;
}

String entriesAsText(std::span<const SheetEntry> entries)
{
    String text;
    for (const SheetEntry& entry : entries) {
        text += entry.subject + u"\t" + entry.content + u"\t" + sheetName(entry.sheet) + u"\r\n";
    }
    return text;
}

} // namespace phial
