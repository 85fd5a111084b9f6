#pragma once

#include "core/String.h"

#include <functional>

namespace phial
{

class TextBox;

/// What the frame's dialogs ask of the keyboards and of the sounds. A program without them leaves the
/// functions empty; text is then typed into the field itself, and nothing is heard.
struct DialogAids {
    /// Opens the keyboard of touch mode for a text field. What was typed stands in the field afterwards.
    std::function<void(TextBox& field, const String& title)> textInput;
    /// Plays a sound of the category, such as "wrong"; `wait` asks to return at its end only.
    std::function<void(StringView category, bool wait)> playCategory;
};

} // namespace phial
