#pragma once

#include "core/Clock.h"
#include "master/AppCatalogue.h"
#include "master/Classroom.h"
#include "master/Console.h"
#include "master/Notices.h"
#include "master/SqlConnection.h"
#include "master/StoreDesk.h"
#include "master/StorePlace.h"
#include "master/StoreThread.h"
#include "qt/base/DispatchGuard.h"

#include <QTimer>

#include <filesystem>
#include <functional>
#include <vector>

namespace phial::master
{

/// The master's parts as they stand on each other, from the store to the teacher's commands. Its events must
/// run, since the store works on a thread of its own.
class Room
{
public:
    using Say = std::function<void(const String&)>;

    /// Opens the store, and raises StoreError when it cannot be used. `say` takes the lines that nobody has
    /// asked for. The guard must outlive the object.
    Room(const StorePlace& place, StoreUse use, std::size_t pupilsOfComputer, qt::DispatchGuard& guard,
         Say say);

    Notices& notices() { return notices_; }
    StoreDesk& desk() { return desk_; }
    Classroom& classroom() { return classroom_; }
    Console& console() { return console_; }
    /// Where a damaged file has been put; empty when there was none.
    const std::filesystem::path& keptAside() const { return keptAside_; }

    /// Commands one after the other, until one fails.
    bool runAll(const std::vector<String>& commands);

    /// From now on drops what is old, and takes over what another program sets in the database.
    void keepHouse() { keepsHouse_ = true; }

    /// Lets what is under way come to its end, for a while.
    void finish();
    /// Closes the store. False when it does not come back: then the process must end as it is.
    bool close();

private:
    std::unique_ptr<MasterStore> open(const StorePlace& place, StoreUse use);
    bool run(const String& command);
    void tick();

    const Clock& clock_;
    std::filesystem::path keptAside_;
    Notices notices_;
    AppCatalogue apps_;
    StoreThread thread_;
    StoreDesk desk_;
    Classroom classroom_;
    Console console_;
    QTimer tick_;
    int ticks_ = 0;
    bool keepsHouse_ = false;
};

} // namespace phial::master
