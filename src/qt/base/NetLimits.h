#pragma once

#include <cstddef>

namespace phial::qt
{

/// What a client bears of messages that come unasked.
struct NetLimits {
    /// In the long run, and together after a quiet time: over all connections of the local port, and over
    /// each connection to a master.
    double messagesPerSecond = 20;
    double messagesAtOnce = 50;
    /// Of the local port: connections at a time; one more ends the oldest.
    std::size_t connections = 16;
    /// Of the local port: UTF-8 bytes of a message's text.
    std::size_t textBytes = std::size_t{64} << 10;
    /// Of the local port: seconds in which a message that has begun to come must be complete.
    double frameSeconds = 10;
};

} // namespace phial::qt
