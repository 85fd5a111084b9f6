#pragma once

#include "core/String.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

namespace phial::master
{

/// The first word of a line, and what follows it. Tabs count as blanks.
std::pair<String, String> firstWord(StringView line);
/// What stands in front of the last word, and that.
std::pair<String, String> lastWord(StringView line);

/// The words of a line. What stands in quotation marks is one word; a mark that nothing closes ends with the
/// line.
std::vector<String> wordsOf(StringView line);

/// How many entries are wanted, at most MaxShown: a number from 1 on, `all` (`alle`), or `unlessTold` for an
/// empty text. No value for anything else.
inline constexpr std::size_t MaxShown = 10000;
std::optional<std::size_t> wantedCount(StringView text, std::size_t unlessTold);

/// A whole number from 1 on; no value for anything else.
std::optional<std::int32_t> positiveNumber(StringView text);

/// The file that somebody means: with or without quotation marks, `~` being the user's own folder, and any
/// other path taken from the program's current folder on.
std::filesystem::path typedPath(StringView text);

} // namespace phial::master
