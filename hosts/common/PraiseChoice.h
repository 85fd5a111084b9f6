#pragma once

#include "common/Round.h"
#include "core/String.h"

#include <vector>

namespace learning
{

/// Chooses what a solved task is praised for: something that was mastered in it, or the way it was solved,
/// by lot and never the same twice in a row.
class PraiseChoice
{
public:
    /// One of the texts that the app gives, or one that fits the outcome; "German|English". "" for a task
    /// that is not solved.
    phial::StringView choose(std::vector<phial::StringView> mastered, Outcome outcome);

private:
    phial::StringView last_;
};

} // namespace learning
