#include "master/Roster.h"

#include "core/NumberText.h"

#include <gmock/gmock-more-matchers.h>

using namespace phial;
using namespace phial::master;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double Second = 1.0 / (24 * 60 * 60);

Moment at(double seconds)
{
    return Moment{45000 + seconds * Second};
}

LogOn logOn(std::uint64_t client, StringView name, double seconds = 0, StringView address = u"10.0.0.1")
{
    return {client, String(name), String(address), at(seconds)};
}

std::vector<String> names(const std::vector<Pupil>& pupils)
{
    std::vector<String> names;
    for (const Pupil& pupil : pupils) {
        names.push_back(pupil.logOn.name);
    }
    return names;
}

Presence presence(const Roster& roster, double seconds)
{
    return roster.pupils(at(seconds)).front().presence;
}

TEST(Roster, IsSortedByName)
{
    Roster roster;
    roster.logOn(logOn(2, u"ben"));
    roster.logOn(logOn(3, u"Anna", 0, u"10.0.0.2"));
    roster.logOn(logOn(1, u"Anna"));
    const auto pupils = roster.pupils(at(0));
    EXPECT_THAT(names(pupils), ElementsAre(u"Anna", u"Anna", u"ben"));
    EXPECT_EQ(pupils.front().logOn.client, 1U);
    roster.logOff(1);
    EXPECT_EQ(roster.count(), 2U);
}

TEST(Roster, TellsWhoIsThereWhoIsSilentAndWhoHasGone)
{
    Roster roster;
    roster.connect(1);
    roster.logOn(logOn(1, u"Anna"));
    EXPECT_EQ(presence(roster, 0), Presence::There);
    EXPECT_EQ(presence(roster, 300), Presence::There);
    EXPECT_EQ(presence(roster, 301), Presence::Silent);
    roster.hear(1, at(301));
    EXPECT_EQ(presence(roster, 302), Presence::There);
    roster.disconnect(1, true);
    EXPECT_EQ(presence(roster, 302), Presence::Gone);
    roster.connect(1);
    EXPECT_EQ(presence(roster, 302), Presence::There) << "back over a new connection";
}

TEST(Roster, WhoseConnectionWasClosedHereIsSilent)
{
    Roster roster;
    roster.connect(1);
    roster.logOn(logOn(1, u"Anna"));
    roster.disconnect(1, false);
    EXPECT_EQ(presence(roster, 1), Presence::Silent);
}

TEST(Roster, WhoHasTwoConnectionsIsThereUntilBothHaveEnded)
{
    Roster roster;
    roster.logOn(logOn(1, u"Anna"));
    roster.connect(1);
    roster.connect(1);
    roster.disconnect(1, true);
    EXPECT_EQ(presence(roster, 1), Presence::There);
    roster.disconnect(1, true);
    EXPECT_EQ(presence(roster, 1), Presence::Gone);
    roster.disconnect(1, false); // there is none
    EXPECT_EQ(presence(roster, 1), Presence::Gone);
}

TEST(Roster, AnAppThatIsStartedAgainReplacesItself)
{
    Roster roster;
    roster.logOn(logOn(1, u"Anna", 10));
    EXPECT_THAT(roster.logOn(logOn(2, u"ANNA", 20)), ElementsAre(1U));
    EXPECT_THAT(roster.logOn(logOn(3, u"Anna", 30, u"10.0.0.2")), IsEmpty()) << "at another computer";
    EXPECT_THAT(roster.logOn(logOn(2, u"Ben", 40)), IsEmpty()) << "the same client under another name";
    const auto pupils = roster.pupils(at(50));
    EXPECT_THAT(names(pupils), ElementsAre(u"Anna", u"Ben"));
    EXPECT_EQ(pupils.front().first, at(30));
    EXPECT_THAT(roster.logOn(logOn(4, u"anna", 60, u"10.0.0.2")), ElementsAre(3U));
    EXPECT_EQ(roster.pupils(at(70)).front().first, at(30)) << "he was there before";
    EXPECT_EQ(roster.pupils(at(70)).front().logOn.since, at(60));
}

TEST(Roster, WhoWasNotHeardOfForHalfADayGoes)
{
    Roster roster;
    roster.logOn(logOn(1, u"Anna"));
    roster.logOn(logOn(2, u"Ben"));
    roster.hear(2, at(100));
    EXPECT_THAT(roster.logOn(logOn(3, u"Cem", 12 * 60 * 60)), IsEmpty());
    EXPECT_THAT(roster.logOn(logOn(4, u"Dora", 12 * 60 * 60 + 1)), ElementsAre(1U));
}

TEST(Roster, OfOneComputerTheLongestSilentGoesFirst)
{
    Roster roster(2);
    roster.logOn(logOn(1, u"Anna", 1, u"10.0.0.2"));
    roster.logOn(logOn(2, u"Ben", 2));
    roster.logOn(logOn(3, u"Cem", 3));
    roster.hear(2, at(10));
    EXPECT_EQ(roster.crowdedOut(), 0U);
    EXPECT_THAT(roster.logOn(logOn(4, u"Dora", 11)), ElementsAre(3U));
    EXPECT_EQ(roster.crowdedOut(), 1U);
    EXPECT_THAT(roster.logOn(logOn(4, u"Eva", 12)), IsEmpty()) << "no further client";
    EXPECT_EQ(roster.crowdedOut(), 1U);
    EXPECT_THAT(names(roster.pupils(at(12))), ElementsAre(u"Anna", u"Ben", u"Eva"));
}

TEST(Roster, OfAllTheLongestSilentGoesFirst)
{
    Roster roster;
    for (std::uint64_t client = 1; client <= Roster::MaxPupils; ++client) {
        const auto number = static_cast<std::int32_t>(client);
        EXPECT_THAT(
            roster.logOn(logOn(client, u"P" + plainText(number), number, u"10." + plainText(number / 50))),
            IsEmpty());
    }
    roster.hear(1, at(10000));
    EXPECT_THAT(roster.logOn(logOn(9999, u"new", 10001, u"10.9")), ElementsAre(2U));
    EXPECT_EQ(roster.crowdedOut(), 1U);
    EXPECT_EQ(roster.count(), Roster::MaxPupils);
}

TEST(Roster, NamesCanBeCorrected)
{
    Roster roster;
    roster.logOn(logOn(1, u"Ana"));
    roster.logOn(logOn(2, u"Ben"));
    roster.rename(u"ANA", u"Anna");
    EXPECT_THAT(names(roster.pupils(at(0))), ElementsAre(u"Anna", u"Ben"));
}

TEST(Roster, WhoHasHandedInNothingSinceHeCame)
{
    Roster roster;
    roster.logOn(logOn(1, u"Anna", 100));
    roster.logOn(logOn(2, u"Ben", 100));
    roster.logOn(logOn(3, u"Cem", 100));
    const std::vector<HandedIn> handedIn{{u"ANNA", at(99.5)}, {u"Ben", at(50)}, {u"Dora", at(200)}};
    EXPECT_THAT(names(withoutResult(roster.pupils(at(200)), handedIn)), ElementsAre(u"Ben", u"Cem"));
}

} // namespace
