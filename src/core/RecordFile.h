#pragma once

#include "core/String.h"

namespace phial
{

class DATA;

/// Reads a record from its file, for the `LOAD` of every record class. False when there is no such file or
/// any step fails; what was read until then stays. `DATA::loadedFile` tells which.
bool loadRecord(DATA& data, StringView file, StringView password);

/// Writes a record to its file, for the `SAVE` of every record class. False when any step fails; the old file
/// stays then.
///
/// A record that was loaded from that file knows what was there. Whatever else is there now is kept aside
/// rather than lost: what the load did not take in, because it failed, found nothing, or passed over what a
/// later program had written; and what another program has written since.
bool saveRecord(DATA& data, StringView file, StringView password);

} // namespace phial
