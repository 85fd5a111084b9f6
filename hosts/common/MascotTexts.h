#pragma once

#include "core/String.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace learning
{

/// What there is a word for besides the app's own sentences. It stands on the page, and the mascot says it.
enum class MascotMoment : std::uint8_t {
    Greeting,    ///< the first round of a pupil begins; {1}: the pupil's name
    RoundBegins, ///< a further one, likewise
    Streak,      ///< three tasks solved at once, one after the other
};
inline constexpr std::size_t MascotMoments = 3;

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
