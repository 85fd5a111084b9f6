// Any text is either refused, with a place within it, or a formula that every form of it reads as again.

#include "FuzzInput.h"
#include "chem/formula/EquationBalance.h"
#include "chem/formula/FormulaComparison.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/FormulaSpeech.h"

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
