#pragma once

#include "core/String.h"

namespace phial
{

/// A classroom master that was found on the network.
struct FoundMaster {
    /// From which it has answered.
    String address;
    /// The settings that it hands out (`cls_AppServerConfig.PACK`).
    String settings;

    friend bool operator==(const FoundMaster&, const FoundMaster&) = default;
};

} // namespace phial
