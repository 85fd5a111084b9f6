#include "master/ClassBook.h"

#include "core/Format.h"
#include "core/NumberText.h"
#include "master/Packages.h"
#include "master/ShownText.h"

#include <algorithm>
#include <set>

namespace phial::master
{

namespace
{

/// What is noted of something that is gone, so that it could be entered again by hand.
String described(StringView name, double points, double pointsMax, StringView exercise, Moment at)
{
    return String(name) + u"; " + plainText(points, u'.') + u" / " + plainText(pointsMax, u'.') + u"; " +
           String(exercise) + u"; " + formatPattern(at, u"dd.mm.yyyy hh:nn:ss");
}

/// Whether a teacher who has typed the one means the other.
bool isMeant(StringView typed, StringView name)
{
    return equalsIgnoringCase(typed, trimmed(name)) || equalsIgnoringCase(typed, trimmed(shownSafely(name)));
}

} // namespace

ClassBook::ClassBook(MasterStore& store, AppCatalogue apps)
    : store_(store), apps_(std::move(apps)), highscores_(store, room_.settings)
{
    reload();
}

void ClassBook::commit()
{
    highscores_.store();
    store_.commit();
}

void ClassBook::undo() noexcept
{
    store_.rollBack();
    isDropped_ = true;
}

void ClassBook::takeUp()
{
    if (isDropped_) {
        highscores_.forget();
        reload();
        isDropped_ = false;
    }
}

void ClassBook::reload()
{
    RoomState stored = storedRoom();
    if (stored != room_) {
        room_ = std::move(stored);
        hasNewRoom_ = true;
    }
    highscores_.modulesOfApp(apps_.modulesOf(room_.app));
}

RoomState ClassBook::storedRoom() const
{
    return {store_.app(), MasterSettings(store_.settings())};
}

std::optional<RoomState> ClassBook::newRoomState()
{
    return std::exchange(hasNewRoom_, false) ? std::optional(room_) : std::nullopt;
}

AnswerText ClassBook::answerTo(const FrameId& id)
{
    auto given = store_.answerTo(id);
    return given ? std::make_shared<const String>(*std::move(given)) : nullptr;
}

void ClassBook::keepAnswer(const FrameId& id, const String& answer, Moment at)
{
    store_.keepAnswer(id, answer, at);
}

std::optional<String> ClassBook::submit(StringView module, const Result& result, const String& address,
                                        std::vector<NoticeCase>& rNotices)
{
    auto rank = highscores_.submit(module, result, address, rNotices);
    if (rank) {
        store_.addSubmission(HighscoreLists::nameOf(module), result, *rank);
    }
    return rank;
}

void ClassBook::keepLogOn(const LogOn& logOn, const std::vector<std::uint64_t>& replaced)
{
    for (const std::uint64_t client : replaced) {
        store_.forgetLogOn(client);
    }
    store_.keepLogOn(logOn);
}

bool ClassBook::forgetOld(Moment now)
{
    constexpr double LogOnsKept = 0.5;
    store_.forgetLogOns(Moment{now.days - LogOnsKept});
    const Moment before{now.days - AnswersKept};
    return store_.forgetAnswers(before, MaxAnswers, ForgottenAtOnce) == ForgottenAtOnce;
}

void ClassBook::chooseApp(const String& app)
{
    store_.keepApp(app);
    reload();
}

MasterSettings::Problem ClassBook::set(StringView name, StringView value)
{
    const MasterSettings::Change change = room_.settings.changeTo(name, value);
    if (change.problem == MasterSettings::Problem::None) {
        store_.keepSetting(change.name, change.text.empty() ? std::nullopt : std::optional(change.text));
        reload();
    }
    return change.problem;
}

void ClassBook::lookForChanges()
{
    reload();
}

void ClassBook::note(StringView action, const String& about, Moment now)
{
    store_.addChange({now, String(action), about});
}

String ClassBook::moduleMeant(StringView typed)
{
    const String name = HighscoreLists::nameOf(typed);
    const std::vector<ListOrigin> lists = highscores_.origins();
    if (std::ranges::find(lists, name, &ListOrigin::module) != lists.end()) {
        return name;
    }
    const auto meant =
        std::ranges::find_if(lists, [&](const ListOrigin& list) { return isMeant(typed, list.module); });
    return meant != lists.end() ? meant->module : name;
}

std::vector<HighscoreRow> ClassBook::highscore(StringView module)
{
    return highscores_.rows(moduleMeant(module));
}

bool ClassBook::resetList(StringView typed, Moment now)
{
    const String module = moduleMeant(typed);
    const auto rows = highscores_.rows(module);
    if (!highscores_.remove(module)) {
        return false;
    }
    for (const HighscoreRow& row : rows) {
        note(u"reset",
             module + u" " + plainText(row.rank) + u": " +
                 described(row.name, row.points, row.pointsMax, row.exercise, row.at),
             now);
    }
    note(u"reset", module, now);
    return true;
}

std::size_t ClassBook::resetListsFrom(StringView address, Moment now)
{
    std::size_t count = 0;
    for (const ListOrigin& origin : highscores_.origins()) {
        if (origin.address == address && !highscores_.isReal(origin.module)) {
            count += resetList(origin.module, now) ? 1U : 0U;
        }
    }
    return count;
}

std::optional<HighscoreRow> ClassBook::removeEntry(StringView typed, std::int32_t rank, Moment now)
{
    const String module = moduleMeant(typed);
    auto row = highscores_.removeEntry(module, rank);
    if (row) {
        note(u"remove",
             module + u" " + plainText(rank) + u": " +
                 described(row->name, row->points, row->pointsMax, row->exercise, row->at),
             now);
    }
    return row;
}

std::optional<Result> ClassBook::removeResult(std::int32_t number, Moment now)
{
    auto result = store_.result(number);
    if (result) {
        store_.removeResult(number);
        note(u"remove",
             u"RESULTS " + plainText(number) + u": " +
                 described(result->sender.screenName, result->points, result->pointsMax, result->exercise,
                           result->at),
             now);
    }
    return result;
}

std::size_t ClassBook::rename(StringView from, StringView to, Moment now)
{
    const String name = cleaned(to, MaxNameLength);
    std::set<String> meant;
    const auto take = [&](const String& known) {
        if (isMeant(from, known) && known != name) {
            meant.insert(known);
        }
    };
    for (const String& known : store_.screenNames()) {
        take(known);
    }
    for (const String& known : highscores_.names()) {
        take(known);
    }
    for (const String& old : meant) {
        store_.renamePupil(old, name);
        note(u"rename", String(old).append(u" > ").append(name), now);
    }
    highscores_.rename(meant, name);
    return meant.size();
}

} // namespace phial::master
