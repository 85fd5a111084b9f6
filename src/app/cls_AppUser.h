#pragma once

#include "core/Variant.h"
#include "visual/Picture.h"

#include <cstdint>

namespace phial
{

/// Who works with the program: the name under which a pupil is shown in lists, and the avatar that goes with
/// it. Both begin as the latest entry of the recent names; without one they are empty.
class cls_AppUser
{
public:
    cls_AppUser();

    /// The avatar's ID.
    const String& AVATAR() const { return avatar_; }
    void AVATAR(String value) { avatar_ = std::move(value); }

    /// The shown name; the login when there is none or SCREENNAMELOCK is on. A value is stored untested.
    String SCREENNAME() const;
    void SCREENNAME(String value) { screenName_ = std::move(value); }

    /// The login is to be used whatever name is stored; off at first.
    bool SCREENNAMELOCK() const { return screenNameLock_; }
    void SCREENNAMELOCK(bool value) { screenNameLock_ = value; }

    /// Asks for name and avatar in a modal dialog. Gives whether the pupil has confirmed; the choice then
    /// stands here and in first place of the recent names.
    bool SCREENNAMEINPUT();

    /// The number of avatars to choose from.
    std::int32_t AVATARS() const;
    /// The picture of an avatar, by ID or by index from 1; a neutral picture when there is none.
    PicturePtr AVATARICON(const Variant& pIDOrIndex) const;
    /// ID and index of an avatar, by either; raise 9 when there is none.
    String AVATARID(const Variant& pIDOrIndex) const;
    std::int32_t AVATARINDEX(const Variant& pIDOrIndex) const;

private:
    String avatar_;
    String screenName_;
    bool screenNameLock_ = false;
};

} // namespace phial
