#pragma once

#include "core/CoreCmdParser.h"
#include "core/CorePathText.h"
#include "core/CoreStringOps.h"
#include "core/CoreTextFilter.h"
#include "core/CoreValuePacker.h"
#include "core/String.h"

namespace phial
{

/// The family of text services.
class CoreText
{
public:
    /// The text with every occurrence of `pFind` replaced; an empty `pFind` changes nothing. `pIgnoreCase`
    /// finds without regard to case.
    static String Replace(StringView pText, StringView pFind, StringView pWith, bool pIgnoreCase = false);

    static phial::CorePathText CorePathText() { return {}; }
    static phial::CoreStringOps CoreStringOps() { return {}; }
    static phial::CoreCmdParser CoreCmdParser() { return {}; }
    static phial::CoreValuePacker CoreValuePacker() { return {}; }
    static phial::CoreTextFilter CoreTextFilter() { return {}; }
};

} // namespace phial
