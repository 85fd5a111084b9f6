#include "qt/base/DispatchGuard.h"

#include "core/RuntimeError.h"

#include <gtest/gtest.h>
#include <vector>

using phial::String;
using phial::qt::DispatchGuard;

namespace
{

TEST(DispatchGuard, TellsTheReporterWhatAHandlerRaises)
{
    DispatchGuard guard;
    std::vector<String> told;
    guard.setReporter([&](const String& text) { told.push_back(text); });

    EXPECT_FALSE(
        guard.run([] { throw phial::RuntimeError(phial::ErrorNumber::DivisionByZero, u"By zero"); }));
    EXPECT_EQ(told, std::vector<String>{u"By zero (11)"});
}

TEST(DispatchGuard, SaysThatAHandlerCameToItsEnd)
{
    DispatchGuard guard;
    bool ran = false;
    EXPECT_TRUE(guard.run([&] { ran = true; }));
    EXPECT_TRUE(ran);
}

TEST(DispatchGuard, DoesNotPileUpReportsWhileOneIsShown)
{
    DispatchGuard guard;
    int told = 0;
    guard.setReporter([&](const String&) {
        ++told;
        guard.run([] { throw phial::RuntimeError(phial::ErrorNumber::Overflow); });
    });

    guard.run([] { throw phial::RuntimeError(phial::ErrorNumber::Overflow); });
    EXPECT_EQ(told, 1);
    guard.run([] { throw phial::RuntimeError(phial::ErrorNumber::Overflow); });
    EXPECT_EQ(told, 2);
}

TEST(DispatchGuard, SurvivesAReporterThatFails)
{
    DispatchGuard guard;
    guard.setReporter([](const String&) { throw phial::RuntimeError(phial::ErrorNumber::Overflow); });
    EXPECT_FALSE(guard.run([] { throw phial::RuntimeError(phial::ErrorNumber::Overflow); }));
}

} // namespace
