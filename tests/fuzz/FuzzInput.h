#pragma once

#include "core/String.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace phial::fuzz
{

/// The fuzzer's bytes as text: UTF-8 as far as it is well-formed.
inline String textOf(const std::uint8_t* data, std::size_t size)
{
    return fromUtf8({reinterpret_cast<const char*>(data), size});
}

/// Ends the program when a property does not hold, which the fuzzer reports with the input.
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace phial::fuzz
