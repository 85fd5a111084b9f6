#pragma once

#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

class CoreParameters;
class cls_DataEvents;

/// The events of a run without a master, in a file which the programs of this computer share.
///
/// The file is loaded before the first event of the run and saved, under its lock, with each. When another
/// program has saved it since, its entries are loaded once more, and those of this run that could not be
/// saved stand behind them: no program writes over what another has added. Where the file has gone, all that
/// this run knows is saved again. What cannot be read is kept aside before it is replaced, and where that
/// fails too, events wait for the next save.
class OfflineEvents
{
public:
    explicit OfflineEvents(String file);

    /// Adds an event of this moment. Nothing is raised; an event that cannot be saved is saved with the next.
    /// Waits for the lock with events running, so that this may be called meanwhile.
    void add(StringView action, const CoreParameters& additional);
    /// Saves what could not be saved before.
    void saveRest();

private:
    bool isUpToDate() const;
    void takeOverOthers();
    void save();

    String file_;
    std::shared_ptr<cls_DataEvents> events_;
    std::int32_t unsaved_ = 0; // entries at the end of the list
};

} // namespace phial
