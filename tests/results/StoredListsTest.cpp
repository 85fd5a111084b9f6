#include "core/CoreDataFile.h"
#include "core/NativePath.h"
#include "core/RecordFormat.h"
#include "results/ResultsTest.h"
#include "results/cls_DataEvents.h"
#include "support/MemoryStream.h"
#include "support/Places.h"

#include <fstream>
#include <gmock/gmock-matchers.h>
#include <iterator>

namespace phial
{
namespace
{

using testing::ElementsAre;

/// Lists in files, among them those of earlier programs in tests/vectors/records.
class StoredLists : public ResultsTest
{
protected:
    /// A copy of a stored file in the test's folder.
    String stored(const std::string& name) const
    {
        std::filesystem::copy_file(test::vectorsFolder() / "records" / name, folder.native() / name);
        return path(fromUtf8(name));
    }

    cls_DataScores list;
};

TEST_F(StoredLists, ItemsOfTheOlderVersionHaveNoExercise)
{
    ASSERT_TRUE(list.LOAD(stored("items_2.0.qv-hsr")));
    EXPECT_EQ(list.DATA()->ID(), Variant(u"Molmasse"));
    EXPECT_EQ(list.MAXIMUM(), 10);
    EXPECT_THAT(names(list), ElementsAre(u"Jürgen Weiß", u"Zoë Çelik"));
    const auto second = list.ITEM(2);
    EXPECT_EQ(second->UEBM(), u"");
    EXPECT_EQ(second->ID(), u"a2");
    EXPECT_EQ(second->RANK(), 2);
    EXPECT_EQ(second->COMPUTER(), u"PC-ZOE");
    EXPECT_EQ(second->POINTS(), 21);
    EXPECT_EQ(second->POINTSMAX(), 40);
    EXPECT_EQ(second->TIMESTAMP(), Moment{38778.5});
    EXPECT_EQ(second->ADDITIONAL()->Get(u"ZEIT", 0), Variant(95));
}

TEST_F(StoredLists, ItemsOfTheNewerVersionHaveTheirExercise)
{
    ASSERT_TRUE(list.LOAD(stored("items_2.5.qv-hsr")));
    EXPECT_THAT(names(list), ElementsAre(u"Łucja Żak", u"Anna"));
    EXPECT_EQ(list.ITEM(1)->UEBM(), u"Salze");
    EXPECT_EQ(list.ITEM(2)->UEBM(), u"Säuren");
    EXPECT_EQ(list.ITEM(2)->POINTS(), 12.25);
}

TEST_F(StoredLists, OneListHoldsItemsOfBothVersions)
{
    ASSERT_TRUE(list.LOAD(stored("items_of_both.qv-hsr")));
    EXPECT_THAT(names(list), ElementsAre(u"Anna", u"Ben", u"Clara"));
    EXPECT_EQ(list.ITEM(1)->UEBM(), u"Salze");
    EXPECT_EQ(list.ITEM(2)->UEBM(), u"");
    EXPECT_EQ(list.ITEM(3)->UEBM(), u"H₂O");
}

TEST_F(StoredLists, SavingMakesAllItemsOnesOfTheNewerVersion)
{
    const String file = stored("items_of_both.qv-hsr");
    ASSERT_TRUE(list.LOAD(file));
    ASSERT_TRUE(list.SAVE(file));
    const std::string bytes = folder.read("items_of_both.qv-hsr");
    EXPECT_EQ(bytes.rfind("2.0"), bytes.find("2.0")); // the list's own
    cls_DataScores again;
    ASSERT_TRUE(again.LOAD(file));
    EXPECT_THAT(names(again), ElementsAre(u"Anna", u"Ben", u"Clara"));
    EXPECT_THAT(folder.names(), testing::Contains("items_of_both.qv-hsr"));
    EXPECT_FALSE(folder.has("items_of_both.qv-hsr.kept"));
}

TEST_F(StoredLists, AListWithItemsOfTheNewerVersionIsSavedByteForByte)
{
    const String file = stored("items_2.5.qv-hsr");
    const std::string bytes = folder.read("items_2.5.qv-hsr");
    ASSERT_TRUE(list.LOAD(file));
    ASSERT_TRUE(list.SAVE(file));
    EXPECT_EQ(folder.read("items_2.5.qv-hsr"), bytes);
}

TEST_F(StoredLists, AnEmptyListReplacesWhatWasThere)
{
    add(list, u"Anna", 3);
    ASSERT_TRUE(list.LOAD(stored("empty.qv-hsr")));
    EXPECT_EQ(list.COUNT(), 0);
}

TEST_F(StoredLists, AListOfALaterVersionIsPassedOverAndKeptByTheNextSave)
{
    const String file = stored("list_2.1.qv-hsr");
    const std::string later = folder.read("list_2.1.qv-hsr");
    add(list, u"Anna", 3);
    EXPECT_TRUE(list.LOAD(file));
    EXPECT_THAT(names(list), ElementsAre(u"Anna"));
    EXPECT_TRUE(list.SAVE(file));
    EXPECT_EQ(folder.read("list_2.1.qv-hsr.kept"), later);
    cls_DataScores again;
    EXPECT_TRUE(again.LOAD(file));
    EXPECT_THAT(names(again), ElementsAre(u"Anna"));
}

TEST_F(StoredLists, TheEventLogIsReadToo)
{
    cls_DataEvents log;
    ASSERT_TRUE(log.LOAD(stored("event.qv-log")));
    ASSERT_EQ(log.COUNT(), 2);
    EXPECT_EQ(log.ITEM(2)->SCREENNAME(), u"Łucja");
    EXPECT_EQ(log.ITEM(2)->ACTION(), u"Ende");
    EXPECT_EQ(log.ITEM(2)->ADDITIONAL()->Get(u"CODE", 0), Variant(7));
}

TEST_F(StoredLists, ADamagedListIsNotLoadedAndIsKeptByTheNextSave)
{
    const String file = stored("items_2.5.qv-hsr");
    std::string bytes = folder.read("items_2.5.qv-hsr");
    bytes[100] = static_cast<char>(bytes[100] ^ 1);
    folder.write("items_2.5.qv-hsr", bytes);
    add(list, u"Anna", 3);
    EXPECT_FALSE(list.LOAD(file));
    EXPECT_THAT(names(list), ElementsAre(u"Anna"));
    EXPECT_TRUE(list.SAVE(file));
    EXPECT_EQ(folder.read("items_2.5.qv-hsr.damaged"), bytes);
}

TEST_F(StoredLists, OfAFileWithAnyDamageNothingIsLoaded)
{
    const String file = stored("items_2.5.qv-hsr");
    const std::string whole = folder.read("items_2.5.qv-hsr");
    add(list, u"Anna", 3);
    const std::string before = toUtf8(list.DATA()->Pack());
    const auto refuses = [&](const std::string& bytes) {
        folder.write("items_2.5.qv-hsr", bytes);
        return !list.LOAD(file) && folder.read("items_2.5.qv-hsr") == bytes;
    };
    for (std::size_t at = 0; at < whole.size(); ++at) {
        EXPECT_TRUE(refuses(whole.substr(0, at))) << "cut at " << at;
        for (int bit = 0; bit < 8; ++bit) {
            std::string damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ 1 << bit);
            EXPECT_TRUE(refuses(damaged)) << "byte " << at << ", bit " << bit;
        }
    }
    EXPECT_EQ(toUtf8(list.DATA()->Pack()), before);
    EXPECT_THAT(folder.names(), testing::Contains("items_2.5.qv-hsr"));
}

TEST_F(StoredLists, AListWithItemsOfALaterVersionIsKeptByTheNextSave)
{
    const String file = path(u"later.qv-hsr");
    CoreDataFile later;
    later.Open(file, DataFileMode::Write);
    later.Write(u"2.0", u"Molmasse", 10, false, false, 1, 1);
    later.Write(u"2.6", u"e1", 1, u"Anna", u"anna", u"PC-ANNA", u"Salze", 30.0, 40.0, Moment{45292.75},
                u"QV1;0;");
    later.Write(u"of a later program");
    later.Close();
    const std::string bytes = folder.read("later.qv-hsr");

    EXPECT_TRUE(list.LOAD(file));
    add(list, u"Ben", 3);
    EXPECT_TRUE(list.SAVE(file));
    EXPECT_EQ(folder.read("later.qv-hsr.kept"), bytes);
    EXPECT_TRUE(list.SAVE(file));
    EXPECT_TRUE(list.LOAD(file));
    EXPECT_TRUE(list.SAVE(file));
    EXPECT_FALSE(folder.has("later.qv-hsr.kept2"));
}

TEST_F(StoredLists, AListWhoseLoadFailedIsKeptByTheNextSave)
{
    const String file = path(u"short.qv-hsr");
    CoreDataFile shortList;
    shortList.Open(file, DataFileMode::Write);
    shortList.Write(u"2.0", u"Molmasse", 10, false, false, 1, 3, u"2.5", u"f1", 1, u"Anna");
    shortList.Close();
    const std::string bytes = folder.read("short.qv-hsr");

    EXPECT_FALSE(list.LOAD(file));
    EXPECT_TRUE(list.SAVE(file));
    EXPECT_EQ(folder.read("short.qv-hsr.kept"), bytes);
}

TEST_F(StoredLists, AListThatTheDiskDidNotGiveIsKeptByTheNextSave)
{
    const String file = stored("items_2.5.qv-hsr");
    const std::string bytes = folder.read("items_2.5.qv-hsr");
    outside.files().fail(headless::FileStep::Read);
    EXPECT_FALSE(list.LOAD(file));
    outside.files().repair();
    add(list, u"Ben", 3);
    EXPECT_TRUE(list.SAVE(file));
    EXPECT_EQ(folder.read("items_2.5.qv-hsr.kept"), bytes);
}

TEST_F(StoredLists, WhatWasHalfReadElsewhereDoesNotMatter)
{
    EXPECT_TRUE(list.LOAD(stored("list_2.1.qv-hsr")));
    const String other = stored("items_2.5.qv-hsr");
    EXPECT_TRUE(list.SAVE(other));
    EXPECT_THAT(folder.names(), ElementsAre("items_2.5.qv-hsr", "list_2.1.qv-hsr"));
}

/// The values of a record with that many entries.
template <typename List, typename Entry>
std::size_t valuesOf(int entries)
{
    List list;
    for (int entry = 0; entry < entries; ++entry) {
        list.DATABASE()->Import(std::make_shared<Entry>());
    }
    test::MemoryStream stream;
    list.DATA()->Store(stream);
    return stream.values.size();
}

TEST_F(StoredLists, TheBoundsOnTheirEntriesAreThoseOfTheDocumentation)
{
    const auto most = [](std::size_t ofNone, std::size_t ofOne) {
        return (record_format::MaxValues - ofNone) / (ofOne - ofNone);
    };
    EXPECT_EQ(most(valuesOf<cls_DataScores, cls_DataScore>(0), valuesOf<cls_DataScores, cls_DataScore>(1)),
              381'299U);
    EXPECT_EQ(most(valuesOf<cls_DataEvents, cls_DataEvent>(0), valuesOf<cls_DataEvents, cls_DataEvent>(1)),
              524'287U);
    std::ifstream stream(test::sourceFolder() / "docs" / "formats.md");
    const std::string page{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_THAT(page, testing::HasSubstr("381 299 scores or 524 287 events"));
}

TEST_F(StoredLists, APasswordNeedsSealing)
{
    add(list, u"Anna", 3);
    EXPECT_FALSE(list.SAVE(path(u"geheim.qv-hsr"), u"geheim"));
    EXPECT_FALSE(folder.has("geheim.qv-hsr"));
    ASSERT_TRUE(list.SAVE(path(u"offen.qv-hsr")));
    EXPECT_FALSE(list.LOAD(path(u"offen.qv-hsr"), u"geheim"));
}

} // namespace
} // namespace phial
