#pragma once

#include "core/String.h"

namespace phial
{

class cls_DataElement;

/// The name of an element in English texts, beginning with a capital: the one that the IUPAC has for its
/// symbol, if that is among the element's names. Else its own, so that what a program has named itself keeps
/// its name.
String englishNameOf(const cls_DataElement& element);

} // namespace phial
