#include "dialogs/FreeTermKeys.h"

#include "app/Session.h"

namespace phial
{

std::shared_ptr<FreeTermKeys> FreeTermKeys::current()
{
    return Session::current().sharedForm<FreeTermKeys>();
}

void FreeTermKeys::showArrowAndFraction()
{
    first = {u"→", u"->"};
    second = {u"½", u"{(}{)}/{(}{)}{left 4}"};
}

} // namespace phial
