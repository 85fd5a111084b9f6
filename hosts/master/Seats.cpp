#include "master/Seats.h"

#include <algorithm>
#include <map>

namespace phial::master
{

namespace
{

/// The quietest of those that fit and are not busy.
template <typename Fits>
std::optional<std::size_t> quietest(const std::vector<Seat>& seats, Fits fits)
{
    std::optional<std::size_t> found;
    for (std::size_t at = 0; at < seats.size(); ++at) {
        const Seat& seat = seats[at];
        if (!seat.isBusy && fits(seat) && (!found || seat.heard < seats[*found].heard)) {
            found = at;
        }
    }
    return found;
}

} // namespace

Seating seatingFor(StringView address, const std::vector<Seat>& seats, std::size_t ofAddress,
                   std::size_t inAll)
{
    std::map<StringView, std::size_t> counts;
    for (const Seat& seat : seats) {
        ++counts[seat.address];
    }
    Seating seating;
    seating.addressIsFull = counts[address] >= ofAddress;
    seating.allAreFull = seats.size() >= inAll;
    if (seating.addressIsFull) {
        seating.leaves = quietest(seats, [&](const Seat& seat) { return seat.address == address; });
    } else if (seating.allAreFull) {
        const std::size_t most =
            std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->second;
        seating.leaves = quietest(seats, [&](const Seat& seat) { return counts.at(seat.address) == most; });
    }
    seating.isAdmitted = seating.leaves || !(seating.addressIsFull || seating.allAreFull);
    return seating;
}

} // namespace phial::master
