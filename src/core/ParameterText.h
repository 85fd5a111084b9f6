#pragma once

#include "core/CoreParameters.h"
#include "core/String.h"
#include "core/Variant.h"

namespace phial
{

// The readable form of parameters (docs/formats.md): entries such as `Name = "Anna"` and `Points = 12.5`.

/// One entry in its readable form, on one line. An object that is set becomes the name of its class in angle
/// brackets, which no reader takes. Raises 5 for arrays nested deeper than CoreValuePacker::MaxNesting.
String parameterText(StringView name, const Variant& value);

/// The entries of a text, divided by line ends or `;`. Raises 5 for a text that is damaged, longer than
/// CoreValuePacker::MaxLength or too deeply nested, and 13 for an object.
CoreParameters parametersOfText(StringView text);

} // namespace phial
