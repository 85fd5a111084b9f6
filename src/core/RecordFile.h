#pragma once

#include "core/String.h"

namespace phial
{

class DATA;

/// Reads a record from its file, for the `LOAD` of every record class. False when there is no such file or
/// any step fails; what was read until then stays.
bool loadRecord(const DATA& data, StringView file, StringView password);

/// Writes a record to its file, for the `SAVE` of every record class. False when any step fails; the old file
/// stays then.
bool saveRecord(const DATA& data, StringView file, StringView password);

} // namespace phial
