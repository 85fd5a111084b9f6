#include "common/ReferenceDrawer.h"

#include <utility>

namespace learning
{

ReferenceDrawer::ReferenceDrawer(phial::Form& form)
    : button_(form.control<phial::ctl_Button>(u"but_Reference")),
      drawer_(form.control<ctl_Reference>(u"ref_Drawer"))
{
    connections_ += button_->CLICK.connect([this] { turn(); });
    connections_ += drawer_->CLICK.connect([this] { turn(); });
}

void ReferenceDrawer::fill(std::vector<ReferenceEntry> entries, const phial::String& title)
{
    drawer_->show(std::move(entries));
    drawer_->frame().AccessibleName(title);
    button_->Caption(title + u" (F2)");
    button_->Visible(!drawer_->isEmpty());
    if (drawer_->isEmpty()) {
        close();
    }
}

void ReferenceDrawer::turn()
{
    if (drawer_->isEmpty()) {
        return;
    }
    if (!drawer_->Visible()) {
        drawer_->firstPage();
        drawer_->Visible(true);
    } else if (!drawer_->nextPage()) {
        drawer_->Visible(false);
    }
}

bool ReferenceDrawer::close()
{
    const bool wasOpen = drawer_->Visible();
    drawer_->Visible(false);
    return wasOpen;
}

} // namespace learning
