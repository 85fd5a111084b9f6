#include "formeln/FormulaJudge.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/ElementSymbols.h"
#include "chem/formula/EquationBalance.h"
#include "chem/formula/FormulaComparison.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "common/FrameTexts.h"
#include "formeln/EquationCard.h"

#include <algorithm>
#include <numeric>

namespace formeln
{

using learning::Judgement;
using learning::translate;
using phial::FormulaLikeness;
using phial::FormulaReading;
using phial::Rational;
using phial::String;
using phial::StringView;

namespace
{

bool speaksGerman()
{
    return phial::LNG()->EFFECTIVE() == phial::ID_Language_German;
}

/// A formula, or an equation where there is an arrow.
FormulaReading readingOf(StringView text)
{
    return text.find(u"->") == StringView::npos ? phial::readFormula(text) : phial::readEquation(text);
}

String elementName(int atomicNumber)
{
    const phial::ElementSymbol& element = phial::elementOf(atomicNumber);
    return String(speaksGerman() ? element.german : element.english);
}

String countText(const Rational& count)
{
    const String whole = learning::number(static_cast<int>(count.numerator));
    return count.denominator == 1 ? whole
                                  : whole + u"/" + learning::number(static_cast<int>(count.denominator));
}

String chargeText(std::int32_t charge)
{
    const std::int32_t size = charge < 0 ? -charge : charge;
    return (size > 1 ? learning::number(size) : String()) + (charge < 0 ? u"\u2212" : u"+");
}

/// "Sauerstoff: zu viel" for the first element that differs; the right number is not told.
String differenceText(const std::vector<phial::ElementDifference>& differences)
{
    const phial::ElementDifference& first = differences.front();
    const String name = elementName(first.element);
    if (first.given.numerator == 0) {
        return translate(u"{1} fehlt in deiner Formel.", u"Your formula has no {1}.", {name});
    }
    if (first.right.numerator == 0) {
        return translate(u"{1} kommt hier nicht vor.", u"There is no {1} in it.", {name});
    }
    const bool isTooMany =
        first.given.numerator * first.right.denominator > first.right.numerator * first.given.denominator;
    return isTooMany ? translate(u"Die Elemente stimmen. Von {1} sind es zu viele Atome.",
                                 u"The elements are right. There are too many atoms of {1}.", {name})
                     : translate(u"Die Elemente stimmen. Von {1} sind es zu wenige Atome.",
                                 u"The elements are right. There are too few atoms of {1}.", {name});
}

String chargeRemark(const phial::FormulaComparison& comparison)
{
    if (comparison.givenCharge == 0) {
        return translate(u"Die Atome stimmen. Es ist ein Ion: Die Ladung fehlt.",
                         u"The atoms are right. It is an ion: the charge is missing.");
    }
    if (comparison.rightCharge == 0) {
        return translate(u"Die Atome stimmen. Der Stoff ist nach außen neutral.",
                         u"The atoms are right. As a whole the substance is neutral.");
    }
    return translate(u"Die Atome stimmen, die Ladung {1} nicht.",
                     u"The atoms are right, the charge {1} is not.", {chargeText(comparison.givenCharge)});
}

/// Carbon and hydrogen: such substances are written in several ways.
bool isOrganicTree(const phial::FormulaTree& tree)
{
    constexpr std::uint8_t Carbon = 6;
    constexpr std::uint8_t Hydrogen = 1;
    const auto has = [&](std::uint8_t element) {
        return std::ranges::find(tree.items, element, &phial::FormulaItem::element) != tree.items.end();
    };
    return has(Carbon) && has(Hydrogen);
}

FormulaOpinion opinionOf(const phial::FormulaTree& given, const phial::FormulaTree& right)
{
    const phial::FormulaComparison comparison = phial::compareFormulas(given, right);
    switch (comparison.likeness) {
    case FormulaLikeness::Same:
        return {Judgement::Right};
    case FormulaLikeness::WrittenOtherwise:
        if (comparison.isInOrder || isOrganicTree(right)) {
            return {Judgement::Right};
        }
        return {Judgement::Wrong, translate(u"Die Atome stimmen. Schreibe sie in der üblichen Reihenfolge.",
                                            u"The atoms are right. Write them in the usual order.")};
    case FormulaLikeness::FactorWrong:
        return {Judgement::Wrong, translate(u"Gefragt ist ein Teilchen, ohne Zahl davor.",
                                            u"One particle is asked for, without a number before it.")};
    case FormulaLikeness::ChargeWrong:
        return {Judgement::Wrong, chargeRemark(comparison)};
    case FormulaLikeness::BracketForgotten:
        return {Judgement::Wrong, translate(u"Da fehlt eine Klammer: Die Zahl gilt für die ganze Gruppe.",
                                            u"A bracket is missing: the number counts for the whole group.")};
    case FormulaLikeness::CountsWrong:
    case FormulaLikeness::ElementsWrong:
        break;
    }
    return {Judgement::Wrong,
            comparison.differences.empty() ? String() : differenceText(comparison.differences)};
}

String textOf(const Equation& equation)
{
    const auto joined = [](const std::vector<String>& side) {
        String text;
        for (const String& substance : side) {
            text += (text.empty() ? u"" : u" + ") + substance;
        }
        return text;
    };
    return joined(equation.left) + u" -> " + joined(equation.right);
}

std::vector<Rational> rationals(const std::vector<int>& factors)
{
    std::vector<Rational> numbers;
    numbers.reserve(factors.size());
    for (const int factor : factors) {
        numbers.push_back({factor, 1});
    }
    return numbers;
}

/// Begins as a sentence does.
String sideText(const phial::Imbalance& both)
{
    String name = both.element == 0 ? translate(u"Ladung", u"Charge") : elementName(both.element);
    name.replace(0, 1, phial::upperCase(name.substr(0, 1)));
    return translate(u"{1}: links {2}, rechts {3}", u"{1}: {2} on the left, {3} on the right",
                     {name, countText(both.left), countText(both.right)});
}

} // namespace

FormulaOpinion judgeFormula(StringView answer, StringView right)
{
    const FormulaReading given = phial::readFormula(answer);
    if (!given) {
        return {Judgement::Unreadable, speaksGerman() ? phial::germanSentence(*given.refusal)
                                                      : phial::englishSentence(*given.refusal)};
    }
    const FormulaReading asked = phial::readFormula(right);
    return asked ? opinionOf(given.tree, asked.tree) : FormulaOpinion{};
}

std::optional<std::vector<int>> balanced(const Equation& equation)
{
    constexpr std::int64_t MostFactor = 99;
    const FormulaReading reading = phial::readEquation(textOf(equation));
    if (!reading) {
        return std::nullopt;
    }
    const phial::EquationSolution solution = phial::balance(reading.tree);
    const bool isShort =
        std::ranges::all_of(solution.factors, [](auto factor) { return factor <= MostFactor; });
    if (solution.kind != phial::EquationSolution::Kind::One || !isShort) {
        return std::nullopt;
    }
    return std::vector<int>(solution.factors.begin(), solution.factors.end());
}

FormulaOpinion judgeFactors(const Equation& equation, const std::vector<int>& factors)
{
    const FormulaReading reading = phial::readEquation(textOf(equation));
    if (!reading) {
        return {};
    }
    const auto wrong = phial::imbalancesOf(reading.tree, rationals(factors));
    if (!wrong.empty()) {
        return {Judgement::Wrong, sideText(wrong.front()) + u"."};
    }
    int divisor = 0;
    for (const int factor : factors) {
        divisor = std::gcd(divisor, factor);
    }
    return divisor == 1 ? FormulaOpinion{Judgement::Right}
                        : FormulaOpinion{Judgement::Wrong,
                                         translate(u"Die Gleichung geht auf, aber mit kleineren Zahlen auch.",
                                                   u"The equation is balanced, but so it is with smaller "
                                                   u"numbers.")};
}

String atomsOnBothSides(const Equation& equation, const std::vector<int>& factors)
{
    const FormulaReading reading = phial::readEquation(textOf(equation));
    String lines;
    if (reading) {
        for (const phial::Imbalance& both :
             phial::sidesOf(reading.tree, rationals(factors)).value_or(std::vector<phial::Imbalance>())) {
            lines += (lines.empty() ? u"" : u"<br>") + sideText(both);
        }
    }
    return lines;
}

bool isFormula(StringView text, const phial::cls_DataElements& elements)
{
    const FormulaReading reading = phial::readFormula(text);
    return reading && std::ranges::all_of(reading.tree.items, [&](const phial::FormulaItem& item) {
               return item.isGroup() || elements.EXISTS(String(phial::elementOf(item.element).symbol));
           });
}

String formulaMarkup(StringView text)
{
    const FormulaReading reading = readingOf(text);
    return reading ? phial::formulaMarkup(reading.tree) : String(text);
}

String elementsOf(StringView text)
{
    const FormulaReading reading = phial::readFormula(text);
    String names;
    if (reading) {
        for (const phial::ElementCount& atom : phial::atomsIn(reading.tree, reading.tree.species.front())
                                                   .value_or(std::vector<phial::ElementCount>())) {
            names += (names.empty() ? u"" : u", ") + elementName(atom.element);
        }
    }
    return names;
}

String atomsOf(StringView text)
{
    const FormulaReading reading = phial::readFormula(text);
    if (!reading) {
        return {};
    }
    const phial::FormulaSpecies& species = reading.tree.species.front();
    String list;
    for (const phial::ElementCount& atom :
         phial::atomsIn(reading.tree, species).value_or(std::vector<phial::ElementCount>())) {
        list += (list.empty() ? u"" : u", ") + countText(atom.count) + u"\u00A0×\u00A0" +
                String(phial::elementOf(atom.element).symbol);
    }
    return species.charge == 0
               ? list
               : translate(u"{1}; Ladung {2}", u"{1}; charge {2}", {list, chargeText(species.charge)});
}

String balancedMarkup(const Equation& equation, const std::vector<int>& factors)
{
    FormulaReading reading = phial::readEquation(textOf(equation));
    if (!reading || factors.size() != reading.tree.species.size()) {
        return {};
    }
    for (std::size_t at = 0; at < factors.size(); ++at) {
        reading.tree.species[at].factor = {factors[at], 1};
    }
    return phial::formulaMarkup(reading.tree);
}

std::optional<learning::TaskFault> faultOf(const String& text, const phial::cls_DataElements& elements)
{
    using learning::TaskFault;
    if (text.find(u"->") == String::npos) {
        const FormulaReading reading = phial::readFormula(text);
        if (!reading) {
            return reading.refusal->fault == phial::FormulaFault::UnknownSymbol ? TaskFault::UnknownElement
                                                                                : TaskFault::NoTask;
        }
        return isFormula(text, elements) ? std::nullopt : std::optional(TaskFault::UnknownElement);
    }
    const auto equation = equationIn(text);
    if (!equation || !balanced(*equation)) {
        return TaskFault::NoTask;
    }
    return EquationCard::fits(*equation) ? std::nullopt : std::optional(TaskFault::TooLong);
}

} // namespace formeln
