#pragma once

#include "core/CoreStringList.h"

#include <vector>

namespace phial::test
{

/// The entries of a list as a container that matchers understand.
inline std::vector<String> texts(const CoreStringList& list)
{
    return {list.begin(), list.end()};
}

} // namespace phial::test
