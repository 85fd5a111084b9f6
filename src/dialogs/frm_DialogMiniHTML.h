#pragma once

#include "dialogs/MarkupPreview.h"
#include "dialogs/ctl_MiniHTMLInput.h"
#include "visual/DesignedForm.h"

#include <memory>

namespace phial
{

/// The dialog for a text with markup: several lines, with their look beside them as one types. Any button of
/// its bar accepts the text; the cross of its header, Escape and closing the window give up. An object serves
/// for one dialog, which cls_AppDialog opens.
class frm_DialogMiniHTML
{
public:
    frm_DialogMiniHTML();

    // Set before it is shown.
    /// The text to begin with.
    void pText(String value) { text_ = std::move(value); }
    /// Of the header; the usual words where it is empty.
    void pTitle(String value) { title_ = std::move(value); }
    /// What is asked for, above the text, with markup.
    void pDefText(String value) { question_ = std::move(value); }
    /// Path of the header's picture, below the resources' pictures where it does not begin at a root. None is
    /// shown where it is empty or leads to no picture.
    void pIcon(String value) { icon_ = std::move(value); }

    // Read after closing.
    bool Accepted() const { return accepted_; }
    /// The text; empty when the user has given up.
    const String& ResultText() const { return result_; }

    /// Modal: returns when the user has accepted or given up.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    void connect();
    void load();
    void accept();
    void showPreview();

    String text_;
    String title_;
    String question_;
    String icon_;
    bool accepted_ = false;
    String result_;
    DesignedForm form_;
    std::shared_ptr<ctl_MiniHTMLInput> input_;
    MarkupPreview preview_;
};

} // namespace phial
