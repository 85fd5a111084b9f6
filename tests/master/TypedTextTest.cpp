#include "master/TypedText.h"

#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>

using namespace phial;
using namespace phial::master;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

TEST(TypedText, ALineHasAFirstAndALastWord)
{
    EXPECT_EQ(firstWord(u"  app\tMolmasse 2 "), (std::pair<String, String>{u"app", u"Molmasse 2"}));
    EXPECT_EQ(firstWord(u"quit"), (std::pair<String, String>{u"quit", u""}));
    EXPECT_EQ(firstWord(u" "), (std::pair<String, String>{u"", u""}));
    EXPECT_EQ(lastWord(u"my list  3 "), (std::pair<String, String>{u"my list", u"3"}));
    EXPECT_EQ(lastWord(u"3"), (std::pair<String, String>{u"", u"3"}));
    EXPECT_EQ(lastWord(u""), (std::pair<String, String>{u"", u""}));
}

TEST(TypedText, QuotationMarksMakeOneWord)
{
    EXPECT_THAT(wordsOf(u" Ana  Anna "), ElementsAre(u"Ana", u"Anna"));
    EXPECT_THAT(wordsOf(u"\"Ana B\" \"Anna Bo\""), ElementsAre(u"Ana B", u"Anna Bo"));
    EXPECT_THAT(wordsOf(u"\"Ana B\"x \"\""), ElementsAre(u"Ana Bx", u""));
    EXPECT_THAT(wordsOf(u"\"Ana B"), ElementsAre(u"Ana B"));
    EXPECT_THAT(wordsOf(u"  "), IsEmpty());
}

TEST(TypedText, NumbersAreWholeAndPositive)
{
    EXPECT_EQ(positiveNumber(u"1"), 1);
    EXPECT_EQ(positiveNumber(u"2147483647"), 2147483647);
    for (const StringView text : {u"", u"0", u"-1", u"1.5", u"2147483648", u"x", u"1x", u"1e300"}) {
        EXPECT_FALSE(positiveNumber(text)) << toUtf8(text);
    }
}

TEST(TypedText, HowManyAreWanted)
{
    EXPECT_EQ(wantedCount(u"", 20), 20U);
    EXPECT_EQ(wantedCount(u"7", 20), 7U);
    EXPECT_EQ(wantedCount(u"10001", 20), MaxShown);
    EXPECT_EQ(wantedCount(u"ALL", 20), MaxShown);
    EXPECT_EQ(wantedCount(u"alle", 20), MaxShown);
    EXPECT_FALSE(wantedCount(u"some", 20));
    EXPECT_FALSE(wantedCount(u"0", 20));
}

class TypedPathTest : public phial::test::AppSession
{
protected:
    TypedPathTest() { outside.environment().set(u"HOME", folder.path()); }
};

TEST_F(TypedPathTest, TheTildeIsTheUsersOwnFolder)
{
    EXPECT_EQ(typedPath(u"~/Klasse 9a.csv"), folder.native() / "Klasse 9a.csv");
    EXPECT_EQ(typedPath(u" \"~/Klasse 9a.csv\" "), folder.native() / "Klasse 9a.csv");
    EXPECT_EQ(typedPath(u"~/"), folder.native());
    EXPECT_EQ(typedPath(u"~"), folder.native());
    EXPECT_EQ(typedPath(u"~anna/x"), std::filesystem::absolute("~anna/x"));
    EXPECT_EQ(typedPath(u"a~.csv"), std::filesystem::absolute("a~.csv"));
    EXPECT_EQ(typedPath(u"/tmp/x"), "/tmp/x");
    EXPECT_EQ(typedPath(u"\""), std::filesystem::absolute("\""));
}

TEST_F(TypedPathTest, WindowsNamesThatFolderOtherwise)
{
    outside.environment().set(u"HOME", u"");
    EXPECT_EQ(typedPath(u"~/x"), std::filesystem::absolute("~/x"));
    outside.environment().set(u"USERPROFILE", folder.path());
    EXPECT_EQ(typedPath(u"~\\x"), folder.native() / "x");
}

} // namespace
