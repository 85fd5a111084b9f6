#pragma once

#include "help_pages/HelpSource.h"
#include "visual/Geometry.h"

namespace phial
{
class DrawDevice;
class TextMetrics;
} // namespace phial

namespace help_pages
{

/// The size of every page in pixels; it fits the window of a help book on a screen of 1024 by 600.
inline constexpr phial::PixelSize PageSize{960, 400};

/// Draws a page, both counted from 0; gives whether all of it has found room.
bool drawPage(phial::DrawDevice& device, phial::TextMetrics& metrics, const Book& book, std::size_t chapter,
              std::size_t page);
/// Draws the menu: a tile a chapter, in the colour that leads to it.
void drawMenu(phial::DrawDevice& device, phial::TextMetrics& metrics, const Book& book);
/// Draws the menu's map: the same places in the pure colours.
void drawMap(phial::DrawDevice& device, const Book& book);

} // namespace help_pages
