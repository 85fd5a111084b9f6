#pragma once

#include "app/AppTest.h"
#include "app/cls_AppUser.h"
#include "app/screen/Avatars.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "core/NumberText.h"

namespace phial
{

/// A session with some avatars and a list of recent names.
class UserTest : public AppTest
{
protected:
    UserTest()
    {
        makeFolder(u"avatar\\");
        QVAPP()->URL()->RESOURCEAVATARS(path(u"avatar\\"));
    }

    /// Puts pictures of 96 by 96 pixels into the store, "a01", "a02" and so on.
    void makeAvatars(std::int32_t count)
    {
        for (std::int32_t number = 1; number <= count; ++number) {
            folder.write(native(u"avatar\\" + avatar(number) + u".gif"), gifHead());
        }
        AvatarImagesLoad();
    }
    static String avatar(std::int32_t number) { return (number < 10 ? u"a0" : u"a") + plainText(number); }

    void storeNames(std::initializer_list<StringView> entries)
    {
        coreRoot().CoreRegistry().CoreRegistryWrite().WriteList(
            SettingsHive::CurrentUser, settings::path(u"Config\\ScreenNameMRU"), CoreStringList(entries));
    }
    static CoreStringList storedNames()
    {
        return coreRoot().CoreRegistry().CoreRegistryRead().ReadList(
            SettingsHive::CurrentUser, settings::path(u"Config\\ScreenNameMRU"));
    }

private:
    /// As much of a picture file of 96 by 96 pixels as tells its size.
    static std::string gifHead() { return std::string("GIF89a\x60\0\x60\0", 10) + std::string(16, '\0'); }
};

} // namespace phial
