// Any text is either refused, with a place within it, or a formula that every form of it reads as again.

#include "FuzzInput.h"
#include "chem/formula/EquationBalance.h"
#include "chem/formula/FormulaComparison.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/FormulaSpeech.h"
#include "chem/formula/OxidationNumbers.h"

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

void findOxidationNumbers(const FormulaTree& tree)
{
    for (const FormulaSpecies& species : tree.species) {
        const OxidationNumbers found = oxidationNumbersOf(tree, species);
        fuzz::require(!found.fault || found.numbers.empty());
        for (const OxidationNumber& number : found.numbers) {
            fuzz::require(number.item < tree.items.size() && !tree.items[number.item].isGroup());
            fuzz::require(!writtenOxidationNumber(number.number).empty());
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
