#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <cstdint>
#include <optional>

namespace phial
{

/// What a pupil is told about a submitted result.
struct SubmissionMessage {
    String title;
    String text;
};

/// For a master's answer, the part before a ":" left out: "OK" says nothing, -1 and the empty answer comfort,
/// anything else is the rank.
std::optional<SubmissionMessage> messageForAnswer(const String& answer);

/// For the rank in a list of this computer that keeps `limit` ranks and now has `count` entries; a rank
/// beyond the limit says nothing.
std::optional<SubmissionMessage> messageForRank(const Variant& rank, std::int32_t limit, std::int32_t count);

/// Shows the message in a box when there is one.
void show(const std::optional<SubmissionMessage>& message);

} // namespace phial
