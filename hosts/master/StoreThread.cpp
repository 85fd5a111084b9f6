#include "master/StoreThread.h"

#include <QMetaObject>

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

namespace phial::master
{

/// What the two threads share. It outlives the object when the store does not come back.
struct StoreThread::Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::function<void()> task; // what the thread does next
    bool isOpened = false;
    std::exception_ptr problem; // of the opening
    bool isEnding = false;
    bool hasEnded = false;

    RoomState room;
    std::vector<LogOn> logOns;
    ClassBook* book = nullptr; // the thread's
};

StoreThread::StoreThread(Open open, const AppCatalogue& apps, qt::DispatchGuard& guard)
    : shared_(std::make_shared<Shared>()), guard_(guard)
{
    std::thread([shared = shared_, open = std::move(open), apps] { work(shared, open, apps); }).detach();
    std::unique_lock lock(shared_->mutex);
    shared_->changed.wait(lock, [this] { return shared_->isOpened; });
    if (shared_->problem) {
        shared_->changed.wait(lock, [this] { return shared_->hasEnded; });
        std::rethrow_exception(shared_->problem);
    }
}

StoreThread::~StoreThread()
{
    constexpr double Patience = 5;
    end(Patience);
}

void StoreThread::work(const std::shared_ptr<Shared>& shared, const Open& open, const AppCatalogue& apps)
{
    std::unique_ptr<MasterStore> store;
    std::unique_ptr<ClassBook> book;
    try {
        store = open();
        book = std::make_unique<ClassBook>(*store, apps);
        shared->room = book->room();
        shared->logOns = book->logOns();
        shared->book = book.get();
    } catch (const std::exception&) {
        shared->problem = std::current_exception();
    }
    std::unique_lock lock(shared->mutex);
    shared->isOpened = true;
    shared->changed.notify_all();
    while (!shared->problem && (!shared->isEnding || shared->task)) {
        if (auto task = std::exchange(shared->task, nullptr)) {
            lock.unlock();
            task();
            lock.lock();
        } else {
            shared->changed.wait(lock);
        }
    }
    lock.unlock();
    book.reset();
    store.reset();
    lock.lock();
    shared->hasEnded = true;
    shared->changed.notify_all();
}

const RoomState& StoreThread::room() const
{
    return shared_->room;
}

const std::vector<LogOn>& StoreThread::logOns() const
{
    return shared_->logOns;
}

void StoreThread::begin(std::shared_ptr<StoreUnit> unit, std::function<void()> finished)
{
    const auto tell = [this, finished = std::move(finished)] { guard_.run(finished); };
    const std::scoped_lock lock(shared_->mutex);
    shared_->task = [shared = shared_.get(), unit = std::move(unit), tell, context = &context_] {
        unit->carryOut(*shared->book);
        const std::scoped_lock told(shared->mutex);
        if (!shared->isEnding) {
            QMetaObject::invokeMethod(context, tell, Qt::QueuedConnection);
        }
    };
    shared_->changed.notify_all();
}

bool StoreThread::end(double seconds)
{
    std::unique_lock lock(shared_->mutex);
    shared_->isEnding = true;
    shared_->changed.notify_all();
    return shared_->changed.wait_for(lock, std::chrono::duration<double>(seconds),
                                     [this] { return shared_->hasEnded; });
}

} // namespace phial::master
