#pragma once

#include "visual/DesignedForm.h"

namespace phial
{

/// The cover behind a program that another one has embedded: a form without controls that fills the screen
/// and lets a little of the desktop through. It stays behind the program's windows and the program ends
/// without waiting for it. Made and kept by the session.
class frm_Fade
{
public:
    frm_Fade();

    void Show();
    void Unload();

    Form& form() { return *form_; }

private:
    void load();

    DesignedForm form_;
};

} // namespace phial
