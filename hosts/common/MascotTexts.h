#pragma once

#include "core/String.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace learning
{

/// What the mascot has a word for.
enum class MascotMoment : std::uint8_t {
    Greeting,     ///< {1}: the pupil's name
    RoundBegins,  ///< likewise
    Streak,       ///< three tasks solved at once, one after the other
    Missed,       ///< the third try was wrong, too
    Hint,         ///< the hint has been taken
    Help,         ///< the second try was wrong, and nothing can be told about how
    LongThinking, ///< nothing has been typed for a while
    AllSolved,    ///< the round is over
    ManySolved,   ///< more than half of it
    FewSolved,
    NoneSolved,
};
inline constexpr std::size_t MascotMoments = 11;

/// The texts of a moment, "German|English": at least two, so that none has to come twice in a row.
std::span<const phial::StringView> mascotTexts(MascotMoment moment);

/// Chooses a text for each moment, never the one that it has chosen for it last.
class MascotWords
{
public:
    /// `first` chooses where the texts of each moment begin.
    explicit MascotWords(std::size_t first = 0) { next_.fill(first); }

    phial::StringView next(MascotMoment moment);

private:
    std::array<std::size_t, MascotMoments> next_{};
};

} // namespace learning
