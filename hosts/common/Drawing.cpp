#include "common/Drawing.h"

#include "core/RandomSource.h"
#include "core/SessionState.h"

namespace learning
{

int randomBelow(int bound)
{
    const double share = phial::SessionState::current().platform().random->next();
    return std::min(bound - 1, static_cast<int>(share * bound));
}

} // namespace learning
