#include "molmasse/frm_MasterChoice.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "molmasse/MasterChoiceLayout.h"
#include "molmasse/MolmasseStyle.h"
#include "molmasse/TrainerTexts.h"

#include <algorithm>

namespace molmasse
{

namespace choice_layout = master_choice_layout;

using phial::String;

namespace
{

constexpr std::int32_t AtOnce = 1;           // milliseconds
constexpr std::int32_t LongestAddress = 255; // characters, as of a host's name

} // namespace

frm_MasterChoice::frm_MasterChoice(const String& address, MasterSearch search)
    : search_(std::move(search)), form_(std::make_shared<phial::Form>(u"frm_MasterChoice")),
      starting_(u"tmr_Starting", AtOnce)
{
    build();
    connect();
    TRANSLATE();
    address_->Text(address);
}

frm_MasterChoice::~frm_MasterChoice()
{
    form_->discard();
}

void frm_MasterChoice::Show()
{
    form_->Show(phial::FormShow::Modal);
}

void frm_MasterChoice::build()
{
    form_->ScaleMode(phial::ScaleUnit::Pixels);
    form_->BorderStyle(phial::BorderStyle::FixedDialog);
    form_->innerSize({choice_layout::Width, choice_layout::Height});
    form_->centred(true);
    for (const phial::LayoutItem& item : choice_layout::Items) {
        phial::applyLayout(*form_, {&item, 1});
        if (phial::Container* inner = form_->control<phial::Control>(item.name)->container()) {
            inner->ScaleMode(phial::ScaleUnit::Pixels);
        }
    }
    address_ = form_->control<phial::TextBox>(u"txt_Address");
    address_->MaxLength(LongestAddress);
    masters_ = form_->control<phial::ListBox>(u"lst_Masters");
    form_->DefaultControl(form_->control<phial::ctl_Button>(u"but_Connect"));
    form_->CancelControl(form_->control<phial::ctl_Button>(u"but_Cancel"));
    style::applyToMasterChoice(*form_);
}

void frm_MasterChoice::connect()
{
    const auto press = [this](phial::StringView button, auto action) {
        connections_ += form_->control<phial::ctl_Button>(button)->CLICK.connect(action);
    };
    press(u"but_Search", [this] { search(); });
    press(u"but_Connect", [this] { connectTo(); });
    press(u"but_Cancel", [this] { form_->Unload(); });
    connections_ += masters_->Click.connect(
        [this] { address_->Text(found_[static_cast<std::size_t>(masters_->ListIndex())].address); });
    connections_ += masters_->DblClick.connect([this] { connectTo(); });
    connections_ += address_->Change.connect(
        [this] { form_->control<phial::ctl_Button>(u"but_Connect")->Enabled(!typedAddress().empty()); });
    connections_ += form_->TRANSLATE.connect([this] { TRANSLATE(); });
    connections_ += form_->Load.connect([this] {
        address_->SetFocus();
        address_->SelStart(0);
        address_->SelLength(static_cast<std::int32_t>(address_->Text().size()));
        starting_.Enabled(true);
    });
    connections_ += starting_.Tick.connect([this] {
        starting_.Enabled(false);
        search();
    });
    connections_ += form_->Unloaded.connect([this] { starting_.Enabled(false); });
}

void frm_MasterChoice::TRANSLATE()
{
    form_->Caption(translate(u"Klassenraum", u"Classroom"));
    for (const phial::LayoutItem& item : choice_layout::Items) {
        if (!item.text.empty()) {
            phial::setMember(*form_->find(item.name), u"Caption", phial::LNG()->TRANSLATEAUTO(item.text));
        }
    }
    masters_->frame().AccessibleName(translate(u"Gefundene Master", u"Masters found"));
    address_->frame().AccessibleName(translate(u"Adresse des Masters", u"Address of the master"));
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

} // namespace molmasse
