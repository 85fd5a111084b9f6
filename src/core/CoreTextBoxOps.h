#pragma once

namespace phial
{

class TextBox;

/// Help with text boxes.
class CoreTextBoxOps
{
public:
    virtual ~CoreTextBoxOps() = default;

    /// Makes a text box ready for being edited in place: it takes the focus and its whole text is selected,
    /// once while it has the focus; see TextBox::prepare.
    virtual void Prepare(TextBox& pTextBox) = 0;
};

} // namespace phial
