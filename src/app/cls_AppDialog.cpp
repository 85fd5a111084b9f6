#include "app/cls_AppDialog.h"

#include "app/screen/Desktop.h"
#include "app/screen/frm_AppAbout.h"

namespace phial
{

void cls_AppDialog::ABOUT() const
{
    frm_AppAbout().Show();
}

void cls_AppDialog::TASKBARVISIBLE(bool value) const
{
    if (value) {
        ShowTaskbar();
    } else {
        HideTaskbar();
    }
}

} // namespace phial
