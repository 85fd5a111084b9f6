#pragma once

#include "qt/desktop/DeadKeys.h"
#include "visual/Control.h"

#include <QVariant>

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace phial::qt
{

/// Joins a painted control that takes text to the toolkit's input methods: dead keys, input methods for other
/// scripts, and the desktop's touch keyboard. It answers what they ask, hands what they compose and commit to
/// the control, and tells them of changes.
///
/// A field with a keyboard of its own has none of them, since on some desktops the touch keyboard comes with
/// them whatever a program says. The dead keys are dealt with here instead.
class InputMethodLink
{
public:
    InputMethodLink(QWidget& widget, Control& control);

    /// The control's text, its caret, or whether it takes typing may have changed.
    void update();
    /// What an input method asks; not valid for what the widget itself knows.
    QVariant answer(Qt::InputMethodQuery query) const;
    void take(const QInputMethodEvent& event);
    /// Gives whether a key is dealt with: a dead one, or the one behind it.
    bool filter(const QKeyEvent& event);
    /// The focus has gone.
    void left() { deadKeys_.forget(); }
    /// The control has been tapped, which brings the touch keyboard.
    void tapped(const QMouseEvent& event) const;

private:
    bool isServed() const;
    void replace(int start, int length);
    void strike(Key key, int times);

    QWidget& widget_;
    Control& control_;
    DeadKeys deadKeys_;
};

} // namespace phial::qt
