#pragma once

#include "core/Event.h"

#include <memory>

namespace phial
{

class Form;

/// The cover behind a program that another one has embedded: a form without controls that fills the screen
/// and lets a little of the desktop through. It stays behind the program's windows and the program ends
/// without waiting for it. Made and kept by the session.
class frm_Fade
{
public:
    frm_Fade();
    ~frm_Fade();
    frm_Fade(const frm_Fade&) = delete;
    frm_Fade& operator=(const frm_Fade&) = delete;

    void Show();
    void Unload();

    Form& form() { return *form_; }

private:
    void load();

    std::shared_ptr<Form> form_;
    Connection onLoad_;
};

} // namespace phial
