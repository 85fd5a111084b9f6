#pragma once

#include "term/TermRules.h"

#include <optional>

namespace phial
{

/// A character that other programs know as a small raised or lowered one.
struct TermScript {
    char16_t plain = 0;
    TermLevel level = TermLevel::Normal;
};

/// What such a character (², ₂, ⁺, ₙ, …) stands for; none for another one.
std::optional<TermScript> scriptOf(char16_t character);

/// The raised or lowered form of a character; none where there is none, as for most letters.
std::optional<char16_t> scriptForm(char16_t plain, TermLevel level);

} // namespace phial
