#pragma once

#include "core/String.h"

#include <functional>

namespace phial
{

class TextBox;

/// What the frame's dialogs ask of the keyboards. A program without them leaves the function empty; text is
/// then typed into the field itself.
struct DialogAids {
    /// Opens the keyboard of touch mode for a text field. What was typed stands in the field afterwards.
    std::function<void(TextBox& field, const String& title)> textInput;
};

} // namespace phial
