#pragma once

#include "core/Clock.h"
#include "core/String.h"
#include "master/AppCatalogue.h"
#include "master/ClassBook.h"
#include "master/Notices.h"
#include "master/Roster.h"
#include "master/StoreDesk.h"
#include "server/Frame.h"
#include "server/WireText.h"

#include <cstdint>
#include <functional>
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

/// What the master knows and decides, without sockets and without waiting: who is logged on, which learning
/// app is chosen, what each message means and how it is answered (docs/protocol.md has the table of
/// messages).
///
/// What it knows itself it answers at once, so that a store that is slow or out of reach holds nobody up who
/// does not need it. Everything else is a job for the desk, and the answer comes when that is done; a job
/// that the desk refuses is answered with `ERROR`. Messages that add something are taken in once.
class Classroom
{
public:
    static constexpr std::size_t MaxAppLength = 100;

    /// Desk, clock and notices must outlive the object. `room` and `logOns` are what the class book holds.
    Classroom(StoreDesk& desk, const Clock& clock, Notices& notices, RoomState room,
              const std::vector<LogOn>& logOns, std::size_t pupilsOfComputer = 64);

    using Reply = std::function<void(const AnswerText&)>;
    /// Takes a message's text and replies, at once or later. A message that makes no sense is answered with
    /// the text `ERROR`.
    void receive(const Envelope& envelope, StringView text, Reply reply);

    /// Drops what is old from the class book.
    void forgetOld();
    /// Takes over what another program has set in the database.
    void lookForChanges();

    /// The identifier or name of the chosen learning app; empty for none.
    const String& app() const { return room_.app; }
    const MasterSettings& settings() const { return room_.settings; }
    std::vector<Pupil> pupils() const { return roster_.pupils(clock_.moment()); }
    /// Connections over which a client sends.
    Roster& roster() { return roster_; }
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

    // Answered at once.
    String logOn(const Message& message);
    String logOff(const Message& message);
    String keepAlive(const Message& message);
    String mode(const Message& message);
    String gameIdent(const Message& message);
    String settingsFor(const Message& message);
    String property(const Message& message);
    // Answered when the class book has done it.
    StoreJob addEvent(const Message& message);
    StoreJob submitResult(const Message& message);
    StoreJob submitScore(const Message& message);
    StoreJob scores(const Message& message);

    void handOn(StoreJob job, std::size_t bytes, Reply reply);
    void tellWhyRefused(const Message& message, const RuntimeError& error);

    StoreDesk& desk_;
    const Clock& clock_;
    Notices& notices_;
    RoomState room_;
    Roster roster_;
    bool isLooking_ = false;
};

} // namespace phial::master
