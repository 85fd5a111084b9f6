#pragma once

#include <cstddef>

namespace phial::master
{

/// What the master takes from clients at most; docs/master.md tells why each is what it is.
struct ServerLimits {
    /// Connections at a time, in all and of one address. For one more the one that was silent for longest is
    /// closed: of that address, or of those who have most.
    std::size_t connections = 2000;
    std::size_t ofAddress = 64;
    /// UTF-8 bytes of one message.
    std::size_t messageBytes = std::size_t{256} << 10;
    /// Bytes of all unfinished messages and untaken answers together. Beyond that the connection that holds
    /// most is closed.
    std::size_t heldBytes = std::size_t{64} << 20;
    /// Bytes of answers that a client has not taken yet; who lets more gather is closed.
    std::size_t untakenBytes = std::size_t{4} << 20;
    /// Seconds in which a message must be complete once it has begun, and the first one after connecting.
    double unfinishedSeconds = 30;
    /// Seconds without any message after which a connection is closed; a client makes a new one when it needs
    /// it.
    double silentSeconds = 1800;
    /// Log-ons of one connection: so many at once, and so many a second in the long run. Others are answered
    /// with `ERROR`.
    double logOnsAtOnce = 10;
    double logOnsPerSecond = 0.2;
    /// Messages of one connection that are under way; the next one is taken when one is answered.
    std::size_t underWay = 16;
    /// Questions by datagram that are answered: so many at once, and so many a second in the long run.
    double questionsAtOnce = 100;
    double questionsPerSecond = 50;
};

} // namespace phial::master
