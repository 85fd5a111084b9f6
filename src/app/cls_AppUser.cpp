#include "app/cls_AppUser.h"

#include "app/RecentNames.h"
#include "app/frm_DialogUser.h"
#include "app/screen/Avatars.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"

namespace phial
{

cls_AppUser::cls_AppUser()
{
    const std::vector<RecentName> names = recentNames();
    if (!names.empty()) {
        screenName_ = names.front().name;
        avatar_ = names.front().avatar;
    }
}

String cls_AppUser::SCREENNAME() const
{
    if (screenName_.empty() || screenNameLock_) {
        return coreRoot().CoreSystem().CoreMachine().UserName();
    }
    return screenName_;
}

bool cls_AppUser::SCREENNAMEINPUT()
{
    frm_DialogUser dialog;
    dialog.Show();
    return Variant(dialog.UserResult()).toBoolean();
}

std::int32_t cls_AppUser::AVATARS() const
{
    return AvatarImageCount();
}

PicturePtr cls_AppUser::AVATARICON(const Variant& pIDOrIndex) const
{
    return AvatarImageGet(pIDOrIndex);
}

String cls_AppUser::AVATARID(const Variant& pIDOrIndex) const
{
    return AvatarImageKey(pIDOrIndex);
}

std::int32_t cls_AppUser::AVATARINDEX(const Variant& pIDOrIndex) const
{
    return AvatarImageIndex(pIDOrIndex);
}

} // namespace phial
