#include "visual/VisualHost.h"

#include "core/RuntimeError.h"
#include "core/SessionState.h"

namespace phial
{

VisualHost& visualHost()
{
    const auto& host = SessionState::current().platform().visual;
    if (!host) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *host;
}

void SendKeys(StringView notation)
{
    visualHost().sendKeys(parseKeyNotation(notation));
}

} // namespace phial
