#pragma once

#include <cstddef>

namespace phial::master
{

/// Lets this process have as many files and connections open as the system allows it, and gives that number.
std::size_t allowManyOpenFiles();

} // namespace phial::master
