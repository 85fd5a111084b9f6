#pragma once

#include "core/Moment.h"
#include "master/MasterStore.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace phial::master
{

/// A pupil who is logged on, and when something of his client came last.
struct Pupil {
    LogOn logOn;
    Moment heard;
};

/// The pupils who are logged on. A client stays until it logs off, until another client logs on under the
/// same name at the same computer (the app was started again), or until so many others have been heard of
/// since that there is no room.
class Roster
{
public:
    /// Clients at a time.
    static constexpr std::size_t MaxPupils = 5000;
    /// Who has not been heard of for so long is gone; in days.
    static constexpr double GoneAfter = 0.5;

    /// Gives the clients whose log-ons this one replaces.
    std::vector<std::uint64_t> logOn(const LogOn& logOn);
    void logOff(std::uint64_t client);
    /// Notes that something came from a client, if it is logged on.
    void hear(std::uint64_t client, Moment at);
    void clear() { pupils_.clear(); }

    std::size_t count() const { return pupils_.size(); }
    /// Sorted by name.
    std::vector<Pupil> pupils() const;

private:
    std::vector<std::uint64_t> replacedBy(const LogOn& logOn) const;

    std::unordered_map<std::uint64_t, Pupil> pupils_;
};

} // namespace phial::master
