#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial::qt
{

/// The system parts lines by CR LF, the toolkit's fields by one sign. Positions move along: one within a CR
/// LF counts as before it.

String withSingleEnds(StringView text);
String withDoubleEnds(StringView text);
/// A position in the text with CR LF as one in the text with single ends, and back; `text` is the one with CR
/// LF.
std::int32_t toSingleEnds(StringView text, std::int32_t position);
std::int32_t toDoubleEnds(StringView text, std::int32_t position);

} // namespace phial::qt
