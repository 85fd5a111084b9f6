#include "results/ResultsTest.h"
#include "support/Raises.h"

#include <array>
#include <gmock/gmock-matchers.h>
#include <random>

namespace phial
{

namespace
{

using testing::ElementsAre;

Moment day(double number)
{
    return Moment{46000 + number};
}

class DataScores : public ResultsTest
{
protected:
    cls_DataScores list;
};

TEST_F(DataScores, AreAHighscoreOfTenAtFirst)
{
    EXPECT_EQ(list.MODE(), enm_ScoreListMode::ID_ScoreList_Highscore);
    EXPECT_EQ(list.MAXIMUM(), 10);
    EXPECT_FALSE(list.ONCE());
    EXPECT_FALSE(list.LIVE());
    EXPECT_EQ(list.COUNT(), 0);
    EXPECT_RAISES(list.ITEM(1), IndexOutOfBounds);
}

TEST_F(DataScores, TakeTheFirstEntryAsFirst)
{
    EXPECT_EQ(list.RANK(5), 1);
    EXPECT_EQ(add(list, u"Anna", 5), Variant(1));
}

TEST_F(DataScores, AreFilledInWithWhoIsAtTheComputerNow)
{
    outside.machine().UserName(u"a.meier");
    outside.machine().ComputerName(u"PC-07");
    QVAPP()->USER()->SCREENNAME(u"Anna");
    CoreParameters more;
    more.Set(u"Fehler", 3);
    list.ADD(7.5, 10, u"Salze", &more);
    more.Set(u"Fehler", 4);

    const auto entry = list.ITEM(1);
    EXPECT_EQ(entry->POINTS(), 7.5);
    EXPECT_EQ(entry->POINTSMAX(), 10);
    EXPECT_EQ(entry->UEBM(), u"Salze");
    EXPECT_EQ(entry->SCREENNAME(), u"Anna");
    EXPECT_EQ(entry->USERNAME(), u"a.meier");
    EXPECT_EQ(entry->COMPUTER(), u"PC-07");
    EXPECT_EQ(entry->TIMESTAMP(), outside.clock().moment());
    EXPECT_EQ(entry->ADDITIONAL()->Get(u"Fehler"), Variant(3));
    EXPECT_EQ(entry->ID(), u"ID-1");
    EXPECT_EQ(entry->RANK(), 1);
}

TEST_F(DataScores, KeepTheNamesAndTheMomentTheyAreGiven)
{
    list.ADD(1, 2, u"", nullptr, u"login", u"computer", u"name", day(1));
    const auto entry = list.ITEM(1);
    EXPECT_EQ(entry->SCREENNAME(), u"name");
    EXPECT_EQ(entry->USERNAME(), u"login");
    EXPECT_EQ(entry->COMPUTER(), u"computer");
    EXPECT_EQ(entry->TIMESTAMP(), day(1));
}

TEST_F(DataScores, StandInTheOrderOfTheirPointsWithTheirRanks)
{
    fill(list, {20, 50, 30});
    EXPECT_THAT(names(list), ElementsAre(u"2", u"3", u"1"));
    EXPECT_THAT(ranks(list), ElementsAre(1, 2, 3));
}

TEST_F(DataScores, RankBehindThoseWhoHaveTheSamePoints)
{
    fill(list, {50, 40, 30});
    EXPECT_EQ(list.RANK(60), 1);
    EXPECT_EQ(list.RANK(50), 2);
    EXPECT_EQ(list.RANK(40), 3);
    EXPECT_EQ(list.RANK(30), 4);
}

TEST_F(DataScores, RankIsMinusOneWhenNobodyIsBeatenAndTheListIsFull)
{
    fill(list, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1});
    EXPECT_EQ(list.RANK(0.5), -1);
    EXPECT_EQ(add(list, u"neu", 0.5), Variant(-1));
    EXPECT_EQ(list.COUNT(), 10);
    EXPECT_FALSE(list.EXISTS(u"neu"));
}

TEST_F(DataScores, AreNotKeptBehindAnEqualTenth)
{
    fill(list, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1});
    EXPECT_EQ(add(list, u"neu", 1), Variant(-1));
    EXPECT_FALSE(list.EXISTS(u"neu"));
}

TEST_F(DataScores, DropTheLastWhenABetterOneComes)
{
    fill(list, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1});
    EXPECT_EQ(add(list, u"neu", 8.5), Variant(3));
    EXPECT_EQ(list.COUNT(), 10);
    EXPECT_FALSE(list.EXISTS(u"10"));
}

TEST_F(DataScores, TakeATenthThatBeatsNobodyAlthoughItHasNoRank)
{
    fill(list, {10, 9, 8, 7, 6, 5, 4, 3, 2});
    EXPECT_EQ(list.RANK(1), -1);
    EXPECT_EQ(add(list, u"neu", 1), Variant(10));
    EXPECT_EQ(list.COUNT(), 10);
}

TEST_F(DataScores, RankIsMinusOneInAnEmptyListOfOne)
{
    list.MAXIMUM(1);
    EXPECT_EQ(list.RANK(5), -1);
    EXPECT_EQ(add(list, u"Anna", 5), Variant(1));
}

TEST_F(DataScores, GiveTheRankOfAnEntryThatTheyCutAtOnce)
{
    fill(list, {5, 4, 3});
    list.MAXIMUM(2);
    EXPECT_EQ(add(list, u"neu", 3.5), Variant(3));
    EXPECT_THAT(names(list), ElementsAre(u"1", u"2"));
}

TEST_F(DataScores, KeepTheBestOfEachNameOnce)
{
    list.ONCE(true);
    add(list, u"Anna", 50);
    add(list, u"Ben", 40);
    EXPECT_EQ(add(list, u" ANNA ", 49), Variant());
    EXPECT_EQ(list.COUNT(), 2);
    EXPECT_EQ(list.ITEM(1)->POINTS(), 50);

    EXPECT_EQ(add(list, u"ben", 60), Variant(1));
    EXPECT_THAT(names(list), ElementsAre(u"ben", u"Anna"));
}

TEST_F(DataScores, ReplaceAnEqualScoreOfTheSameNameOnce)
{
    list.ONCE(true);
    add(list, u"Anna", 50);
    EXPECT_EQ(add(list, u"anna", 50), Variant(1));
    EXPECT_THAT(names(list), ElementsAre(u"anna"));
}

TEST_F(DataScores, CompareOnceWithTheFirstOfANameAndRemoveAll)
{
    add(list, u"Anna", 50);
    add(list, u"Anna", 30);
    list.ONCE(true);
    EXPECT_EQ(add(list, u"Anna", 40), Variant());
    EXPECT_EQ(list.COUNT(), 2);
    EXPECT_EQ(add(list, u"Anna", 55), Variant(1));
    EXPECT_EQ(list.COUNT(), 1);
}

TEST_F(DataScores, KeepTheLatestOfEachNameLiveHoweverGood)
{
    list.LIVE(true);
    add(list, u"Anna", 50);
    add(list, u"anna", 10);
    EXPECT_THAT(names(list), ElementsAre(u"anna"));
    EXPECT_EQ(list.ITEM(1)->POINTS(), 10);
}

TEST_F(DataScores, AreNeverCutLive)
{
    list.LIVE(true);
    list.MAXIMUM(3);
    fill(list, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(list.COUNT(), 6);
    list.CUT(2);
    EXPECT_EQ(list.COUNT(), 6);
}

TEST_F(DataScores, StandLiveByTheirLoginsFromZToA)
{
    list.LIVE(true);
    for (const StringView login : {u"anna", u"Zoe", u"ben", u"Anna"}) {
        list.ADD(1, 1, u"", nullptr, login, {}, login);
    }
    std::vector<String> logins;
    for (std::int32_t slot = 1; slot <= list.COUNT(); ++slot) {
        logins.push_back(list.ITEM(slot)->USERNAME());
    }
    EXPECT_THAT(logins, ElementsAre(u"ben", u"Zoe", u"Anna"));
    EXPECT_THAT(ranks(list), ElementsAre(1, 2, 3));
}

TEST_F(DataScores, StandByTheirMomentsInAResultList)
{
    list.MODE(enm_ScoreListMode::ID_ScoreList_ResultList);
    list.MAXIMUM(2);
    EXPECT_EQ(add(list, u"b", 1, day(2)), Variant(1));
    EXPECT_EQ(add(list, u"a", 9, day(1)), Variant(2));
    EXPECT_EQ(add(list, u"c", 5, day(3)), Variant(1));
    EXPECT_THAT(names(list), ElementsAre(u"c", u"b", u"a"));
    EXPECT_THAT(ranks(list), ElementsAre(0, 0, 0));
    list.CUT(1);
    EXPECT_EQ(list.COUNT(), 3);
}

TEST_F(DataScores, KeepEarlierEntriesOfANameInAResultList)
{
    list.MODE(enm_ScoreListMode::ID_ScoreList_ResultList);
    list.ONCE(true);
    list.LIVE(true);
    add(list, u"Anna", 50, day(1));
    add(list, u"Anna", 40, day(2));
    EXPECT_EQ(list.COUNT(), 2);
}

/// The exchange sort word for word.
template <typename Condition>
std::vector<std::shared_ptr<cls_DataScore>> exchanged(std::vector<std::shared_ptr<cls_DataScore>> entries,
                                                      const Condition& isBefore)
{
    for (std::size_t i = 0; i < entries.size(); ++i) {
        for (std::size_t j = i + 1; j < entries.size(); ++j) {
            if (isBefore(*entries[j], *entries[i])) {
                std::swap(entries[i], entries[j]);
            }
        }
    }
    return entries;
}

/// Lists of entries most of which have equals, in each order.
class TiedScores : public DataScores
{
protected:
    int number(int most) { return std::uniform_int_distribution<int>(0, most)(random); }

    std::vector<std::shared_ptr<cls_DataScore>> fillAtRandom()
    {
        static constexpr std::array<StringView, 6> Logins = {u"anna", u"Anna", u"änne", u"Zoe", u"b", u""};
        list.CLEAR();
        std::vector<std::shared_ptr<cls_DataScore>> entries;
        for (int count = number(50); count > 0; --count) {
            const auto& entry = entries.emplace_back(std::make_shared<cls_DataScore>());
            entry->POINTS(number(6) / 2.0);
            entry->TIMESTAMP(day(number(6) / 4.0));
            entry->USERNAME(String(Logins[static_cast<std::size_t>(number(5))]));
            entry->RANK(-7);
            list.DATABASE()->Import(entry);
        }
        return entries;
    }

    template <typename Condition>
    void expectOrder(const Condition& isBefore)
    {
        for (int round = 0; round < 200; ++round) {
            const auto expected = exchanged(fillAtRandom(), isBefore);
            list.SORT();
            for (std::int32_t slot = 1; slot <= list.COUNT(); ++slot) {
                ASSERT_EQ(list.ITEM(slot), expected[static_cast<std::size_t>(slot) - 1]) << "slot " << slot;
            }
        }
    }

    std::mt19937 random{4};
};

TEST_F(TiedScores, StandAsTheExchangesLeaveThemByPoints)
{
    expectOrder([](const auto& left, const auto& right) { return left.POINTS() > right.POINTS(); });
    for (std::int32_t slot = 1; slot <= list.COUNT(); ++slot) {
        EXPECT_EQ(list.ITEM(slot)->RANK(), slot);
    }
}

TEST_F(TiedScores, StandAsTheExchangesLeaveThemLiveByLogin)
{
    list.LIVE(true);
    expectOrder([](const auto& left, const auto& right) { return left.USERNAME() > right.USERNAME(); });
    for (std::int32_t slot = 1; slot <= list.COUNT(); ++slot) {
        EXPECT_EQ(list.ITEM(slot)->RANK(), slot);
    }
}

TEST_F(TiedScores, StandAsTheExchangesLeaveThemByMomentAndKeepTheirRanks)
{
    list.MODE(enm_ScoreListMode::ID_ScoreList_ResultList);
    list.LIVE(true);
    expectOrder([](const auto& left, const auto& right) { return left.TIMESTAMP() > right.TIMESTAMP(); });
    for (std::int32_t slot = 1; slot <= list.COUNT(); ++slot) {
        EXPECT_EQ(list.ITEM(slot)->RANK(), -7);
    }
}

TEST_F(DataScores, AreFoundByNameWithoutRegardToCaseAndOuterBlanks)
{
    add(list, u"Änne", 1);
    EXPECT_TRUE(list.EXISTS(u"  äNNE "));
    EXPECT_EQ(list.ITEM(u"änne", false)->SCREENNAME(), u"Änne");
    EXPECT_FALSE(list.EXISTS(u"Anne"));
    EXPECT_RAISES(list.ITEM(u"Anne", false), IndexOutOfBounds);
}

TEST_F(DataScores, AreNotFoundByANumber)
{
    add(list, u"1", 1);
    EXPECT_FALSE(list.EXISTS(1));
    EXPECT_TRUE(list.EXISTS(u"1"));
}

TEST_F(DataScores, LoseOnlyTheFirstOfANameAndAreSorted)
{
    add(list, u"Anna", 50);
    add(list, u"Ben", 40);
    add(list, u"anna", 30);
    list.ITEM(3)->POINTS(60);
    EXPECT_TRUE(list.REMOVE(u"ANNA"));
    EXPECT_THAT(names(list), ElementsAre(u"anna", u"Ben"));
    EXPECT_THAT(ranks(list), ElementsAre(1, 2));
    EXPECT_FALSE(list.REMOVE(u"Zoe"));
}

TEST_F(DataScores, LoseTheOneAtAPositionAndKeepTheOrder)
{
    fill(list, {40, 30, 20, 10});
    EXPECT_TRUE(list.REMOVE(2, true));
    EXPECT_THAT(names(list), ElementsAre(u"1", u"3", u"4"));
    EXPECT_FALSE(list.REMOVE(4, true));
    EXPECT_FALSE(list.REMOVE(0, true));
}

TEST_F(DataScores, AreCutToTheMaximumOrToALimit)
{
    fill(list, {40, 30, 20, 10});
    list.CUT(5);
    list.CUT(0);
    list.CUT(-2);
    list.CUT();
    EXPECT_EQ(list.COUNT(), 4);
    list.CUT(3);
    EXPECT_THAT(names(list), ElementsAre(u"1", u"2", u"3"));
    list.MAXIMUM(2);
    list.CUT();
    EXPECT_EQ(list.COUNT(), 2);
    list.MAXIMUM(0);
    list.CUT();
    EXPECT_EQ(list.COUNT(), 2);
}

TEST_F(DataScores, AreGoneWhenTheListIsCleared)
{
    fill(list, {40, 30});
    list.CLEAR();
    EXPECT_EQ(list.COUNT(), 0);
    EXPECT_EQ(list.MAXIMUM(), 10);
}

} // namespace

} // namespace phial
