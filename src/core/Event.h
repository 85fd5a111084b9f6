#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace phial
{

/// Holds a handler connected to an event; ends the connection when it goes. Movable; safe after the event's
/// end.
class [[nodiscard]] Connection
{
public:
    Connection() = default;
    explicit Connection(std::function<void()> disconnect) : disconnect_(std::move(disconnect)) {}
    Connection(Connection&& other) noexcept : disconnect_(std::exchange(other.disconnect_, nullptr)) {}
    Connection& operator=(Connection&& other) noexcept
    {
        if (this != &other) {
            disconnect();
            disconnect_ = std::exchange(other.disconnect_, nullptr);
        }
        return *this;
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { disconnect(); }

    void disconnect()
    {
        if (auto end = std::exchange(disconnect_, nullptr)) {
            end();
        }
    }

private:
    std::function<void()> disconnect_;
};

/// An event: handlers run in the order in which they were connected.
///
/// A raised event survives whatever its handlers do: a handler that is disconnected meanwhile does not run
/// any more, one connected meanwhile runs from the next time on, and the event may be destroyed. A handler's
/// exception ends the emission and passes to the emitter's caller.
template <typename... Args>
class Event
{
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    [[nodiscard]] Connection connect(Handler handler)
    {
        auto slot = std::make_shared<Slot>(Slot{std::move(handler)});
        slots_->push_back(slot);
        return Connection([list = std::weak_ptr<Slots>(slots_), slot] {
            slot->connected = false;
            if (const auto all = list.lock()) {
                std::erase(*all, slot);
            }
        });
    }

    void raise(Args... args) const
    {
        Few few;
        Slots many;
        for (const auto& slot : current(few, many)) {
            if (slot->connected) {
                slot->handler(args...);
            }
        }
    }

    bool hasHandlers() const { return !slots_->empty(); }

private:
    struct Slot {
        Handler handler;
        bool connected = true;
    };
    using Slots = std::vector<std::shared_ptr<Slot>>;
    using Few = std::array<std::shared_ptr<Slot>, 4>;

    /// The handlers of now, held for a round; a few take no memory.
    std::span<const std::shared_ptr<Slot>> current(Few& few, Slots& many) const
    {
        if (slots_->size() > few.size()) {
            many = *slots_;
            return many;
        }
        std::ranges::copy(*slots_, few.begin());
        return std::span(few).first(slots_->size());
    }

    std::shared_ptr<Slots> slots_ = std::make_shared<Slots>();
};

/// Connections kept together, for the owner of many handlers.
class Connections
{
public:
    Connections& operator+=(Connection connection)
    {
        list_.push_back(std::move(connection));
        return *this;
    }
    void clear() { list_.clear(); }

private:
    std::vector<Connection> list_;
};

} // namespace phial
