#include "desk/SheetCommands.h"

#include "desk/SheetDesign.h"
#include "desk/frm_ToolLookUp.h"
#include "visual/DesignedForm.h"
#include "visual/Form.h"

namespace phial
{

void wireSheet(DesignedForm& form, ReferenceSheet sheet)
{
    const auto lookUp = [sheet] { frm_ToolLookUp(sheet).Show(); };
    form.command(u"bar_Buttons", sheet_design::Confirm, [&form] { form->Unload(); });
    form.command(u"bar_Buttons", sheet_design::LooksUp, lookUp);
    form.on(form->KeyDown, [lookUp](KeyEvent& event) {
        if (event.KeyCode == u'F' && event.Shift == ShiftMask::Control) {
            event.KeyCode = 0;
            lookUp();
        }
    });
}

} // namespace phial
