#include "term/TermPaste.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

TEST(TermPasteTest, ATextBecomesOneLine)
{
    EXPECT_EQ(termOfText(u"  H2O \r\n"), u"H2O");
    EXPECT_EQ(termOfText(u"2H2\t+\r\n\r\nO2"), u"2H2 + O2");
    EXPECT_EQ(termOfText(u"a\u2028b\u0085c"), u"a b c");
    EXPECT_EQ(termOfText(StringView(u"a\0b\x1B\x7F", 5)), u"ab");
    EXPECT_EQ(termOfText(u"a\xD83D\U0001F600\xDE00z"), u"a\U0001F600z");
    EXPECT_EQ(termOfText(u" \n"), u"");
}

TEST(TermPasteTest, ATermStaysAsItIs)
{
    for (const StringView term : {u"2H2 + O2 -> 2H2O", u"SO4^2-", u"§a|b~~*µ#=^(a)/(b)", u"2  x"}) {
        EXPECT_EQ(termOfText(term), term);
    }
}

} // namespace
} // namespace phial::test
