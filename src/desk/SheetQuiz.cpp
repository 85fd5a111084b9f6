#include "desk/SheetQuiz.h"

#include "core/Platform.h"
#include "core/RandomSource.h"
#include "core/SessionState.h"

#include <algorithm>

namespace phial
{

namespace
{

/// From 0 up to but without `count`.
std::size_t randomIndex(std::size_t count)
{
    const double random = SessionState::current().platform().random->next();
    return std::min(static_cast<std::size_t>(random * static_cast<double>(count)), count - 1);
}

template <typename Item>
void shuffle(std::vector<Item>& items)
{
    for (std::size_t left = items.size(); left > 1; --left) {
        std::swap(items[left - 1], items[randomIndex(left)]);
    }
}

std::size_t commonBeginning(StringView one, StringView other)
{
    const auto [end, otherEnd] = std::ranges::mismatch(one, other);
    return static_cast<std::size_t>(end - one.begin());
}

QuizQuestion::Choice choiceOf(const SheetEntry& entry)
{
    return {entry.answer, entry.spokenAnswer};
}

/// What else could be the answer, each text once.
std::vector<QuizQuestion::Choice> otherChoices(const SheetEntry& asked, std::span<const SheetEntry> all)
{
    std::vector<QuizQuestion::Choice> others;
    for (const SheetEntry& entry : all) {
        const bool isKnown =
            std::ranges::find(others, entry.answer, &QuizQuestion::Choice::text) != others.end();
        if (entry.sheet == asked.sheet && !entry.question.empty() && entry.answer != asked.answer &&
            !isKnown) {
            others.push_back(choiceOf(entry));
        }
    }
    shuffle(others);
    std::ranges::stable_sort(others, std::ranges::greater(), [&](const QuizQuestion::Choice& choice) {
        return commonBeginning(choice.text, asked.answer);
    });
    return others;
}

QuizQuestion questionOf(const SheetEntry& asked, std::vector<QuizQuestion::Choice> choices)
{
    choices.resize(QuizChoices - 1);
    choices.push_back(choiceOf(asked));
    shuffle(choices);
    const auto right = std::ranges::find(choices, asked.answer, &QuizQuestion::Choice::text);
    const auto place = static_cast<std::size_t>(right - choices.begin());
    return {asked.question, std::move(choices), place};
}

} // namespace

std::vector<QuizQuestion> makeQuiz(std::span<const SheetEntry> asked, std::span<const SheetEntry> all)
{
    std::vector<const SheetEntry*> order;
    for (const SheetEntry& entry : asked) {
        if (!entry.question.empty()) {
            order.push_back(&entry);
        }
    }
    shuffle(order);
    std::vector<QuizQuestion> questions;
    for (const SheetEntry* entry : order) {
        auto others = otherChoices(*entry, all);
        if (others.size() + 1 >= QuizChoices && questions.size() < QuizQuestions) {
            questions.push_back(questionOf(*entry, std::move(others)));
        }
    }
    return questions;
}

} // namespace phial
