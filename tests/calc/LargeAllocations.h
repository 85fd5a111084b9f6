#pragma once

#include <cstddef>

namespace phial::test
{

/// How many times `new` has handed out at least a mebibyte since the program began. Linking
/// LargeAllocations.cpp replaces `new` and `delete` of the whole program.
std::size_t largeAllocations();

} // namespace phial::test
