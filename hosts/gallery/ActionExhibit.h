#pragma once

#include "gallery/Exhibit.h"
#include "visual/ctl_Label.h"

namespace gallery
{

/// Puts a text in the middle of the stage, or at a place of it; "German|English".
std::shared_ptr<phial::ctl_Label> putNote(Stage& stage, phial::StringView text);
std::shared_ptr<phial::ctl_Label> putNote(Stage& stage, const phial::PixelRectangle& place,
                                          phial::StringView text);

/// What a state does in front of the user; gives what came of it, empty for nothing.
using Act = std::function<phial::String()>;

/// A state that acts when it is chosen, and then tells on the stage what came of it.
Sample acting(phial::StringView name, Act act);
/// The same for what goes to the printer.
Sample printing(phial::StringView name, Act act);

/// An exhibit without a face: its states act, and before that nothing happens. `note` stands on the stage.
Exhibit actionExhibit(Group group, phial::StringView title, phial::StringView about, phial::StringView note,
                      std::vector<Sample> samples);

} // namespace gallery
