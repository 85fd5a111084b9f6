#include "master/Console.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/AtomicFile.h"
#include "core/CoreParameters.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "master/CsvExport.h"
#include "master/Packages.h"
#include "master/TextTable.h"
#include "results/Mark.h"
#include "results/cls_DataScore.h"
#include "results/cls_DataScores.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <limits>
#include <ostream>

namespace phial::master
{

namespace
{

constexpr std::size_t ShownUnlessTold = 20;
constexpr std::size_t UsageWidth = 20;
constexpr std::array<StringView, 2> AllWords{u"alle", u"all"};
constexpr StringView TimePattern = u"dd.mm.yyyy hh:nn:ss";

/// The first word of a line, and what follows it.
std::pair<String, String> firstWord(StringView line)
{
    const String text = replaced(trimmed(line), u"\t", u" ");
    const std::size_t end = std::min(text.find(u' '), text.size());
    return {text.substr(0, end), trimmed(StringView(text).substr(end))};
}

String translated(StringView german, StringView english)
{
    return LNG()->TRANSLATE(german, english);
}

String timeText(Moment moment)
{
    return formatPattern(moment, TimePattern);
}

String numberText(double value)
{
    return plainText(value, currentLocale().decimalSign);
}

/// A setting's value as a teacher types it.
String shown(const Variant& value)
{
    if (value.kind() == Variant::Kind::Boolean) {
        return value.toBoolean() ? translated(u"ja", u"yes") : translated(u"nein", u"no");
    }
    return value.toText();
}

/// How many entries are wanted: a number, `all` (`alle`), or nothing for the usual number. No value for
/// anything else.
std::optional<std::size_t> wantedCount(StringView argument)
{
    if (argument.empty()) {
        return ShownUnlessTold;
    }
    if (std::ranges::any_of(AllWords, [&](StringView word) { return equalsIgnoringCase(argument, word); })) {
        return std::numeric_limits<std::size_t>::max();
    }
    const NumberAtStart number = numberAtStart(argument);
    if (number.length != argument.size() || number.value < 1 ||
        number.value > std::numeric_limits<int>::max()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(number.value);
}

} // namespace

struct Console::Command {
    StringView name;
    StringView germanArguments;
    StringView englishArguments;
    StringView german;
    StringView english;
    Outcome (Console::*run)(StringView arguments);
};

std::span<const Console::Command> Console::commands()
{
    static constexpr std::array Table{
        Command{u"help", u"", u"", u"zeigt diese Liste", u"shows this list", &Console::help},
        Command{u"pupils", u"", u"", u"zeigt, wer angemeldet ist", u"shows who is logged on",
                &Console::pupils},
        Command{u"app", u"IDENT|none", u"IDENT|none", u"wählt die Lern-App, die laufen darf; none: keine",
                u"chooses the learning app that may run; none: no app", &Console::app},
        Command{u"set", u"NAME [WERT]", u"NAME [VALUE]", u"setzt einen Wert; ohne Wert wird er gelöscht",
                u"sets a value; without a value it is deleted", &Console::set},
        Command{u"results", u"[N|all]", u"[N|all]", u"zeigt die letzten Ergebnisse",
                u"shows the latest results", &Console::results},
        Command{u"highscore", u"[MODUL]", u"[MODULE]", u"zeigt eine Bestenliste, oder welche es gibt",
                u"shows a highscore, or which there are", &Console::highscore},
        Command{u"reset", u"MODUL", u"MODULE", u"leert eine Bestenliste", u"empties a highscore",
                &Console::reset},
        Command{u"events", u"[N|all]", u"[N|all]", u"zeigt die letzten Ereignisse",
                u"shows the latest events", &Console::events},
        Command{u"export", u"DATEI.csv", u"FILE.csv",
                u"schreibt alle Ergebnisse für eine Tabellenkalkulation",
                u"writes all results for a spreadsheet", &Console::exportResults},
        Command{u"quit", u"", u"", u"beendet den Master", u"ends the master", &Console::quit},
    };
    return Table;
}

Console::Console(Classroom& classroom, MasterStore& store, FileSystem& files, std::ostream& output)
    : classroom_(classroom), store_(store), files_(files), output_(output)
{
}

Console::Outcome Console::run(StringView line)
{
    const auto [word, arguments] = firstWord(line);
    if (word.empty()) {
        return Outcome::Done;
    }
    const auto table = commands();
    const auto command = std::ranges::find_if(
        table, [&typed = word](const Command& entry) { return equalsIgnoringCase(entry.name, typed); });
    if (command == table.end()) {
        return refuse(u"\"{1}\" kenne ich nicht; \"help\" zeigt, was es gibt.",
                      u"I do not know \"{1}\"; \"help\" shows what there is.", {word});
    }
    Outcome outcome = Outcome::Failed;
    try {
        outcome = (this->*command->run)(arguments);
    } catch (const StoreError& error) {
        ignoringErrors([this] { classroom_.undo(); });
        refuse(u"Die Datenbank meldet einen Fehler: {1}", u"The database reports an error: {1}",
               {fromUtf8(error.what())});
    } catch (const RuntimeError& error) {
        refuse(u"Das ging nicht: {1}", u"That did not work: {1}", {error.Description()});
    }
    output_.flush();
    return outcome;
}

Console::Outcome Console::help(StringView /*arguments*/)
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

Console::Outcome Console::pupils(StringView /*arguments*/)
{
    TextTable table({u"Name", translated(u"Rechner", u"Computer"), translated(u"Angemeldet", u"Logged on"),
                     translated(u"Zuletzt gehört", u"Last heard of")});
    for (const Pupil& pupil : classroom_.pupils()) {
        table.add(
            {pupil.logOn.name, pupil.logOn.address, timeText(pupil.logOn.since), timeText(pupil.heard)});
    }
    if (table.isEmpty()) {
        tell(u"Niemand ist angemeldet.", u"Nobody is logged on.");
    } else {
        table.write(output_);
    }
    return Outcome::Done;
}

Console::Outcome Console::app(StringView arguments)
{
    if (!arguments.empty()) {
        classroom_.chooseApp(equalsIgnoringCase(arguments, u"none") ? StringView() : arguments);
        classroom_.commit();
    }
    if (classroom_.app().empty()) {
        tell(u"Es ist keine Lern-App ausgewählt.", u"No learning app is chosen.");
    } else {
        tell(u"Ausgewählt ist: {1}", u"Chosen: {1}", {classroom_.app()});
    }
    return Outcome::Done;
}

Console::Outcome Console::set(StringView arguments)
{
    using Problem = MasterSettings::Problem;
    if (arguments.empty()) {
        showSettings();
        return Outcome::Done;
    }
    const auto [name, value] = firstWord(arguments);
    switch (classroom_.settings().set(name, value)) {
    case Problem::None:
        classroom_.commit();
        showSettings();
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
                      {name, HighscoreLists::MaxListLength});
    }
    return Outcome::Failed;
}

void Console::showSettings()
{
    const CoreParameters& all = classroom_.settings().all();
    if (all.Count() == 0) {
        tell(u"Es ist nichts gesetzt.", u"Nothing is set.");
    }
    for (std::int32_t at = 1; at <= all.Count(); ++at) {
        output_ << toUtf8(all.Name(at)) << " = " << toUtf8(shown(all.Value(at))) << '\n';
    }
}

Console::Outcome Console::results(StringView arguments)
{
    const auto count = wantedCount(arguments);
    if (!count) {
        return refuse(u"Das ist keine Anzahl: {1}", u"This is no number: {1}", {arguments});
    }
    TextTable table({translated(u"Zeit", u"Time"), u"Name", translated(u"Rechner", u"Computer"),
                     translated(u"Übung", u"Exercise"), translated(u"Punkte", u"Points"),
                     translated(u"von", u"of"), translated(u"Note", u"Mark"),
                     translated(u"Zusatz", u"More")});
    for (const Result& result : store_.latestResults(*count)) {
        table.add({timeText(result.at), result.sender.screenName, result.sender.computer, result.exercise,
                   numberText(result.points), numberText(result.pointsMax),
                   String(markFor(result.points, result.pointsMax).school),
                   shownAdditional(result.additional)});
    }
    if (table.isEmpty()) {
        tell(u"Es gibt noch keine Ergebnisse.", u"There are no results yet.");
    } else {
        table.write(output_);
    }
    return Outcome::Done;
}

Console::Outcome Console::highscore(StringView arguments)
{
    if (arguments.empty()) {
        showModules();
        return Outcome::Done;
    }
    const auto list = classroom_.highscores().list(arguments);
    TextTable table({translated(u"Rang", u"Rank"), u"Name", translated(u"Punkte", u"Points"),
                     translated(u"von", u"of"), translated(u"Übung", u"Exercise"),
                     translated(u"Zeit", u"Time")});
    for (std::int32_t at = 1; at <= list->COUNT(); ++at) {
        const auto entry = list->ITEM(at);
        table.add({plainText(entry->RANK()), entry->SCREENNAME(), numberText(entry->POINTS()),
                   numberText(entry->POINTSMAX()), entry->UEBM(), timeText(entry->TIMESTAMP())});
    }
    if (table.isEmpty()) {
        tell(u"Diese Bestenliste ist leer.", u"This highscore is empty.");
    } else {
        table.write(output_);
    }
    return Outcome::Done;
}

void Console::showModules()
{
    const auto modules = store_.modules();
    if (modules.empty()) {
        tell(u"Es gibt noch keine Bestenliste.", u"There is no highscore yet.");
    }
    for (const String& module : modules) {
        output_ << toUtf8(module) << '\n';
    }
}

Console::Outcome Console::reset(StringView arguments)
{
    if (!classroom_.highscores().reset(arguments)) {
        return refuse(u"Diese Bestenliste gibt es nicht.", u"There is no such highscore.");
    }
    classroom_.commit();
    tell(u"Die Bestenliste ist jetzt leer.", u"The highscore is empty now.");
    return Outcome::Done;
}

Console::Outcome Console::events(StringView arguments)
{
    const auto count = wantedCount(arguments);
    if (!count) {
        return refuse(u"Das ist keine Anzahl: {1}", u"This is no number: {1}", {arguments});
    }
    TextTable table({translated(u"Zeit", u"Time"), u"Name", translated(u"Rechner", u"Computer"),
                     translated(u"Ereignis", u"Event"), translated(u"Zusatz", u"More")});
    for (const PupilEvent& event : store_.latestEvents(*count)) {
        table.add({timeText(event.at), event.sender.screenName, event.sender.computer, event.action,
                   shownAdditional(event.additional)});
    }
    if (table.isEmpty()) {
        tell(u"Es gibt noch keine Ereignisse.", u"There are no events yet.");
    } else {
        table.write(output_);
    }
    return Outcome::Done;
}

Console::Outcome Console::exportResults(StringView arguments)
{
    if (arguments.empty()) {
        return refuse(u"Bitte den Namen der Datei angeben: export DATEI.csv",
                      u"Please give the file's name: export FILE.csv");
    }
    const auto file = std::filesystem::absolute(std::filesystem::path(toUtf8(arguments)));
    try {
        replaceFile(files_, file, resultsAsCsv(store_));
    } catch (const RuntimeError&) {
        return refuse(u"{1} lässt sich nicht schreiben.", u"{1} cannot be written.",
                      {fromUtf8(file.string())});
    }
    tell(u"Geschrieben: {1}", u"Written: {1}", {fromUtf8(file.string())});
    return Outcome::Done;
}

Console::Outcome Console::quit(StringView /*arguments*/)
{
    return Outcome::Quit;
}

void Console::tell(StringView german, StringView english, const Variant::Array& values)
{
    output_ << toUtf8(LNG()->TRANSLATE(german, english, values)) << '\n';
}

Console::Outcome Console::refuse(StringView german, StringView english, const Variant::Array& values)
{
    tell(german, english, values);
    return Outcome::Failed;
}

} // namespace phial::master
