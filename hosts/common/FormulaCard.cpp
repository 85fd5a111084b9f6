#include "common/FormulaCard.h"

#include "chem/FormulaAnalysis.h"
#include "chem/cls_DataElements.h"
#include "common/FrameTexts.h"
#include "common/TermFit.h"
#include "core/RuntimeError.h"
#include "visual/Form.h"

namespace learning
{

using phial::String;

String formulaLine(phial::StringView formula)
{
    constexpr char16_t LoweredZero = u'\u2080';
    constexpr char16_t TermDot = u'*';
    constexpr char16_t MiddleDot = u'\u00B7';
    String line(formula);
    bool isIndex = false; // a number in front belongs to no symbol
    for (char16_t& unit : line) {
        unit = unit == TermDot ? MiddleDot : unit;
        if (isIndex && phial::isDigit(unit)) {
            unit = static_cast<char16_t>(LoweredZero + (unit - u'0'));
        } else {
            isIndex = !phial::isDigit(unit) && unit != u' ' && unit != u'(' && unit != MiddleDot;
        }
    }
    return line;
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
    return calledName() + u", " + task_.text;
}

String FormulaCard::calledName() const
{
    return translate(task_.germanName, task_.englishName);
}

} // namespace learning
