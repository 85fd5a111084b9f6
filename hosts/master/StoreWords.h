#pragma once

#include "core/String.h"
#include "master/StoreWork.h"

namespace phial::master
{

/// What a store has failed with, for the teacher, in the language in force.
String storeWords(const StoreTrouble& trouble);

} // namespace phial::master
