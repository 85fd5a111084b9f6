#include "common/MascotTexts.h"

namespace learning
{

namespace
{

using phial::StringView;

// Of the work and not of the pupil, without irony; no praise where nothing was solved.
constexpr StringView GreetingTexts[] = {
    u"Hallo {1}! Womit fangen wir an?|Hello {1}! What shall we begin with?",
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
constexpr StringView MissedTexts[] = {
    u"Halb so wild. Weiter geht es.|Never mind. On we go.",
    u"Die war nicht leicht. Nimm dir die nächste vor.|That was not easy. Take on the next one.",
};
constexpr StringView HintTexts[] = {
    u"Gut, dass du nachschaust.|Good idea to look it up.",
    u"Ein Tipp ist ein guter Anfang.|A hint is a good start.",
};
constexpr StringView HelpTexts[] = {
    u"Geh die Schritte noch einmal einzeln durch.|Go through the steps again, one by one.",
    u"Prüfe in Ruhe jeden Schritt.|Check each step calmly.",
};
constexpr StringView LongThinkingTexts[] = {
    u"Nimm dir Zeit. Schritt für Schritt.|Take your time. Step by step.",
    u"Lies die Aufgabe noch einmal in Ruhe.|Read the task once more, calmly.",
};
constexpr StringView AllSolvedTexts[] = {
    u"Alle Aufgaben gelöst. Klasse Arbeit!|All tasks solved. Great work!",
    u"Jede Aufgabe geschafft!|You did every task!",
};
constexpr StringView ManySolvedTexts[] = {
    u"Das meiste ist gelungen.|Most of it went well.",
    u"Ein gutes Stück geschafft.|A good part is done.",
};
constexpr StringView FewSolvedTexts[] = {
    u"Ein Anfang ist gemacht. Übe die falschen noch einmal.|A start is made. Practise the missed ones.",
    u"Manches sitzt schon. Noch eine Runde?|Some of it works. Another round?",
};
constexpr StringView NoneSolvedTexts[] = {
    u"Schau dir die Lösungen in Ruhe an.|Have a calm look at the solutions.",
    u"Probiere es mit den Tipps noch einmal.|Try again with the hints.",
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
    case MascotMoment::Missed:
        return MissedTexts;
    case MascotMoment::Hint:
        return HintTexts;
    case MascotMoment::Help:
        return HelpTexts;
    case MascotMoment::LongThinking:
        return LongThinkingTexts;
    case MascotMoment::AllSolved:
        return AllSolvedTexts;
    case MascotMoment::ManySolved:
        return ManySolvedTexts;
    case MascotMoment::FewSolved:
        return FewSolvedTexts;
    case MascotMoment::NoneSolved:
        return NoneSolvedTexts;
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
