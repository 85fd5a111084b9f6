#pragma once

#include "server/FoundMaster.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace phial::qt
{

/// Asks this computer and its networks which masters are there, and gives those that have answered when the
/// time is over, each address once, this computer last. Events of the program run meanwhile. Where nothing
/// can be sent nothing is found.
std::vector<FoundMaster> findMasters(std::int32_t udpPort,
                                     std::chrono::milliseconds patience = std::chrono::milliseconds(800));

} // namespace phial::qt
