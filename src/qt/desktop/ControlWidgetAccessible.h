#pragma once

#include <cstddef>

namespace phial::qt
{

class ControlWidget;

/// Shows the named parts of painted controls to screen readers, each as a child with its rectangle, role,
/// name and action. Done once for the program; later calls do nothing.
void installPartAccessibility();

/// The parts have changed: what screen readers hold of them is void.
void forgetParts(ControlWidget& widget);

/// Tells screen readers that the arrow keys have reached a part.
void announcePart(ControlWidget& widget, std::size_t part);

} // namespace phial::qt
