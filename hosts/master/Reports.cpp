#include "master/Reports.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "core/SessionState.h"
#include "master/Packages.h"
#include "master/ShownText.h"
#include "master/TextTable.h"
#include "results/Mark.h"

#include <algorithm>
#include <ostream>

namespace phial::master
{

namespace
{

constexpr StringView TimePattern = u"dd.mm.yyyy hh:nn:ss";

void tell(std::ostream& output, StringView german, StringView english)
{
    output << toUtf8(translated(german, english)) << '\n';
}

String timeText(Moment moment)
{
    return moment == Moment{} ? String() : formatPattern(moment, TimePattern);
}

String numberText(double value)
{
    return plainText(value, currentLocale().decimalSign);
}

/// A text that stands in a line of its own.
String safe(StringView text)
{
    return isolated(shownSafely(text));
}

/// Names of one table, marked where they are doubtful.
class NameColumn
{
public:
    template <typename Rows, typename NameOf>
    NameColumn(const Rows& rows, NameOf nameOf)
    {
        for (const auto& row : rows) {
            names_.push_back(nameOf(row));
        }
        doubtful_ = doubtfulOf(names_);
    }

    String next()
    {
        const bool isDoubtful = doubtful_[at_];
        return (isDoubtful ? u"(!) " : u"") + names_[at_++];
    }

    void explain(std::ostream& output) const
    {
        if (std::ranges::find(doubtful_, true) != doubtful_.end()) {
            tell(output,
                 u"(!) Der Name enthält verborgene Zeichen oder lässt sich mit einem anderen verwechseln.",
                 u"(!) The name holds hidden signs or can be taken for another one.");
        }
    }

private:
    std::vector<String> names_;
    std::vector<bool> doubtful_;
    std::size_t at_ = 0;
};

/// Points as they stand, marked where there are more than can be reached.
class PointsColumn
{
public:
    String next(double points, double pointsMax)
    {
        const bool isMarked = isImplausible(points, pointsMax);
        hasMarked_ = hasMarked_ || isMarked;
        return numberText(points) + (isMarked ? u" !" : u"");
    }

    void explain(std::ostream& output) const
    {
        if (hasMarked_) {
            tell(output, u"! Mehr Punkte, als zu erreichen sind.", u"! More points than can be reached.");
        }
    }

private:
    bool hasMarked_ = false;
};

String presenceText(Presence presence)
{
    switch (presence) {
    case Presence::There:
        return translated(u"da", u"there");
    case Presence::Silent:
        return translated(u"still", u"silent");
    case Presence::Gone:
        return translated(u"weg", u"gone");
    }
    return {};
}

void writePupilTable(std::ostream& output, const std::vector<Pupil>& pupils)
{
    TextTable table({u"Name", translated(u"Rechner", u"Computer"), translated(u"Zustand", u"State"),
                     translated(u"Angemeldet", u"Logged on"),
                     translated(u"Zuletzt gehört", u"Last heard of")});
    NameColumn names(pupils, [](const Pupil& pupil) { return pupil.logOn.name; });
    for (const Pupil& pupil : pupils) {
        table.add({names.next(), pupil.logOn.address, presenceText(pupil.presence),
                   timeText(pupil.logOn.since), timeText(pupil.heard)});
    }
    table.write(output);
    names.explain(output);
}

/// A setting's value as a teacher types it.
String shownValue(const Variant& value)
{
    if (value.kind() == Variant::Kind::Boolean) {
        return value.toBoolean() ? translated(u"ja", u"yes") : translated(u"nein", u"no");
    }
    return value.toText();
}

} // namespace

String translated(StringView german, StringView english)
{
    return LNG()->TRANSLATE(german, english);
}

void writePupils(std::ostream& output, const std::vector<Pupil>& pupils)
{
    if (pupils.empty()) {
        tell(output, u"Niemand ist angemeldet.", u"Nobody is logged on.");
    } else {
        writePupilTable(output, pupils);
    }
}

void writeMissing(std::ostream& output, const std::vector<Pupil>& pupils)
{
    if (pupils.empty()) {
        tell(output, u"Alle, die sich angemeldet haben, haben abgegeben.",
             u"All who have logged on have handed in.");
    } else {
        writePupilTable(output, pupils);
    }
}

void writeResults(std::ostream& output, const std::vector<KeptResult>& results)
{
    if (results.empty()) {
        tell(output, u"Es gibt noch keine Ergebnisse.", u"There are no results yet.");
        return;
    }
    TextTable table({translated(u"Nr.", u"No."), translated(u"Zeit", u"Time"), u"Name",
                     translated(u"Rechner", u"Computer"), translated(u"Übung", u"Exercise"),
                     translated(u"Punkte", u"Points"), translated(u"von", u"of"),
                     translated(u"Note", u"Mark"), translated(u"Zusatz", u"More")});
    NameColumn names(results, [](const KeptResult& kept) { return kept.result.sender.screenName; });
    PointsColumn points;
    for (const auto& [number, result] : results) {
        table.add({plainText(number), timeText(result.at), names.next(), result.sender.computer,
                   result.exercise, points.next(result.points, result.pointsMax),
                   numberText(result.pointsMax), String(markFor(result.points, result.pointsMax).school),
                   shownAdditional(result.additional)});
    }
    table.write(output);
    names.explain(output);
    points.explain(output);
}

void writeEvents(std::ostream& output, const std::vector<PupilEvent>& events)
{
    if (events.empty()) {
        tell(output, u"Es gibt noch keine Ereignisse.", u"There are no events yet.");
        return;
    }
    TextTable table({translated(u"Zeit", u"Time"), u"Name", translated(u"Rechner", u"Computer"),
                     translated(u"Ereignis", u"Event"), translated(u"Zusatz", u"More")});
    NameColumn names(events, [](const PupilEvent& event) { return event.sender.screenName; });
    for (const PupilEvent& event : events) {
        table.add({timeText(event.at), names.next(), event.sender.computer, event.action,
                   shownAdditional(event.additional)});
    }
    table.write(output);
    names.explain(output);
}

void writeHighscore(std::ostream& output, const std::vector<HighscoreRow>& rows)
{
    if (rows.empty()) {
        tell(output, u"Diese Bestenliste ist leer.", u"This highscore is empty.");
        return;
    }
    TextTable table({translated(u"Rang", u"Rank"), u"Name", translated(u"Rechner", u"Computer"),
                     translated(u"Punkte", u"Points"), translated(u"von", u"of"),
                     translated(u"Übung", u"Exercise"), translated(u"Zeit", u"Time")});
    NameColumn names(rows, [](const HighscoreRow& row) { return row.name; });
    PointsColumn points;
    for (const HighscoreRow& row : rows) {
        table.add({plainText(row.rank), names.next(), row.computer, points.next(row.points, row.pointsMax),
                   numberText(row.pointsMax), row.exercise, timeText(row.at)});
    }
    table.write(output);
    names.explain(output);
    points.explain(output);
}

void writeLists(std::ostream& output, const std::vector<ListOrigin>& lists)
{
    if (lists.empty()) {
        tell(output, u"Es gibt noch keine Bestenliste.", u"There is no highscore yet.");
        return;
    }
    TextTable table({translated(u"Bestenliste", u"Highscore"), translated(u"Begonnen von", u"Begun by"),
                     translated(u"Begonnen am", u"Begun on")});
    for (const ListOrigin& list : lists) {
        table.add({list.module, list.address, timeText(list.at)});
    }
    table.write(output);
}

void writeChanges(std::ostream& output, const std::vector<Change>& changes)
{
    if (changes.empty()) {
        tell(output, u"Es ist noch nichts geändert worden.", u"Nothing has been changed yet.");
        return;
    }
    for (const Change& change : changes) {
        output << toUtf8(timeText(change.at)) << "  " << toUtf8(change.action) << "  "
               << toUtf8(safe(change.about)) << '\n';
    }
}

void writeSettings(std::ostream& output, const MasterSettings& settings)
{
    const CoreParameters& all = settings.all();
    if (all.Count() == 0) {
        tell(output, u"Es ist nichts gesetzt.", u"Nothing is set.");
    }
    for (std::int32_t at = 1; at <= all.Count(); ++at) {
        output << toUtf8(safe(all.Name(at))) << " = " << toUtf8(safe(shownValue(all.Value(at)))) << '\n';
    }
}

void writeApps(std::ostream& output, const std::vector<LearningApp>& apps)
{
    for (const LearningApp& app : apps) {
        output << "  " << toUtf8(app.ident) << (app.name == app.ident ? "" : "  " + toUtf8(app.name)) << '\n';
    }
}

} // namespace phial::master
