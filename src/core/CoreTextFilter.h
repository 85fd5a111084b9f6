#pragma once

#include "core/String.h"

namespace phial
{

/// Brings lines of data files into the system's encoding. As files are decoded where they are read, nothing
/// is left to do here.
class CoreTextFilter
{
public:
    static String Clean(StringView pText) { return String(pText); }
};

} // namespace phial
