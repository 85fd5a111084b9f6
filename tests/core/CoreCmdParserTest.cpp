#include "core/CoreCmdParser.h"

#include "support/CaseTable.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

// Columns of command_line.txt.
enum Column : std::size_t { CommandLine, Parameters, ColumnCount };

class CommandLines : public testing::TestWithParam<test::CaseRow>
{
};

String described(const CoreTokenList& tokens)
{
    String text;
    for (std::int32_t i = 1; i <= tokens.Count(); ++i) {
        const CoreToken& token = tokens.Item(i);
        const String value = token.Values().Item(1).text();
        text += text.empty() ? u"<" : u" <";
        text += token.Name() + u'>';
        text += value.empty() ? String() : u"=<" + value + u'>';
    }
    return text;
}

TEST_P(CommandLines, AreReadAsTyped)
{
    const auto& columns = GetParam().columns;
    EXPECT_EQ(described(CoreCmdParser::Parse(columns[CommandLine])), columns[Parameters]);
}

INSTANTIATE_TEST_SUITE_P(Table, CommandLines,
                         testing::ValuesIn(test::readCaseTable("command_line.txt", ColumnCount)),
                         test::caseName<testing::TestParamInfo<test::CaseRow>>);

TEST(CoreCmdParserTest, AParameterHasOneText)
{
    const CoreTokenList tokens = CoreCmdParser::Parse(u"NOSOUND");
    ASSERT_EQ(tokens.Count(), 1);
    EXPECT_EQ(tokens.Item(1).Values().Count(), 1);
    EXPECT_EQ(tokens.Item(1).Values().Item(1), Variant(u""));
}

TEST(CoreCmdParserTest, TabsAndLineEndsDivideToo)
{
    EXPECT_EQ(CoreCmdParser::Parse(u"\tA\r\nB\n").Count(), 2);
}

TEST(CoreCmdParserTest, SplitKeepsEmptyPieces)
{
    EXPECT_EQ(CoreCmdParser::Split(u"Wasserstoff**Hydrogen", u"*"),
              (CoreStringList{u"Wasserstoff", u"", u"Hydrogen"}));
    EXPECT_EQ(CoreCmdParser::Split(u"a{NEXT_ITEM}b", u"{NEXT_ITEM}"), (CoreStringList{u"a", u"b"}));
}

TEST(CoreCmdParserTest, SplitOfTheEmptyTextGivesNoPiece)
{
    EXPECT_EQ(CoreCmdParser::Split(u"", u"*").Count(), 0);
}

} // namespace
} // namespace phial
