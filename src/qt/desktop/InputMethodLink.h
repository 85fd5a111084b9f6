#pragma once

#include "visual/Control.h"

#include <QVariant>

class QInputMethodEvent;
class QMouseEvent;
class QWidget;

namespace phial::qt
{

/// Joins a painted control that takes text to the toolkit's input methods: dead keys, input methods for other
/// scripts, and the desktop's touch keyboard. It answers what they ask, hands what they compose and commit to
/// the control, and tells them of changes.
class InputMethodLink
{
public:
    InputMethodLink(QWidget& widget, Control& control);

    /// The control's text, its caret, or whether it takes typing may have changed.
    void update();
    /// What an input method asks; not valid for what the widget itself knows.
    QVariant answer(Qt::InputMethodQuery query) const;
    void take(const QInputMethodEvent& event);
    /// A press: what is being composed goes in before.
    static void commit();
    /// The control has been tapped, which brings the touch keyboard.
    void tapped(const QMouseEvent& event) const;

private:
    void replace(int start, int length);
    void strike(Key key, int times);

    QWidget& widget_;
    Control& control_;
};

} // namespace phial::qt
