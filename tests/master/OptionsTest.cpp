#include "master/Options.h"

#include <gmock/gmock-matchers.h>

using namespace phial;
using namespace phial::master;
using testing::ElementsAre;

namespace
{

Options read(const std::vector<std::string>& arguments)
{
    auto [options, problem] = readOptions(arguments);
    EXPECT_FALSE(problem) << problem->argument;
    return options;
}

void expectProblem(const std::vector<std::string>& arguments, OptionProblem::Kind kind,
                   const std::string& argument)
{
    const auto [options, problem] = readOptions(arguments);
    ASSERT_TRUE(problem);
    EXPECT_EQ(problem->kind, kind);
    EXPECT_EQ(problem->argument, argument);
}

TEST(MasterOptions, WithoutAnyTheMasterServes)
{
    const Options options = read({});
    EXPECT_TRUE(options.servesAfterwards());
    EXPECT_FALSE(options.serve);
    EXPECT_FALSE(options.port);
}

TEST(MasterOptions, PlaceAndPorts)
{
    const Options options = read({"--listen", "0.0.0.0", "--port", "0", "--udp", "10060", "--database",
                                  "a b.sqlite", "--data", "/tmp", "--remember"});
    EXPECT_EQ(options.listen, "0.0.0.0");
    EXPECT_EQ(options.port, 0);
    EXPECT_EQ(options.udpPort, 10060);
    EXPECT_EQ(options.database, "a b.sqlite");
    EXPECT_EQ(options.dataFolder, "/tmp");
    EXPECT_TRUE(options.remember);
}

TEST(MasterOptions, CommandsThatSetAndThoseThatShow)
{
    const Options options =
        read({"--results", "--app", "Molmasse", "--set", "WELCOMEMESSAGE=Guten Tag = Hallo", "--export",
              "9 a.csv", "--highscore", "SALZE", "--pupils", "--events"});
    EXPECT_THAT(options.settings, ElementsAre(u"app Molmasse", u"set WELCOMEMESSAGE Guten Tag = Hallo"));
    EXPECT_THAT(options.reports,
                ElementsAre(u"results", u"export 9 a.csv", u"highscore SALZE", u"pupils", u"events"));
    EXPECT_FALSE(options.servesAfterwards());
}

TEST(MasterOptions, AReportCanBeFollowedByServing)
{
    EXPECT_TRUE(read({"--results", "--serve"}).servesAfterwards());
}

TEST(MasterOptions, WhatMakesNoSenseIsNamed)
{
    using Kind = OptionProblem::Kind;
    expectProblem({"--dance"}, Kind::Unknown, "--dance");
    expectProblem({"results"}, Kind::Unknown, "results");
    expectProblem({"--port"}, Kind::NoValue, "--port");
    expectProblem({"--port", "65536"}, Kind::NoPort, "--port 65536");
    expectProblem({"--udp", "12x"}, Kind::NoPort, "--udp 12x");
    expectProblem({"--set", "NAME"}, Kind::NoAssignment, "--set NAME");
    expectProblem({"--set", "=1"}, Kind::NoAssignment, "--set =1");
}

} // namespace
