#pragma once

#include "qt/base/DispatchGuard.h"

#include <memory>

namespace phial::qt
{

/// The guard of this program, through which everything passes that goes from the toolkit to the system.
const std::shared_ptr<DispatchGuard>& dispatchGuard();

/// Runs what a toolkit's event leads to; what it raises is reported and goes no further.
template <typename Handler>
bool dispatch(Handler&& handler)
{
    return dispatchGuard()->run(std::forward<Handler>(handler));
}

} // namespace phial::qt
