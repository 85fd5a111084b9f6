#pragma once

#include "core/Platform.h"
#include "qt/base/DispatchGuard.h"
#include "qt/base/QtNetClient.h"

#include <memory>

namespace phial::qt
{

/// The part of the outside that needs no display: clock, event loop, environment, random numbers, folders,
/// machine, settings, the network, messages between programs. Errors of handlers go to the guard. The
/// program's folder is known if an application object is there. Needs an application object while events run.
/// A program with windows gives the one for the network's traffic.
Platform basePlatform(const std::shared_ptr<DispatchGuard>& guard, const TrafficWindow& traffic = {});

} // namespace phial::qt
