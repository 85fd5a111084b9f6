#pragma once

#include "core/String.h"

#include <vector>

/// What the quiz knows without any window.
namespace quiz
{

inline constexpr std::size_t Choices = 4;

struct Question {
    phial::String formula;            ///< as a term: "SO4^2-"
    std::vector<phial::String> names; ///< to choose from, each "German|English"
    std::size_t right = 0;            ///< which of them it is
};

/// A question for each line "formula | German name | English name", in any order; none where there are too
/// few to choose from. Other lines, and those that begin with "#", are passed over.
std::vector<Question> questionsOf(phial::StringView lines);

} // namespace quiz
