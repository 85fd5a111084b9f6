#pragma once

#include "core/String.h"
#include "visual/Geometry.h"

#include <optional>

namespace phial
{
class DrawDevice;
class TextMetrics;
} // namespace phial

namespace help_pages
{

/// Draws the picture beside a page's text, as its author describes it:
///
///     atoms H H O                     balls in their usual colours, a row for each element
///     groups 1 17 18                  the periodic table with columns, of eighteen, set off
///     periods 2 3                     the same with rows
///     place Be 2 2                    a tile that goes to its column and row
///     answer 18,02 | g/mol | Check | Right!       a field with its unit, the button below it, a verdict
///     wrong 27,0 | g/mol | Check | Atoms missing  the same with a wrong answer
///     result 84 of 100 points | 84 | Mark 2       what a round was worth, with its share in percent
///
/// Raises 5 for any other.
void drawPicture(phial::DrawDevice& device, phial::TextMetrics& metrics, const phial::String& description,
                 const phial::PixelRectangle& place);

/// The size of a picture of the periodic table; none for any other.
std::optional<phial::PixelSize> tableSize(const phial::String& description);

} // namespace help_pages
