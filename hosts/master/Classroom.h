#pragma once

#include "core/Clock.h"
#include "core/String.h"
#include "master/HighscoreLists.h"
#include "master/MasterSettings.h"
#include "master/MasterStore.h"
#include "master/Roster.h"
#include "server/Frame.h"
#include "server/WireText.h"

#include <cstdint>
#include <span>
#include <vector>

namespace phial::master
{

/// Where the master can be reached.
struct MasterPlace {
    /// As the client that asks has reached it.
    String address;
    std::int32_t port = 0;
    std::int32_t udpPort = 0;
};

/// A message on its way to the classroom.
struct Envelope {
    FrameId id;
    /// The computer that it came from.
    String address;
    MasterPlace master;
};

/// What the master knows and decides, without sockets: who is logged on, which learning app is chosen, what
/// each message means and how it is answered (docs/protocol.md has the table of messages).
///
/// Messages that add something are taken in once: one whose id was answered before gets the same answer
/// again and changes nothing. Changes become lasting with `commit`; an answer may go out only after that.
/// Where the store fails StoreError is raised, and `undo` goes back to what the store holds.
class Classroom
{
public:
    /// For how long the answer of a message is kept, in days, and how many are at most.
    static constexpr double AnswersKept = 1;
    static constexpr std::size_t MaxAnswers = 1'000'000;
    static constexpr std::size_t MaxAppLength = 100;

    /// Both must outlive the object. Takes up what the store holds.
    Classroom(MasterStore& store, const Clock& clock);

    /// The answer to a message's text. A message that makes no sense is answered with the text `ERROR`.
    String answer(const Envelope& envelope, StringView text);

    void commit();
    void undo();

    /// Drops answers that nobody will ask for again, and log-ons of other days, and commits.
    void forgetOld();

    /// The identifier or name of the chosen learning app; empty for none.
    const String& app() const { return app_; }
    void chooseApp(StringView app);

    MasterSettings& settings() { return settings_; }
    HighscoreLists& highscores() { return highscores_; }
    std::vector<Pupil> pupils() const { return roster_.pupils(); }
    /// The settings text that clients of that place take over.
    String settingsText(const MasterPlace& place) const;

private:
    struct Message {
        const Envelope& envelope;
        const WireRequest& request;
        Moment at;
    };
    struct Rule;
    static std::span<const Rule> rules();
    static const Rule* ruleFor(const WireRequest& request);

    String answerOnce(const Rule& rule, const Message& message);
    String logOn(const Message& message);
    String logOff(const Message& message);
    String keepAlive(const Message& message);
    String mode(const Message& message);
    String gameIdent(const Message& message);
    String settingsFor(const Message& message);
    String property(const Message& message);
    String addEvent(const Message& message);
    String submitResult(const Message& message);
    String scores(const Message& message);
    String submitScore(const Message& message);
    void takeUpLogOns();

    MasterStore& store_;
    const Clock& clock_;
    String app_;
    MasterSettings settings_;
    HighscoreLists highscores_;
    Roster roster_;
};

} // namespace phial::master
