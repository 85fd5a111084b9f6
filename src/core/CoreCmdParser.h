#pragma once

#include "core/CoreStringList.h"
#include "core/CoreTokenList.h"
#include "core/String.h"

#include <vector>

namespace phial
{

/// Reads command lines and divided texts.
class CoreCmdParser
{
public:
    /// One token per parameter, with one text as value. Parameters are divided by blanks; a blank within
    /// quotes divides nothing, and two quotes within quotes stand for one.
    ///
    /// | Typed | Name | Value |
    /// |---|---|---|
    /// | `NAME` | NAME | empty |
    /// | `/NAME`, if no further slash follows | NAME | empty |
    /// | `-NAME`, `--NAME`, if no digit follows | NAME | empty |
    /// | `NAME=value`, also behind `/` and `-` | NAME | value |
    /// | a path or a parameter that begins with a quote | as typed, without quotes | empty |
    ///
    /// Names are the same whatever their case; a repeated name takes the later value.
    static CoreTokenList Parse(StringView pCommandLine);

    /// The parameters as typed, divided and without their quotes as above: what a program is started with.
    static std::vector<String> Words(StringView pCommandLine);

    /// The pieces between separators, empty ones included; the empty text gives none.
    static CoreStringList Split(StringView pText, StringView pSeparator);
};

} // namespace phial
