#include "qt/desktop/Dispatch.h"

namespace phial::qt
{

const std::shared_ptr<DispatchGuard>& dispatchGuard()
{
    static const auto guard = std::make_shared<DispatchGuard>();
    return guard;
}

} // namespace phial::qt
