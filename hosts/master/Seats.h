#pragma once

#include "core/String.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace phial::master
{

/// A connection as its place is decided about.
struct Seat {
    /// Of the computer at the other end.
    StringView address;
    /// When something came last.
    double heard = 0;
    /// Whether requests are under way, so that it keeps its place.
    bool isBusy = false;
};

/// What becomes of one more connection.
struct Seating {
    bool isAdmitted = false;
    /// Who has to leave for it, as a position.
    std::optional<std::size_t> leaves;
    /// Which bound was reached.
    bool addressIsFull = false;
    bool allAreFull = false;
};

/// Decides about a connection from that address, so that one computer cannot take the places of others: where
/// it has `ofAddress` already, its own quietest one leaves; where there are `inAll`, the quietest one of
/// those who have most. One that is busy never leaves; without another the new one is not admitted.
Seating seatingFor(StringView address, const std::vector<Seat>& seats, std::size_t ofAddress,
                   std::size_t inAll);

} // namespace phial::master
