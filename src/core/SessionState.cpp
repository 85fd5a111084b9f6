#include "core/SessionState.h"

#include "core/RuntimeError.h"

namespace phial
{

namespace
{

/// The one open session of the process.
SessionState* open = nullptr;

} // namespace

SessionState::SessionState(phial::Platform platform)
    : platform_(withDefaults(std::move(platform))), currentFolder_(std::make_shared<phial::CurrentFolder>()),
      root_(platform_, locale_, currentFolder_)
{
    if (open != nullptr) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"a session is open already");
    }
    open = this;
}

SessionState::~SessionState()
{
    open = nullptr;
}

SessionState& SessionState::current()
{
    if (open == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"no session is open");
    }
    return *open;
}

bool SessionState::isOpen()
{
    return open != nullptr;
}

CoreTheme& coreTheme()
{
    return SessionState::current().theme();
}

} // namespace phial
