#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

class CoreParameters;
enum class ResultPlace : std::uint8_t;
struct HandedIn;

/// The way of a finished exercise into the result lists: those of the master where it can be reached and
/// takes the result in, those of this computer in every other case.

struct FinishedExercise {
    /// Raises 5 for points that are no finite number. `additionalValues` may be null.
    FinishedExercise(double reached, double reachable, StringView exercise,
                     const CoreParameters* additionalValues);

    double points;
    double pointsMax;
    String label;
    const CoreParameters* additional;
};

/// The highscore that a result goes to.
struct HighscoreEntry {
    String module;
    bool showInfo = true;
    std::int32_t localMax = 10; ///< ranks of a list of this computer
};

/// Records the result alone, at the master if one can be used.
ResultPlace recordResult(const FinishedExercise& exercise, bool withMaster);

/// Records the result and enters it into the highscore, unless the module stands for the record alone.
HandedIn submitResult(const FinishedExercise& exercise, const HighscoreEntry& entry, bool withMaster);

} // namespace phial
