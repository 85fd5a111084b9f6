// Any text is either refused, with a place within it, or a formula that every form of it reads as again.

#include "FuzzInput.h"
#include "chem/formula/EquationBalance.h"
#include "chem/formula/FormulaComparison.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/FormulaSpeech.h"
#include "chem/formula/OxidationNumbers.h"

#include <cmath>
#include <vector>

namespace
{

using namespace phial;
using Read = FormulaReading (*)(StringView);

void readEachForm(const FormulaTree& tree, Read read)
{
    for (const auto print : {plainFormula, unicodeFormula, formulaMarkup, formulaTerm}) {
        const FormulaReading again = read(print(tree));
        fuzz::require(again && again.tree == tree);
    }
}

/// How often each item of a species is there, brackets and parts of a hydrate counted in; its factor is not.
std::vector<long double> timesOf(const FormulaTree& tree, const FormulaSpecies& species)
{
    std::vector<long double> times(tree.items.size(), 0);
    for (std::uint32_t part = species.first; part < species.end; ++part) {
        const Rational factor = tree.parts[part].factor;
        const auto share =
            static_cast<long double>(factor.numerator) / static_cast<long double>(factor.denominator);
        std::vector<std::uint32_t> open;
        for (std::uint32_t at = tree.parts[part].first; at < tree.parts[part].end; ++at) {
            while (!open.empty() && tree.items[open.back()].end <= at) {
                open.pop_back();
            }
            times[at] =
                (open.empty() ? share : times[open.back()]) * static_cast<long double>(tree.items[at].count);
            if (tree.items[at].isGroup()) {
                open.push_back(at);
            }
        }
    }
    return times;
}

/// All oxidation numbers of a species add up to its charge.
void requireSumIsCharge(const FormulaTree& tree, const FormulaSpecies& species, const OxidationNumbers& found)
{
    const std::vector<long double> times = timesOf(tree, species);
    long double sum = 0;
    long double size = 1;
    for (const OxidationNumber& each : found.numbers) {
        const long double share = times[each.item] * static_cast<long double>(each.number.numerator) /
                                  static_cast<long double>(each.number.denominator);
        sum += share;
        size += std::abs(share);
    }
    constexpr long double Rounding = 1e-12L;
    fuzz::require(std::abs(sum - static_cast<long double>(species.charge)) <= Rounding * size);
}

void findOxidationNumbers(const FormulaTree& tree)
{
    for (const FormulaSpecies& species : tree.species) {
        const OxidationNumbers found = oxidationNumbersOf(tree, species);
        fuzz::require(!found.fault || found.numbers.empty());
        for (const OxidationNumber& number : found.numbers) {
            fuzz::require(number.item < tree.items.size() && !tree.items[number.item].isGroup());
            fuzz::require(!writtenOxidationNumber(number.number).empty());
        }
        if (!found.fault) {
            requireSumIsCharge(tree, species, found);
        }
    }
}

void tryReading(StringView text, Read read)
{
    const FormulaReading reading = read(text);
    if (!reading) {
        const SourceSpan& span = reading.refusal->span;
        fuzz::require(span.start + span.length <= text.size());
        fuzz::require(!germanSentence(*reading.refusal).empty());
        fuzz::require(!englishSentence(*reading.refusal).empty());
        return;
    }
    readEachForm(reading.tree, read);
    spokenInGerman(reading.tree);
    balance(reading.tree);
    findOxidationNumbers(reading.tree);
    compareFormulas(reading.tree, reading.tree);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const String text = fuzz::textOf(data, size);
    tryReading(text, readFormula);
    tryReading(text, readEquation);
    return 0;
}
