#pragma once

#include "desk/SheetEntries.h"

#include <cstddef>

namespace phial
{

/// A question about a line of a sheet, with one right choice.
struct QuizQuestion {
    struct Choice {
        String text;
        String spoken; ///< empty where the text is spoken as it stands
    };

    String question;
    std::vector<Choice> choices;
    std::size_t right = 0;

    const Choice& answer() const { return choices[right]; }
};

inline constexpr std::size_t QuizChoices = 4;
inline constexpr std::size_t QuizQuestions = 10;

/// Questions about different entries in random order, at most QuizQuestions. The other choices are answers of
/// the same sheet, those that look alike before others; an entry whose sheet has too few in `all` is not
/// asked.
std::vector<QuizQuestion> makeQuiz(std::span<const SheetEntry> asked, std::span<const SheetEntry> all);

} // namespace phial
