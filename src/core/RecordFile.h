#pragma once

#include "core/String.h"

namespace phial
{

class DATA;

/// Reads a record from its file, for the `LOAD` of every record class. False when there is no such file or
/// any step fails; what was read until then stays.
bool loadRecord(DATA& data, StringView file, StringView password);

/// Writes a record to its file, for the `SAVE` of every record class. False when any step fails; the old file
/// stays then.
///
/// When this record was loaded from that file and did not take all of it, because the load failed or because
/// a later program wrote what this one passes over, the old file is kept aside rather than lost.
bool saveRecord(DATA& data, StringView file, StringView password);

} // namespace phial
