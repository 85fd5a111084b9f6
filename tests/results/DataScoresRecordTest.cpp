#include "results/ResultsTest.h"
#include "support/MemoryStream.h"
#include "support/Raises.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using test::MemoryStream;
using testing::ElementsAre;
using testing::IsEmpty;

/// A score list as it is stored, packed and copied.
class DataScoresRecord : public ResultsTest
{
protected:
    /// Two entries and no field as it is at first.
    DataScoresRecord()
    {
        list.DATA()->ID(u"Liste");
        fill(list, {40, 30});
        list.MAXIMUM(7);
        list.ONCE(true);
        list.LIVE(true);
        list.MODE(enm_ScoreListMode::ID_ScoreList_ResultList);
    }

    static void expectSame(cls_DataScores& other)
    {
        EXPECT_EQ(other.DATA()->ID(), Variant(u"Liste"));
        EXPECT_EQ(other.MAXIMUM(), 7);
        EXPECT_TRUE(other.ONCE());
        EXPECT_TRUE(other.LIVE());
        EXPECT_EQ(other.MODE(), enm_ScoreListMode::ID_ScoreList_ResultList);
        EXPECT_THAT(names(other), ElementsAre(u"1", u"2"));
        EXPECT_EQ(other.ITEM(1)->POINTS(), 40);
        EXPECT_EQ(other.ITEM(2)->UEBM(), u"Salze");
    }

    cls_DataScores list;
};

TEST_F(DataScoresRecord, NamesItsClassAfterTheProgram)
{
    EXPECT_EQ(list.DATA()->ClassTag(), u"Phial.cls_DataScores");
}

TEST_F(DataScoresRecord, StoresItsFieldsItsCountAndItsEntries)
{
    MemoryStream stream;
    list.DATA()->Store(stream);
    ASSERT_EQ(stream.values.size(), 7U + 2 * 11);
    EXPECT_THAT(std::vector<Variant>(stream.values.begin(), stream.values.begin() + 8),
                ElementsAre(Variant(u"2.0"), Variant(u"Liste"), Variant(7), Variant(true), Variant(true),
                            Variant(2), Variant(2), Variant(u"2.5")));
}

TEST_F(DataScoresRecord, StoresAnEmptyListWithTheCountZero)
{
    cls_DataScores empty;
    MemoryStream stream;
    empty.DATA()->Store(stream);
    EXPECT_THAT(stream.values, ElementsAre(Variant(u"2.0"), Variant(), Variant(10), Variant(false),
                                           Variant(false), Variant(1), Variant(0)));
}

TEST_F(DataScoresRecord, ReadsBackWhatItStored)
{
    MemoryStream stream;
    list.DATA()->Store(stream);
    cls_DataScores read;
    fill(read, {1, 2, 3});
    read.DATA()->Read(stream);
    expectSame(read);
}

TEST_F(DataScoresRecord, HoldsEntriesOfBothVersions)
{
    const Moment moment{46000.5};
    MemoryStream stream({u"2.0",   u"",  10, false,   false, 1,   2,                                 //
                         u"2.0",   u"a", 1,  u"Anna", u"",   u"", 9.0,      10.0, moment, u"QV1;0;", //
                         u"2.5",   u"b", 2,  u"Ben",  u"",   u"", u"Salze", 8.0,  10.0,   moment,
                         u"QV1;0;"}); //
    cls_DataScores read;
    read.DATA()->Read(stream);
    EXPECT_THAT(names(read), ElementsAre(u"Anna", u"Ben"));
    EXPECT_EQ(read.ITEM(1)->UEBM(), u"");
    EXPECT_EQ(read.ITEM(1)->POINTS(), 9);
    EXPECT_EQ(read.ITEM(2)->UEBM(), u"Salze");
}

TEST_F(DataScoresRecord, LosesItsPlaceBehindAnEntryOfAnUnknownVersion)
{
    MemoryStream stream({u"2.0", u"", 10, false, false, 1, 2, u"3.0", u"2.5", u"b", 2});
    cls_DataScores read;
    EXPECT_THROW(read.DATA()->Read(stream), RuntimeError);
    EXPECT_EQ(read.COUNT(), 2);
    EXPECT_EQ(read.ITEM(1)->SCREENNAME(), u"");
    EXPECT_EQ(read.ITEM(2)->RANK(), 2);
}

TEST_F(DataScoresRecord, StaysAsItWasForAnotherVersion)
{
    for (const StringView version : {u"1.0", u"2.5", u"3.0", u""}) {
        MemoryStream stream({version, u"other", 1, false, false, 1, 0});
        list.DATA()->Read(stream);
        EXPECT_EQ(stream.next, 1U);
        expectSame(list);
    }
}

TEST_F(DataScoresRecord, RefusesACountThatNoListHas)
{
    for (const std::int32_t count : {-1, 2'000'000'000}) {
        MemoryStream stream({u"2.0", u"", 10, false, false, 1, count});
        EXPECT_RAISES(list.DATA()->Read(stream), IndexOutOfBounds);
    }
    EXPECT_EQ(list.COUNT(), 2);
}

TEST_F(DataScoresRecord, UnpacksWhatItPacked)
{
    cls_DataScores unpacked;
    fill(unpacked, {1, 2, 3});
    unpacked.DATA()->Unpack(list.DATA()->Pack());
    expectSame(unpacked);
}

TEST_F(DataScoresRecord, PacksSixValuesTheLastWithAllEntries)
{
    list.CLEAR();
    EXPECT_EQ(list.DATA()->Pack(), u"QV1;6;T5=Liste;I1=7;B2=-1;B2=-1;I1=2;T0=;");
    list.DATABASE()->Import(std::make_shared<cls_DataScore>());
    list.DATABASE()->Import(std::make_shared<cls_DataScore>());
    const String entry = list.ITEM(1)->DATA()->Pack();
    EXPECT_NE(list.DATA()->Pack().find(u"%007BNEXT_ITEM}"), String::npos);
    cls_DataScores unpacked;
    unpacked.DATA()->Unpack(list.DATA()->Pack());
    EXPECT_EQ(unpacked.COUNT(), 2);
    EXPECT_EQ(unpacked.ITEM(2)->DATA()->Pack(), entry);
}

TEST_F(DataScoresRecord, UnpacksAnEmptyListWithoutEntries)
{
    EXPECT_EQ(cls_DataScores().DATA()->Pack(), u"QV1;6;E0=;I2=10;B1=0;B1=0;I1=1;T0=;");
    cls_DataScores unpacked;
    fill(unpacked, {1, 2, 3});
    unpacked.DATA()->Unpack(cls_DataScores().DATA()->Pack());
    EXPECT_EQ(unpacked.COUNT(), 0);
}

TEST_F(DataScoresRecord, SurvivesNamesThatLookLikeTheSeparator)
{
    cls_DataScores odd;
    add(odd, u"{NEXT_ITEM}", 5);
    add(odd, u"a;b\r\n|::", 4);
    cls_DataScores unpacked;
    unpacked.DATA()->Unpack(odd.DATA()->Pack());
    EXPECT_THAT(names(unpacked), ElementsAre(u"{NEXT_ITEM}", u"a;b\r\n|::"));
}

TEST_F(DataScoresRecord, StaysAsItWasForADamagedText)
{
    EXPECT_RAISES(list.DATA()->Unpack(u"QV1;1;I1=1;"), InvalidArgument);
    EXPECT_RAISES(list.DATA()->Unpack(u"QV1;6;T1=x;I1=9;B1=0;B1=0;I1=1;T7=nothing;"), InvalidArgument);
    expectSame(list);
}

TEST_F(DataScoresRecord, IsCopiedDeeply)
{
    cls_DataScores copy;
    fill(copy, {1, 2, 3});
    EXPECT_TRUE(copy.DATA()->Copy(list));
    expectSame(copy);
    list.ITEM(1)->POINTS(0);
    EXPECT_EQ(copy.ITEM(1)->POINTS(), 40);
    EXPECT_TRUE(copy.DATA()->Copy(copy));
    expectSame(copy);
}

TEST_F(DataScoresRecord, IsNotCopiedFromARecordOfAnotherClass)
{
    EXPECT_FALSE(list.DATA()->Copy(*list.ITEM(1)));
    EXPECT_RAISES(list.DATABASE()->Import(std::make_shared<cls_DataScores>()), TypeMismatch);
    expectSame(list);
}

TEST_F(DataScoresRecord, SpawnsAnEmptyList)
{
    const auto spawned = std::dynamic_pointer_cast<cls_DataScores>(list.DATA()->Spawn());
    ASSERT_NE(spawned, nullptr);
    EXPECT_EQ(spawned->COUNT(), 0);
    EXPECT_EQ(spawned->MAXIMUM(), 10);
}

TEST_F(DataScoresRecord, ImportsAnEntryWithAnId)
{
    const auto entry = std::make_shared<cls_DataScore>();
    entry->ID(u"own");
    list.DATABASE()->Import(entry);
    EXPECT_EQ(entry->ID(), u"own");
    list.DATABASE()->Import(entry, Variant(u"given"));
    EXPECT_EQ(entry->ID(), u"given");
    EXPECT_EQ(list.COUNT(), 4);
    EXPECT_EQ(list.DATABASE()->ItemObj(4, true), entry);
}

TEST_F(DataScoresRecord, IsLoadedAsItWasSaved)
{
    EXPECT_TRUE(list.SAVE(path(u"liste.qv-hsr")));
    cls_DataScores loaded;
    EXPECT_TRUE(loaded.LOAD(path(u"liste.qv-hsr")));
    expectSame(loaded);
}

TEST_F(DataScoresRecord, StaysAsItWasWhenItsFileIsMissing)
{
    EXPECT_FALSE(list.LOAD(path(u"keine.qv-hsr")));
    expectSame(list);
}

TEST_F(DataScoresRecord, IsNotSavedWhereNothingCanBeWritten)
{
    EXPECT_FALSE(list.SAVE(path(u"keinOrdner\\liste.qv-hsr")));
}

TEST_F(DataScoresRecord, SavesAnEmptyList)
{
    cls_DataScores empty;
    EXPECT_TRUE(empty.SAVE(path(u"leer.qv-hsr")));
    EXPECT_TRUE(list.LOAD(path(u"leer.qv-hsr")));
    EXPECT_THAT(names(list), IsEmpty());
    EXPECT_EQ(list.MODE(), enm_ScoreListMode::ID_ScoreList_Highscore);
}

TEST_F(DataScoresRecord, RaisesAnErrorThroughAHeaderOrEngineThatOutlivesIt)
{
    auto shortLived = std::make_unique<cls_DataScores>();
    const auto header = shortLived->DATA();
    const auto engine = shortLived->DATABASE();
    shortLived.reset();
    EXPECT_RAISES(header->Pack(), ObjectNotSet);
    EXPECT_RAISES(engine->Count(), ObjectNotSet);
}

} // namespace

} // namespace phial
