#include "common/AppColours.h"

#include "app/ColourChoice.h"
#include "common/FrameTexts.h"
#include "core/SessionState.h"
#include "visual/ctl_Button.h"

#include <algorithm>

namespace learning
{

using phial::ColourSet;
using phial::StringView;

namespace
{

struct ColourChoice {
    std::optional<ColourSet> set;
    StringView sign;
    StringView both; ///< "German|English"
};

/// In the order in which presses go through them.
constexpr auto ColourChoices = std::to_array<ColourChoice>({
    {std::nullopt, u"\u25D0", u"Farben: wie am Computer eingestellt|Colours: as set on the computer"},
    {ColourSet::Light, u"\u2600", u"Farben: hell|Colours: light"},
    {ColourSet::Dark, u"\u263E", u"Farben: dunkel|Colours: dark"},
    {ColourSet::HighContrast, u"\u25A3", u"Farben: hoher Kontrast|Colours: high contrast"},
});

std::size_t chosenPlace()
{
    const auto chosen = phial::coreTheme().chosenColours();
    const auto* found = std::ranges::find(ColourChoices, chosen, &ColourChoice::set);
    return static_cast<std::size_t>(found - ColourChoices.begin());
}

} // namespace

AppColours::AppColours(phial::Form& form) : form_(form)
{
    pressing_ = form_.control<phial::ctl_Button>(u"but_Colours")->CLICK.connect([this] { chooseNext(); });
}

void AppColours::TRANSLATE()
{
    const ColourChoice& choice = ColourChoices[chosenPlace()];
    const auto button = form_.control<phial::ctl_Button>(u"but_Colours");
    button->Caption(phial::String(choice.sign));
    button->frame().ToolTipText(translate(choice.both));
    button->frame().AccessibleName(translate(choice.both));
}

void AppColours::chooseNext()
{
    phial::chooseColours(ColourChoices[(chosenPlace() + 1) % ColourChoices.size()].set);
    TRANSLATE();
    form_.control<phial::ctl_Button>(u"but_Colours")
        ->frame()
        .announce(translate(ColourChoices[chosenPlace()].both));
}

} // namespace learning
