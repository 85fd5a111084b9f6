#include "master/StoreDesk.h"

#include "master/StoreWords.h"

#include <algorithm>

namespace phial::master
{

namespace
{

/// After so many jobs that failed one after the other the store fails for all.
constexpr std::size_t FailuresInARow = 8;

} // namespace

/// A job with those who wait for it.
struct StoreDesk::Entry {
    std::shared_ptr<StoreJob> job;
    std::size_t bytes = 0;
    double deadline = 0;
    Urgency urgency = Urgency::Patient;
    std::vector<Done> waiting;
    /// To be tried alone, since it was in a unit that failed.
    bool isAlone = false;
    /// Whether a commit has broken off when it was tried last; the job itself may be at work.
    bool isUncertain = false;
    std::optional<StoreTrouble> trouble;
};

struct StoreDesk::Running {
    Running(std::shared_ptr<StoreUnit> itsUnit, Entries itsEntries)
        : unit(std::move(itsUnit)), entries(std::move(itsEntries))
    {
    }

    std::shared_ptr<StoreUnit> unit;
    Entries entries;
};

StoreDesk::StoreDesk(StoreHand& hand, const Clock& clock, const Limits& limits, Notices& notices)
    : hand_(hand), clock_(clock), limits_(limits), notices_(notices)
{
}

StoreDesk::~StoreDesk() = default;

void StoreDesk::add(StoreJob job, std::size_t bytes, Done done, Urgency urgency)
{
    if (job.once && joins(*job.once, done)) {
        return;
    }
    auto entry = std::make_shared<Entry>();
    entry->job = std::make_shared<StoreJob>(std::move(job));
    entry->bytes = bytes;
    entry->deadline = clock_.seconds() + limits_.patience;
    entry->urgency = urgency;
    entry->waiting.push_back(std::move(done));
    bytes_ += bytes;
    if (entry->job->once) {
        byId_[*entry->job->once] = entry;
    }
    if (isSilent_ || isFull()) {
        notices_.tell({isSilent_ ? Notice::StoreSilent : Notice::ManyRequests});
        refuse(*entry);
        return;
    }
    queue_.push_back(std::move(entry));
}

/// Whether a message is known; then its sender waits with the first copy, or has what that has got.
bool StoreDesk::joins(const FrameId& id, Done& rDone)
{
    if (const auto first = byId_.find(id); first != byId_.end()) {
        first->second->waiting.push_back(std::move(rDone));
        return true;
    }
    const auto known = ended_.find(id);
    if (known == ended_.end()) {
        return false;
    }
    if (rDone) {
        rDone({known->second != nullptr, known->second, std::nullopt});
    }
    return true;
}

bool StoreDesk::isFull() const
{
    return waiting() >= limits_.jobs || bytes_ > limits_.bytes;
}

void StoreDesk::start()
{
    if (running_ || isFinishing_ || queue_.empty()) {
        return;
    }
    Entries entries = nextUnit();
    std::vector<std::shared_ptr<StoreJob>> jobs;
    for (const auto& entry : entries) {
        jobs.push_back(entry->job);
    }
    auto unit = std::make_shared<StoreUnit>(std::move(jobs));
    running_ = std::make_unique<Running>(unit, std::move(entries));
    hand_.begin(unit, [this, alive = std::weak_ptr(alive_)] {
        if (!alive.expired()) {
            finish();
        }
    });
}

StoreDesk::Entries StoreDesk::nextUnit()
{
    Entries entries;
    while (!queue_.empty() && entries.size() < limits_.unit) {
        const bool isAlone = queue_.front()->isAlone;
        if (isAlone && !entries.empty()) {
            break;
        }
        entries.push_back(std::move(queue_.front()));
        queue_.pop_front();
        if (isAlone) {
            break;
        }
    }
    return entries;
}

void StoreDesk::finish()
{
    const auto done = std::move(running_);
    isFinishing_ = true;
    isSilent_ = false;
    if (done->unit->isCalledOff()) {
        // its jobs have been dealt with
    } else if (done->unit->trouble()) {
        finishFailed(done->entries, *done->unit->trouble());
    } else {
        if (done->unit->newRoomState() && newRoomState_) {
            newRoomState_(*done->unit->newRoomState());
        }
        finishDone(done->entries);
    }
    isFinishing_ = false;
    start();
}

void StoreDesk::finishDone(const Entries& entries)
{
    if (std::exchange(isOut_, false)) {
        notices_.tell({Notice::StoreBack});
    }
    failingSince_.reset();
    failedInARow_ = 0;
    for (const auto& entry : entries) {
        for (const NoticeCase& notice : entry->job->notices) {
            notices_.tell(notice);
        }
        end(*entry, {true, entry->job->answer, std::nullopt});
    }
}

void StoreDesk::finishFailed(const Entries& entries, const StoreTrouble& trouble)
{
    notices_.tell({Notice::StoreFails, {storeWords(trouble)}});
    failingSince_ = failingSince_.value_or(clock_.seconds());
    for (const auto& entry : entries) {
        entry->isUncertain = entry->job->isUncertain;
    }
    if (trouble.reason != StoreError::Reason::Database || ++failedInARow_ > FailuresInARow) {
        isOut_ = true;
        holdBackAll(entries, trouble);
    } else if (entries.size() == 1) {
        holdBack(entries.front(), trouble);
    } else {
        for (const auto& entry : entries) {
            entry->isAlone = true;
        }
        queue_.insert(queue_.begin(), entries.begin(), entries.end());
    }
}

/// The store fails whatever it is to do, so those who would come next are not tried now either.
void StoreDesk::holdBackAll(const Entries& entries, const StoreTrouble& trouble)
{
    Entries all = entries;
    const auto others = std::ranges::find_if_not(queue_, [](const auto& entry) { return entry->isAlone; });
    all.insert(all.end(), queue_.begin(), others);
    queue_.erase(queue_.begin(), others);
    for (const auto& entry : all) {
        entry->isAlone = false;
        holdBack(entry, trouble);
    }
}

void StoreDesk::holdBack(const std::shared_ptr<Entry>& entry, const StoreTrouble& trouble)
{
    entry->trouble = trouble;
    const bool hasFailedLong = clock_.seconds() - *failingSince_ >= limits_.patience;
    const bool isAtItsEnd = entry->urgency == Urgency::Impatient || hasFailedLong || hasExpired(*entry);
    if (isAtItsEnd && !entry->isUncertain) {
        refuse(*entry);
    } else {
        heldBack_.push_back(entry);
    }
}

bool StoreDesk::hasExpired(const Entry& entry) const
{
    return clock_.seconds() >= entry.deadline;
}

void StoreDesk::tick()
{
    callOffExpiredUnit();
    refuseExpired(queue_);
    refuseExpired(heldBack_);
    failedInARow_ = 0;
    queue_.insert(queue_.begin(), heldBack_.begin(), heldBack_.end());
    heldBack_.clear();
    start();
}

void StoreDesk::callOffExpiredUnit()
{
    if (!running_ ||
        !std::ranges::any_of(running_->entries, [&](const auto& one) { return hasExpired(*one); })) {
        return;
    }
    isSilent_ = true;
    if (!std::exchange(isOut_, true)) {
        notices_.tell({Notice::StoreSilent});
    }
    if (running_->unit->isCalledOff() || !running_->unit->callOff()) {
        return;
    }
    for (const auto& entry : running_->entries) {
        if (entry->isUncertain) {
            heldBack_.push_back(entry);
        } else {
            refuse(*entry);
        }
    }
}

void StoreDesk::refuseExpired(Entries& entries)
{
    Entries left;
    for (auto& entry : std::exchange(entries, {})) {
        if (hasExpired(*entry) && !entry->isUncertain) {
            refuse(*entry);
        } else {
            left.push_back(std::move(entry));
        }
    }
    entries.insert(entries.begin(), left.begin(), left.end());
}

void StoreDesk::refuse(const Entry& entry)
{
    end(entry, {false, nullptr, entry.trouble});
}

void StoreDesk::end(const Entry& entry, const JobOutcome& outcome)
{
    bytes_ -= entry.bytes;
    if (entry.job->once) {
        byId_.erase(*entry.job->once);
        remember(*entry.job->once, outcome.answer);
    }
    for (const Done& done : entry.waiting) {
        if (done) {
            done(outcome);
        }
    }
}

void StoreDesk::remember(const FrameId& id, const AnswerText& answer)
{
    if (ended_.insert_or_assign(id, answer).second) {
        endedInOrder_.push_back(id);
    }
    if (endedInOrder_.size() > limits_.remembered) {
        ended_.erase(endedInOrder_.front());
        endedInOrder_.pop_front();
    }
}

} // namespace phial::master
