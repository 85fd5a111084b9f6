#include "results/ResultsTest.h"
#include "results/cls_DataEvents.h"
#include "support/MemoryStream.h"
#include "support/Raises.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using test::MemoryStream;
using testing::ElementsAre;

class DataEvents : public ResultsTest
{
protected:
    DataEvents()
    {
        outside.machine().UserName(u"a.meier");
        outside.machine().ComputerName(u"PC-07");
        QVAPP()->USER()->SCREENNAME(u"Anna");
    }

    static std::vector<String> actions(cls_DataEvents& log)
    {
        std::vector<String> result;
        for (std::int32_t position = 1; position <= log.COUNT(); ++position) {
            result.push_back(log.ITEM(position)->ACTION());
        }
        return result;
    }

    /// Two entries with fields that differ.
    void fillWithTwo()
    {
        CoreParameters more;
        more.Set(u"Aufgabe", 3);
        log.ADD(u"Start", &more);
        outside.clock().advance(60);
        log.ADD(u"Ende", nullptr, u"b.huber", u"PC-08", u"Ben");
    }

    cls_DataEvents log;
};

TEST_F(DataEvents, AreAddedWithWhoIsAtTheComputerNow)
{
    CoreParameters more;
    more.Set(u"Aufgabe", 3);
    const Variant added = log.ADD(u"Start", &more);
    more.Set(u"Aufgabe", 4);

    const auto event = log.ITEM(1);
    EXPECT_EQ(added.object(), event);
    EXPECT_EQ(event->ACTION(), u"Start");
    EXPECT_EQ(event->SCREENNAME(), u"Anna");
    EXPECT_EQ(event->USERNAME(), u"a.meier");
    EXPECT_EQ(event->COMPUTER(), u"PC-07");
    EXPECT_EQ(event->TIMESTAMP(), outside.clock().moment());
    EXPECT_EQ(event->ADDITIONAL()->TextLine(), u"Aufgabe = 3");
    EXPECT_EQ(event->DATA()->ID(), Variant());
    EXPECT_EQ(event->DATA()->ClassTag(), u"Phial.cls_DataEvent");
}

TEST_F(DataEvents, AreOfThisMomentWhateverTheyAreTold)
{
    log.ADD(u"Start", nullptr, {}, {}, {}, Moment::fromCalendar({2025, 1, 1}));
    EXPECT_EQ(log.ITEM(1)->TIMESTAMP(), outside.clock().moment());
}

TEST_F(DataEvents, KeepTheNamesTheyAreGiven)
{
    log.ADD(u"Start", nullptr, u"login", u"computer", u"name");
    EXPECT_EQ(log.ITEM(1)->USERNAME(), u"login");
    EXPECT_EQ(log.ITEM(1)->COMPUTER(), u"computer");
    EXPECT_EQ(log.ITEM(1)->SCREENNAME(), u"name");
}

TEST_F(DataEvents, AreCreatedEmptyWithAnId)
{
    const auto event = log.CREATE(Variant(u"first"));
    EXPECT_EQ(log.ITEM(u" FIRST ", false), event);
    EXPECT_EQ(event->ACTION(), u"");
    EXPECT_EQ(log.CREATE()->DATA()->ID(), Variant());
    EXPECT_EQ(log.COUNT(), 2);
}

TEST_F(DataEvents, AreFoundByTheirIds)
{
    log.CREATE(Variant(7));
    log.CREATE(Variant(u"sieben"));
    EXPECT_TRUE(log.EXISTS(7));
    EXPECT_TRUE(log.EXISTS(7.0));
    EXPECT_FALSE(log.EXISTS(u"7"));
    EXPECT_FALSE(log.EXISTS(8));
    EXPECT_EQ(log.ITEM(u"SIEBEN", false), log.ITEM(2));
    EXPECT_RAISES(log.ITEM(u"acht", false), IndexOutOfBounds);
    EXPECT_FALSE(log.EXISTS(u""));
}

TEST_F(DataEvents, AreFoundByTheEmptyTextWhenTheyHaveNoId)
{
    log.CREATE(Variant(u"x"));
    log.ADD(u"Start");
    EXPECT_TRUE(log.EXISTS(u""));
    EXPECT_EQ(log.ITEM(u"", false)->ACTION(), u"Start");
}

TEST_F(DataEvents, TakeTheLastOnesPlaceWhenOneIsRemoved)
{
    for (const StringView action : {u"a", u"b", u"c", u"d"}) {
        log.ADD(action);
    }
    EXPECT_TRUE(log.REMOVE(2, true));
    EXPECT_THAT(actions(log), ElementsAre(u"a", u"d", u"c"));
    EXPECT_TRUE(log.REMOVE(3, true));
    EXPECT_THAT(actions(log), ElementsAre(u"a", u"d"));
    EXPECT_FALSE(log.REMOVE(u"a"));
    EXPECT_FALSE(log.REMOVE(3, true));
}

TEST_F(DataEvents, AreGoneWhenTheLogIsCleared)
{
    fillWithTwo();
    log.CLEAR();
    EXPECT_EQ(log.COUNT(), 0);
    EXPECT_RAISES(log.ITEM(1), IndexOutOfBounds);
}

TEST_F(DataEvents, StoreTheirCountAndThenEachItsValues)
{
    log.DATA()->ID(u"Log");
    log.ADD(u"Start");
    MemoryStream stream;
    log.DATA()->Store(stream);
    EXPECT_THAT(stream.values,
                ElementsAre(Variant(u"2.0"), Variant(u"Log"), Variant(1), Variant(u"2.0"), Variant(),
                            Variant(u"Anna"), Variant(u"a.meier"), Variant(u"PC-07"), Variant(u"Start"),
                            Variant(outside.clock().moment()), Variant(u"QV1;0;")));
}

TEST_F(DataEvents, AreReadBackPackedAndCopiedWhole)
{
    fillWithTwo();
    log.DATA()->ID(u"Log");
    MemoryStream stream;
    log.DATA()->Store(stream);
    cls_DataEvents read;
    read.DATA()->Read(stream);
    cls_DataEvents unpacked;
    unpacked.CREATE();
    unpacked.DATA()->Unpack(log.DATA()->Pack());
    cls_DataEvents copy;
    EXPECT_TRUE(copy.DATA()->Copy(log));
    EXPECT_TRUE(log.SAVE(path(u"event.qv-log")));
    cls_DataEvents loaded;
    EXPECT_TRUE(loaded.LOAD(path(u"event.qv-log")));
    for (cls_DataEvents* other : {&read, &unpacked, &copy, &loaded}) {
        EXPECT_EQ(other->TEXT(), log.TEXT());
        EXPECT_EQ(other->DATA()->ID(), Variant(u"Log"));
        EXPECT_EQ(other->ITEM(2)->TIMESTAMP(), log.ITEM(2)->TIMESTAMP());
        EXPECT_EQ(other->ITEM(2)->DATA()->ID(), log.ITEM(2)->DATA()->ID());
    }
    log.ITEM(1)->ADDITIONAL()->Clear();
    EXPECT_EQ(copy.ITEM(1)->ADDITIONAL()->Count(), 1);
}

TEST_F(DataEvents, PackTheIdAndAnArrayOfTheirOneTextForms)
{
    EXPECT_EQ(log.DATA()->Pack(), u"QV1;2;E0=;A2=0;;");
    log.CREATE();
    EXPECT_EQ(log.ITEM(1)->DATA()->Pack(), u"QV1;7;E0=;T0=;T0=;T0=;T0=;M1=0;T6=QV1;0;;");
}

TEST_F(DataEvents, StayAsTheyWereForAnotherVersion)
{
    fillWithTwo();
    MemoryStream stream({u"2.5", u"", 0});
    log.DATA()->Read(stream);
    EXPECT_EQ(log.COUNT(), 2);
    EXPECT_EQ(stream.next, 1U);

    MemoryStream entry({u"2.5", u"id"});
    log.ITEM(1)->DATA()->Read(entry);
    EXPECT_EQ(log.ITEM(1)->ACTION(), u"Start");
    EXPECT_EQ(entry.next, 1U);
}

TEST_F(DataEvents, StayAsTheyWereForADamagedText)
{
    fillWithTwo();
    EXPECT_RAISES(log.DATA()->Unpack(u"QV1;2;E0=;I1=1;"), TypeMismatch);
    EXPECT_RAISES(log.DATA()->Unpack(u"QV1;2;E0=;A10=1;T4=none;;"), InvalidArgument);
    EXPECT_EQ(log.COUNT(), 2);
}

TEST_F(DataEvents, SpawnRecordsOfTheirOwnClass)
{
    log.CREATE();
    EXPECT_NE(std::dynamic_pointer_cast<cls_DataEvents>(log.DATA()->Spawn()), nullptr);
    EXPECT_NE(std::dynamic_pointer_cast<cls_DataEvent>(log.ITEM(1)->DATA()->Spawn()), nullptr);
    EXPECT_FALSE(log.DATA()->Copy(*log.ITEM(1)));
    EXPECT_FALSE(log.ITEM(1)->DATA()->Copy(log));
}

TEST_F(DataEvents, AreReachedByTheNamesOfTheirMembers)
{
    fillWithTwo();
    EXPECT_EQ(getMember(log, u"count"), Variant(2));
    EXPECT_EQ(getMember(*log.DATABASE()->ItemObj(2, true), u"ACTION"), Variant(u"Ende"));
    EXPECT_RAISES(log.DATABASE()->Import(std::make_shared<cls_DataScore>()), TypeMismatch);
}

TEST_F(DataEvents, AreTheirHeaderLineAloneWhenThereAreNone)
{
    EXPECT_EQ(log.TEXT(), u"LfdNr.\tName\tLogin\tComputer\tDatum\tZeit\tAktion\tZusatz\r\n");
}

TEST_F(DataEvents, AreWrittenWithoutARunningNumber)
{
    fillWithTwo();
    EXPECT_EQ(log.TEXT(), u"LfdNr.\tName\tLogin\tComputer\tDatum\tZeit\tAktion\tZusatz\r\n"
                          u"Anna\ta.meier\tPC-07\t02.03.2026\t08:00:00\tStart\tAufgabe = 3\t\r\n"
                          u"Ben\tb.huber\tPC-08\t02.03.2026\t08:01:00\tEnde\t\t\r\n");
}

TEST_F(DataEvents, LineEndsAndTabsInThemAreBlanks)
{
    log.ADD(u"Start\r\nZeile\t2", nullptr, u"a\nb", u"PC\t7", u"An\rna");
    log.ITEM(1)->TIMESTAMP(Moment{1e12});
    EXPECT_EQ(log.ITEM(1)->TEXTLINE(), u"An na\ta b\tPC 7\t\t\tStart  Zeile 2\t\t");
    EXPECT_EQ(log.ITEM(1)->TEXT(), u"Name: \tAn na\r\n"
                                   u"Login: \ta b\r\n"
                                   u"Rechner: \tPC 7\r\n"
                                   u"Datum: \t\r\n"
                                   u"Uhrzeit: \t\r\n"
                                   u"Aktion: \tStart  Zeile 2\r\n"
                                   u"Zusatz: \t\r\n");
    outside.dialogs().expect(headless::Box::Text, u"1. a b Start  Zeile 2\r\n");
    log.DEBUGSHOW();
}

TEST_F(DataEvents, TellThemselvesInLines)
{
    fillWithTwo();
    EXPECT_EQ(log.ITEM(1)->TEXT(), u"Name: \tAnna\r\n"
                                   u"Login: \ta.meier\r\n"
                                   u"Rechner: \tPC-07\r\n"
                                   u"Datum: \t02.03.2026\r\n"
                                   u"Uhrzeit: \t08:00:00\r\n"
                                   u"Aktion: \tStart\r\n"
                                   u"Zusatz: \tAufgabe = 3\r\n");
}

TEST_F(DataEvents, AreShownByPositionLoginAndAction)
{
    fillWithTwo();
    outside.dialogs().expect(headless::Box::Text, u"1. a.meier Start\r\n2. b.huber Ende\r\n");
    log.DEBUGSHOW();
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Info:");
}

} // namespace

} // namespace phial
