#include "common/frm_MasterChoice.h"

#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppDialog.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "common/MasterChoiceDesign.h"

#include <algorithm>

namespace learning
{

namespace choice_design = master_choice_design;

using phial::String;

namespace
{

constexpr std::int32_t AtOnce = 1; // milliseconds

} // namespace

frm_MasterChoice::frm_MasterChoice(const String& address, MasterSearch search)
    : search_(std::move(search)), form_(choice_design::Design),
      address_(form_->control<phial::TextBox>(u"txt_Address")),
      masters_(form_->control<phial::ListBox>(u"lst_Masters")), starting_(u"tmr_Starting", AtOnce)
{
    connect();
    TRANSLATE();
    address_->Text(address);
}

void frm_MasterChoice::Show()
{
    form_->Show(phial::FormShow::Modal);
}

void frm_MasterChoice::connect()
{
    form_.press(u"but_Search", [this] { search(); });
    form_.press(u"but_Connect", [this] { connectTo(); });
    form_.press(u"but_Cancel", [this] { form_->Unload(); });
    form_.on(masters_->Click,
             [this] { address_->Text(found_[static_cast<std::size_t>(masters_->ListIndex())].address); });
    form_.on(masters_->DblClick, [this] { connectTo(); });
    form_.on(address_->Click, [this] {
        phial::QVAPP()->DIALOG()->TEXTINPUT(address_,
                                            translate(u"Adresse des Masters", u"Address of the master"));
    });
    form_.on(address_->Change,
             [this] { form_->control<phial::ctl_Button>(u"but_Connect")->Enabled(!typedAddress().empty()); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->Load, [this] {
        address_->SetFocus();
        address_->SelStart(0);
        address_->SelLength(static_cast<std::int32_t>(address_->Text().size()));
        starting_.Enabled(true);
    });
    form_.on(starting_.Tick, [this] {
        starting_.Enabled(false);
        search();
    });
    form_.on(form_->Unloaded, [this] { starting_.Enabled(false); });
}

void frm_MasterChoice::TRANSLATE()
{
    phial::translateForm(form_);
    showFound();
}

void frm_MasterChoice::search()
{
    if (isSearching_) {
        return;
    }
    isSearching_ = true;
    showFound();
    found_ = search_ ? search_() : std::vector<phial::FoundMaster>();
    isSearching_ = false;
    masters_->Clear();
    for (const phial::FoundMaster& master : found_) {
        masters_->AddItem(master.address);
    }
    showFound();
}

void frm_MasterChoice::showFound()
{
    const auto count = static_cast<int>(found_.size());
    caption(*form_, u"lab_Found",
            isSearching_ ? translate(u"Suche …", u"Searching …")
            : count == 0 ? translate(u"Keiner hat geantwortet.", u"None has answered.")
            : count == 1 ? translate(u"Einer hat geantwortet.", u"One has answered.")
                         : translate(u"{1} haben geantwortet.", u"{1} have answered.", {number(count)}));
    form_->control<phial::ctl_Button>(u"but_Search")->Enabled(!isSearching_);
}

String frm_MasterChoice::typedAddress() const
{
    return phial::trimmed(address_->Text());
}

void frm_MasterChoice::connectTo()
{
    const String address = typedAddress();
    if (address.empty()) {
        return;
    }
    const auto found = std::ranges::find(found_, address, &phial::FoundMaster::address);
    chosen_ = found != found_.end() ? *found : phial::FoundMaster{address, {}};
    form_->Unload();
}

} // namespace learning
