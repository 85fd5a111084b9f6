#include "app/cls_AppTools.h"
#include "term/TermPicture.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

String html(StringView term)
{
    return cls_AppTools().TERM2HTML(term);
}

TEST(TermHtmlTest, LowersDigitsAndEndsWithABlank)
{
    EXPECT_EQ(html(u"H2O"), u"H<sub>2</sub>O ");
    EXPECT_EQ(html(u""), u" ");
}

TEST(TermHtmlTest, LowersLeadingDigitsToo)
{
    EXPECT_EQ(html(u"2H2O"), u"<sub>2</sub>H<sub>2</sub>O ");
}

TEST(TermHtmlTest, AlwaysRaisesSignsWithTheDigitsBehindThem)
{
    EXPECT_EQ(html(u"Na+"), u"Na<sup>+</sup> ");
    EXPECT_EQ(html(u"a - b"), u"a <sup>-</sup> b ");
    EXPECT_EQ(html(u"x-23"), u"x<sup>-23</sup> ");
}

TEST(TermHtmlTest, ASignBehindDigitsClosesTheLowering)
{
    EXPECT_EQ(html(u"SO4-"), u"SO<sub>4</sub><sup>-</sup> ");
}

TEST(TermHtmlTest, CaretAndMicroTakeOneCharacterOutsideTheMode)
{
    EXPECT_EQ(html(u"SO4^2-"), u"SO<sub>4<sup>2</sup></sub><sup>-</sup> ");
    EXPECT_EQ(html(u"CµnH"), u"C<sub>n</sub>H ");
}

TEST(TermHtmlTest, ACaretAtTheEndTakesTheAddedBlank)
{
    EXPECT_EQ(html(u"x^"), u"x<sup> </sup>");
}

TEST(TermHtmlTest, EscapesNothing)
{
    EXPECT_EQ(html(u"a<b&c"), u"a<b&c ");
}

TEST(TermPrintTest, DrawsAtTheCurrentPositionByDefault)
{
    TermPicture picture;
    picture.device().CurrentX(30);
    picture.device().CurrentY(40);
    cls_AppTools().TERMPRINT(picture.device(), u"A");
    EXPECT_EQ(picture.runs(), "A@30,28");
}

} // namespace
} // namespace phial::test
