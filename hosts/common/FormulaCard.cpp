#include "common/FormulaCard.h"

#include "chem/FormulaAnalysis.h"
#include "chem/cls_DataElements.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "common/FrameTexts.h"
#include "common/TermFit.h"
#include "core/RuntimeError.h"
#include "term/TermSpeech.h"
#include "visual/Form.h"

namespace learning
{

using phial::String;

String formulaLine(phial::StringView formula)
{
    phial::FormulaReading reading = phial::readFormula(formula);
    if (!reading) {
        reading = phial::readEquation(formula);
    }
    return reading ? phial::unicodeFormula(reading.tree) : String(formula);
}

std::optional<TaskFault> FormulaCard::faultOf(const String& formula)
{
    bool hasAtoms = false;
    phial::ignoringErrors([&] { hasAtoms = phial::AtomCounts(formula).size() > 0; });
    if (!hasAtoms) {
        return TaskFault::NoTask;
    }
    return fittingTermSize(formula, Width) ? std::nullopt : std::optional(TaskFault::TooLong);
}

std::optional<TaskFault> FormulaCard::faultOf(const String& formula, const phial::cls_DataElements& elements)
{
    std::size_t position = 0;
    for (phial::StringView symbol = phial::nextSymbol(formula, position); !symbol.empty();
         symbol = phial::nextSymbol(formula, position)) {
        if (!elements.EXISTS(String(symbol))) {
            return TaskFault::UnknownElement;
        }
    }
    return faultOf(formula);
}

FormulaCard::FormulaCard(phial::Form& form)
    : form_(form), formula_(form.control<phial::ctl_TermLabel>(u"trm_Formula"))
{
}

void FormulaCard::show(const ListedTask& task)
{
    task_ = task;
    showFitting(*formula_, task.text);
    TRANSLATE();
}

void FormulaCard::TRANSLATE()
{
    caption(form_, u"lab_Name", calledName());
}

String FormulaCard::spoken() const
{
    return calledName() + u", " + phial::spelledTerm(task_.text);
}

String FormulaCard::calledName() const
{
    return translate(task_.germanName, task_.englishName);
}

} // namespace learning
