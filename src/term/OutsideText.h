#pragma once

#include "term/TermRules.h"

#include <vector>

namespace phial
{

/// A unit of a text from outside; a level other than Normal is where that text has it.
struct OutsideUnit {
    char16_t unit = 0;
    ScriptLevel level = ScriptLevel::Normal;

    friend bool operator==(const OutsideUnit&, const OutsideUnit&) = default;
};

/// Plain text in one line: small raised and lowered characters, and what stands between <sup> or <sub> and
/// their ends, with its level; signs as the notation of terms writes them.
std::vector<OutsideUnit> readOutsideText(StringView text);

/// What is seen of a piece of HTML, likewise. Runs of blanks are one blank.
std::vector<OutsideUnit> readOutsideHtml(StringView html);

/// The text with its entities (&amp;lt; and the like) as the characters they stand for; an unknown one stays.
String withoutEntities(StringView html);

} // namespace phial
