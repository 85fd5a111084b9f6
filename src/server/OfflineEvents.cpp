#include "server/OfflineEvents.h"

#include "core/CoreDatabase.h"
#include "core/CoreParameters.h"
#include "core/FileLock.h"
#include "core/FileSystem.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "results/cls_DataEvent.h"
#include "results/cls_DataEvents.h"

#include <utility>

namespace phial
{

OfflineEvents::OfflineEvents(String file)
    : file_(std::move(file)), events_(std::make_shared<cls_DataEvents>())
{
}

void OfflineEvents::add(StringView action, const CoreParameters& additional)
{
    const FileLock lock(file_);
    takeOverOthers();
    events_->ADD(action, &additional);
    ++unsaved_;
    save();
}

void OfflineEvents::saveRest()
{
    if (unsaved_ > 0) {
        const FileLock lock(file_);
        takeOverOthers();
        save();
    }
}

void OfflineEvents::save()
{
    if (events_->SAVE(file_)) {
        unsaved_ = 0;
    }
}

/// Whether the file is as this run has loaded or saved it last.
bool OfflineEvents::isUpToDate() const
{
    const LoadedFile& known = events_->DATA()->loadedFile();
    bool isSame = false;
    ignoringErrors([&] {
        isSame = known.state == LoadedFile::State::Whole &&
                 SessionState::current().platform().files->status(known.path) == known.status;
    });
    return isSame;
}

void OfflineEvents::takeOverOthers()
{
    if (isUpToDate()) {
        return;
    }
    const auto saved = std::make_shared<cls_DataEvents>();
    // What a disk does not hand out at once it often does the next time.
    if (!saved->LOAD(file_) && !saved->LOAD(file_)) {
        // The save must not take this list for all that is there.
        events_->DATA()->loadedFile(saved->DATA()->loadedFile());
        return;
    }
    for (std::int32_t entry = events_->COUNT() - unsaved_ + 1; entry <= events_->COUNT(); ++entry) {
        saved->DATABASE()->Import(events_->ITEM(entry));
    }
    events_ = saved;
}

} // namespace phial
