#pragma once

#include "core/String.h"

namespace phial
{

/// Asks for a text file, beginning in the folder of the last export, and writes the text into it: UTF-8 with
/// mark. `proposal` is the proposed name; empty for none. False when the user does not choose a file. A
/// failing write is raised.
bool exportText(StringView proposal, StringView text);

} // namespace phial
