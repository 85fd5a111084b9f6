#pragma once

#include "media/MediaControl.h"
#include "visual/Form.h"

#include <memory>

namespace phial
{

/// A form that is never shown and holds the one media control of the program, `mci`. Made and kept by the
/// session.
class frm_AppMCI
{
public:
    frm_AppMCI() { form_->addComponent(mci_); }
    ~frm_AppMCI() { form_->discard(); }
    frm_AppMCI(const frm_AppMCI&) = delete;
    frm_AppMCI& operator=(const frm_AppMCI&) = delete;

    Form& form() { return *form_; }
    const std::shared_ptr<MediaControl>& mci() const { return mci_; }

private:
    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_AppMCI");
    std::shared_ptr<MediaControl> mci_ = std::make_shared<MediaControl>(u"mci");
};

} // namespace phial
