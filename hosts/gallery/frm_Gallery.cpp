#include "gallery/frm_Gallery.h"

#include "app/ColourChoice.h"
#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppMRU.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreTheme.h"
#include "core/SessionState.h"
#include "dialogs/ScanChoice.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryDesign.h"

#include <algorithm>

namespace gallery
{

using phial::String;
using phial::StringView;

namespace
{

constexpr std::int32_t WatchInterval = 400;
constexpr StringView Indent = u"    ";

/// The entries of the menu of colours, in the order of its indices.
struct ColourEntry {
    std::optional<phial::ColourSet> set;
    StringView both; ///< "German|English"
};
constexpr auto ColourEntries = std::to_array<ColourEntry>({
    {std::nullopt, u"&Wie am Computer|&As the computer"},
    {phial::ColourSet::Light, u"&Hell|&Light"},
    {phial::ColourSet::Dark, u"&Dunkel|&Dark"},
    {phial::ColourSet::HighContrast, u"Hoher &Kontrast|High &contrast"},
});

/// The entries of the menu for single switches, in the order of its indices.
struct ScanEntry {
    std::int32_t interval; ///< milliseconds; 0 for none
    StringView both;
};
constexpr auto ScanEntries = std::to_array<ScanEntry>({
    {0, u"&Tasten antippen|&Tap the keys"},
    {2500, u"Einzelschalter, &langsam|Single switch, &slow"},
    {1500, u"Einzelschalter, &mittel|Single switch, &medium"},
    {800, u"Einzelschalter, &schnell|Single switch, &fast"},
});

/// The entries of the menu of languages, in the order of its indices.
constexpr auto Languages =
    std::to_array<phial::enm_LanguageC>({phial::ID_Language_German, phial::ID_Language_English});

} // namespace

frm_Gallery::frm_Gallery()
    : exhibits_(catalogue()), form_(layout::Design), states_(*form_, u"but_State"),
      watch_(std::make_shared<phial::Timer>(u"tmr_Watch", WatchInterval))
{
    phial::CoreTheme& theme = phial::coreTheme();
    theme.SetColour(phial::ThemeSlot::Accent, phial::Palette::Accent);
    theme.SetColour(phial::ThemeSlot::Frame, phial::Palette::Header);
    theme.SetColour(phial::ThemeSlot::FrameText, phial::Palette::OnHeader);
    states_.adopt();
    buildMenu();
    form_->addComponent(watch_);
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
}

void frm_Gallery::buildMenu()
{
    const auto file = form_->menu().add(u"men_File", u"&Datei|&File");
    file->add(u"mnu_FileMRU", {}, 0);
    file->add(u"mnu_FileMRUSep", u"-");
    file->add(u"men_Quit", u"&Beenden|&Quit");
    const auto language = form_->menu().add(u"men_Language", u"&Sprache|&Language");
    for (std::size_t i = 0; i < Languages.size(); ++i) {
        language->add(u"men_Choice", Languages[i] == phial::ID_Language_German ? u"&Deutsch" : u"&English",
                      static_cast<std::int32_t>(i));
    }
    const auto colours = form_->menu().add(u"men_Colours", u"&Farben|&Colours");
    for (std::size_t i = 0; i < ColourEntries.size(); ++i) {
        colours->add(u"men_Set", phial::String(ColourEntries[i].both), static_cast<std::int32_t>(i));
    }
    const auto keyboards = form_->menu().add(u"men_Keyboards", u"&Tastaturen|&Keyboards");
    for (std::size_t i = 0; i < ScanEntries.size(); ++i) {
        keyboards->add(u"men_Scan", phial::String(ScanEntries[i].both), static_cast<std::int32_t>(i));
    }
    form_->menu().add(u"men_Help", u"&Hilfe|&Help")->add(u"men_Info", u"&Info|&About");
    const auto& recent = phial::QVAPP()->MRU();
    recent->DEVICE(form_.pointer());
    recent->UPDATE();
}

void frm_Gallery::connect()
{
    const auto list = get<phial::ListBox>(u"lst_Exhibits");
    const auto set = get<phial::ctl_Button>(u"but_Set");
    form_.on(list->Click, [this] { listChosen(); });
    states_.connectEach([this](phial::ctl_Button& button, std::int32_t index) {
        return button.CLICK.connect([this, index] { show(exhibit_, static_cast<std::size_t>(index)); });
    });
    // Return sets a property only while the user is at the properties.
    form_.on(list->GotFocus, [this] { form_->DefaultControl(nullptr); });
    form_.on(get<phial::ListBox>(u"lst_Properties")->GotFocus, [this, set] { form_->DefaultControl(set); });
    form_.on(get<phial::TextBox>(u"txt_Value")->GotFocus, [this, set] { form_->DefaultControl(set); });
    form_.on(watch_->Tick, [this] { properties_->refresh(); });
    // A window that an exhibit has opened does not outlive the gallery's.
    form_.on(form_->Unloaded, [this] { stage_->clear(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    const auto& menu = form_->menu();
    form_.on(menu.entry(u"men_File")->entry(u"men_Quit")->Click, [this](std::int32_t) { form_->Unload(); });
    form_.on(menu.entry(u"men_File")->Chosen, [this](const phial::Menu& entry) {
        if (entry.NAME() == u"mnu_FileMRU") {
            recentChosen(entry.Tag());
        }
    });
    form_.on(menu.entry(u"men_Help")->entry(u"men_Info")->Click,
             [](std::int32_t) { phial::QVAPP()->DIALOG()->ABOUT(); });
    form_.on(menu.entry(u"men_Colours")->Chosen, [this](phial::Menu& choice) {
        phial::chooseColours(ColourEntries[static_cast<std::size_t>(choice.Index())].set);
        markColours();
    });
    form_.on(menu.entry(u"men_Keyboards")->Chosen, [this](phial::Menu& choice) {
        phial::chooseScan(ScanEntries[static_cast<std::size_t>(choice.Index())].interval);
        markScan();
    });
    form_.on(menu.entry(u"men_Language")->Chosen, [](phial::Menu& choice) {
        phial::LNG()->CURRENT(Languages[static_cast<std::size_t>(choice.Index())]);
    });
}

void frm_Gallery::TRANSLATE()
{
    phial::translateForm(form_);
    phial::QVAPP()->CONFIG()->NAME(say(u"Galerie|Gallery"));
    const auto language = form_->menu().entry(u"men_Language");
    for (std::size_t i = 0; i < Languages.size(); ++i) {
        language->entry(u"men_Choice", static_cast<std::int32_t>(i))
            ->Checked(phial::LNG()->EFFECTIVE() == Languages[i]);
    }
    markColours();
    markScan();
    listExhibits();
    // What opens a box, plays or prints does not do so again because of the language.
    const Sample& state = exhibits_[exhibit_].samples[state_];
    show(exhibit_, state.waits || state.prints ? 0 : state_);
}

void frm_Gallery::markColours()
{
    const auto colours = form_->menu().entry(u"men_Colours");
    for (std::size_t i = 0; i < ColourEntries.size(); ++i) {
        colours->entry(u"men_Set", static_cast<std::int32_t>(i))
            ->Checked(phial::coreTheme().chosenColours() == ColourEntries[i].set);
    }
}

void frm_Gallery::markScan()
{
    const auto keyboards = form_->menu().entry(u"men_Keyboards");
    const std::int32_t chosen = phial::rememberedScan();
    for (std::size_t i = 0; i < ScanEntries.size(); ++i) {
        keyboards->entry(u"men_Scan", static_cast<std::int32_t>(i))
            ->Checked(chosen == ScanEntries[i].interval);
    }
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
