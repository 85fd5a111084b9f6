#include "gallery/frm_Gallery.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppMRU.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreTheme.h"
#include "core/SessionState.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "gallery/GalleryLayout.h"

#include <algorithm>

namespace gallery
{

using phial::String;
using phial::StringView;

namespace
{

constexpr std::int32_t MiddleLeft = 0;
constexpr std::int32_t TopLeft = 4;
constexpr std::int32_t WatchInterval = 400;
constexpr StringView Indent = u"    ";

/// The entries of the menu of languages, in the order of its indices.
constexpr auto Languages =
    std::to_array<phial::enm_LanguageC>({phial::ID_Language_German, phial::ID_Language_English});

} // namespace

frm_Gallery::frm_Gallery()
    : exhibits_(catalogue()), form_(std::make_shared<phial::Form>(u"frm_Gallery")),
      states_(*form_, u"but_State"), watch_(std::make_shared<phial::Timer>(u"tmr_Watch", WatchInterval))
{
    build();
    stage_.emplace(*form_, *get<phial::ctl_Pannel>(u"pan_Stage")->container(),
                   phial::PixelSize{layout::StageWidth, layout::StageHeight});
    properties_.emplace(*form_);
    connect();
    TRANSLATE();
    watch_->Enabled(true);
}

frm_Gallery::~frm_Gallery()
{
    watch_->Enabled(false);
    stage_->clear();
    form_->discard();
}

void frm_Gallery::build()
{
    form_->ScaleMode(phial::ScaleUnit::Pixels);
    form_->BorderStyle(phial::BorderStyle::FixedSingle);
    form_->innerSize({layout::Width, layout::Height});
    form_->centred(true);
    form_->BackColor(colours::Paper);
    phial::applyLayout(*form_, layout::Frame);
    get<phial::ctl_Gradient>(u"bar_Header")->container()->ScaleMode(phial::ScaleUnit::Pixels);
    get<phial::ctl_Pannel>(u"pan_Stage")->container()->ScaleMode(phial::ScaleUnit::Pixels);
    phial::applyLayout(*form_, layout::Header);
    buildStates();
    buildMenu();
    form_->addComponent(watch_);
    style();
}

void frm_Gallery::buildStates()
{
    states_.adopt();
    const auto first = states_(0);
    for (int i = 0; i < layout::MostStates; ++i) {
        const auto button = states_.has(i) ? states_(i) : states_.load(i);
        const int row = i / layout::StateColumns;
        const int column = i % layout::StateColumns;
        button->Move(first->Left() + column * layout::StateStepX, first->Top() + row * layout::StateStepY);
        button->frame().TabIndex(first->frame().TabIndex());
        button->Font(galleryFont(10));
    }
}

void frm_Gallery::buildMenu()
{
    const auto file = form_->menu().add(u"men_File", {});
    file->add(u"mnu_FileMRU", {}, 0);
    file->add(u"mnu_FileMRUSep", u"-");
    file->add(u"men_Quit", {});
    const auto language = form_->menu().add(u"men_Language", {});
    for (std::size_t i = 0; i < Languages.size(); ++i) {
        language->add(u"men_Choice", Languages[i] == phial::ID_Language_German ? u"&Deutsch" : u"&English",
                      static_cast<std::int32_t>(i));
    }
    form_->menu().add(u"men_Help", {})->add(u"men_Info", {});
    const auto& recent = phial::QVAPP()->MRU();
    recent->DEVICE(form_);
    recent->UPDATE();
}

void frm_Gallery::style()
{
    phial::coreTheme().SetColour(phial::ThemeSlot::Accent, colours::Blue);
    const auto header = get<phial::ctl_Gradient>(u"bar_Header");
    header->Color1(colours::Blue);
    header->Color2(colours::DarkBlue);
    header->Angle(0);
    get<phial::ctl_Pannel>(u"pan_Stage")->BackColor(colours::White);
    get<phial::ctl_Pannel>(u"pan_Stage")->BorderColor(colours::Line);

    struct LabelStyle {
        StringView name;
        double size;
        bool bold;
        std::int32_t align;
        phial::Colour colour;
    };
    for (const LabelStyle& row :
         std::initializer_list<LabelStyle>{{u"lab_Title", 18, true, MiddleLeft, colours::White},
                                           {u"lab_Name", 16, true, MiddleLeft, colours::Ink},
                                           {u"lab_About", 10, false, TopLeft, colours::Quiet},
                                           {u"lab_States", 11, true, MiddleLeft, colours::Ink},
                                           {u"lab_Properties", 16, true, MiddleLeft, colours::Ink},
                                           {u"lab_Path", 10, false, TopLeft, colours::Quiet},
                                           {u"lab_Property", 11, true, MiddleLeft, colours::Ink},
                                           {u"lab_Message", 10, false, TopLeft, colours::Bad}}) {
        const auto label = get<phial::ctl_Label>(row.name);
        label->Font(galleryFont(row.size, row.bold));
        label->ForeColor(row.colour);
        label->Alignment(row.align);
    }
    get<phial::ListBox>(u"lst_Exhibits")->Font(galleryFont(10));
    get<phial::ListBox>(u"lst_Properties")->Font(galleryFont(9));
    get<phial::TextBox>(u"txt_Value")->Font(galleryFont(11));
    get<phial::ctl_Button>(u"but_Set")->Font(galleryFont(11, true));
    get<phial::ctl_Button>(u"but_Set")->Accent(true);
    get<phial::ctl_Button>(u"but_Back")->Font(galleryFont(10));
}

void frm_Gallery::connect()
{
    const auto list = get<phial::ListBox>(u"lst_Exhibits");
    const auto set = get<phial::ctl_Button>(u"but_Set");
    connections_ += list->Click.connect([this] { listChosen(); });
    states_.connectEach([this](phial::ctl_Button& button, std::int32_t index) {
        return button.CLICK.connect([this, index] { show(exhibit_, static_cast<std::size_t>(index)); });
    });
    // Return sets a property only while the user is at the properties.
    connections_ += list->GotFocus.connect([this] { form_->DefaultControl(nullptr); });
    connections_ +=
        get<phial::ListBox>(u"lst_Properties")->GotFocus.connect([this, set] { form_->DefaultControl(set); });
    connections_ +=
        get<phial::TextBox>(u"txt_Value")->GotFocus.connect([this, set] { form_->DefaultControl(set); });
    form_->CancelControl(get<phial::ctl_Button>(u"but_Back"));
    connections_ += watch_->Tick.connect([this] { properties_->refresh(); });
    // A window that an exhibit has opened does not outlive the gallery's.
    connections_ += form_->Unloaded.connect([this] { stage_->clear(); });
    connections_ += form_->TRANSLATE.connect([this] { TRANSLATE(); });
    const auto& menu = form_->menu();
    connections_ +=
        menu.entry(u"men_File")->entry(u"men_Quit")->Click.connect([this](std::int32_t) { form_->Unload(); });
    connections_ += menu.entry(u"men_File")->Chosen.connect([this](const phial::Menu& entry) {
        if (entry.NAME() == u"mnu_FileMRU") {
            recentChosen(entry.Tag());
        }
    });
    connections_ += menu.entry(u"men_Help")->entry(u"men_Info")->Click.connect([](std::int32_t) {
        phial::QVAPP()->DIALOG()->ABOUT();
    });
    connections_ += menu.entry(u"men_Language")->Chosen.connect([](phial::Menu& choice) {
        phial::LNG()->CURRENT(Languages[static_cast<std::size_t>(choice.Index())]);
    });
}

void frm_Gallery::TRANSLATE()
{
    form_->Caption(say(u"QV Phial: Galerie|QV Phial: Gallery"));
    const auto translateLayout = [this](const auto& design) {
        for (const phial::LayoutItem& item : design) {
            if (!item.text.empty()) {
                phial::setMember(*form_->find(item.name, item.index), u"Caption", say(item.text));
            }
        }
    };
    translateLayout(layout::Frame);
    translateLayout(layout::Header);
    const auto file = form_->menu().entry(u"men_File");
    file->Caption(say(u"&Datei|&File"));
    file->entry(u"men_Quit")->Caption(say(u"&Beenden|&Quit"));
    const auto help = form_->menu().entry(u"men_Help");
    help->Caption(say(u"&Hilfe|&Help"));
    help->entry(u"men_Info")->Caption(say(u"&Info|&About"));
    phial::QVAPP()->CONFIG()->NAME(say(u"Galerie|Gallery"));
    const auto language = form_->menu().entry(u"men_Language");
    language->Caption(say(u"&Sprache|&Language"));
    for (std::size_t i = 0; i < Languages.size(); ++i) {
        language->entry(u"men_Choice", static_cast<std::int32_t>(i))
            ->Checked(phial::LNG()->EFFECTIVE() == Languages[i]);
    }
    get<phial::ListBox>(u"lst_Exhibits")->frame().AccessibleName(say(u"Steuerelemente|Controls"));
    get<phial::ListBox>(u"lst_Properties")->frame().AccessibleName(say(u"Eigenschaften|Properties"));
    get<phial::TextBox>(u"txt_Value")->frame().AccessibleName(say(u"Wert|Value"));
    listExhibits();
    show(exhibit_, state_);
}

void frm_Gallery::listExhibits()
{
    const auto list = get<phial::ListBox>(u"lst_Exhibits");
    list->Clear();
    lines_.clear();
    for (std::size_t i = 0; i < exhibits_.size(); ++i) {
        if (i == 0 || exhibits_[i].group != exhibits_[i - 1].group) {
            list->AddItem(phial::upperCase(groupTitle(exhibits_[i].group)));
            lines_.emplace_back();
        }
        list->AddItem(String(Indent) + String(exhibits_[i].title));
        lines_.emplace_back(i);
    }
}

/// A heading is stepped over, in the direction in which the choice moves.
void frm_Gallery::listChosen()
{
    const auto list = get<phial::ListBox>(u"lst_Exhibits");
    const std::int32_t line = list->ListIndex();
    if (line < 0) {
        return;
    }
    if (const auto exhibit = lines_[static_cast<std::size_t>(line)]) {
        if (*exhibit != exhibit_) {
            show(*exhibit);
            remember(*exhibit);
        }
    } else if (line == line_ - 1 && line > 0) {
        list->ListIndex(line - 1);
    } else {
        list->ListIndex(line + 1);
    }
}

/// What was seen last stands in the File menu, as files would. Exhibits have no folder, so the list has no
/// base.
void frm_Gallery::remember(std::size_t exhibit)
{
    const auto& recent = phial::QVAPP()->MRU();
    recent->ADD(exhibits_[exhibit].title);
    while (recent->ENTRIES()->Count() > recent->MAX()) {
        recent->ENTRIES()->RemoveAt(recent->ENTRIES()->Count());
    }
    recent->UPDATE();
    recent->SAVE();
}

void frm_Gallery::recentChosen(const String& title)
{
    const auto found = std::ranges::find(exhibits_, StringView(title), &Exhibit::title);
    if (found != exhibits_.end()) {
        const auto exhibit = static_cast<std::size_t>(found - exhibits_.begin());
        show(exhibit);
        remember(exhibit);
    }
}

void frm_Gallery::show(std::size_t exhibit, std::size_t state)
{
    exhibit_ = exhibit;
    line_ = static_cast<std::int32_t>(std::ranges::find(lines_, std::optional(exhibit)) - lines_.begin());
    get<phial::ListBox>(u"lst_Exhibits")->ListIndex(line_);
    const Exhibit& shown = exhibits_.at(exhibit);
    get<phial::ctl_Label>(u"lab_Name")->Caption(String(shown.title));
    get<phial::ctl_Label>(u"lab_About")->Caption(say(shown.about));
    state_ = std::min(state, shown.samples.size() - 1);
    showStates();
    showState(state_);
}

void frm_Gallery::showStates()
{
    const auto& samples = exhibits_[exhibit_].samples;
    states_.each([&](phial::ctl_Button& button, std::int32_t index) {
        const auto at = static_cast<std::size_t>(index);
        button.Caption(at < samples.size() ? say(samples[at].name) : String());
        button.Accent(at == state_);
        button.Visible(at < samples.size());
    });
}

void frm_Gallery::showState(std::size_t state)
{
    const Exhibit& shown = exhibits_[exhibit_];
    properties_->edit(nullptr);
    stage_->clear();
    const phial::ObjectPtr object = shown.build(*stage_);
    properties_->edit(shown.editable ? object : nullptr);
    shown.samples[state].apply(*object);
    stage_->centre();
    properties_->refresh();
}

} // namespace gallery
