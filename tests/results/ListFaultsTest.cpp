#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "core/CoreParameters.h"
#include "core/KeptRecords.h"
#include "core/NativePath.h"
#include "headless/Hand.h"
#include "results/KeptLists.h"
#include "results/ResultsTest.h"
#include "results/cls_AppRate.h"
#include "results/cls_DataEvents.h"
#include "server/cls_AppServer.h"
#include "support/EveryFault.h"
#include "visual/Form.h"

#include <gmock/gmock-more-matchers.h>
#include <set>

namespace phial
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int OldEntries = 50;

/// Lists with fifty entries on a computer without a master, whose disk refuses one step.
class ListFaults : public ResultsTest
{
protected:
    ListFaults()
    {
        std::filesystem::create_directories(lists());
        QVAPP()->URL()->DATAHIGHSCORES(path(u"lists\\"));
        QVAPP()->USER()->SCREENNAME(u"new");
        QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", true);
    }

    std::filesystem::path lists() const { return folder.native() / "lists"; }

    /// Puts a list or a log with the old entries into the empty folder.
    template <typename List, typename Add>
    void layOut(const char* name, const Add& addEntry)
    {
        for (const std::string& file : folder.names("lists")) {
            std::filesystem::remove(lists() / file);
        }
        List list;
        for (int entry = 1; entry <= OldEntries; ++entry) {
            addEntry(list, u"old" + Variant(entry).toText(), entry);
        }
        ASSERT_TRUE(list.SAVE(path(u"lists\\") + fromUtf8(name)));
    }
    void layOutScores(const char* name)
    {
        layOut<cls_DataScores>(name, [](cls_DataScores& list, const String& entry, int points) {
            list.MAXIMUM(OldEntries + 10);
            add(list, entry, points);
        });
    }

    /// The names in a file; empty when it is no list.
    std::set<String> namesIn(const std::string& file)
    {
        cls_DataScores list;
        list.LOAD(path(u"lists\\") + fromUtf8(file));
        const auto found = names(list);
        return {found.begin(), found.end()};
    }
    std::set<String> actionsIn(const std::string& file)
    {
        cls_DataEvents log;
        log.LOAD(path(u"lists\\") + fromUtf8(file));
        std::set<String> found;
        for (std::int32_t entry = 1; entry <= log.COUNT(); ++entry) {
            found.insert(log.ITEM(entry)->ACTION());
        }
        return found;
    }

    static int oldOnes(const std::set<String>& entries)
    {
        return static_cast<int>(
            std::ranges::count_if(entries, [](const String& entry) { return entry.starts_with(u"old"); }));
    }
    /// The files of the folder but that one, each of which people must have been told of.
    std::vector<std::string> filesBeside(const std::string& name)
    {
        std::vector<std::string> beside;
        for (const std::string& file : folder.names("lists")) {
            if (file != name && file != "results.qv-rsl") {
                beside.push_back(file);
                EXPECT_TRUE(isTold(file)) << file;
            }
        }
        return beside;
    }
    static bool isTold(const std::string& file)
    {
        return std::ranges::any_of(keptRecords().all(), [&](const KeptRecord& record) {
            return record.keptAs.ends_with(u"\\" + fromUtf8(file));
        });
    }
};

TEST_F(ListFaults, NoEntryIsLostBySubmitting)
{
    const std::string list = "HIGHSCORE.qv-hsr";
    HandedIn result;
    const int faults = test::withEveryFault(
        outside.files(), [&] { layOutScores(list.c_str()); },
        [&] { result = QVAPP()->RATE()->handIn(7, 100, u"", nullptr, u"HIGHSCORE", false, OldEntries + 10); },
        [&] {
            std::set<String> entries = namesIn(list);
            EXPECT_EQ(entries.contains(u"new"), result.listed == ResultPlace::ThisComputer);
            for (const std::string& file : filesBeside(list)) {
                entries.merge(namesIn(file));
            }
            EXPECT_EQ(oldOnes(entries), OldEntries);
        });
    EXPECT_GE(faults, 60);
}

TEST_F(ListFaults, NoResultIsLostByAnotherOne)
{
    const std::string list = "results.qv-rsl";
    test::withEveryFault(
        outside.files(), [&] { layOutScores(list.c_str()); }, [] { QVAPP()->RATE()->RESULT(7, 100, u""); },
        [&] {
            std::set<String> entries = namesIn(list);
            for (const std::string& file : folder.names("lists")) {
                EXPECT_TRUE(file == list || isTold(file));
                entries.merge(namesIn(file));
            }
            EXPECT_EQ(oldOnes(entries), OldEntries);
        });
}

TEST_F(ListFaults, NoEventIsLostByANewOne)
{
    const std::string log = "event.qv-log";
    const auto layOutLog = [&] {
        QVAPP()->SERVER(nullptr);
        layOut<cls_DataEvents>(log.c_str(),
                               [](cls_DataEvents& list, const String& action, int) { list.ADD(action); });
    };
    const int faults = test::withEveryFault(
        outside.files(), layOutLog, [] { QVAPP()->SERVER()->ACTION(u"first"); },
        [&] {
            QVAPP()->SERVER()->ACTION(u"second");
            std::set<String> entries = actionsIn(log);
            EXPECT_TRUE(entries.contains(u"first"));
            EXPECT_TRUE(entries.contains(u"second"));
            for (const std::string& file : filesBeside(log)) {
                entries.merge(actionsIn(file));
            }
            EXPECT_EQ(oldOnes(entries), OldEntries);
        });
    EXPECT_GE(faults, 30);
}

TEST_F(ListFaults, NoEventIsDoubled)
{
    const auto layOutLog = [&] {
        QVAPP()->SERVER(nullptr);
        layOut<cls_DataEvents>("event.qv-log",
                               [](cls_DataEvents& list, const String& action, int) { list.ADD(action); });
        QVAPP()->SERVER()->ACTION(u"first");
    };
    test::withEveryFault(
        outside.files(), layOutLog, [] { QVAPP()->SERVER()->ACTION(u"second"); },
        [&] {
            QVAPP()->SERVER()->ACTION(u"third");
            cls_DataEvents log;
            EXPECT_TRUE(log.LOAD(path(u"lists\\event.qv-log")));
            EXPECT_EQ(log.COUNT(), OldEntries + 3);
        });
}

TEST_F(ListFaults, NoEntryIsLostToAFullDisk)
{
    const std::string list = "HIGHSCORE.qv-hsr";
    for (std::size_t room = 0; room < 20'000; room += 1'111) {
        layOutScores(list.c_str());
        outside.files().freeBytes(room);
        const HandedIn result =
            QVAPP()->RATE()->handIn(7, 100, u"", nullptr, u"HIGHSCORE", false, OldEntries + 10);
        outside.files().repair();
        EXPECT_EQ(oldOnes(namesIn(list)), OldEntries);
        EXPECT_EQ(namesIn(list).contains(u"new"), result.listed == ResultPlace::ThisComputer);
        EXPECT_THAT(filesBeside(list), IsEmpty());
    }
}

TEST_F(ListFaults, LookingLosesNothingAndMovesNothing)
{
    const std::string list = "HIGHSCORE.qv-hsr";
    std::string before;
    test::withEveryFault(
        outside.files(),
        [&] {
            layOutScores(list.c_str());
            before = folder.read("lists/" + list);
            outside.visual().onModal(u"frm_DialogHighscore", [](Form& form) { form.Unload(); });
        },
        [] { QVAPP()->RATE()->HIGHSCORELIST(); },
        [&] {
            EXPECT_EQ(folder.read("lists/" + list), before);
            EXPECT_THAT(folder.names("lists"), ElementsAre(list));
        });
}

TEST_F(ListFaults, AListThatVanishesForAMomentIsKeptAside)
{
    layOutScores("HIGHSCORE.qv-hsr");
    cls_DataScores list;
    std::filesystem::rename(lists() / "HIGHSCORE.qv-hsr", lists() / "away");
    EXPECT_FALSE(list.LOAD(path(u"lists\\HIGHSCORE.qv-hsr")));
    std::filesystem::rename(lists() / "away", lists() / "HIGHSCORE.qv-hsr");
    add(list, u"new", 7);
    EXPECT_TRUE(list.SAVE(path(u"lists\\HIGHSCORE.qv-hsr")));
    EXPECT_EQ(oldOnes(namesIn("HIGHSCORE.qv-hsr.kept")), OldEntries);
}

TEST_F(ListFaults, AListInAnotherSpellingThatVanishesForAMomentIsKeptAside)
{
    layOutScores("Highscore.qv-hsr");
    cls_DataScores list;
    std::filesystem::rename(lists() / "Highscore.qv-hsr", lists() / "away");
    EXPECT_FALSE(list.LOAD(path(u"lists\\HIGHSCORE.qv-hsr")));
    std::filesystem::rename(lists() / "away", lists() / "Highscore.qv-hsr");
    add(list, u"new", 7);
    EXPECT_TRUE(list.SAVE(path(u"lists\\HIGHSCORE.qv-hsr")));
    EXPECT_EQ(oldOnes(namesIn("Highscore.qv-hsr.kept")), OldEntries);
    EXPECT_TRUE(namesIn("Highscore.qv-hsr").contains(u"new"));
}

TEST_F(ListFaults, AListThatHasVanishedIsTold)
{
    layOutScores("HIGHSCORE.qv-hsr");
    QVAPP()->RATE()->HIGHSCORE();
    std::filesystem::remove(lists() / "HIGHSCORE.qv-hsr");
    QVAPP()->RATE()->SUBMIT(7, 100, u"", nullptr, u"HIGHSCORE", false);
    ASSERT_EQ(keptRecords().all().size(), 1U);
    EXPECT_EQ(keptRecords().all().front().reason, KeptRecord::Reason::Gone);
    QVAPP()->RATE()->SUBMIT(8, 100, u"", nullptr, u"HIGHSCORE", false);
    EXPECT_EQ(keptRecords().all().size(), 1U);
}

TEST_F(ListFaults, LookingAtAListThatHasVanishedMakesNoNewOne)
{
    for (const char* name : {"HIGHSCORE.qv-hsr", "Highscore.qv-hsr"}) {
        layOutScores(name);
        QVAPP()->RATE()->HIGHSCORE();
        std::filesystem::remove(lists() / name);
        for (int look = 0; look < 2; ++look) {
            outside.visual().onModal(u"frm_DialogHighscore", [](Form& form) { form.Unload(); });
            QVAPP()->RATE()->HIGHSCORELIST();
            EXPECT_THAT(folder.names("lists"), IsEmpty()) << name << look;
        }
    }
}

TEST_F(ListFaults, WhatAnotherListObjectHasSavedSinceIsKeptAside)
{
    const String file = path(u"lists\\HIGHSCORE.qv-hsr");
    layOutScores("HIGHSCORE.qv-hsr");
    cls_DataScores first;
    cls_DataScores second;
    ASSERT_TRUE(first.LOAD(file));
    ASSERT_TRUE(second.LOAD(file));
    add(first, u"first", 1);
    add(second, u"second", 2);
    EXPECT_TRUE(first.SAVE(file));
    EXPECT_TRUE(second.SAVE(file));
    EXPECT_TRUE(namesIn("HIGHSCORE.qv-hsr").contains(u"second"));
    EXPECT_TRUE(namesIn("HIGHSCORE.qv-hsr.kept").contains(u"first"));
    EXPECT_TRUE(second.SAVE(file));
    EXPECT_FALSE(folder.has("lists/HIGHSCORE.qv-hsr.kept2"));
}

TEST_F(ListFaults, APathWithNulIsNeitherLoadedNorSaved)
{
    cls_DataScores list;
    add(list, u"new", 7);
    const String nul = path(String(u"lists\\a\0b.qv-hsr", 16));
    EXPECT_FALSE(list.LOAD(nul));
    EXPECT_FALSE(list.SAVE(nul));
    EXPECT_FALSE(list.SAVE(nul));
    EXPECT_THAT(folder.names("lists"), IsEmpty());
}

TEST_F(ListFaults, PeopleAreToldOnceInTheirLanguage)
{
    LNG()->CURRENT(ID_Language_German);
    EXPECT_EQ(untoldKeptLists(), u"");
    folder.write("lists/HIGHSCORE.qv-hsr", "half a fi");
    QVAPP()->RATE()->SUBMIT(7, 100, u"", nullptr, u"HIGHSCORE", false);
    EXPECT_EQ(untoldKeptLists(),
              u"Die Liste „HIGHSCORE.qv-hsr“ war beschädigt. Sie ist als „HIGHSCORE.qv-hsr.damaged“ "
              u"aufgehoben.\rEine neue Liste hat begonnen. Bitte sage deiner Lehrkraft Bescheid.\r(" +
                  path(u"lists\\") + u")");
    EXPECT_EQ(untoldKeptLists(), u"");
    LNG()->CURRENT(ID_Language_English);
    std::filesystem::remove(lists() / "HIGHSCORE.qv-hsr");
    QVAPP()->RATE()->HIGHSCORE();
    EXPECT_EQ(untoldKeptLists(),
              u"The list “HIGHSCORE.qv-hsr” has disappeared.\rA new list has begun. Please "
              u"tell your teacher.\r(" +
                  path(u"lists\\") + u")");
}

} // namespace
} // namespace phial
