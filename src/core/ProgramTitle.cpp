#include "core/ProgramTitle.h"

#include "core/SessionState.h"

namespace phial
{

String programTitle()
{
    return SessionState::isOpen() ? SessionState::current().platform().programTitle : Platform().programTitle;
}

} // namespace phial
