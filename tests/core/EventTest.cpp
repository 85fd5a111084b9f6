#include "core/Event.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>

namespace phial
{
namespace
{

TEST(EventTest, HandlersRunInTheOrderOfConnection)
{
    Event<int> event;
    std::string order;
    const Connection first = event.connect([&](int value) { order += "a" + std::to_string(value); });
    const Connection second = event.connect([&](int value) { order += "b" + std::to_string(value); });
    event.raise(1);
    EXPECT_EQ(order, "a1b1");
}

TEST(EventTest, AConnectionEndsWithItsScope)
{
    Event<> event;
    int runs = 0;
    {
        const Connection connection = event.connect([&] { ++runs; });
        event.raise();
    }
    event.raise();
    EXPECT_EQ(runs, 1);
    EXPECT_FALSE(event.hasHandlers());
}

TEST(EventTest, AHandlerDisconnectedMeanwhileDoesNotRun)
{
    Event<> event;
    int runs = 0;
    Connection second;
    const Connection first = event.connect([&] { second.disconnect(); });
    second = event.connect([&] { ++runs; });
    event.raise();
    EXPECT_EQ(runs, 0);
}

TEST(EventTest, AHandlerConnectedMeanwhileRunsFromTheNextEmissionOn)
{
    Event<> event;
    int runs = 0;
    Connections inner;
    const Connection outer = event.connect([&] { inner += event.connect([&] { ++runs; }); });
    event.raise();
    EXPECT_EQ(runs, 0);
    event.raise();
    EXPECT_EQ(runs, 1);
}

TEST(EventTest, AHandlerMayDestroyTheEmitter)
{
    auto event = std::make_unique<Event<>>();
    int runs = 0;
    const Connection first = event->connect([&] { event.reset(); });
    const Connection second = event->connect([&] { ++runs; });
    event->raise();
    EXPECT_EQ(event, nullptr);
    EXPECT_EQ(runs, 1);
}

TEST(EventTest, AHandlerMayEndItsOwnConnection)
{
    Event<> event;
    int runs = 0;
    Connection connection;
    connection = event.connect([&] {
        ++runs;
        connection.disconnect();
    });
    event.raise();
    event.raise();
    EXPECT_EQ(runs, 1);
}

TEST(EventTest, AnExceptionEndsTheEmission)
{
    Event<> event;
    int runs = 0;
    const Connection first = event.connect([] { throw std::runtime_error("handler"); });
    const Connection second = event.connect([&] { ++runs; });
    EXPECT_THROW(event.raise(), std::runtime_error);
    EXPECT_EQ(runs, 0);
}

TEST(EventTest, AConnectionOutlivesItsEvent)
{
    Connection connection;
    {
        Event<> event;
        connection = event.connect([] {});
    }
    EXPECT_NO_THROW(connection.disconnect());
}

} // namespace
} // namespace phial
