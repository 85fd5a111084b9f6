#pragma once

namespace phial::qt
{

/// From now on the widget that has the focus has the ring around it, in each window of the program: painted
/// controls always, the toolkit's own widgets when they are painted by the program's style. Where a painted
/// control has parts the ring is around the one that the keys have reached.
///
/// The ring lies over the window, so that no neighbour covers it, and moves inwards where the window ends.
void showFocusByRing();

/// What has the focus has changed its place within its widget, or its zoom.
void moveFocusRing();

} // namespace phial::qt
