#pragma once

#include "visual/Geometry.h"

#include <filesystem>

namespace phial::headless
{

/// The size that a picture file's head tells (PNG, GIF, BMP); raises 53 for a missing file and 481 for one
/// that is no such picture.
PixelSize pictureSize(const std::filesystem::path& file);

} // namespace phial::headless
