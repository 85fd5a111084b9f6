#include "calc/CalculatorLine.h"

#include "headless/FixedRandom.h"

#include <gtest/gtest.h>
#include <sstream>

namespace phial::calcline
{
namespace
{

using ExitStatus = CalculatorLine::ExitStatus;

/// What a run of the program wrote and how it ended.
struct Outcome {
    std::string output;
    std::string errors;
    ExitStatus status = ExitStatus::Success;
};

Outcome runWith(const std::vector<std::string>& arguments, const std::string& input = "")
{
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream errors;
    CalculatorLine calculator(in, out, errors, std::make_shared<headless::FixedRandom>());
    const ExitStatus status = calculator.run(arguments);
    return {out.str(), errors.str(), status};
}

TEST(CalculatorLine, WritesOneLineForEachTerm)
{
    const Outcome run = runWith({"2+3*4", "sqr(2)", "10/4"});
    EXPECT_EQ(run.output, "14\n1,4142135623731\n2,5\n");
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.status, ExitStatus::Success);
}

TEST(CalculatorLine, LanguageDecidesTheDecimalSign)
{
    EXPECT_EQ(runWith({"--de", "1.5*3"}).output, "4,5\n");
    EXPECT_EQ(runWith({"--en", "1,5*3"}).output, "4.5\n");
    EXPECT_EQ(runWith({"1,5*3", "--en"}).output, "4.5\n");
}

TEST(CalculatorLine, AssignmentsCountForTheTermsThatFollow)
{
    EXPECT_EQ(runWith({"A=2,5", "A*2", "a=3", "A*2"}).output, "5\n6\n");
    EXPECT_EQ(runWith({"A+1", "A=2,5"}).output, "1\n");
}

TEST(CalculatorLine, ReadsInputWhenThereIsNoTerm)
{
    const Outcome run = runWith({"A=2"}, "A*3\n\nB=0.5\r\nA*B\r\n   \n2-\xC3\xA4"
                                         "1");
    EXPECT_EQ(run.output, "6\n1\n1\n");
    EXPECT_EQ(run.status, ExitStatus::Success);
}

TEST(CalculatorLine, LeavesInputAloneWhenThereIsATerm)
{
    EXPECT_EQ(runWith({"1+1"}, "5\n").output, "2\n");
}

TEST(CalculatorLine, FailedTermGoesToTheErrorStreamAndTheOthersGoOn)
{
    const Outcome run = runWith({"1+1", "1/0", "2+2"});
    EXPECT_EQ(run.output, "2\n4\n");
    EXPECT_EQ(run.errors, "phial-calc: 1/0: Error executing 1 / 0:  Division by zero\n");
    EXPECT_EQ(run.status, ExitStatus::TermFailed);
}

TEST(CalculatorLine, FailedLineOfTheInputGoesToTheErrorStream)
{
    const Outcome run = runWith({"--en"}, "(2)(3)\nA=x\n7\n");
    EXPECT_EQ(run.output, "7\n");
    EXPECT_EQ(run.errors,
              "phial-calc: (2)(3): Could not solve term\nphial-calc: A=x: the value is not a number\n");
    EXPECT_EQ(run.status, ExitStatus::TermFailed);
}

TEST(CalculatorLine, VariableWithoutANumberIsWrongUse)
{
    const Outcome run = runWith({"1+1", "A=two"});
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "phial-calc: A=two: der Wert ist keine Zahl\n");
    EXPECT_EQ(run.status, ExitStatus::WrongUse);
}

TEST(CalculatorLine, BlanksAroundNameAndValueDoNotCount)
{
    EXPECT_EQ(runWith({" A = 2,5 ", "A*2"}).output, "5\n");
    EXPECT_EQ(runWith({}, "\tA =\t3 \n  A * 2\r\n").output, "6\n");
    EXPECT_EQ(runWith({"A = "}).status, ExitStatus::WrongUse);
}

TEST(CalculatorLine, ByteOrderMarkBeforeTheInputDoesNotCount)
{
    EXPECT_EQ(runWith({}, "\xEF\xBB\xBF"
                          "A=2\nA*3\n")
                  .output,
              "6\n");
}

TEST(CalculatorLine, MessageNamesALongTermByItsBeginningOnOneLine)
{
    const Outcome run =
        runWith({"--en", "(2)\n" + std::string(100'000, ' ') + "(3)", std::string(1000, '#')});
    EXPECT_EQ(run.errors, "phial-calc: (2)" + std::string(77, ' ') +
                              "\u2026: Could not solve term\n"
                              "phial-calc: " +
                              std::string(80, '#') + "\u2026: Could not solve term\n");
}

TEST(CalculatorLine, BytesThatAreNoTextAreSkipped)
{
    EXPECT_EQ(runWith({"\xFF"
                       "2+\xC3"
                       "3"})
                  .output,
              "5\n");
    EXPECT_EQ(runWith({}, std::string("\xFE"
                                      "2\0+3\n",
                                      6))
                  .output,
              "5\n");
}

TEST(CalculatorLine, LastLineNeedsNoEnd)
{
    EXPECT_EQ(runWith({}, "1+1\n2+2").output, "2\n4\n");
    EXPECT_EQ(runWith({}, "").output, "");
}

TEST(CalculatorLine, InputThatCannotBeReadIsTold)
{
    std::istringstream in;
    in.setstate(std::ios::badbit);
    std::ostringstream out;
    std::ostringstream errors;
    CalculatorLine calculator(in, out, errors, nullptr);
    EXPECT_EQ(calculator.run({}), ExitStatus::NoInputOrOutput);
    EXPECT_EQ(errors.str(), "phial-calc: die Eingabe l\u00E4sst sich nicht lesen\n");
}

TEST(CalculatorLine, OutputThatCannotBeWrittenIsTold)
{
    std::istringstream in;
    std::ostream out(nullptr);
    std::ostringstream errors;
    CalculatorLine calculator(in, out, errors, nullptr);
    EXPECT_EQ(calculator.run(std::vector<std::string>{"--en", "1+1"}), ExitStatus::NoInputOrOutput);
    EXPECT_EQ(errors.str(), "phial-calc: the output cannot be written\n");
}

TEST(CalculatorLine, UnknownOptionIsWrongUse)
{
    const Outcome run = runWith({"--en", "--fr", "1+1"});
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "phial-calc: --fr: unknown option\n");
    EXPECT_EQ(run.status, ExitStatus::WrongUse);
}

TEST(CalculatorLine, TermMayLookLikeAnOptionBehindTwoDashes)
{
    EXPECT_EQ(runWith({"--", "--5", "--de"}).output, "5\n0\n");
    EXPECT_EQ(runWith({"-5"}).output, "-5\n");
}

TEST(CalculatorLine, EqualsSignInATermIsNoAssignment)
{
    EXPECT_EQ(runWith({"2+3=", "=7", "2=3"}).output, "5\n7\n23\n");
}

TEST(CalculatorLine, RandomNumbersComeFromTheSource)
{
    EXPECT_EQ(runWith({"rnd(6)"}).output, "3\n");
}

TEST(CalculatorLine, HelpSpeaksTheLanguage)
{
    EXPECT_NE(runWith({"--help"}).output.find("Rechnet jeden Term aus"), std::string::npos);
    EXPECT_NE(runWith({"--help", "--en"}).output.find("Works out each term"), std::string::npos);
    EXPECT_EQ(runWith({"--help"}).status, ExitStatus::Success);
}

} // namespace
} // namespace phial::calcline
