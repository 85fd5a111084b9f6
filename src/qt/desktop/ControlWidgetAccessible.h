#pragma once

#include <QString>

#include <cstddef>

class QAccessibleInterface;
class QWidget;

namespace phial
{
struct TextEntry;
}

namespace phial::qt
{

class ControlWidget;

/// Shows painted controls and their named parts to screen readers, each part as a child with its rectangle,
/// role, state, name and action. Done once for the program; later calls do nothing.
void installPartAccessibility();

/// Name, role, state or parts have changed: screen readers hear what is different.
void tellAccessibility(ControlWidget& widget);

/// The text that one types into has changed from one to the other.
void tellText(ControlWidget& widget, const TextEntry& before, const TextEntry& now);

/// Tells screen readers that the arrow keys have reached a part.
void announcePart(ControlWidget& widget, std::size_t part);

/// Has screen readers say a text. The toolkit has no word for that before its version 6.8; until then a
/// notification with that name appears in the widget's window, which readers say wherever the focus is.
/// It is no alert: the toolkit makes a noise for those on some desktops.
void announceText(QWidget& widget, const QString& text);
/// That notification, with what was said last.
QAccessibleInterface& announcement();

} // namespace phial::qt
