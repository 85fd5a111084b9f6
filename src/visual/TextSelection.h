#pragma once

#include "core/RuntimeError.h"
#include "core/String.h"

#include <algorithm>
#include <cstdint>

namespace phial
{

/// Start and length of a selection, limited to a text of that many units. Negative values raise 5.
struct TextSelection {
    std::int32_t start = 0;
    std::int32_t length = 0;

    static TextSelection limited(std::int32_t start, std::int32_t length, const String& text)
    {
        if (start < 0 || length < 0) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        const auto end = static_cast<std::int32_t>(text.size());
        const std::int32_t first = std::min(start, end);
        return {first, std::min(length, end - first)};
    }
};

} // namespace phial
