#pragma once

#include <cstdint>

namespace phial
{

/// Which side of a control's model has changed.
enum class ControlAspect : std::int32_t {
    Geometry,
    Visibility,
    Enabled, ///< or whether the focus comes to it
    ZOrder,
    Focus, ///< the control has taken the focus
    Pointer,
    ToolTip,
    Accessibility, ///< names, roles, states or rectangles, of the control or of its parts
    CurrentPart,   ///< the user has reached another of its parts
    Announcement,  ///< screen readers are to say the frame's announcement
    Touch,         ///< whether it takes touch
    Children,
    Text,
    Selection,
    TextEntry, ///< the text of a painted control, its caret, whether it takes typing, and by which keyboard
    Style,     ///< font, colours, alignment, border, flags
    Items,
    Range,
    Value,
    Picture, ///< the painted image; reported once until it is fetched
    Drag,    ///< a drag out of the control is to begin, with its dragText where it gives one
};

/// The adapter's side of a control: its widget. It reads the model whenever the model says that something has
/// changed; it never raises events by itself but calls the model's input functions.
class ControlPeer
{
public:
    virtual ~ControlPeer() = default;
    virtual void modelChanged(ControlAspect aspect) = 0;
};

/// Which side of a form's model has changed.
enum class FormAspect : std::int32_t {
    Caption,
    Geometry,
    Zoom,
    WindowState,
    Visibility,
    Enabled,
    Style, ///< back colour, border, icon, pointer, opacity, shape
    Children,
    Menu,
    Focus,
    ZOrder,
};

/// The adapter's side of an open form: its window. Its destruction closes the window, and can happen within
/// one of the window's own calls into the model.
class FormPeer
{
public:
    virtual ~FormPeer() = default;
    virtual void modelChanged(FormAspect aspect) = 0;
};

} // namespace phial
