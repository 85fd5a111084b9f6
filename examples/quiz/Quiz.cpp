#include "Quiz.h"

#include "core/Platform.h"
#include "core/RandomSource.h"
#include "core/SessionState.h"

#include <algorithm>

namespace quiz
{

using phial::String;
using phial::StringView;

namespace
{

/// The session's random numbers, in [0, 1), shuffle; a test hands in its own.
template <typename Item>
void shuffle(std::vector<Item>& items)
{
    for (std::size_t left = items.size(); left > 1; --left) {
        const double random = phial::SessionState::current().platform().random->next();
        std::swap(items[left - 1], items[static_cast<std::size_t>(random * static_cast<double>(left))]);
    }
}

} // namespace

std::vector<Question> questionsOf(StringView lines)
{
    std::vector<std::pair<String, String>> substances; // formula and names
    for (const StringView line : phial::split(lines, u"\n")) {
        if (const auto columns = phial::split(line, u"|"); columns.size() == 3 && line.front() != u'#') {
            substances.emplace_back(phial::trimmed(columns[0]),
                                    phial::trimmed(columns[1]) + u"|" + phial::trimmed(columns[2]));
        }
    }
    shuffle(substances);
    std::vector<Question> questions;
    for (std::size_t at = 0; at < substances.size() && substances.size() >= Choices; ++at) {
        Question question{.formula = substances[at].first, .names = {}};
        for (std::size_t next = at; next < at + Choices; ++next) {
            question.names.push_back(substances[next % substances.size()].second);
        }
        shuffle(question.names);
        const auto right = std::ranges::find(question.names, substances[at].second);
        question.right = static_cast<std::size_t>(right - question.names.begin());
        questions.push_back(std::move(question));
    }
    return questions;
}

} // namespace quiz
