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

void SendKeys(StringView notation, const std::shared_ptr<Form>& form)
{
    visualHost().sendKeys(parseKeyNotation(notation), form);
}

} // namespace phial
