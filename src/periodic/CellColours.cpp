#include "periodic/CellColours.h"

#include "core/CoreTheme.h"
#include "core/Palette.h"
#include "core/SessionState.h"

namespace phial
{

namespace
{

constexpr Colour Ink = QBColor(0);

constexpr CellColours Classic = {
    {RGB(157, 152, 140), RGB(255, 150, 255), RGB(150, 255, 150), RGB(255, 150, 150), RGB(150, 150, 255),
     RGB(255, 255, 150), RGB(200, 100, 200)},
    Ink,
    QBColor(9),
    QBColor(12),
    RGB(255, 0, 0),
    {},
    {},
    Ink,
    RGB(255, 204, 0),
    20,
    false,
};

/// With captions as they can be read on a ground that follows the theme.
constexpr CellColours Themed = [] {
    CellColours colours = Classic;
    colours.caption = Palette::Ink;
    return colours;
}();

/// The classic hues, so light that dark texts can be read on them.
constexpr CellColours HighContrast = {
    {RGB(232, 230, 225), RGB(255, 225, 255), RGB(225, 255, 225), RGB(255, 225, 225), RGB(225, 225, 255),
     RGB(255, 255, 215), RGB(242, 218, 242)},
    Ink,
    RGB(0, 0, 139),
    RGB(139, 0, 0),
    RGB(139, 0, 0),
    Ink,
    RGB(64, 64, 64),
    Palette::Ink,
    RGB(0, 0, 160),
    5,
    true,
};

/// Grounds that were sought for their distance to each other, as three kinds of colour blindness see them and
/// without any.
constexpr CellColours Distinct = {
    {RGB(40, 180, 180), RGB(235, 150, 255), RGB(150, 235, 150), RGB(210, 180, 40), RGB(80, 255, 235),
     RGB(255, 235, 120), RGB(150, 180, 80)},
    Ink,
    RGB(0, 0, 139),
    RGB(90, 0, 50),
    Ink,
    Ink,
    {},
    Palette::Ink,
    RGB(0, 0, 139),
    5,
    true,
};

} // namespace

const CellColours& CellColours::of(TableColours set)
{
    switch (set) {
    case TableColours::HighContrast:
        return HighContrast;
    case TableColours::Distinct:
        return Distinct;
    case TableColours::ByTheme:
        return coreTheme().Colours() == ColourSet::HighContrast ? HighContrast : Themed;
    case TableColours::Classic:
        break;
    }
    return Classic;
}

} // namespace phial
