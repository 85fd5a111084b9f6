#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "headless/Hand.h"
#include "server/frm_NetMonitor.h"
#include "support/AppSession.h"
#include "visual/Form.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_CmdBar.h"

#include <gmock/gmock-matchers.h>
#include <string>
#include <vector>

namespace phial
{

namespace
{

using ::testing::ElementsAre;

const Moment Morning{45292.375};
constexpr StringView Master = u"127.0.0.1:10049";

class NetMonitorTest : public test::AppSession
{
protected:
    NetMonitorTest()
    {
        LNG()->CURRENT(ID_Language_German);
        add(TrafficKind::Note, u"verbunden|connected");
        add(TrafficKind::Sent, u"SERVER::LOGON::Anna");
        monitor = std::make_unique<frm_NetMonitor>(traffic);
        monitor->Show();
    }
    void TearDown() override
    {
        monitor.reset();
        AppSession::TearDown();
    }

    void add(TrafficKind kind, StringView text) { traffic->add(Morning, kind, Master, text); }
    Form& form() { return monitor->form(); }
    std::shared_ptr<ListBox> list() { return form().control<ListBox>(u"lst_Lines"); }
    std::vector<std::string> lines()
    {
        std::vector<std::string> all;
        for (std::int32_t line = 0; line < list()->ListCount(); ++line) {
            all.push_back(toUtf8(list()->List(line)));
        }
        return all;
    }
    String text() { return form().control<TextBox>(u"txt_Line")->Text(); }

    std::shared_ptr<TrafficLog> traffic = std::make_shared<TrafficLog>();
    std::unique_ptr<frm_NetMonitor> monitor;
};

TEST_F(NetMonitorTest, ShowsWhatHasGoneOverTheWireAlready)
{
    EXPECT_THAT(lines(), ElementsAre("09:00:00  •  127.0.0.1:10049  verbunden",
                                     "09:00:00  →  127.0.0.1:10049  SERVER::LOGON::Anna"));
    EXPECT_EQ(list()->ListIndex(), 1);
    EXPECT_EQ(text(), u"SERVER::LOGON::Anna");
}

TEST_F(NetMonitorTest, FollowsTheLatestLine)
{
    add(TrafficKind::Received, u"008:LOGON:OK");
    EXPECT_EQ(lines().back(), "09:00:00  ←  127.0.0.1:10049  008:LOGON:OK");
    EXPECT_EQ(list()->ListIndex(), 2);
    EXPECT_EQ(text(), u"008:LOGON:OK");
}

TEST_F(NetMonitorTest, StaysAtALineThatTheUserHasChosen)
{
    list()->inputChoice(0);
    EXPECT_EQ(text(), u"verbunden");
    add(TrafficKind::Received, u"008:LOGON:OK");
    EXPECT_EQ(list()->ListIndex(), 0);
    EXPECT_EQ(text(), u"verbunden");
}

TEST_F(NetMonitorTest, KeepsAsManyLinesAsTheLog)
{
    for (std::size_t i = 0; i < TrafficLog::MaxLines; ++i) {
        add(TrafficKind::Sent, u"SERVER::ALIVE::");
    }
    EXPECT_EQ(list()->ListCount(), static_cast<std::int32_t>(TrafficLog::MaxLines));
    EXPECT_EQ(lines().front(), "09:00:00  →  127.0.0.1:10049  SERVER::ALIVE::");
}

TEST_F(NetMonitorTest, ShowsATextOfSeveralLinesOnOne)
{
    add(TrafficKind::Received, u"008:Guten Morgen\r\nzusammen");
    EXPECT_EQ(lines().back(), "09:00:00  ←  127.0.0.1:10049  008:Guten Morgen  zusammen");
    EXPECT_EQ(text(), u"008:Guten Morgen\r\nzusammen");
}

TEST_F(NetMonitorTest, IsEmptiedByItsButton)
{
    headless::clickButton(*form().control<ctl_CmdBar>(u"bar_Buttons"), u"MONITOR.CLEAR();");
    EXPECT_TRUE(lines().empty());
    EXPECT_EQ(text(), u"");
    EXPECT_TRUE(traffic->lines().empty());
}

TEST_F(NetMonitorTest, ClosesByItsButtonAndByEscapeAndOpensAgain)
{
    headless::clickButton(*form().control<ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.OK();");
    EXPECT_FALSE(form().Visible());
    add(TrafficKind::Received, u"008:LOGON:OK");
    monitor->Show();
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(lines().size(), 3U);
    headless::type(form(), u"{ESC}");
    EXPECT_FALSE(form().Visible());
}

TEST_F(NetMonitorTest, TellsNotesInTheLanguageInForce)
{
    LNG()->CURRENT(ID_Language_English);
    monitor->TRANSLATE();
    EXPECT_EQ(lines().front(), "09:00:00  •  127.0.0.1:10049  connected");
    EXPECT_EQ(form().Caption(), u"Network monitor");
}

TEST_F(NetMonitorTest, GivesTheListWhatALargerWindowHasToSpare)
{
    const auto bar = form().control<ctl_CmdBar>(u"bar_Buttons");
    const double height = list()->Height();
    const double width = list()->Width();
    const double top = bar->Top();
    form().Move(form().Left(), form().Top(), form().Width() + 1500, form().Height() + 3000);
    EXPECT_EQ(list()->Height(), height + 200);
    EXPECT_EQ(list()->Width(), width + 100);
    EXPECT_EQ(bar->Top(), top + 200);
    form().Move(form().Left(), form().Top(), 300, 300);
    EXPECT_GE(list()->Height(), 0);
}

} // namespace

} // namespace phial
