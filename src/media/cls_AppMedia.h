#pragma once

#include "core/CoreStringList.h"
#include "core/String.h"
#include "media/WaveCache.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace phial
{

class Object;
class cls_AppMediaVolume;

enum enm_MediaComment : std::int32_t {
    ID_MediaComment_Wrong = 1,
    ID_MediaComment_Correct = 2,
};

/// The short sounds of the learning apps, `QVAPP().MEDIA()`: a random one of a category, a given wave file, a
/// click, praise and blame. A category is a folder of wave files below URL.RESOURCESFX, whatever the case.
///
/// What is heard is decided afresh each time by CONFIG.SOUND and CONFIG.SOUNDMODE; the operations differ in
/// how they take the mode "all on". A sound that is awaited begins at once, ahead of those in the queue, and
/// no events run until it has ended; others are queued, see SoundQueue. A file that is missing and a device
/// that fails end in silence.
class cls_AppMedia
{
public:
    cls_AppMedia();
    ~cls_AppMedia();

    /// Plays a random sound of a category. Nothing with SOUND off, in mode "all on" too; in mode "only
    /// rewards" only of categories whose name begins with "REWARD" or "RESULT".
    void PLAYCATEGORY(StringView pCategory, bool pWait);

    /// Plays a wave file, by its path or name; see WaveCache for where it is looked for. Before anything else
    /// the volume is set to 50. Mode "all on" plays whatever SOUND says; "only rewards" plays with SOUND on
    /// what lies in a folder whose name begins with "REWARD" or "RESULT".
    void PLAYWAVE(StringView pFile, bool pWait);

    /// The sound of a key that is pressed.
    void CLICK();

    /// Plays a random sound of the category "correct", in mode "all on" whatever SOUND says, and gives its
    /// file name. The empty text when nothing is played: SOUND off, mode "only rewards" or "all off", no such
    /// sound.
    String CORRECT();

    /// Shows the praise window (see frm_DialogSound) with a random sound of a category, its file name as the
    /// word. The permission is that of PLAYCATEGORY. Returns when the window has closed.
    void PLAYOPTICAL(StringView pCategory);

    /// Finds a wave file and copies it into the cache, unless that was done in this run.
    void CACHE(StringView pFile);

    /// Shows the praise window: with a sound of "correct" or "wrong" by PLAYOPTICAL, or where sounds are off
    /// with a word of praise or blame alone. In mode "only rewards" blame is a word alone, and with SOUND on
    /// there is no praise, since "correct" is no reward. Other values do nothing where sounds are on, and
    /// blame where not.
    void COMMENT(enm_MediaComment pCommentType);

    /// Fills a list control: an entry for no hymn, and the names of the sounds of "reward". The first of
    /// these is chosen, if there is one. Raises 438 for what is no list.
    void HYMNLIST(Object& pList);

    /// Plays the hymn chosen in such a list. False when none is, or when its file is missing.
    bool HYMNPLAY(Object& pList, bool pWait = false);

    /// The loudness. Raises 11 at its first use where the mixer has no control for the speakers.
    const std::shared_ptr<cls_AppMediaVolume>& VOLUME();
    void VOLUME(std::shared_ptr<cls_AppMediaVolume> value) { volume_ = std::move(value); }

private:
    void play(const String& path, bool wait);
    void showWord(StringView word, StringView sound, bool isWrong);

    std::shared_ptr<cls_AppMediaVolume> volume_;
    WaveCache cache_;
    CoreStringList praise_; ///< "German|English"
    CoreStringList blame_;
};

} // namespace phial
