#pragma once

#include "core/String.h"

#include <cstdint>

/// Where the system's settings lie.
namespace phial::settings
{

/// The longest text that is read from a setting, in units.
inline constexpr std::int32_t TextLimit = 1000;

/// The path of a value below the system's fixed key. cls_App::REGKEY may be moved; this may not.
inline String path(StringView name)
{
    return String(u"Software\\QV Brunnhof\\Phial\\").append(name);
}

} // namespace phial::settings
