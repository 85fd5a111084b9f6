#pragma once

namespace phial
{

class TextBox;

/// Help with text boxes.
class CoreTextBoxOps
{
public:
    virtual ~CoreTextBoxOps() = default;

    /// Makes a text box ready for being edited in place: it takes the focus and its text is selected.
    virtual void Prepare(TextBox& pTextBox) = 0;
};

} // namespace phial
