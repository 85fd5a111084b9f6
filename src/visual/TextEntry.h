#pragma once

#include "core/String.h"
#include "visual/Geometry.h"

#include <cstdint>

namespace phial
{

class Control;

/// The text in a painted control that one types into, as input methods and screen readers ask for it. The
/// control gives it to its frame, anew after each change. Positions count 16-bit units from 0.
struct TextEntry {
    String text;
    std::int32_t caret = 0;   ///< stands before that unit
    PixelRectangle caretArea; ///< in the control
    bool locked = false;      ///< can be read but takes no typing

    friend bool operator==(const TextEntry&, const TextEntry&) = default;
};

/// A text that is being made of several keys, by an input method or behind a dead key. The control shows it
/// at its caret, but it is no part of its text yet.
struct Composition {
    String text;            ///< empty: nothing is being composed
    std::int32_t caret = 0; ///< within that text

    friend bool operator==(const Composition&, const Composition&) = default;
};

/// For whoever brings the user's input: the text that has been composed, or that a touch keyboard sends. Ends
/// the composition; what can be typed of the text comes unit by unit as KeyPress, through the form where the
/// control stands on one. A handler that takes the focus or the form away ends it.
void commitText(Control& control, StringView text);

} // namespace phial
