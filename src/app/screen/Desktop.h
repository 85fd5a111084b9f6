#pragma once

namespace phial
{

/// Whether the desktop's text is of the usual size: at most 16 pixels high where a hundred percent of scale
/// is the measure. True without a desktop.
bool IsSmallFonts();

/// Shows or hides the desktop's taskbar, for a classroom in which a program is to fill the screen. Nothing
/// happens where there is none to reach, or when it is so already.
void ShowTaskbar();
void HideTaskbar();

} // namespace phial
