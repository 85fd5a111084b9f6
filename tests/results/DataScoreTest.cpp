#include "results/cls_DataScore.h"
#include "support/MemoryStream.h"
#include "support/Raises.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <limits>

namespace phial
{

namespace
{

using test::MemoryStream;
using testing::ElementsAre;

const Moment Evening = Moment::fromCalendar({2026, 3, 2, 18, 5, 9});

void fill(cls_DataScore& score)
{
    score.ID(u"id-7");
    score.RANK(3);
    score.SCREENNAME(u"Anna | {B}");
    score.USERNAME(u"a.meier");
    score.COMPUTER(u"PC-07");
    score.UEBM(u"Salze");
    score.POINTS(7.5);
    score.POINTSMAX(10);
    score.TIMESTAMP(Evening);
    score.ADDITIONAL()->Set(u"Fehler", 2);
}

void expectFilled(cls_DataScore& score)
{
    EXPECT_EQ(score.ID(), u"id-7");
    EXPECT_EQ(score.RANK(), 3);
    EXPECT_EQ(score.SCREENNAME(), u"Anna | {B}");
    EXPECT_EQ(score.USERNAME(), u"a.meier");
    EXPECT_EQ(score.COMPUTER(), u"PC-07");
    EXPECT_EQ(score.UEBM(), u"Salze");
    EXPECT_EQ(score.POINTS(), 7.5);
    EXPECT_EQ(score.POINTSMAX(), 10);
    EXPECT_EQ(score.TIMESTAMP(), Evening);
    EXPECT_EQ(score.ADDITIONAL()->TextLine(), u"Fehler = 2");
}

TEST(cls_DataScore, IsEmptyWhenNew)
{
    cls_DataScore score;
    EXPECT_EQ(score.DATA()->ClassTag(), u"Phial.cls_DataScore");
    EXPECT_EQ(score.ID(), u"");
    EXPECT_EQ(score.POINTS(), 0);
    EXPECT_EQ(score.RANK(), 0);
    EXPECT_EQ(score.TIMESTAMP(), Moment{});
    ASSERT_NE(score.ADDITIONAL(), nullptr);
    EXPECT_EQ(score.ADDITIONAL()->Count(), 0);
}

TEST(cls_DataScore, KeepsItsIdAsTextInItsHeader)
{
    cls_DataScore score;
    score.ID(u"a");
    EXPECT_EQ(score.DATA()->ID(), Variant(u"a"));
    score.DATA()->ID(Variant(12));
    EXPECT_EQ(score.ID(), u"12");
}

TEST(cls_DataScore, StoresItsValuesInOrder)
{
    cls_DataScore score;
    fill(score);
    MemoryStream stream;
    score.DATA()->Store(stream);
    EXPECT_THAT(stream.values,
                ElementsAre(Variant(u"2.5"), Variant(u"id-7"), Variant(3), Variant(u"Anna | {B}"),
                            Variant(u"a.meier"), Variant(u"PC-07"), Variant(u"Salze"), Variant(7.5),
                            Variant(10.0), Variant(Evening), Variant(u"QV1;2;T6=Fehler;I1=2;")));
}

TEST(cls_DataScore, ReadsBackWhatItStored)
{
    cls_DataScore score;
    fill(score);
    MemoryStream stream;
    score.DATA()->Store(stream);
    cls_DataScore read;
    read.DATA()->Read(stream);
    expectFilled(read);
    EXPECT_EQ(stream.next, stream.values.size());
}

TEST(cls_DataScore, ReadsTheOldVersionWithoutAnExercise)
{
    MemoryStream stream({u"2.0", u"id-7", 3, u"Anna", u"a.meier", u"PC-07", 7.5, 10.0, Evening, u"QV1;0;"});
    cls_DataScore score;
    score.DATA()->Read(stream);
    EXPECT_EQ(score.UEBM(), u"");
    EXPECT_EQ(score.COMPUTER(), u"PC-07");
    EXPECT_EQ(score.POINTS(), 7.5);
    EXPECT_EQ(score.TIMESTAMP(), Evening);
    EXPECT_EQ(stream.next, stream.values.size());

    MemoryStream again;
    score.DATA()->Store(again);
    EXPECT_EQ(again.values.front(), Variant(u"2.5"));
}

TEST(cls_DataScore, ReadsNothingBehindAnotherVersion)
{
    for (const StringView version : {u"1.0", u"2.1", u"3.0", u""}) {
        MemoryStream stream({version, u"id-7", 3, u"Anna"});
        cls_DataScore score;
        score.DATA()->Read(stream);
        EXPECT_EQ(score.ID(), u"");
        EXPECT_EQ(stream.next, 1U);
    }
}

TEST(cls_DataScore, RaisesAnErrorForAValueOfTheWrongType)
{
    MemoryStream stream({u"2.5", u"id-7", u"third"});
    cls_DataScore score;
    EXPECT_RAISES(score.DATA()->Read(stream), TypeMismatch);
}

TEST(cls_DataScore, UnpacksWhatItPacked)
{
    cls_DataScore score;
    fill(score);
    cls_DataScore unpacked;
    unpacked.ADDITIONAL()->Set(u"before", true);
    unpacked.DATA()->Unpack(score.DATA()->Pack());
    expectFilled(unpacked);
}

TEST(cls_DataScore, PacksTenValues)
{
    cls_DataScore score;
    score.ID(u"i");
    score.SCREENNAME(u"A");
    score.POINTS(1.5);
    EXPECT_EQ(score.DATA()->Pack(), u"QV1;10;T1=i;I1=0;T1=A;T0=;T0=;T0=;D3=1.5;D1=0;M1=0;T6=QV1;0;;");
}

TEST(cls_DataScore, StaysAsItWasForADamagedText)
{
    cls_DataScore score;
    fill(score);
    EXPECT_RAISES(score.DATA()->Unpack(u"nothing of that kind"), InvalidArgument);
    EXPECT_RAISES(score.DATA()->Unpack({}), InvalidArgument);
    expectFilled(score);
}

TEST(cls_DataScore, CopiesAllFieldsAndKeepsItsOwnFurtherValues)
{
    cls_DataScore source;
    fill(source);
    cls_DataScore copy;
    const auto own = copy.ADDITIONAL();
    EXPECT_TRUE(copy.DATA()->Copy(source));
    source.ADDITIONAL()->Set(u"Fehler", 99);
    expectFilled(copy);
    EXPECT_EQ(copy.ADDITIONAL(), own);
}

TEST(cls_DataScore, SpawnsAnEmptyOne)
{
    cls_DataScore score;
    fill(score);
    const auto spawned = std::dynamic_pointer_cast<cls_DataScore>(score.DATA()->Spawn());
    ASSERT_NE(spawned, nullptr);
    EXPECT_EQ(spawned->SCREENNAME(), u"");
}

TEST(cls_DataScore, IsReachedByTheNamesOfItsMembers)
{
    cls_DataScore score;
    setMember(score, u"screenname", u"Ben");
    setMember(score, u"POINTS", 4.5);
    setMember(score, u"Id", u"x");
    EXPECT_EQ(score.SCREENNAME(), u"Ben");
    EXPECT_EQ(getMember(score, u"Points"), Variant(4.5));
    EXPECT_EQ(getMember(score, u"ID"), Variant(u"x"));
}

TEST(cls_DataScore, TellsItselfInLines)
{
    cls_DataScore score;
    fill(score);
    score.ADDITIONAL()->Set(u"Zeit", u"kurz");
    EXPECT_EQ(score.TEXT(), u"Rang: \t3\r\n"
                            u"Name: \tAnna | {B}\r\n"
                            u"Login: \ta.meier\r\n"
                            u"Rechner: \tPC-07\r\n"
                            u"Datum: \t02.03.2026\r\n"
                            u"Uhrzeit: \t18:05:09\r\n"
                            u"Punkte: \t7,5 von 10\r\n"
                            u"Note: \tGut\r\n"
                            u"Zusatzfelder: \r\n"
                            u"Fehler = 2\r\nZeit = \"kurz\"");
}

TEST(cls_DataScore, TellsThePointsAloneWhereNoneCanBeReached)
{
    cls_DataScore score;
    score.POINTS(50);
    EXPECT_THAT(toUtf8(score.TEXT()), testing::HasSubstr("Punkte: \t50\r\nNote: \tAusreichend plus\r\n"));
    score.POINTSMAX(-1);
    EXPECT_THAT(toUtf8(score.TEXT()), testing::HasSubstr("Punkte: \t50\r\nNote: \tUngenügend\r\n"));
}

TEST(cls_DataScore, TellsItselfInTenFieldsEachWithATab)
{
    cls_DataScore score;
    fill(score);
    EXPECT_EQ(score.TEXTLINE(), u"3\tAnna | {B}\ta.meier\tPC-07\t02.03.2026\t18:05:09\t7,5\t10\tGut\t"
                                u"Fehler = 2\t");
}

TEST(cls_DataScore, AMomentThatTheCalendarDoesNotHaveIsEmpty)
{
    for (const double days : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e9, 3e6}) {
        cls_DataScore score;
        fill(score);
        score.TIMESTAMP(Moment{days});
        EXPECT_EQ(score.TEXTLINE(), u"3\tAnna | {B}\ta.meier\tPC-07\t\t\t7,5\t10\tGut\tFehler = 2\t");
        EXPECT_THAT(toUtf8(score.TEXT()), testing::HasSubstr("Datum: \t\r\nUhrzeit: \t\r\n"));
    }
}

TEST(cls_DataScore, LineEndsAndTabsInNamesAreBlanks)
{
    cls_DataScore score;
    fill(score);
    score.SCREENNAME(u"An\r\nna\tB");
    score.USERNAME(u"a\u2028b");
    score.COMPUTER(u"PC\u00857");
    EXPECT_EQ(score.TEXTLINE(), u"3\tAn  na B\ta b\tPC 7\t02.03.2026\t18:05:09\t7,5\t10\tGut\t"
                                u"Fehler = 2\t");
    EXPECT_THAT(toUtf8(score.TEXT()),
                testing::HasSubstr("Name: \tAn  na B\r\nLogin: \ta b\r\nRechner: \tPC 7\r\n"));
    EXPECT_EQ(score.SCREENNAME(), u"An\r\nna\tB");
}

TEST(cls_DataScore, PointsThatAreNoNumberAreTheWorstMark)
{
    cls_DataScore score;
    fill(score);
    for (const double points :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        score.POINTS(points);
        EXPECT_THAT(toUtf8(score.TEXT()), testing::HasSubstr("Note: \tUngenügend\r\n"));
    }
}

} // namespace

} // namespace phial
