#include "periodic/SheetMode.h"

#include "app/Session.h"

namespace phial
{

std::shared_ptr<SheetMode> SheetMode::current()
{
    return Session::current().sharedForm<SheetMode>();
}

} // namespace phial
