#pragma once

#include "core/Moment.h"
#include "core/String.h"
#include "server/Frame.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace phial::master
{

/// The store did not do what it was asked.
class StoreError : public std::runtime_error
{
public:
    enum class Reason {
        /// The text, in UTF-8, is the database's own.
        Database,
        /// Of these the text is the place.
        InUse,
        Missing,
        OtherProgram,
        LaterVersion,
    };

    explicit StoreError(const std::string& text, Reason reason = Reason::Database)
        : std::runtime_error(text), reason_(reason)
    {
    }

    Reason reason() const { return reason_; }

private:
    Reason reason_;
};

/// Who sent something, and from which computer.
struct Sender {
    String screenName;
    String userName;
    String computer;

    friend bool operator==(const Sender&, const Sender&) = default;
};

/// A finished exercise.
struct Result {
    Moment at;
    Sender sender;
    String exercise;
    double points = 0;
    double pointsMax = 0;
    /// Further named values, packed.
    String additional;

    friend bool operator==(const Result&, const Result&) = default;
};

/// What a pupil did.
struct PupilEvent {
    Moment at;
    Sender sender;
    String action;
    /// Further named values, packed.
    String additional;

    friend bool operator==(const PupilEvent&, const PupilEvent&) = default;
};

/// A client that is logged on.
struct LogOn {
    /// The sender in the ids of its messages.
    std::uint64_t client = 0;
    String name;
    /// Of its computer.
    String address;
    Moment since;

    friend bool operator==(const LogOn&, const LogOn&) = default;
};

/// Where the master keeps what must outlive it.
///
/// Changes gather in one transaction, which begins with the first of them: `commit` makes them last, all or
/// none, and `rollBack` drops them. Questions see the changes. Everything raises StoreError when the store
/// fails; then what has gathered is to be rolled back. Texts hold neither control characters nor surrogate
/// halves.
class MasterStore
{
public:
    virtual ~MasterStore() = default;

    /// Returns when the changes are on the disk.
    virtual void commit() = 0;
    virtual void rollBack() noexcept = 0;

    /// The answer that a message got when it was taken in; none for one that was not.
    virtual std::optional<String> answerTo(const FrameId& id) = 0;
    virtual void keepAnswer(const FrameId& id, const String& answer, Moment at) = 0;
    /// Drops answers from before that moment, and those beyond the latest `keep`.
    virtual void forgetAnswers(Moment before, std::size_t keep) = 0;

    virtual void addResult(const Result& result) = 0;
    /// A result that was sent for a module's list, with the rank that was answered.
    virtual void addSubmission(const String& module, const Result& result, const String& rank) = 0;
    virtual void addEvent(const PupilEvent& event) = 0;

    /// The latest ones, at most so many, in the order in which they came.
    virtual std::vector<Result> latestResults(std::size_t atMost) = 0;
    virtual std::vector<PupilEvent> latestEvents(std::size_t atMost) = 0;
    /// All results in the order in which they came, one after the other.
    virtual void visitResults(const std::function<void(const Result&)>& visit) = 0;

    /// The modules that have a list, sorted; a module's list in its one-text form.
    virtual std::vector<String> modules() = 0;
    virtual std::optional<String> scoreList(const String& module) = 0;
    virtual void keepScoreList(const String& module, const String& list) = 0;

    /// The master's settings, sorted by name. Without a value a setting goes.
    virtual std::vector<std::pair<String, String>> settings() = 0;
    virtual void keepSetting(const String& name, const std::optional<String>& value) = 0;

    /// The chosen learning app; empty for none.
    virtual String app() = 0;
    virtual void keepApp(const String& app) = 0;

    virtual std::vector<LogOn> logOns() = 0;
    /// Replaces that of the same client.
    virtual void keepLogOn(const LogOn& logOn) = 0;
    virtual void forgetLogOn(std::uint64_t client) = 0;
    virtual void forgetLogOns(Moment before) = 0;
};

} // namespace phial::master
