#include "desk/frm_ToolpHRules.h"

#include "app/FormTexts.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "desk/AcidTable.h"
#include "desk/SheetCommands.h"
#include "desk/pHRulesDesign.h"

namespace phial
{

frm_ToolpHRules::frm_ToolpHRules()
    : form_(tool_ph_rules_design::Design), table_(form_->control<ctl_Label>(u"ctl_Label1"))
{
    form_.on(form_->Load, [this] { TRANSLATE(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    wireSheet(form_, ReferenceSheet::Acids);
}

void frm_ToolpHRules::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_ToolpHRules::TRANSLATE()
{
    translateForm(form_);
    const String head = LNG()->TRANSLATEAUTO(tool_ph_rules_design::TableHead);
    table_->Caption(acidTable(head, table_->Font()->traits()));
}

} // namespace phial
