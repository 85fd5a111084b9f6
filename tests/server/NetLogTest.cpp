#include "server/NetLog.h"

#include "core/NativePath.h"
#include "support/HeadlessSession.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace phial
{

namespace
{

class NetLogTest : public test::HeadlessSession
{
protected:
    std::filesystem::path file() const
    {
        return folder.native() / "CommonAppData" / "QV Phial" / "Logs" / "network.log";
    }
    std::string content() const
    {
        std::ifstream stream(file(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

TEST_F(NetLogTest, MakesItsFolderAndNoFile)
{
    const NetLog log;
    EXPECT_TRUE(std::filesystem::is_directory(file().parent_path()));
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(NetLogTest, GivesUpTheLogOfTheRunBefore)
{
    folder.write("CommonAppData/QV Phial/Logs/network.log", "old");
    NetLog log;
    log.write(u"new");
    EXPECT_EQ(content(), "2026-03-02 08:00:00|new\r\n");
}

TEST_F(NetLogTest, WritesDateAndTextOfEachEntry)
{
    NetLog log;
    log.write(u"REQUEST: SERVER:LOGON");
    outside.advance(61);
    log.write(u"ANSWER: 008:Grüße, \U0001D11E");
    EXPECT_EQ(content(), "2026-03-02 08:00:00|REQUEST: SERVER:LOGON\r\n"
                         "2026-03-02 08:01:01|ANSWER: 008:Grüße, 𝄞\r\n");
}

TEST_F(NetLogTest, LosesALineThatCannotBeWritten)
{
    NetLog log;
    log.write(u"1");
    outside.files().fail(headless::FileStep::Append);
    log.write(u"2");
    outside.files().repair();
    log.write(u"3");
    EXPECT_EQ(content(), "2026-03-02 08:00:00|1\r\n2026-03-02 08:00:00|3\r\n");
}

TEST_F(NetLogTest, DoesNoHarmWhereNothingCanBeWritten)
{
    folder.write("CommonAppData", "a file in place of the folder");
    NetLog log;
    log.write(u"1");
    EXPECT_FALSE(std::filesystem::exists(file()));
}

} // namespace

} // namespace phial
