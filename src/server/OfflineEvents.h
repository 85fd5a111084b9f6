#pragma once

#include "core/CoreFiles.h"
#include "core/String.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace phial
{

class CoreParameters;
class cls_DataEvents;

/// The events of a run without a master, in a file which the programs of this computer share.
///
/// The file is loaded before the first event of the run and saved, under its lock, with each. When another
/// program has saved it since, its entries are loaded once more, and those of this run that could not be
/// saved stand behind them: no program writes over what another has added. Where the file has gone or cannot
/// be read, all that this run knows is saved again.
class OfflineEvents
{
public:
    explicit OfflineEvents(String file);

    /// Adds an event of this moment. Nothing is raised; an event that cannot be saved is saved with the next.
    void add(StringView action, const CoreParameters& additional);

private:
    void takeOverOthers();

    String file_;
    std::shared_ptr<cls_DataEvents> events_;
    std::int32_t unsaved_ = 0; // entries at the end of the list
    std::optional<FileStamp> known_;
};

} // namespace phial
