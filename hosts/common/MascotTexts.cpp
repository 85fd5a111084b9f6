#include "common/MascotTexts.h"

namespace learning
{

namespace
{

using phial::StringView;

// Of the work and not of the pupil, without irony.
constexpr StringView GreetingTexts[] = {
    u"Hallo {1}! Lies in Ruhe, dann geht es los.|Hello {1}! Read calmly, and off we go.",
    u"Schön, dass du da bist, {1}.|Nice to see you, {1}.",
};
constexpr StringView RoundBeginsTexts[] = {
    u"Los geht es, {1}. Lies in Ruhe.|Here we go, {1}. Read calmly.",
    u"Neue Runde, {1}. Schritt für Schritt.|A new round, {1}. Step by step.",
    u"Viel Erfolg, {1}!|Good luck, {1}!",
};
constexpr StringView StreakTexts[] = {
    u"Dreimal nacheinander gleich gewusst!|Three in a row, all known at once!",
    u"Drei Mal gleich richtig. Das sitzt.|Right first time, three times. You've got it.",
    u"Sauber gelöst, dreimal in Folge.|Neatly done, three times running.",
};

} // namespace

std::span<const StringView> mascotTexts(MascotMoment moment)
{
    switch (moment) {
    case MascotMoment::Greeting:
        break;
    case MascotMoment::RoundBegins:
        return RoundBeginsTexts;
    case MascotMoment::Streak:
        return StreakTexts;
    }
    return GreetingTexts;
}

StringView MascotWords::next(MascotMoment moment)
{
    const auto texts = mascotTexts(moment);
    std::size_t& at = next_.at(static_cast<std::size_t>(moment));
    const StringView text = texts[at % texts.size()];
    ++at;
    return text;
}

} // namespace learning
