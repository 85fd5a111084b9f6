#pragma once

#include "app/AppTest.h"
#include "app/cls_Language.h"
#include "media/cls_AppMedia.h"
#include "support/MarkedWaves.h"

#include <vector>

namespace phial
{

/// A run of "Molmasse" with an installation in which sounds can be put, and a device that is listened to.
class MediaTest : public AppTest
{
protected:
    MediaTest()
    {
        start();
        LNG()->CURRENT(ID_Language_German);
        makeFolder(u"installed\\Resources\\sfx");
        makeFolder(u"installed\\apps\\Molmasse\\data");
    }

    /// A sound below the folder of sounds; gives its path.
    String sound(StringView relative, double seconds = 0.5, int mark = 64)
    {
        const String place = u"installed\\Resources\\sfx\\" + String(relative);
        folder.write(native(place), test::markedWave(seconds, mark));
        return QVAPP()->URL()->RESOURCESFX() + String(relative);
    }
    String appSound(StringView name, int mark = 64)
    {
        folder.write(native(u"installed\\apps\\Molmasse\\data\\" + String(name)),
                     test::markedWave(0.5, mark));
        return QVAPP()->URL()->DATAAPP() + String(name);
    }

    static cls_AppMedia& media() { return *QVAPP()->MEDIA(); }
    static void mode(enm_SoundMode value) { QVAPP()->CONFIG()->SOUNDMODE(value); }
    static void soundOn(bool value) { QVAPP()->CONFIG()->SOUND(value); }

    /// The marks of all sounds that have begun, once the queue is empty.
    std::vector<int> heard()
    {
        outside.advance(1);
        return marks();
    }
    std::vector<int> marks()
    {
        std::vector<int> all;
        for (const headless::HeardSound& one : outside.audio().heard()) {
            all.push_back(test::markOf(*one.sound));
        }
        return all;
    }
    static String cached(StringView relative)
    {
        return QVAPP()->URL()->RESOURCECACHE() + u"sfx\\" + String(relative);
    }
};

} // namespace phial
