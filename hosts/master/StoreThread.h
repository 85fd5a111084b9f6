#pragma once

#include "master/AppCatalogue.h"
#include "master/StoreWork.h"
#include "qt/base/DispatchGuard.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace phial::master
{

/// The one thread that works with the store. It opens it, has the class book, and carries out units one by
/// one; what they have come to is told on the thread that has made the object, while its events run.
class StoreThread final : public StoreHand
{
public:
    using Open = std::function<std::unique_ptr<MasterStore>()>;

    /// Waits until `open`, on the other thread, has opened the store, and raises what it raises. The guard
    /// must outlive the object; errors of those who are told go to it.
    StoreThread(Open open, const AppCatalogue& apps, qt::DispatchGuard& guard);
    ~StoreThread() override;
    StoreThread(const StoreThread&) = delete;
    StoreThread& operator=(const StoreThread&) = delete;

    /// What the class book held at the beginning.
    const RoomState& room() const;
    const std::vector<LogOn>& logOns() const;

    void begin(std::shared_ptr<StoreUnit> unit, std::function<void()> finished) override;

    /// Ends the work and closes the store, once the unit at work is done; false when that takes longer than
    /// so many seconds. Then the thread waits for the store still, and the process must end without its
    /// objects' ends.
    bool end(double seconds);

private:
    struct Shared;
    static void work(const std::shared_ptr<Shared>& shared, const Open& open, const AppCatalogue& apps);

    std::shared_ptr<Shared> shared_;
    qt::DispatchGuard& guard_;
    QObject context_; // where `finished` is called
};

} // namespace phial::master
