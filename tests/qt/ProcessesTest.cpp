#include "qt/base/Processes.h"

#include "Eventually.h"
#include "support/HeadlessSession.h"

#include <gtest/gtest.h>

namespace phial::qt
{
namespace
{

using test::eventually;

class Processes : public test::HeadlessSession
{
protected:
    /// A call of the shell that carries out a script in the test's folder.
    ProgramCall script(const String& text, const String& argument = {}) const
    {
        return {u"sh", {u"-c", text, u"sh", argument}, folder.path()};
    }
    bool eventuallyReads(const std::string& text)
    {
        return eventually([&] { return folder.has("out") && folder.read("out") == text; });
    }
    /// Runs events until the program has ended, and gives what it gave back.
    std::int32_t resultOf(const RunningProgram& program)
    {
        EXPECT_TRUE(eventually([&] { return !program.isRunning(); }));
        return program.result();
    }
};

TEST_F(Processes, BeginInTheirFolderWithTheirArguments)
{
    EXPECT_GT(startProcess(script(u"echo \"$1\" >part; mv part out", u"a \"b\" ä")), 0);
    EXPECT_TRUE(eventuallyReads("a \"b\" ä\n"));
}

TEST_F(Processes, AreGivenByTheirPathToo)
{
    folder.write("Tool.sh", "#!/bin/sh\necho tool >part; mv part out\n");
    std::filesystem::permissions(folder.native() / "Tool.sh", std::filesystem::perms::owner_all);
    EXPECT_GT(startProcess({folder.path() + u"TOOL.SH", {}, folder.path()}), 0);
    EXPECT_TRUE(eventuallyReads("tool\n"));
}

TEST_F(Processes, ReadNothingFromTheTerminal)
{
    EXPECT_GT(startProcess(script(u"cat >part; mv part out")), 0);
    EXPECT_TRUE(eventuallyReads(""));
}

TEST_F(Processes, ThatAreNotThereAreNotStarted)
{
    EXPECT_EQ(startProcess({u"there-is-no-such-program"}), 0);
    EXPECT_EQ(startProcess({folder.path() + u"nothing"}), 0);
    EXPECT_EQ(startProcess({u""}), 0);
    EXPECT_EQ(startWatchedProcess({u"there-is-no-such-program"}), nullptr);
    EXPECT_EQ(startWatchedProcess({u""}), nullptr);
}

TEST_F(Processes, AreWatchedUntilTheyEnd)
{
    const auto program = startWatchedProcess(script(u"pwd >part; mv part out; until test -e go; do :; done"));
    ASSERT_TRUE(program);
    EXPECT_TRUE(eventuallyReads(folder.native().string() + "\n"));
    EXPECT_TRUE(program->isRunning());
    folder.write("go", "");
    EXPECT_EQ(resultOf(*program), 0);
}

TEST_F(Processes, GiveBackWhatTheyEndWith)
{
    const auto seven = startWatchedProcess(script(u"exit 7"));
    ASSERT_TRUE(seven);
    EXPECT_EQ(resultOf(*seven), 7);

    const auto broken = startWatchedProcess(script(u"kill -9 $$"));
    ASSERT_TRUE(broken);
    EXPECT_EQ(resultOf(*broken), RunningProgram::Broken);
}

TEST_F(Processes, GoOnWhenNobodyWatchesAnyMore)
{
    // It outlives this program too, which must not count its object as lost.
    startWatchedProcess(script(u"until test -e go; do :; done; echo on >part; mv part out; sleep 1"));
    folder.write("go", "");
    EXPECT_TRUE(eventuallyReads("on\n"));
}

} // namespace
} // namespace phial::qt
