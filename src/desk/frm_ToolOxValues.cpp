#include "desk/frm_ToolOxValues.h"

#include "app/FormTexts.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/OxidationNumbers.h"
#include "desk/OxValuesDesign.h"
#include "desk/OxidationExamples.h"
#include "desk/SheetCommands.h"
#include "term/TermSpeech.h"

namespace phial
{

namespace
{

/// "H<sub>2</sub>O: H +I".
String markupOf(const OxidationExample& example)
{
    return formulaMarkup(readFormula(example.formula).tree) + u": " + String(example.symbol) + u" " +
           String(example.number);
}

String spoken(const OxidationExample& example)
{
    return spokenTerm(example.formula) + u": " + String(example.symbol) + u" " + String(example.number);
}

} // namespace

frm_ToolOxValues::frm_ToolOxValues()
    : form_(tool_ox_values_design::Design), rules_(*form_, u"lab_Rule"), examples_(*form_, u"lab_Example")
{
    rules_.adopt();
    examples_.adopt();
    form_.on(form_->Load, [this] { TRANSLATE(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    wireSheet(form_, ReferenceSheet::OxidationNumbers);
}

void frm_ToolOxValues::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_ToolOxValues::TRANSLATE()
{
    translateForm(form_);
    for (std::int32_t row = 0; row < tool_ox_values_design::Rules; ++row) {
        const auto& [rule, examples] = oxidationLines()[static_cast<std::size_t>(row)];
        rules_(row)->Caption(LNG()->TRANSLATE(germanSentence(rule), englishSentence(rule)));
        examples_(row)->Caption(markupOf(examples[0]) + u",   " + markupOf(examples[1]));
        examples_(row)->frame().AccessibleName(spoken(examples[0]) + u"; " + spoken(examples[1]));
    }
}

} // namespace phial
