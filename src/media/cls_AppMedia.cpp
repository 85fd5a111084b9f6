#include "media/cls_AppMedia.h"

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppTools.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/screen/DebugPos.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/Clock.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreSoundFacet.h"
#include "core/RandomSource.h"
#include "core/RuntimeError.h"
#include "media/SoundQueue.h"
#include "media/cls_AppMediaVolume.h"
#include "media/frm_DialogSound.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr double UsualVolume = 50;
constexpr StringView Correct = u"correct";

bool isRewardCategory(const String& upper)
{
    return upper.starts_with(u"REWARD") || upper.starts_with(u"RESULT");
}

bool mayPlayCategory(StringView category)
{
    const cls_AppConfig& config = *QVAPP()->CONFIG();
    switch (config.SOUNDMODE()) {
    case ID_SoundMode_AllOff:
        return false;
    case ID_SoundMode_OnlyReward:
        return config.SOUND() && isRewardCategory(upperCase(category));
    case ID_SoundMode_User:
    case ID_SoundMode_AllOn:
        break;
    }
    return config.SOUND();
}

bool mayPlayWave(StringView file)
{
    const cls_AppConfig& config = *QVAPP()->CONFIG();
    const String path = upperCase(file);
    switch (config.SOUNDMODE()) {
    case ID_SoundMode_User:
        return config.SOUND();
    case ID_SoundMode_OnlyReward:
        return config.SOUND() &&
               (path.find(u"\\REWARD") != String::npos || path.find(u"\\RESULT") != String::npos);
    case ID_SoundMode_AllOff:
        return false;
    case ID_SoundMode_AllOn:
        break;
    }
    return true;
}

bool mayPlayCorrect()
{
    const cls_AppConfig& config = *QVAPP()->CONFIG();
    switch (config.SOUNDMODE()) {
    case ID_SoundMode_User:
        return config.SOUND();
    case ID_SoundMode_OnlyReward:
    case ID_SoundMode_AllOff:
        return false;
    case ID_SoundMode_AllOn:
        break;
    }
    return true;
}

bool isSilentComment(enm_MediaComment comment)
{
    const cls_AppConfig& config = *QVAPP()->CONFIG();
    switch (config.SOUNDMODE()) {
    case ID_SoundMode_User:
        return !config.SOUND();
    case ID_SoundMode_OnlyReward:
        return comment != ID_MediaComment_Correct || !config.SOUND();
    case ID_SoundMode_AllOff:
        return true;
    case ID_SoundMode_AllOn:
        break;
    }
    return false;
}

/// The whole paths of a category's wave files; none without its folder. Two listings in all.
CoreStringList soundsOf(StringView category)
{
    const CoreFiles& files = coreRoot().CoreFiles();
    const String folder = QVAPP()->URL()->RESOURCESFX();
    if (!files.List(folder + u"*", true, false, false).Exists(String(category) + u"\\")) {
        return {};
    }
    return files.List(folder + String(category) + u"\\*.wav", false, true, true);
}

/// One of a list that is not empty: the nearest position, so that the last one comes up more often and the
/// first one less than the others.
const String& drawn(const CoreStringList& list)
{
    const double random = SessionState::current().platform().random->next();
    return list.Item(std::clamp(toWhole(random * list.Count() + 1), 1, list.Count()));
}

void seedFromClock()
{
    const Platform& platform = SessionState::current().platform();
    platform.random->seed(platform.clock->seconds());
}

} // namespace

cls_AppMedia::cls_AppMedia()
    : praise_{u"Das war 1A|That was first-class", u"Klasse|Great", u"Das bringt's!|That does it!",
              u"Spitze|Brilliant", u"Geeeenial|Geeeenius"},
      blame_{u"Voll daneben|Way off",
             u"Echt nicht!|Not really!",
             u"War nix!|That was nothing!",
             u"So nicht|Not like that",
             u"Das wird nichts mehr!|That will not work out!",
             u"Ende im Gelände!|End of the road!"}
{
}

cls_AppMedia::~cls_AppMedia() = default;

void cls_AppMedia::PLAYCATEGORY(StringView pCategory, bool pWait)
{
    DebugPos(u"PLAYCATEGORY-1");
    if (!mayPlayCategory(pCategory)) {
        DebugPos(u"PLAYCATEGORY-2");
        return;
    }
    DebugPos(u"PLAYCATEGORY-3");
    const CoreStringList sounds = soundsOf(pCategory);
    DebugPos(u"PLAYCATEGORY-4");
    if (sounds.Count() == 0) {
        DebugPos(u"PLAYCATEGORY-5");
        return;
    }
    DebugPos(u"PLAYCATEGORY-6");
    seedFromClock();
    DebugPos(u"PLAYCATEGORY-7");
    const String sound = sounds.RandomItem();
    DebugPos(u"PLAYCATEGORY-8");
    if (!sound.empty()) {
        DebugPos(u"PLAYCATEGORY-9");
        PLAYWAVE(sound, pWait);
    }
    DebugPos(u"PLAYCATEGORY-10");
}

void cls_AppMedia::PLAYWAVE(StringView pFile, bool pWait)
{
    DebugPos(u"PLAYWAVE-1");
    ignoringErrors([this] { VOLUME()->WAVE(UsualVolume); });
    DebugPos(u"PLAYWAVE-2");
    if (!mayPlayWave(pFile)) {
        DebugPos(u"PLAYWAVE-3");
        return;
    }
    DebugPos(u"PLAYWAVE-4");
    ignoringErrors([&] { CACHE(pFile); });
    DebugPos(u"PLAYWAVE-5");
    const String path = cache_.path(pFile);
    if (path.empty()) {
        DebugPos(u"PLAYWAVE-6");
        return;
    }
    DebugPos(pWait ? u"PLAYWAVE-7" : u"PLAYWAVE-8");
    ignoringErrors([&] { play(path, pWait); });
    DebugPos(u"PLAYWAVE-9");
}

void cls_AppMedia::play(const String& path, bool wait)
{
    if (wait) {
        coreRoot().CoreSoundFacet().Play(path, true);
    } else {
        Session::current().sharedForm<SoundQueue>()->add(path);
    }
}

void cls_AppMedia::CLICK()
{
    PLAYCATEGORY(u"click", false);
}

String cls_AppMedia::CORRECT()
{
    const CoreStringList sounds = mayPlayCorrect() ? soundsOf(Correct) : CoreStringList();
    if (sounds.Count() == 0) {
        return {};
    }
    const String& sound = drawn(sounds);
    PLAYWAVE(sound, false);
    return CorePathText::FileName(sound);
}

void cls_AppMedia::PLAYOPTICAL(StringView pCategory)
{
    const CoreStringList sounds = mayPlayCategory(pCategory) ? soundsOf(pCategory) : CoreStringList();
    if (sounds.Count() == 0) {
        return;
    }
    seedFromClock();
    const String& sound = drawn(sounds);
    showWord(CorePathText::FileName(sound), sound, equalsIgnoringCase(pCategory, u"WRONG"));
}

void cls_AppMedia::showWord(StringView word, StringView sound, bool isWrong)
{
    frm_DialogSound window;
    window.SoundFile(String(sound));
    window.SoundText(String(word));
    window.SoundWrong(isWrong);
    window.Show();
}

void cls_AppMedia::CACHE(StringView pFile)
{
    cache_.take(pFile);
}

void cls_AppMedia::COMMENT(enm_MediaComment pCommentType)
{
    const bool isPraise = pCommentType == ID_MediaComment_Correct;
    ignoringErrors([&] {
        if (isSilentComment(pCommentType)) {
            showWord(LNG()->TRANSLATEAUTO((isPraise ? praise_ : blame_).RandomItem()), {}, !isPraise);
        } else if (isPraise) {
            PLAYOPTICAL(Correct);
        } else if (pCommentType == ID_MediaComment_Wrong) {
            PLAYOPTICAL(u"wrong");
        }
    });
}

void cls_AppMedia::HYMNLIST(Object& pList)
{
    const auto add = [&](String entry) {
        const Variant text(std::move(entry));
        callMember(pList, u"AddItem", {&text, 1});
    };
    add(LNG()->TRANSLATE(u"(Keine)", u"(None)"));
    const String hymns = QVAPP()->URL()->RESOURCESFX() + u"reward\\*.wav";
    for (const String& file : coreRoot().CoreFiles().List(hymns, false, false, true)) {
        add(QVAPP()->TOOLS()->XCASE(CorePathText::BaseName(file)));
    }
    const bool hasHymn = getMember(pList, u"ListCount").toWhole() > 1;
    setMember(pList, u"ListIndex", hasHymn ? 1 : 0);
}

bool cls_AppMedia::HYMNPLAY(Object& pList, bool pWait)
{
    bool isPlayed = false;
    ignoringErrors([&] {
        const String name = getMember(pList, u"TEXT").toText();
        const String file = QVAPP()->URL()->RESOURCESFX() + u"reward\\" + name + u".wav";
        if (!name.empty() && coreRoot().CoreFiles().Exists(file)) {
            QVAPP()->MEDIA()->PLAYWAVE(file, pWait);
            isPlayed = true;
        }
    });
    return isPlayed;
}

const std::shared_ptr<cls_AppMediaVolume>& cls_AppMedia::VOLUME()
{
    if (!volume_) {
        volume_ = std::make_shared<cls_AppMediaVolume>();
    }
    return volume_;
}

} // namespace phial
