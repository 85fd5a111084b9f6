#include "app/cls_AppURL.h"
#include "core/CoreValuePacker.h"
#include "core/EventPump.h"
#include "core/SessionState.h"
#include "results/cls_DataEvent.h"
#include "results/cls_DataEvents.h"
#include "server/ServerTest.h"
#include "support/ChildProgram.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Events that go to the master, or without one to this computer's file.
class ServerAction : public ServerTest
{
protected:
    ServerAction()
    {
        std::filesystem::create_directories(folder.native() / "highscores");
        QVAPP()->URL()->DATAHIGHSCORES(path(u"highscores\\"));
    }

    void beOffline() { master.isThere(false); }
    String file() const { return path(u"highscores\\event.qv-log"); }

    /// What the file holds, in order.
    std::vector<String> stored() const
    {
        cls_DataEvents events;
        events.LOAD(file());
        std::vector<String> actions;
        for (std::int32_t entry = 1; entry <= events.COUNT(); ++entry) {
            actions.push_back(events.ITEM(entry)->ACTION());
        }
        return actions;
    }

    /// Another program of this computer adds an event.
    void addByAnother(StringView action) const
    {
        cls_DataEvents events;
        events.LOAD(file());
        events.ADD(action);
        events.SAVE(file());
    }

    /// The end of this run and the beginning of the next.
    void beginNextRun()
    {
        QVAPP()->SERVER(nullptr);
        server().INIT();
    }
};

TEST_F(ServerAction, GoesToTheMasterWithFiveValues)
{
    CoreParameters additional;
    additional.Set(u"Points", 7);
    server().ACTION(u"Übung|1", &additional);
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON", u"EVENT:ADD"));
    EXPECT_THAT(CoreValuePacker::unpackAll(master.package()),
                ElementsAre(Variant(u"Übung|1"), Variant(additional.Pack()), Variant(u"Anna"),
                            Variant(u"DESK-1"), Variant(u"pupil")));
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(ServerAction, GoesToTheMasterWithoutFurtherValues)
{
    server().ACTION(u"Start");
    EXPECT_EQ(CoreValuePacker::unpackAll(master.package()).at(1), Variant(CoreParameters().Pack()));
}

TEST_F(ServerAction, GoesToTheFileWithoutAMaster)
{
    beOffline();
    CoreParameters additional;
    additional.Set(u"Points", 7);
    server().ACTION(u"Start", &additional);

    cls_DataEvents events;
    ASSERT_TRUE(events.LOAD(file()));
    ASSERT_EQ(events.COUNT(), 1);
    const auto event = events.ITEM(1);
    EXPECT_EQ(event->ACTION(), u"Start");
    EXPECT_EQ(event->SCREENNAME(), u"Anna");
    EXPECT_EQ(event->USERNAME(), u"pupil");
    EXPECT_EQ(event->COMPUTER(), u"DESK-1");
    EXPECT_EQ(event->ADDITIONAL()->Get(u"points"), Variant(7));
    EXPECT_EQ(event->TIMESTAMP(), outside.clock().moment());
}

TEST_F(ServerAction, IsSavedEachTime)
{
    beOffline();
    server().ACTION(u"1");
    EXPECT_THAT(stored(), ElementsAre(u"1"));
    server().ACTION(u"2");
    EXPECT_THAT(stored(), ElementsAre(u"1", u"2"));
}

TEST_F(ServerAction, LoadsTheFileOnceARun)
{
    beOffline();
    addByAnother(u"earlier");
    const auto stepsOf = [this](StringView action) {
        const int before = outside.files().steps();
        server().ACTION(action);
        return outside.files().steps() - before;
    };
    const int loadAndSave = stepsOf(u"1");
    const int save = stepsOf(u"2");
    EXPECT_LT(save, loadAndSave);
    EXPECT_EQ(stepsOf(u"3"), save);
    EXPECT_THAT(stored(), ElementsAre(u"earlier", u"1", u"2", u"3"));
}

TEST_F(ServerAction, FollowsTheEventsOfTheRunBefore)
{
    beOffline();
    server().ACTION(u"1");
    beginNextRun();
    server().ACTION(u"2");
    EXPECT_THAT(stored(), ElementsAre(u"1", u"2"));
}

TEST_F(ServerAction, KeepsWhatAnotherProgramHasAddedMeanwhile)
{
    beOffline();
    server().ACTION(u"mine 1");
    addByAnother(u"other 1");
    server().ACTION(u"mine 2");
    addByAnother(u"other 2");
    addByAnother(u"other 3");
    server().ACTION(u"mine 3");
    EXPECT_THAT(stored(), ElementsAre(u"mine 1", u"other 1", u"mine 2", u"other 2", u"other 3", u"mine 3"));
}

TEST_F(ServerAction, IsSavedWithTheNextWhereTheDiskWasFull)
{
    beOffline();
    server().ACTION(u"1");
    outside.files().failChanges();
    server().ACTION(u"2");
    outside.files().repair();
    EXPECT_THAT(stored(), ElementsAre(u"1"));
    server().ACTION(u"3");
    EXPECT_THAT(stored(), ElementsAre(u"1", u"2", u"3"));
}

TEST_F(ServerAction, StandsBehindThoseOfOthersWhereItCouldNotBeSaved)
{
    beOffline();
    server().ACTION(u"mine 1");
    outside.files().failChanges();
    server().ACTION(u"mine 2");
    outside.files().repair();
    addByAnother(u"other");
    server().ACTION(u"mine 3");
    EXPECT_THAT(stored(), ElementsAre(u"mine 1", u"other", u"mine 2", u"mine 3"));
}

TEST_F(ServerAction, IsSavedAtTheEndWhereTheDiskWasFull)
{
    beOffline();
    server().ACTION(u"1");
    outside.files().failChanges();
    server().ACTION(u"2");
    outside.files().repair();
    addByAnother(u"other");
    server().DISCONNECT();
    EXPECT_THAT(stored(), ElementsAre(u"1", u"other", u"2"));
    const int steps = outside.files().steps();
    server().DISCONNECT();
    EXPECT_EQ(outside.files().steps(), steps);
}

TEST_F(ServerAction, KeepsADamagedLogAside)
{
    beOffline();
    folder.write("highscores/event.qv-log", "half a fi");
    server().ACTION(u"1");
    EXPECT_THAT(stored(), ElementsAre(u"1"));
    EXPECT_EQ(folder.read("highscores/event.qv-log.damaged"), "half a fi");
    server().ACTION(u"2");
    EXPECT_THAT(stored(), ElementsAre(u"1", u"2"));
    EXPECT_FALSE(folder.has("highscores/event.qv-log.kept"));
}

TEST_F(ServerAction, WaitsWhileTheLogCannotBeRead)
{
    beOffline();
    addByAnother(u"earlier");
    outside.files().fail(headless::FileStep::Read, std::errc::permission_denied);
    server().ACTION(u"1");
    server().ACTION(u"2");
    outside.files().repair();
    EXPECT_THAT(stored(), ElementsAre(u"earlier"));
    server().ACTION(u"3");
    EXPECT_THAT(stored(), ElementsAre(u"earlier", u"1", u"2", u"3"));
    EXPECT_FALSE(folder.has("highscores/event.qv-log.kept"));
}

TEST_F(ServerAction, MayBeCalledWhileItWaitsForTheLock)
{
    beOffline();
    server().CONNECT();
    outside.files().keepLocksBusy();
    int inner = 0;
    const Connection ticking = SessionState::current().platform().pump->startTimer(1000, [&] {
        outside.files().repair();
        server().ACTION(u"inner");
        ++inner;
    });
    server().ACTION(u"outer");
    EXPECT_EQ(inner, 1);
    EXPECT_THAT(stored(), ElementsAre(u"inner", u"outer"));
}

TEST_F(ServerAction, SavesAllItKnowsWhereTheFileHasGone)
{
    beOffline();
    server().ACTION(u"1");
    std::filesystem::remove(folder.native() / "highscores/event.qv-log");
    server().ACTION(u"2");
    EXPECT_THAT(stored(), ElementsAre(u"1", u"2"));
}

TEST_F(ServerAction, DoesNoHarmWhereNoFileCanBeWritten)
{
    beOffline();
    std::filesystem::remove(folder.native() / "highscores");
    server().ACTION(u"1");
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(ServerAction, StaysOnThisComputerWhenAMasterComesLater)
{
    beOffline();
    server().ACTION(u"1");
    master.isThere(true);
    server().RECHECK();
    server().ACTION(u"2");
    EXPECT_THAT(stored(), ElementsAre(u"1"));
    EXPECT_EQ(master.requests().back(), u"EVENT:ADD");
}

TEST_F(ServerAction, IsNotLostBetweenTwoPrograms)
{
    constexpr int Events = 20;
    {
        std::vector<std::unique_ptr<test::ChildProgram>> programs;
        for (const std::string name : {"a", "b", "c"}) {
            programs.push_back(std::make_unique<test::ChildProgram>(
                PHIAL_EVENT_WRITER,
                std::vector<std::string>{toUtf8(folder.path()), name, std::to_string(Events)}));
        }
        for (const auto& program : programs) {
            EXPECT_EQ(program->readLine(), "done");
            EXPECT_EQ(program->finish(), 0);
        }
    }
    std::map<char16_t, std::vector<String>> ofProgram;
    for (const String& action : stored()) {
        ofProgram[action.front()].push_back(action);
    }
    ASSERT_THAT(ofProgram, SizeIs(3));
    for (const auto& [name, actions] : ofProgram) {
        ASSERT_THAT(actions, SizeIs(Events));
        for (int event = 0; event < Events; ++event) {
            EXPECT_EQ(actions[static_cast<std::size_t>(event)], name + fromUtf8(std::to_string(event)));
        }
    }
}

} // namespace

} // namespace phial
