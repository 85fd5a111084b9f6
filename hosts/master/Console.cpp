#include "master/Console.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "master/Packages.h"
#include "master/Reports.h"
#include "master/ShownText.h"
#include "master/StoreWords.h"
#include "master/TypedText.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <ostream>
#include <utility>

namespace phial::master
{

namespace
{

constexpr std::size_t ShownUnlessTold = 20;
constexpr std::size_t UsageWidth = 29;
constexpr std::array<StringView, 3> MissingWords{u"--missing", u"missing", u"fehlend"};
constexpr std::array<StringView, 2> FromWords{u"--from", u"--von"};
constexpr StringView ResultsModule = u"RESULTS";

template <std::size_t Count>
bool isOneOf(StringView text, const std::array<StringView, Count>& words)
{
    return std::ranges::any_of(words, [text](StringView word) { return equalsIgnoringCase(text, word); });
}

} // namespace

struct Console::Command {
    StringView name;
    StringView germanArguments;
    StringView englishArguments;
    StringView german;
    StringView english;
    Answer (Console::*run)(StringView arguments, const Finish& finish);
};

std::span<const Console::Command> Console::commands()
{
    static constexpr std::array Table{
        Command{u"help", u"", u"", u"zeigt diese Liste", u"shows this list", &Console::help},
        Command{u"pupils", u"", u"", u"zeigt, wer da ist, wer still ist und wer weg ist",
                u"shows who is there, who is silent and who has gone", &Console::pupils},
        Command{u"app", u"IDENT|none", u"IDENT|none", u"wählt die Lern-App, die laufen darf; none: keine",
                u"chooses the learning app that may run; none: no app", &Console::app},
        Command{u"set", u"NAME [WERT]", u"NAME [VALUE]", u"setzt einen Wert; ohne Wert wird er gelöscht",
                u"sets a value; without a value it is deleted", &Console::set},
        Command{u"results", u"[N|all|--missing]", u"[N|all|--missing]",
                u"zeigt die letzten Ergebnisse; --missing: wer noch nicht abgegeben hat",
                u"shows the latest results; --missing: who has not handed in", &Console::results},
        Command{u"highscore", u"[MODUL]", u"[MODULE]", u"zeigt eine Bestenliste, oder welche es gibt",
                u"shows a highscore, or which there are", &Console::highscore},
        Command{u"events", u"[N|all]", u"[N|all]", u"zeigt die letzten Ereignisse",
                u"shows the latest events", &Console::events},
        Command{u"rename", u"\"ALT\" \"NEU\"", u"\"OLD\" \"NEW\"", u"berichtigt einen Namen überall",
                u"corrects a name everywhere", &Console::rename},
        Command{u"remove", u"MODUL RANG", u"MODULE RANK",
                u"entfernt einen Eintrag; remove RESULTS NR ein Ergebnis",
                u"takes an entry away; remove RESULTS NO a result", &Console::remove},
        Command{u"reset", u"MODUL|--from RECHNER", u"MODULE|--from COMPUTER",
                u"entfernt eine Bestenliste, oder alle, die ein Rechner begonnen hat",
                u"takes a highscore away, or all that a computer has begun", &Console::reset},
        Command{u"changes", u"[N|all]", u"[N|all]", u"zeigt, was so geändert worden ist",
                u"shows what has been changed so", &Console::changes},
        Command{u"export", u"DATEI.csv", u"FILE.csv",
                u"schreibt alle Ergebnisse für eine Tabellenkalkulation",
                u"writes all results for a spreadsheet", &Console::exportResults},
        Command{u"quit", u"", u"", u"beendet den Master", u"ends the master", &Console::quit},
    };
    return Table;
}

Console::Console(Classroom& classroom, StoreDesk& desk, const AppCatalogue& apps, const Clock& clock,
                 FileSystem& files, std::ostream& output)
    : classroom_(classroom), desk_(desk), apps_(apps), clock_(clock), files_(files), output_(output)
{
}

void Console::run(StringView line, Finish finish)
{
    const auto [word, arguments] = firstWord(line);
    if (word.empty()) {
        finish(Outcome::Done);
        return;
    }
    const Finish flushed = [this, finish = std::move(finish)](Outcome outcome) {
        output_.flush();
        finish(outcome);
    };
    const auto table = commands();
    const auto command = std::ranges::find_if(
        table, [&typed = word](const Command& entry) { return equalsIgnoringCase(entry.name, typed); });
    if (command == table.end()) {
        flushed(refuse(u"\"{1}\" kenne ich nicht; \"help\" zeigt, was es gibt.",
                       u"I do not know \"{1}\"; \"help\" shows what there is.", {word}));
        return;
    }
    Answer outcome;
    try {
        outcome = (this->*command->run)(arguments, flushed);
    } catch (const RuntimeError& error) {
        outcome = refuse(u"Das ging nicht: {1}", u"That did not work: {1}", {error.Description()});
    }
    if (outcome) {
        flushed(*outcome);
    }
}

/// Has the class book do something and goes on with what that has given; what it cannot do is told.
template <typename Work, typename Then>
Console::Answer Console::ask(Work work, Then then, const Finish& finish)
{
    using Given = decltype(work(std::declval<ClassBook&>()));
    const auto given = std::make_shared<std::optional<Given>>();
    StoreJob job;
    job.work = [given, work = std::move(work)](ClassBook& book, auto&) -> AnswerText {
        *given = work(book);
        return nullptr;
    };
    desk_.add(
        std::move(job), 0,
        [this, given, then = std::move(then), finish](const JobOutcome& outcome) {
            finish(outcome.isDone ? then(**given) : storeTroubles(outcome));
        },
        StoreDesk::Urgency::Impatient);
    desk_.start();
    return std::nullopt;
}

Console::Outcome Console::storeTroubles(const JobOutcome& outcome)
{
    if (outcome.trouble) {
        return refuse(u"Das ging nicht: {1}", u"That did not work: {1}", {storeWords(*outcome.trouble)});
    }
    return refuse(u"Die Datenbank antwortet nicht.", u"The database does not answer.");
}

Console::Answer Console::help(StringView /*arguments*/, const Finish& /*finish*/)
{
    for (const Command& command : commands()) {
        String usage(command.name);
        usage.append(u" ").append(translated(command.germanArguments, command.englishArguments));
        usage.resize(std::max(usage.size(), UsageWidth), u' ');
        output_ << "  " << toUtf8(usage) << ' ' << toUtf8(translated(command.german, command.english))
                << '\n';
    }
    return Outcome::Done;
}

Console::Answer Console::pupils(StringView /*arguments*/, const Finish& /*finish*/)
{
    writePupils(output_, classroom_.pupils());
    return Outcome::Done;
}

Console::Answer Console::app(StringView arguments, const Finish& finish)
{
    if (arguments.empty()) {
        return tellApp();
    }
    String chosen = cleaned(arguments, Classroom::MaxAppLength);
    if (const LearningApp* known = apps_.find(chosen)) {
        chosen = known->ident;
    } else if (equalsIgnoringCase(chosen, u"none")) {
        chosen.clear();
    } else {
        warnOfUnknownApp(chosen);
    }
    return ask(
        [chosen](ClassBook& book) {
            book.chooseApp(chosen);
            return true;
        },
        [this](bool) { return tellApp(); }, finish);
}

/// It may be right all the same: on the pupils' computers there may be apps that are not here.
void Console::warnOfUnknownApp(const String& chosen)
{
    tell(u"Achtung: Die Lern-App \"{1}\" gibt es auf diesem Rechner nicht.",
         u"Mind: there is no learning app \"{1}\" on this computer.", {chosen});
    if (!apps_.apps().empty()) {
        tell(u"Bekannt sind:", u"Those known are:");
        writeApps(output_, apps_.apps());
    }
}

Console::Outcome Console::tellApp()
{
    if (classroom_.app().empty()) {
        tell(u"Es ist keine Lern-App ausgewählt.", u"No learning app is chosen.");
    } else {
        tell(u"Ausgewählt ist: {1}", u"Chosen: {1}", {classroom_.app()});
    }
    return Outcome::Done;
}

Console::Answer Console::set(StringView arguments, const Finish& finish)
{
    if (arguments.empty()) {
        writeSettings(output_, classroom_.settings());
        return Outcome::Done;
    }
    const auto [name, value] = firstWord(arguments);
    return ask(
        [name = name, value = value](ClassBook& book) { return book.set(name, value); },
        [this, name = name](MasterSettings::Problem problem) { return tellAboutSetting(problem, name); },
        finish);
}

Console::Outcome Console::tellAboutSetting(MasterSettings::Problem problem, const String& name)
{
    using Problem = MasterSettings::Problem;
    switch (problem) {
    case Problem::None:
        writeSettings(output_, classroom_.settings());
        return Outcome::Done;
    case Problem::Name:
        return refuse(u"Der Name ist zu lang.", u"The name is too long.");
    case Problem::TooLong:
        return refuse(u"Der Wert ist zu lang.", u"The value is too long.");
    case Problem::TooMany:
        return refuse(u"Es gibt schon zu viele Werte.", u"There are too many values already.");
    case Problem::NoBoolean:
        return refuse(u"{1} kann ja oder nein sein.", u"{1} can be yes or no.", {name});
    case Problem::NoListLength:
        return refuse(u"{1} kann 1 bis {2} sein.", u"{1} can be 1 to {2}.",
                      {name, MasterSettings::MaxListLength});
    }
    return Outcome::Failed;
}

Console::Answer Console::results(StringView arguments, const Finish& finish)
{
    if (isOneOf(arguments, MissingWords)) {
        return missing(finish);
    }
    const auto count = wantedCount(arguments, ShownUnlessTold);
    if (!count) {
        return refuse(u"Das ist keine Anzahl: {1}", u"This is no number: {1}", {arguments});
    }
    return ask([count = *count](ClassBook& book) { return book.latestResults(count); },
               [this](const std::vector<KeptResult>& results) {
                   writeResults(output_, results);
                   return Outcome::Done;
               },
               finish);
}

Console::Answer Console::missing(const Finish& finish)
{
    const auto pupils = classroom_.pupils();
    if (pupils.empty()) {
        writePupils(output_, pupils);
        return Outcome::Done;
    }
    const Moment since =
        std::ranges::min_element(pupils, {}, [](const Pupil& one) { return one.first.days; })->first;
    return ask([since](ClassBook& book) { return book.handedInSince(since); },
               [this, pupils](const std::vector<HandedIn>& handedIn) {
                   writeMissing(output_, withoutResult(pupils, handedIn));
                   return Outcome::Done;
               },
               finish);
}

Console::Answer Console::events(StringView arguments, const Finish& finish)
{
    const auto count = wantedCount(arguments, ShownUnlessTold);
    if (!count) {
        return refuse(u"Das ist keine Anzahl: {1}", u"This is no number: {1}", {arguments});
    }
    return ask([count = *count](ClassBook& book) { return book.latestEvents(count); },
               [this](const std::vector<PupilEvent>& events) {
                   writeEvents(output_, events);
                   return Outcome::Done;
               },
               finish);
}

Console::Answer Console::changes(StringView arguments, const Finish& finish)
{
    const auto count = wantedCount(arguments, ShownUnlessTold);
    if (!count) {
        return refuse(u"Das ist keine Anzahl: {1}", u"This is no number: {1}", {arguments});
    }
    return ask([count = *count](ClassBook& book) { return book.latestChanges(count); },
               [this](const std::vector<Change>& changes) {
                   writeChanges(output_, changes);
                   return Outcome::Done;
               },
               finish);
}

Console::Answer Console::highscore(StringView arguments, const Finish& finish)
{
    if (arguments.empty()) {
        return ask([](ClassBook& book) { return book.lists(); },
                   [this](const std::vector<ListOrigin>& lists) {
                       writeLists(output_, lists);
                       return Outcome::Done;
                   },
                   finish);
    }
    return ask([module = String(arguments)](ClassBook& book) { return book.highscore(module); },
               [this](const std::vector<HighscoreRow>& rows) {
                   writeHighscore(output_, rows);
                   return Outcome::Done;
               },
               finish);
}

Console::Answer Console::reset(StringView arguments, const Finish& finish)
{
    const Moment now = clock_.moment();
    const auto [word, address] = firstWord(arguments);
    if (isOneOf(word, FromWords)) {
        return ask([address = address, now](ClassBook& book) { return book.resetListsFrom(address, now); },
                   [this](std::size_t count) {
                       tell(u"Entfernte Bestenlisten: {1}", u"Highscores taken away: {1}",
                            {static_cast<std::int32_t>(count)});
                       return Outcome::Done;
                   },
                   finish);
    }
    return ask([module = String(arguments), now](ClassBook& book) { return book.resetList(module, now); },
               [this](bool isDone) {
                   if (!isDone) {
                       return refuse(u"Diese Bestenliste gibt es nicht.", u"There is no such highscore.");
                   }
                   tell(u"Die Bestenliste ist jetzt leer.", u"The highscore is empty now.");
                   return Outcome::Done;
               },
               finish);
}

Console::Answer Console::remove(StringView arguments, const Finish& finish)
{
    const Moment now = clock_.moment();
    const auto [module, last] = lastWord(arguments);
    const auto number = positiveNumber(last);
    if (module.empty() || !number) {
        return refuse(u"Bitte Modul und Rang angeben, oder RESULTS und die Nummer: remove HIGHSCORE 3",
                      u"Please give module and rank, or RESULTS and the number: remove HIGHSCORE 3");
    }
    const auto told = [this](const std::optional<String>& name) {
        if (!name) {
            return refuse(u"Diesen Eintrag gibt es nicht.", u"There is no such entry.");
        }
        tell(u"Entfernt: ein Eintrag von {1}", u"Taken away: an entry of {1}", {*name});
        return Outcome::Done;
    };
    if (equalsIgnoringCase(module, ResultsModule)) {
        return ask(
            [number = *number, now](ClassBook& book) {
                const auto result = book.removeResult(number, now);
                return result ? std::optional(result->sender.screenName) : std::nullopt;
            },
            told, finish);
    }
    return ask(
        [module = module, number = *number, now](ClassBook& book) {
            const auto row = book.removeEntry(module, number, now);
            return row ? std::optional(row->name) : std::nullopt;
        },
        told, finish);
}

Console::Answer Console::rename(StringView arguments, const Finish& finish)
{
    const auto words = wordsOf(arguments);
    if (words.size() != 2 || cleaned(words.back(), MaxNameLength).empty()) {
        return refuse(u"Bitte den alten und den neuen Namen angeben: rename \"Ana B\" \"Anna B\"",
                      u"Please give the old name and the new one: rename \"Ana B\" \"Anna B\"");
    }
    const Moment now = clock_.moment();
    return ask([from = words.front(), to = words.back(),
                now](ClassBook& book) { return book.rename(from, to, now); },
               [this, from = words.front(), to = words.back()](std::size_t count) {
                   if (count == 0) {
                       return refuse(u"{1} hat nichts abgegeben.", u"{1} has handed in nothing.", {from});
                   }
                   classroom_.roster().rename(from, to);
                   tell(u"{1} heißt jetzt {2}.", u"{1} is called {2} now.", {from, to});
                   return Outcome::Done;
               },
               finish);
}

Console::Answer Console::exportResults(StringView arguments, const Finish& finish)
{
    if (arguments.empty()) {
        return refuse(u"Bitte den Namen der Datei angeben: export DATEI.csv",
                      u"Please give the file's name: export FILE.csv");
    }
    const auto file = typedPath(arguments);
    ResultExport::begin(desk_, files_, file, [this, finish, file](auto outcome, const JobOutcome& lastJob) {
        finish(tellAboutExport(outcome, file, lastJob));
    });
    return std::nullopt;
}

Console::Outcome Console::tellAboutExport(ResultExport::Outcome outcome, const std::filesystem::path& file,
                                          const JobOutcome& lastJob)
{
    const Variant::Array values{fromUtf8(file.string())};
    switch (outcome) {
    case ResultExport::Outcome::Written:
        tell(u"Geschrieben: {1}", u"Written: {1}", values);
        return Outcome::Done;
    case ResultExport::Outcome::NotWritable:
        return refuse(u"{1} lässt sich nicht schreiben.", u"{1} cannot be written.", values);
    case ResultExport::Outcome::Refused:
        return storeTroubles(lastJob);
    }
    return Outcome::Failed;
}

Console::Answer Console::quit(StringView /*arguments*/, const Finish& /*finish*/)
{
    return Outcome::Quit;
}

void Console::tell(StringView german, StringView english, const Variant::Array& values)
{
    Variant::Array shown;
    for (const Variant& value : values) {
        const String text = isolated(shownSafely(value.toText()));
        shown.emplace_back(text);
    }
    output_ << toUtf8(LNG()->TRANSLATE(german, english, shown)) << '\n';
}

Console::Outcome Console::refuse(StringView german, StringView english, const Variant::Array& values)
{
    tell(german, english, values);
    return Outcome::Failed;
}

} // namespace phial::master
