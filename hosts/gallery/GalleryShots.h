#pragma once

#include "core/String.h"

#include <functional>

namespace phial
{
class Form;
}

namespace gallery
{

/// How the pictures of a tour are taken.
struct Camera {
    /// Takes a form's window under a name such as "ctl_Label-2-de".
    std::function<void(phial::StringView name, const phial::Form& form)> take;
    /// Runs what opens a modal window, takes that window, and closes it.
    std::function<void(phial::StringView name, const std::function<void()>& open)> takeModal;
};

/// Leads the gallery through each exhibit: in German in each of its states, in English in its first one,
/// and windows in the one that opens them; and through the property editor. Nothing is printed. On the open
/// session with INIT behind it.
void showEachState(const Camera& camera);

} // namespace gallery
