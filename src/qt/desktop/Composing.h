#pragma once

class QInputMethodEvent;
class QWidget;

namespace phial::qt
{

/// What is being composed in the widget that has the focus. Not every input method types it when it is asked
/// to end; what it leaves is typed here.

/// The widget gets this event.
void noteComposition(QWidget& widget, const QInputMethodEvent& event);
/// Types what has been composed so far.
void commitComposition();

} // namespace phial::qt
