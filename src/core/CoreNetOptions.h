#pragma once

#include <cstdint>

namespace phial
{

/// Options of a `CoreNetClient`. A transport that has no use for one of the lower options ignores it.
struct CoreNetOptions {
    /// Seconds until a connection counts as failed.
    double ConnectTimeout = 10;
    /// Seconds to wait for an answer.
    double ResponseTimeout = 4;
    /// Bytes taken from the connection at a time.
    std::int32_t BufferSize = 10240;

    std::int32_t TransportMode = 1;
    bool KeepOpen = true;
    double SendTimeout = 10;
    double ReceiveTimeout = 10;
    double CloseTimeout = 10;
    bool PumpEvents = true;
    std::int32_t TextMode = 1;
    std::int32_t Compression = 0;

    friend bool operator==(const CoreNetOptions&, const CoreNetOptions&) = default;
};

} // namespace phial
