#include "common/PraiseChoice.h"

#include "common/Drawing.h"

namespace learning
{

using phial::StringView;

namespace
{

constexpr StringView AtOnce = u"Gleich beim ersten Versuch richtig.|Right at the first try.";
constexpr StringView Later[] = {
    u"Drangeblieben und den Weg gefunden.|Kept at it and found the way.",
    u"Noch einmal nachgedacht, und es stimmt.|Thought about it again, and it is right.",
};

} // namespace

StringView PraiseChoice::choose(std::vector<StringView> mastered, Outcome outcome)
{
    switch (outcome) {
    case Outcome::Open:
    case Outcome::Missed:
        return {};
    case Outcome::AtOnce:
        mastered.push_back(AtOnce);
        break;
    case Outcome::Later:
        mastered.insert(mastered.end(), std::begin(Later), std::end(Later));
        break;
    }
    if (mastered.size() > 1) {
        std::erase(mastered, last_);
    }
    last_ = mastered[static_cast<std::size_t>(randomBelow(static_cast<int>(mastered.size())))];
    return last_;
}

} // namespace learning
