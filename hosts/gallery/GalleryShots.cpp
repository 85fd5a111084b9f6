#include "gallery/GalleryShots.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Variant.h"
#include "gallery/frm_Gallery.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <limits>

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

void tour(const Camera& camera, StringView language, std::size_t mostStates)
{
    frm_Gallery gallery;
    gallery.Show();
    for (std::size_t exhibit = 0; exhibit < gallery.exhibits().size(); ++exhibit) {
        const auto& shown = gallery.exhibits()[exhibit];
        for (std::size_t state = 0; state < std::min(mostStates, shown.samples.size()); ++state) {
            const String name = String(shown.title) + u"-" +
                                phial::Variant(static_cast<std::int32_t>(state + 1)).toText() + u"-" +
                                String(language);
            if (shown.samples[state].waits) {
                camera.takeModal(name, [&] { gallery.show(exhibit, state); });
            } else {
                gallery.show(exhibit, state);
                takeOpenWindows(camera, gallery, name);
            }
        }
    }
}

} // namespace

void showEachState(const Camera& camera)
{
    constexpr std::size_t All = std::numeric_limits<std::size_t>::max();
    const phial::enm_LanguageC before = phial::LNG()->CURRENT();
    phial::LNG()->CURRENT(phial::ID_Language_German);
    tour(camera, u"de", All);
    phial::LNG()->CURRENT(phial::ID_Language_English);
    tour(camera, u"en", 1);
    phial::LNG()->CURRENT(before);
}

} // namespace gallery
