#pragma once

#include "core/Moment.h"
#include "core/String.h"
#include "master/ClassBook.h"
#include "master/MasterStore.h"
#include "master/Notices.h"
#include "server/Frame.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace phial::master
{

/// One thing to be done with the class book.
struct StoreJob {
    /// Of a message that adds something: where it has been answered, that answer holds and nothing is done.
    std::optional<FrameId> once;
    Moment at;
    /// Where it fails it is done again later, so it may change nothing but the class book and what it gives.
    std::function<AnswerText(ClassBook&, std::vector<NoticeCase>&)> work;

    // What has come of it; not to be looked at while a unit holds it.
    AnswerText answer;
    std::vector<NoticeCase> notices;
    /// Whether a commit broke off, so that nobody knows whether it has been done.
    bool isUncertain = false;
};

/// What the store has failed with.
struct StoreTrouble {
    StoreError::Reason reason = StoreError::Reason::Database;
    /// In UTF-8.
    std::string text;

    friend bool operator==(const StoreTrouble&, const StoreTrouble&) = default;
};

/// Jobs that are done in one transaction. It is carried out on the thread that has the class book, and looked
/// at by the one that has made it when that is over; only `callOff` may come meanwhile.
class StoreUnit
{
public:
    explicit StoreUnit(std::vector<std::shared_ptr<StoreJob>> jobs) : jobs_(std::move(jobs)) {}

    void carryOut(ClassBook& book) noexcept;

    /// Sees to it that nothing of it will be kept; false when that cannot be said any more, since the changes
    /// are being committed.
    bool callOff();
    bool isCalledOff() const { return state_ == State::CalledOff; }

    /// Why it was not done; no value when it was, or when it was called off.
    const std::optional<StoreTrouble>& trouble() const { return trouble_; }
    const std::optional<RoomState>& newRoomState() const { return newRoomState_; }

private:
    enum class State { Open, Committing, CalledOff };

    static void doJob(StoreJob& job, ClassBook& book);

    std::vector<std::shared_ptr<StoreJob>> jobs_;
    std::atomic<State> state_ = State::Open;
    std::optional<StoreTrouble> trouble_;
    std::optional<RoomState> newRoomState_;
};

/// Who has the class book and carries units out, one at a time.
class StoreHand
{
public:
    virtual ~StoreHand() = default;

    /// Carries the unit out and calls `finished` where this was called, at once or later.
    virtual void begin(std::shared_ptr<StoreUnit> unit, std::function<void()> finished) = 0;
};

} // namespace phial::master
