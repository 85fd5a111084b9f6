#pragma once

#include "core/Moment.h"
#include "core/String.h"
#include "server/Frame.h"

#include <cstddef>
#include <cstdint>
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
        /// The database cannot be reached; the text is its own.
        Unreachable,
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

/// A result with the number under which it is kept.
struct KeptResult {
    std::int32_t number = 0;
    Result result;
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

/// What the teacher, or the master for him, has changed of what was kept.
struct Change {
    Moment at;
    /// The command, such as `remove`.
    String action;
    /// What it was done to, as it stood before.
    String about;

    friend bool operator==(const Change&, const Change&) = default;
};

/// A module's list: which computer sent the first entry of it, and when.
struct ListOrigin {
    String module;
    String address;
    Moment at;

    friend bool operator==(const ListOrigin&, const ListOrigin&) = default;
};

/// A name under which results were handed in, and when the latest was.
struct HandedIn {
    String screenName;
    Moment latest;
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
    /// Drops answers from before that moment, and those beyond the latest `keep`, but at most so many at a
    /// time; gives how many.
    virtual std::size_t forgetAnswers(Moment before, std::size_t keep, std::size_t atMost) = 0;

    virtual void addResult(const Result& result) = 0;
    /// A result that was sent for a module's list, with the rank that was answered.
    virtual void addSubmission(const String& module, const Result& result, const String& rank) = 0;
    virtual void addEvent(const PupilEvent& event) = 0;

    /// The latest ones, at most so many, in the order in which they came.
    virtual std::vector<KeptResult> latestResults(std::size_t atMost) = 0;
    virtual std::vector<PupilEvent> latestEvents(std::size_t atMost) = 0;
    virtual std::vector<Change> latestChanges(std::size_t atMost) = 0;
    /// The results that came behind the one of that number, at most so many, in their order.
    virtual std::vector<KeptResult> resultsAfter(std::int32_t number, std::size_t atMost) = 0;
    virtual std::optional<Result> result(std::int32_t number) = 0;
    virtual void removeResult(std::int32_t number) = 0;
    /// Who has handed in results since then.
    virtual std::vector<HandedIn> handedInSince(Moment since) = 0;

    /// All screen names that stand anywhere but in lists. Under the new name everything that stood under the
    /// old one stands from then on.
    virtual std::vector<String> screenNames() = 0;
    virtual void renamePupil(const String& from, const String& to) = 0;
    virtual void addChange(const Change& change) = 0;

    /// The modules that have a list, sorted; a module's list in its one-text form.
    virtual std::vector<String> modules() = 0;
    virtual std::optional<String> scoreList(const String& module) = 0;
    virtual void keepScoreList(const String& module, const String& list) = 0;
    /// Takes the list and its origin away.
    virtual void removeScoreList(const String& module) = 0;
    /// Where lists come from, as far as it is known.
    virtual std::vector<ListOrigin> listOrigins() = 0;
    virtual void keepListOrigin(const ListOrigin& origin) = 0;

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
