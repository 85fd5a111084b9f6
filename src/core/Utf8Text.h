#pragma once

#include <string>
#include <string_view>

namespace phial
{

/// The mark that may stand before a text in UTF-8.
inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

/// A file's text without the mark.
inline std::string withoutMark(std::string bytes)
{
    if (bytes.starts_with(Utf8Mark)) {
        bytes.erase(0, Utf8Mark.size());
    }
    return bytes;
}

} // namespace phial
