#include "server/OfflineEvents.h"

#include "core/CoreDatabase.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/FileLock.h"
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
    if (events_->SAVE(file_)) {
        unsaved_ = 0;
        known_ = coreRoot().CoreFiles().Changed(file_);
    }
}

void OfflineEvents::takeOverOthers()
{
    const FileStamp now = coreRoot().CoreFiles().Changed(file_);
    if (now == known_) {
        return;
    }
    known_ = now;
    const auto saved = std::make_shared<cls_DataEvents>();
    if (!saved->LOAD(file_)) {
        return;
    }
    for (std::int32_t entry = events_->COUNT() - unsaved_ + 1; entry <= events_->COUNT(); ++entry) {
        saved->DATABASE()->Import(events_->ITEM(entry));
    }
    events_ = saved;
}

} // namespace phial
