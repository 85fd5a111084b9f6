#pragma once

#include "core/Object.h"
#include "core/Variant.h"

namespace gallery
{

/// How the editor writes a property's value in one line: whole and real numbers, Booleans and texts as usual,
/// with a pilcrow for each line end; colours, which a member's name tells ("…Color…", in either case), as
/// "#RRGGBB" or the number of the desktop's slot; an object by its class.
phial::String propertyText(phial::StringView name, const phial::Variant& value);

/// The value that a typed text stands for, the reverse of propertyText; what is no colour stays a text, which
/// the property itself converts or refuses.
phial::Variant propertyValue(phial::StringView name, phial::StringView text);

} // namespace gallery
