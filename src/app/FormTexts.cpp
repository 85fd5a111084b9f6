#include "app/FormTexts.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "visual/DesignedForm.h"

namespace phial
{

void translateForm(DesignedForm& form)
{
    LNG()->Form(*form, form.texts());
    form.speak([](StringView both) { return LNG()->TRANSLATEAUTO(both); });
}

} // namespace phial
