#pragma once

#include <cstdint>

namespace phial
{

/// Names a window, or a control with a window of its own, to the outside. Fits a 32-bit `Variant`; only the
/// adapter that gave the number can tell what is behind it.
enum class WindowHandle : std::int32_t { None = 0 };

} // namespace phial
