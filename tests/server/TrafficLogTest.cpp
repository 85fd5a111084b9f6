#include "server/TrafficLog.h"

#include "core/Variant.h"

#include <gtest/gtest.h>

using namespace phial;

namespace
{

const Moment Morning{45292.375};

String numbered(std::size_t number)
{
    return Variant(static_cast<std::int32_t>(number)).toText();
}

TEST(TrafficLog, KeepsTheLatestLines)
{
    TrafficLog log;
    for (std::size_t i = 0; i < TrafficLog::MaxLines + 2; ++i) {
        log.add(Morning, TrafficKind::Sent, u"127.0.0.1:10049", numbered(i));
    }
    ASSERT_EQ(log.lines().size(), TrafficLog::MaxLines);
    EXPECT_EQ(log.lines().front().text, u"2");
    EXPECT_EQ(log.lines().back().text, numbered(TrafficLog::MaxLines + 1));
}

TEST(TrafficLog, CutsLongTexts)
{
    TrafficLog log;
    log.add(Morning, TrafficKind::Received, u"", String(TrafficLog::MaxText, u'a'));
    log.add(Morning, TrafficKind::Received, u"", String(TrafficLog::MaxText + 1, u'a'));
    EXPECT_EQ(log.lines()[0].text, String(TrafficLog::MaxText, u'a'));
    EXPECT_EQ(log.lines()[1].text, String(TrafficLog::MaxText, u'a') + u"…");
}

TEST(TrafficLog, DoesNotTearASignApartWhereItCuts)
{
    TrafficLog log;
    log.add(Morning, TrafficKind::Sent, u"", String(TrafficLog::MaxText - 1, u'a') + u"\U0001F9EAb");
    EXPECT_EQ(log.lines()[0].text, String(TrafficLog::MaxText - 1, u'a') + u"…");
}

TEST(TrafficLog, TellsWhatChanges)
{
    TrafficLog log;
    String told;
    int cleared = 0;
    const Connection added = log.ADDED.connect([&](const TrafficLine& line) { told = line.text; });
    const Connection emptied = log.CLEARED.connect([&] { ++cleared; });
    log.add(Morning, TrafficKind::Note, u"", u"connected");
    EXPECT_EQ(told, u"connected");
    log.clear();
    EXPECT_EQ(cleared, 1);
    EXPECT_TRUE(log.lines().empty());
}

} // namespace
