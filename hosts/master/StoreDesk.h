#pragma once

#include "core/Clock.h"
#include "master/StoreWork.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace phial::master
{

/// What has become of a job.
struct JobOutcome {
    /// False: it has been refused, and certainly nothing of it is kept or will be.
    bool isDone = false;
    /// What its work gave.
    AnswerText answer;
    /// Of a refused one: what the store said last, if it said anything.
    std::optional<StoreTrouble> trouble;
};

/// Brings jobs to the store one behind the other and waits for it, so that nobody else has to.
///
/// What has gathered while the store was at work goes to it as one unit, in its order, so that one flush of
/// the disk serves many. Where a unit fails each of its jobs is tried alone; the one that fails then waits
/// and is tried again, behind others. A job that was not done when its time is over is refused: its client
/// is told so and goes its own way. One whose commit broke off is never refused, since it may have been kept;
/// it stays until the store can tell.
///
/// A message that is sent again meanwhile joins its first copy; one that has come to its end has the same end
/// again, though the store be out of reach by then.
/// Everything happens on one thread; the store may work on another.
class StoreDesk
{
public:
    struct Limits {
        /// Jobs that wait, and what they take in bytes; further ones are refused.
        std::size_t jobs = 20000;
        std::size_t bytes = std::size_t{64} << 20;
        /// Jobs of one unit.
        std::size_t unit = 1000;
        /// Seconds until a job that was not done is refused: less than a client waits for its answer, so that
        /// it never keeps for itself what is kept here later on.
        double patience = 3;
        /// Messages whose end is remembered.
        std::size_t remembered = 50000;
    };

    using Done = std::function<void(const JobOutcome&)>;

    /// `newRoomState` is told what a unit has made of the room, before its jobs are. All must outlive the
    /// object.
    StoreDesk(StoreHand& hand, const Clock& clock, const Limits& limits, Notices& notices);
    ~StoreDesk();
    StoreDesk(const StoreDesk&) = delete;
    StoreDesk& operator=(const StoreDesk&) = delete;

    void onNewRoomState(std::function<void(const RoomState&)> told) { newRoomState_ = std::move(told); }

    /// What a job is to its sender.
    enum class Urgency {
        Patient,
        /// Refused as soon as it has failed once.
        Impatient,
    };
    /// Takes a job that holds so many bytes; `done` is called at its end, which may be now. The jobs begin
    /// with `start`.
    void add(StoreJob job, std::size_t bytes, Done done, Urgency urgency = Urgency::Patient);
    /// Begins with what has gathered, unless the store is at work.
    void start();
    /// Refuses what has waited too long, and tries again what has failed; to be called several times a
    /// second.
    void tick();

    bool isIdle() const { return !running_ && queue_.empty() && heldBack_.empty(); }
    std::size_t waiting() const { return queue_.size() + heldBack_.size(); }

private:
    struct Entry;
    using Entries = std::deque<std::shared_ptr<Entry>>;
    struct Running;

    bool isFull() const;
    bool hasExpired(const Entry& entry) const;
    Entries nextUnit();
    void finish();
    void finishDone(const Entries& entries);
    void finishFailed(const Entries& entries, const StoreTrouble& trouble);
    void holdBackAll(const Entries& entries, const StoreTrouble& trouble);
    void holdBack(const std::shared_ptr<Entry>& entry, const StoreTrouble& trouble);
    void refuse(const Entry& entry);
    void refuseExpired(Entries& entries);
    void callOffExpiredUnit();
    void end(const Entry& entry, const JobOutcome& outcome);
    void remember(const FrameId& id, const AnswerText& answer);
    bool joins(const FrameId& id, Done& rDone);

    StoreHand& hand_;
    const Clock& clock_;
    const Limits limits_;
    Notices& notices_;
    std::function<void(const RoomState&)> newRoomState_;
    Entries queue_;
    Entries heldBack_; // have failed
    std::unique_ptr<Running> running_;
    std::map<FrameId, std::shared_ptr<Entry>> byId_;
    std::map<FrameId, AnswerText> ended_; // without an answer: refused
    std::deque<FrameId> endedInOrder_;
    std::size_t bytes_ = 0;
    /// When the store began to fail; no value while it works.
    std::optional<double> failingSince_;
    std::size_t failedInARow_ = 0;
    bool isSilent_ = false;
    bool isOut_ = false;       // as the teacher knows
    bool isFinishing_ = false; // nothing begins until what has ended is dealt with
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace phial::master
