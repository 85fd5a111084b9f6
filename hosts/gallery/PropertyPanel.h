#pragma once

#include "gallery/PropertyEditor.h"
#include "visual/Form.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <memory>
#include <optional>

namespace gallery
{

/// The right side of the gallery's window: the properties of an object as a list, and below it the chosen one
/// to edit. Return sets, opens or runs what is chosen, Escape leaves an opened object.
class PropertyPanel
{
public:
    /// Works on the controls of that name in the form, which must outlive it.
    explicit PropertyPanel(phial::Form& form);

    /// Shows the properties of another object; null for none.
    void edit(phial::ObjectPtr object);
    /// Shows values that have changed without the panel, keeping what is being typed.
    void refresh();
    /// Puts all texts in the language in force.
    void TRANSLATE();

private:
    void fill();
    void showChosen();
    void showButtons();
    void showMessage(const std::optional<phial::RuntimeError>& error);
    void act();
    void back();
    const PropertyRow* chosen() const;

    std::shared_ptr<phial::ListBox> list_;
    std::shared_ptr<phial::TextBox> value_;
    std::shared_ptr<phial::ctl_Label> name_;
    std::shared_ptr<phial::ctl_Label> path_;
    std::shared_ptr<phial::ctl_Label> message_;
    std::shared_ptr<phial::ctl_Button> set_;
    std::shared_ptr<phial::ctl_Button> back_;
    PropertyEditor editor_;
    phial::String shownValue_; ///< what the text box held before the user typed
    phial::Connections connections_;
};

} // namespace gallery
