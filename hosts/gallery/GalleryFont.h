#pragma once

#include "visual/Font.h"

namespace gallery
{

/// A font object in the gallery's family, in points.
inline phial::FontPtr galleryFont(double size, bool bold = false)
{
    return std::make_shared<phial::Font>(phial::FontSpec{.name = u"Tahoma", .size = size, .bold = bold});
}

} // namespace gallery
