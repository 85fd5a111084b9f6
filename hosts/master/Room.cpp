#include "master/Room.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "core/SessionState.h"
#include "master/SqlStore.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>
#include <utility>

namespace phial::master
{

namespace
{

constexpr std::chrono::milliseconds TickInterval{250};
constexpr int TicksBetweenLooks = 4 * 2;
constexpr int TicksBetweenForgettings = 4 * 3600;
/// For which the end waits, once for what is under way and once for the store.
constexpr double SecondsToEnd = 5;

const Platform& platform()
{
    return SessionState::current().platform();
}

/// The learning apps that are installed here.
AppCatalogue installedApps()
{
    const String folder = QVAPP()->URL()->ROOT() + u"apps";
    return AppCatalogue::inFolder(*platform().files, nativePath(folder));
}

void runEvents()
{
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace

Room::Room(const StorePlace& place, StoreUse use, std::size_t pupilsOfComputer, qt::DispatchGuard& guard,
           Say say)
    : clock_(*platform().clock), notices_(clock_, std::move(say)), apps_(installedApps()),
      thread_([&] { return open(place, use); }, apps_, guard), desk_(thread_, clock_, {}, notices_),
      classroom_(desk_, clock_, notices_, thread_.room(), thread_.logOns(), pupilsOfComputer),
      console_(classroom_, desk_, apps_, clock_, *platform().files, std::cout)
{
    QObject::connect(&tick_, &QTimer::timeout, &tick_, [this, &guard] { guard.run([this] { tick(); }); });
    tick_.start(TickInterval);
}

std::unique_ptr<MasterStore> Room::open(const StorePlace& place, StoreUse use)
{
    auto store = std::make_unique<SqlStore>(place, use);
    keptAside_ = store->keptAside();
    return store;
}

bool Room::runAll(const std::vector<String>& commands)
{
    return std::ranges::all_of(commands, [this](const String& command) { return run(command); });
}

bool Room::run(const String& command)
{
    std::optional<Console::Outcome> outcome;
    console_.run(command, [&outcome](Console::Outcome what) { outcome = what; });
    while (!outcome) {
        runEvents();
    }
    return outcome == Console::Outcome::Done;
}

void Room::tick()
{
    if (keepsHouse_ && ticks_ % TicksBetweenLooks == 0) {
        classroom_.lookForChanges();
    }
    if (keepsHouse_ && ticks_ % TicksBetweenForgettings == 0) {
        classroom_.forgetOld();
    }
    ++ticks_;
    desk_.tick();
    notices_.tick();
}

void Room::finish()
{
    const double end = clock_.seconds() + SecondsToEnd;
    while (!desk_.isIdle() && clock_.seconds() < end) {
        runEvents(); // the tick comes, whatever else does not
    }
}

bool Room::close()
{
    return thread_.end(SecondsToEnd);
}

} // namespace phial::master
