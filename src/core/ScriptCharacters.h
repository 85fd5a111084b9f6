#pragma once

#include "core/String.h"

#include <cstdint>
#include <optional>

namespace phial
{

/// How high a character of a formula stands.
enum class ScriptLevel : std::int8_t { Superscript = -1, Normal = 0, Subscript = 1 };

/// What a character that Unicode has as a small raised or lowered one stands for.
struct ScriptCharacter {
    char16_t plain = 0;
    ScriptLevel level = ScriptLevel::Normal;
};

/// The meaning of ², ₂, ⁺, ₙ, …; none for a character in the line.
std::optional<ScriptCharacter> scriptOf(char16_t character);

/// The raised or lowered form of a character; none where Unicode has none, as for most letters.
std::optional<char16_t> scriptForm(char16_t plain, ScriptLevel level);

/// The text with each character in its raised or lowered form where there is one.
String scriptForms(StringView plain, ScriptLevel level);

/// What a keyboard has for a sign of typeset text, none for one that is written as it is:
///
///     → ⟶ ← ⟵                 ->  <-
///     · • ⋅ ∙                 *
///     − – ‐ ‑                 -
///     blanks, line ends       one blank
///     what has no width       nothing
std::optional<StringView> typedForm(char16_t sign);

} // namespace phial
