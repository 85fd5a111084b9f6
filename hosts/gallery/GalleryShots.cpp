#include "gallery/GalleryShots.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/SessionState.h"
#include "core/Variant.h"
#include "gallery/frm_Gallery.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace gallery
{

using phial::String;
using phial::StringView;

namespace
{

/// The gallery's window and whatever else an exhibit has opened.
void takeOpenWindows(const Camera& camera, frm_Gallery& gallery, const String& name)
{
    camera.take(name, gallery.form());
    const phial::Forms& forms = phial::visualHost().forms();
    for (std::size_t i = 0; i < forms.Count(); ++i) {
        const auto form = forms.Item(i);
        if (form.get() != &gallery.form() && form->Visible()) {
            camera.take(name + u"-window", *form);
        }
    }
}

String toText(std::size_t number)
{
    return phial::Variant(static_cast<std::int32_t>(number)).toText();
}

/// How much of an exhibit a tour shows.
enum class Thoroughness : std::uint8_t { EachState, FirstState };

/// The first state of a window is that in which it is closed, so the second belongs to it.
std::size_t statesShown(const Exhibit& exhibit, Thoroughness thoroughness)
{
    const std::size_t first = exhibit.group == Group::Windows ? 2 : 1;
    return thoroughness == Thoroughness::EachState || exhibit.everyLook
               ? exhibit.samples.size()
               : std::min(first, exhibit.samples.size());
}

void tour(const Camera& camera, StringView language, Thoroughness thoroughness)
{
    frm_Gallery gallery;
    gallery.Show();
    for (std::size_t exhibit = 0; exhibit < gallery.exhibits().size(); ++exhibit) {
        const auto& shown = gallery.exhibits()[exhibit];
        for (std::size_t state = 0; state < statesShown(shown, thoroughness); ++state) {
            if (shown.samples[state].prints) {
                continue;
            }
            const String name = String(shown.title) + u"-" + toText(state + 1) + u"-" + String(language);
            if (shown.samples[state].waits) {
                camera.takeModal(name, [&] { gallery.show(exhibit, state); });
            } else {
                gallery.show(exhibit, state);
                takeOpenWindows(camera, gallery, name);
            }
        }
    }
}

/// Chooses the property of that name, as the user would in the list.
void choose(phial::Form& form, StringView property)
{
    const auto list = form.control<phial::ListBox>(u"lst_Properties");
    for (std::int32_t line = 0; line < list->ListCount(); ++line) {
        const String text = list->List(line);
        if (text.substr(0, text.find(u' ')) == property) {
            list->ListIndex(line);
            return;
        }
    }
}

/// The property editor with a value, with a value that is refused, and within a font.
void tourProperties(const Camera& camera)
{
    frm_Gallery gallery;
    gallery.Show();
    phial::Form& form = gallery.form();
    const auto set = form.control<phial::ctl_Button>(u"but_Set");
    choose(form, u"Caption");
    camera.take(u"Properties-value-de", form);
    choose(form, u"Width");
    form.control<phial::TextBox>(u"txt_Value")->Text(u"breit");
    set->click();
    camera.take(u"Properties-refused-de", form);
    choose(form, u"Font");
    set->click();
    choose(form, u"Size");
    camera.take(u"Properties-font-de", form);
}

/// An exhibit's states in the colours in force: a window as it opens, upon the gallery, or all that it has.
void takeColours(const Camera& camera, frm_Gallery& gallery, std::size_t exhibit, StringView setName)
{
    constexpr std::size_t Opened = 1;
    const Exhibit& shown = gallery.exhibits()[exhibit];
    const String name = String(shown.title) + u"-";
    for (std::size_t state = 0; state < shown.samples.size(); ++state) {
        const bool isWindow = shown.group == Group::Windows && state == Opened;
        const Sample& sample = shown.samples[state];
        if ((shown.everyLook || isWindow) && !sample.prints && !sample.waits) {
            gallery.show(exhibit, state);
            const String number = shown.everyLook ? toText(state + 1) + u"-" : String();
            takeOpenWindows(camera, gallery, name + number + String(setName));
        }
    }
}

/// The library's windows in the other sets of colours.
void tourColours(const Camera& camera)
{
    constexpr std::pair<phial::ColourSet, StringView> Sets[] = {
        {phial::ColourSet::Dark, u"dark"}, {phial::ColourSet::HighContrast, u"contrast"}};
    const auto before = phial::coreTheme().chosenColours();
    for (const auto& [set, setName] : Sets) {
        phial::coreTheme().SetColours(set);
        frm_Gallery gallery;
        gallery.Show();
        for (std::size_t exhibit = 0; exhibit < gallery.exhibits().size(); ++exhibit) {
            takeColours(camera, gallery, exhibit, setName);
        }
    }
    phial::coreTheme().SetColours(before);
}

} // namespace

void showEachState(const Camera& camera)
{
    const phial::enm_LanguageC before = phial::LNG()->CURRENT();
    phial::LNG()->CURRENT(phial::ID_Language_German);
    tour(camera, u"de", Thoroughness::EachState);
    tourProperties(camera);
    tourColours(camera);
    phial::LNG()->CURRENT(phial::ID_Language_English);
    tour(camera, u"en", Thoroughness::FirstState);
    phial::LNG()->CURRENT(before);
}

} // namespace gallery
