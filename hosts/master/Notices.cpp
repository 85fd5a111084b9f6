#include "master/Notices.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "master/ShownText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace phial::master
{

namespace
{

struct Row {
    Notice kind;
    StringView german;
    StringView english;
};

constexpr auto Texts = std::to_array<Row>({
    {Notice::ManyConnections,
     u"Von {1} kommen zu viele Verbindungen; die am längsten stillen werden geschlossen.",
     u"Too many connections come from {1}; those silent for longest are closed."},
    {Notice::NoMoreConnections, u"Es gibt schon {1} Verbindungen; neue gehen auf Kosten der stillen.",
     u"There are {1} connections already; new ones cost silent ones their place."},
    {Notice::NoRequest, u"{1} hat etwas geschickt, das keine Lern-App schickt, und wurde getrennt.",
     u"{1} sent what no learning app sends, and was cut off."},
    {Notice::TooLong, u"{1} hat eine zu lange Nachricht geschickt und wurde getrennt.",
     u"{1} sent a message that is too long, and was cut off."},
    {Notice::TooSlow, u"{1} hat eine Nachricht begonnen und nicht beendet und wurde getrennt.",
     u"{1} began a message and did not finish it, and was cut off."},
    {Notice::SaysNothing, u"{1} hat sich verbunden und nichts gesagt und wurde getrennt.",
     u"{1} connected and said nothing, and was cut off."},
    {Notice::AnswersUntaken, u"{1} holt seine Antworten nicht ab und wurde getrennt.",
     u"{1} does not take its answers, and was cut off."},
    {Notice::MemoryShort, u"Der Speicher wird knapp; {1} belegt am meisten und wurde getrennt.",
     u"Memory runs short; {1} takes most of it and was cut off."},
    {Notice::ManyLogOns, u"{1} meldet sich zu oft an; das wird eine Weile abgelehnt.",
     u"{1} logs on too often; that is refused for a while."},
    {Notice::ManyPupils,
     u"Von {1} melden sich zu viele an; wer am längsten still war, steht nicht mehr in der Liste.",
     u"Too many log on from {1}; those silent for longest are no longer in the list."},
    {Notice::ManyQuestions,
     u"Es wird zu oft nach dem Master gesucht, zuletzt von {1}; ein Teil bleibt ohne Antwort.",
     u"The master is looked for too often, last by {1}; a part gets no answer."},
    {Notice::UnknownRequest, u"{1} hat etwas verlangt, das der Master nicht kennt; es wurde abgelehnt.",
     u"{1} asked for what the master does not know; it was refused."},
    {Notice::NoPackage, u"{1} hat etwas Unverständliches eingereicht; es wurde abgelehnt.",
     u"{1} handed in what makes no sense; it was refused."},
    {Notice::ImpossiblePoints, u"Ein Ergebnis von {1} hat unmögliche Punkte und wurde abgelehnt.",
     u"A result from {1} has impossible points and was refused."},
    {Notice::ImplausiblePoints,
     u"{1} hat mehr Punkte als erreichbar: {2} von {3}. Das Ergebnis ist mit ! gekennzeichnet.",
     u"{1} has more points than can be reached: {2} of {3}. The result is marked with !."},
    {Notice::ListBegun, u"{1} hat eine neue Bestenliste begonnen: {2}.",
     u"{1} has begun a new highscore: {2}."},
    {Notice::ListsOfComputer,
     u"{1} hat schon {2} Bestenlisten begonnen; weitere werden abgelehnt. \"reset --from {1}\" entfernt sie.",
     u"{1} has begun {2} highscores already; more are refused. \"reset --from {1}\" takes them away."},
    {Notice::NoMoreLists,
     u"Es gibt schon {1} Bestenlisten; {2} wurde abgelehnt. \"reset\" schafft Platz, \"app\" lässt die "
     u"Listen "
     u"der Lern-App zu.",
     u"There are {1} highscores already; {2} was refused. \"reset\" makes room, \"app\" admits those of the "
     u"learning app."},
    {Notice::EntryShortened,
     u"Die Zusatzangaben von {1} sind für die Bestenliste {2} zu lang und fehlen dort.",
     u"The further values of {1} are too long for the highscore {2} and are missing there."},
    {Notice::EntryTooLong, u"Ein Eintrag von {1} ist zu lang für eine Bestenliste und wurde abgelehnt.",
     u"An entry of {1} is too long for a highscore and was refused."},
    {Notice::ManyRequests, u"Es kommt mehr, als die Datenbank aufnehmen kann; ein Teil wird abgelehnt.",
     u"More comes than the database can take; a part is refused."},
    {Notice::StoreSilent,
     u"Die Datenbank antwortet nicht. Was jetzt abgegeben wird, bleibt auf den Rechnern der Schüler.",
     u"The database does not answer. What is handed in now stays on the pupils' computers."},
    {Notice::StoreFails, u"{1}", u"{1}"},
    {Notice::StoreBack, u"Die Datenbank antwortet wieder.", u"The database answers again."},
});

Variant::Array shownValues(const std::vector<String>& about)
{
    Variant::Array values;
    for (const String& text : about) {
        const String shown = (isDoubtful(text) ? u"(!) " : u"") + isolated(shownSafely(text));
        values.emplace_back(shown);
    }
    return values;
}

} // namespace

Notices::Notices(const Clock& clock, std::function<void(const String&)> say)
    : clock_(clock), say_(std::move(say))
{
}

void Notices::tell(const NoticeCase& what)
{
    const auto [entry, isFirst] = told_.try_emplace(what.kind);
    Told& told = entry->second;
    told.latest = what;
    if (isFirst || clock_.seconds() - told.at >= SecondsBetween) {
        say(told);
    } else {
        ++told.heldBack;
    }
}

void Notices::tick()
{
    for (auto& [kind, told] : told_) {
        if (told.heldBack > 0 && clock_.seconds() - told.at >= SecondsBetween) {
            --told.heldBack; // the line itself is one of them
            say(told);
        }
    }
}

void Notices::say(Told& told)
{
    const auto* const row = std::ranges::find(Texts, told.latest.kind, &Row::kind);
    String line = LNG()->TRANSLATE(row->german, row->english, shownValues(told.latest.about));
    if (told.heldBack > 0) {
        line += LNG()->TRANSLATE(u" (und noch {1}-mal)", u" (and {1} times more)",
                                 {static_cast<std::int32_t>(told.heldBack)});
    }
    told.heldBack = 0;
    told.at = clock_.seconds();
    say_(line);
}

} // namespace phial::master
