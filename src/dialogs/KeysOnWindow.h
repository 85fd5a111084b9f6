#pragma once

#include <memory>

namespace phial
{

class ctl_Keys;
class DesignedForm;
class KeyboardWindow;

/// Lets keys and the window on which they stand work together: a press on the keys can become a drag of the
/// window, and then strikes nothing; keys of the desk reach the keys first; Escape gives up with modifiers
/// too, which the form's cancel control does not hear. Handlers that are put on the form's KeyDown behind
/// this get what is left. Window and keys live as long as the form.
void joinKeys(DesignedForm& form, KeyboardWindow& window, const std::shared_ptr<ctl_Keys>& keys);

} // namespace phial
