#pragma once

#include <cstddef>

namespace phial::test
{

/// How many times `new` has handed out memory since the program began, and how many times a mebibyte or more.
/// A test program that links phial_counted_new has its `new` and `delete` replaced; one thread does the work
/// that is counted.
std::size_t allocations();
std::size_t largeAllocations();

} // namespace phial::test
