#pragma once

#include "app/screen/AppAboutDesign.h"
#include "visual/DesignedForm.h"

#include <memory>

namespace phial
{

/// The window that tells about the program: its name, version and copyright from the settings, who made it
/// and where more is to be read, and where it runs. Made anew for each time it is shown, see
/// cls_AppDialog::ABOUT.
///
/// Its links lead to the addresses of the settings and open in the browser; they can be reached by the Tab
/// key. What has no address is no link. Escape closes like the button.
class frm_AppAbout
{
public:
    frm_AppAbout();

    /// Shows it modally; returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    void showLinks();
    void connect();
    void load();
    void placeLinks();
    void paintEmblem();
    void hyperlinkCursor(StringView file);
    void open(StringView address);
    void caption(StringView label, String text);
    std::shared_ptr<Label> label(StringView name, std::int32_t index = -1) const;

    DesignedForm form_;
};

} // namespace phial
