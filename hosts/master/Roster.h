#pragma once

#include "core/Moment.h"
#include "master/MasterStore.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace phial::master
{

enum class Presence : std::uint8_t {
    There,
    /// Connected, or not known to have gone, and not heard of for a while.
    Silent,
    /// Has closed the connection without logging off.
    Gone,
};

/// A pupil who has logged on, and when something of his client came last.
struct Pupil {
    LogOn logOn;
    /// When he first logged on under that name at that computer.
    Moment first;
    Moment heard;
    Presence presence = Presence::There;
};

/// Those who have handed in nothing since they first logged on. Names are compared without regard to case.
std::vector<Pupil> withoutResult(const std::vector<Pupil>& pupils, const std::vector<HandedIn>& handedIn);

/// The pupils who have logged on. A client stays until it logs off, until another client logs on under the
/// same name at the same computer (the app was started again), or until so many others have been heard of
/// since that there is no room: in all, or for the computer that it is at.
class Roster
{
public:
    /// Clients at a time.
    static constexpr std::size_t MaxPupils = 5000;
    /// Who has not been heard of for so long is silent, and then gone from the list; in days.
    static constexpr double SilentAfter = 5.0 / (24 * 60);
    static constexpr double GoneAfter = 0.5;

    /// `ofComputer`: clients of one computer at a time.
    explicit Roster(std::size_t ofComputer = 64) : ofComputer_(ofComputer) {}

    /// Gives the clients whose log-ons this one replaces.
    std::vector<std::uint64_t> logOn(const LogOn& logOn);
    void logOff(std::uint64_t client);
    /// Calls those who bear the one name by the other from now on.
    void rename(StringView from, const String& to);
    /// Notes that something came from a client, if it is logged on.
    void hear(std::uint64_t client, Moment at);

    /// A connection over which the client sends, and its end; `hasLeft` when the client has ended it.
    void connect(std::uint64_t client);
    void disconnect(std::uint64_t client, bool hasLeft);

    std::size_t count() const { return entries_.size(); }
    /// How many have lost their place so far since there was no room.
    std::size_t crowdedOut() const { return crowdedOut_; }
    /// Sorted by name.
    std::vector<Pupil> pupils(Moment now) const;

private:
    struct Entry {
        Pupil pupil;
        bool hasLeft = false;
    };
    using Entries = std::unordered_map<std::uint64_t, Entry>;

    static bool isSame(const LogOn& left, const LogOn& right);
    std::vector<std::uint64_t> replacedBy(const LogOn& logOn);
    Presence presenceOf(const Entry& entry, Moment now) const;

    std::size_t ofComputer_;
    std::size_t crowdedOut_ = 0;
    Entries entries_;
    std::unordered_map<std::uint64_t, int> connections_;
};

} // namespace phial::master
