#pragma once

#include "core/Moment.h"
#include "core/String.h"
#include "master/AppCatalogue.h"
#include "master/HighscoreLists.h"
#include "master/MasterSettings.h"
#include "master/MasterStore.h"
#include "master/Notices.h"
#include "server/Frame.h"

#include <memory>
#include <optional>
#include <vector>

namespace phial::master
{

/// The text of an answer as it goes out; many clients may get the same.
using AnswerText = std::shared_ptr<const String>;

/// What holds for the whole room and is asked for all the time.
struct RoomState {
    /// The identifier or name of the chosen learning app; empty for none.
    String app;
    MasterSettings settings;

    friend bool operator==(const RoomState&, const RoomState&) = default;
};

/// What the master keeps: results, events, highscores, settings, and the answers that messages got. It works
/// with the store, so everything may take time, and everything raises StoreError when the store fails.
///
/// Changes become lasting with `commit`; an answer may go out only after that. `undo` goes back to what the
/// store holds.
class ClassBook
{
public:
    /// For how long the answer of a message is kept, in days, and how many are at most.
    static constexpr double AnswersKept = 1;
    static constexpr std::size_t MaxAnswers = 1'000'000;
    /// How many of them are dropped at a time, while others wait.
    static constexpr std::size_t ForgottenAtOnce = 2000;

    /// The store must outlive the object.
    ClassBook(MasterStore& store, AppCatalogue apps);

    void commit();
    void undo() noexcept;
    /// Takes up again what `undo` has dropped; comes before anything else.
    void takeUp();

    /// What the room's state has become, if it has changed since it was last asked for.
    std::optional<RoomState> newRoomState();
    const RoomState& room() const { return room_; }
    std::vector<LogOn> logOns() { return store_.logOns(); }

    /// The answer that a message got when it was taken in.
    AnswerText answerTo(const FrameId& id);
    void keepAnswer(const FrameId& id, const String& answer, Moment at);

    void addResult(const Result& result) { store_.addResult(result); }
    void addEvent(const PupilEvent& event) { store_.addEvent(event); }
    /// A result for a module's list, from a computer: its rank, or no value when it is refused.
    std::optional<String> submit(StringView module, const Result& result, const String& address,
                                 std::vector<NoticeCase>& rNotices);
    /// The answer that hands a module's list out.
    AnswerText scoreList(StringView module) { return highscores_.answer(module); }

    void keepLogOn(const LogOn& logOn, const std::vector<std::uint64_t>& replaced);
    void forgetLogOn(std::uint64_t client) { store_.forgetLogOn(client); }
    /// Drops log-ons of other days, and some of the answers that nobody will ask for again; true when there
    /// are more of them.
    bool forgetOld(Moment now);

    void chooseApp(const String& app);
    MasterSettings::Problem set(StringView name, StringView value);
    /// Takes over what another program has set meanwhile.
    void lookForChanges();

    std::vector<KeptResult> latestResults(std::size_t atMost) { return store_.latestResults(atMost); }
    std::vector<KeptResult> resultsAfter(std::int32_t number, std::size_t atMost)
    {
        return store_.resultsAfter(number, atMost);
    }
    std::vector<PupilEvent> latestEvents(std::size_t atMost) { return store_.latestEvents(atMost); }
    std::vector<Change> latestChanges(std::size_t atMost) { return store_.latestChanges(atMost); }
    std::vector<HandedIn> handedInSince(Moment since) { return store_.handedInSince(since); }
    std::vector<ListOrigin> lists() { return highscores_.origins(); }
    /// The entries of a list, whose name may be typed as it is shown.
    std::vector<HighscoreRow> highscore(StringView typed);

    // Corrections by the teacher; each that changes something is noted as a Change. Lists are named as above.

    /// Takes a list away with all its entries; false when there is none.
    bool resetList(StringView typed, Moment now);
    /// Takes the lists away that this computer has begun, but those that can always begin: everybody uses
    /// them. Gives how many.
    std::size_t resetListsFrom(StringView address, Moment now);
    std::optional<HighscoreRow> removeEntry(StringView typed, std::int32_t rank, Moment now);
    std::optional<Result> removeResult(std::int32_t number, Moment now);
    /// Corrects a name wherever it is kept, whatever its case; it may be given as it is shown. Gives how many
    /// spellings it was found in.
    std::size_t rename(StringView from, StringView to, Moment now);

private:
    void reload();
    String moduleMeant(StringView typed);
    void note(StringView action, const String& about, Moment now);
    RoomState storedRoom() const;

    MasterStore& store_;
    AppCatalogue apps_;
    RoomState room_;
    HighscoreLists highscores_;
    bool isDropped_ = false;
    bool hasNewRoom_ = false;
};

} // namespace phial::master
