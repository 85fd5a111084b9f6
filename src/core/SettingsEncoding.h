#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <cstddef>
#include <optional>

namespace phial
{

/// Texts longer than this many units are no settings; they are neither written nor read.
inline constexpr std::size_t MaxSettingLength = 1'000'000;

/// The entry as one line of text with its type in front, such as `text:Deutsch`, `number:-5`, `boolean:true`,
/// `list:|Anna|Ben`. Unlike the packed forms that travel between programs, this one is for a file that a
/// teacher or an installer opens in an editor, so no lengths have to be counted. Every text comes back as it
/// was. A value that is no text, whole number, Boolean or array of texts raises 13.
String encodeSetting(const Variant& value);

/// The entry out of such a line; no value for a line of another form, however it came about.
std::optional<Variant> decodeSetting(StringView line);

/// The name of an entry in the file: the parts of a path such as `Software\Phial\Sound` in lower case, since
/// the case of a path does not matter, with a slash between them. Empty parts fall away.
String settingKey(StringView path);

} // namespace phial
