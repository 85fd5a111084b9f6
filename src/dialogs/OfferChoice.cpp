#include "dialogs/OfferChoice.h"

#include "app/Session.h"
#include "app/Settings.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"

namespace phial
{

namespace
{

constexpr StringView OfferValue = u"Config\\KeyboardOffers";

} // namespace

std::shared_ptr<OfferLeave> OfferLeave::current()
{
    return Session::current().sharedForm<OfferLeave>();
}

bool wantsOffers()
{
    return coreRoot().CoreRegistry().CoreRegistryRead().ReadLong(SettingsHive::CurrentUser,
                                                                 settings::path(OfferValue), 1) != 0;
}

void wantOffers(bool value)
{
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteLong(SettingsHive::CurrentUser,
                                                            settings::path(OfferValue), value ? 1 : 0);
}

} // namespace phial
