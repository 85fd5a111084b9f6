#include "visual/Markup.h"

#include "visual/DrawingTest.h"

namespace phial
{

void PrintTo(const MarkupRun& run, std::ostream* out)
{
    *out << '"' << toUtf8(run.text) << '"' << (run.bold ? " bold" : "") << (run.italic ? " italic" : "")
         << ' ' << run.level << (run.lineEnd ? " end" : "");
}

} // namespace phial

namespace phial::test
{

namespace
{

using Runs = std::vector<MarkupRun>;
using MarkupLayoutTest = DrawingTest;

MarkupRun run(String text, std::int32_t level = 0)
{
    return {std::move(text), false, false, level, false};
}

TEST(Markup, PlainTextIsOneRun)
{
    EXPECT_EQ(parseMarkup(u"Wasser"), Runs{run(u"Wasser")});
    EXPECT_EQ(parseMarkup(u""), Runs{});
}

TEST(Markup, LoweredAndRaisedText)
{
    EXPECT_EQ(parseMarkup(u"H<sub>2</sub>O"), (Runs{run(u"H"), run(u"2", -1), run(u"O")}));
    EXPECT_EQ(parseMarkup(u"Na<SUP>+</Sup>"), (Runs{run(u"Na"), run(u"+", 1)}));
}

TEST(Markup, BreaksAndLineEndsPartLines)
{
    const MarkupRun first{u"a", false, false, 0, true};
    const MarkupRun empty{u"", false, false, 0, true};
    EXPECT_EQ(parseMarkup(u"a<br>b"), (Runs{first, run(u"b")}));
    EXPECT_EQ(parseMarkup(u"a\r\nb"), (Runs{first, run(u"b")}));
    EXPECT_EQ(parseMarkup(u"a\n\nb"), (Runs{first, empty, run(u"b")}));
}

TEST(Markup, TagsOverlapAndAClosingTagWithoutAnOpeningOneIsDropped)
{
    const MarkupRun bold{u"a", true, false, 0, false};
    const MarkupRun both{u"b", true, true, 0, false};
    const MarkupRun italic{u"c", false, true, 0, false};
    EXPECT_EQ(parseMarkup(u"<b>a<i>b</b>c</i></sub>d"), (Runs{bold, both, italic, run(u"d")}));
}

TEST(Markup, UnknownTagsAndLooseBracketsArePlainText)
{
    EXPECT_EQ(parseMarkup(u"a < b <u>c</u> <"), Runs{run(u"a < b <u>c</u> <")});
}

TEST(Markup, ReadsPlainlyWithoutTags)
{
    EXPECT_EQ(plainMarkup(u"<b>H<sub>2</sub>O</b><br>Wasser"), u"H2O\nWasser");
}

TEST_F(MarkupLayoutTest, SizeIsThatOfTheWidestLineAndOfAllLines)
{
    const MarkupLayout layout(u"ab<br>abcd", {}, *metrics);
    EXPECT_EQ(layout.size(), (PixelSize{16, 20}));
    EXPECT_EQ(layout.lineCount(), 2U);
}

TEST_F(MarkupLayoutTest, EmptyTextIsOneEmptyLine)
{
    EXPECT_EQ(MarkupLayout(u"", {}, *metrics).size(), (PixelSize{0, 10}));
}

TEST_F(MarkupLayoutTest, BreaksAtBlanksWhichHangOverTheEdge)
{
    const MarkupLayout layout(u"aaa bbb ccc", {}, *metrics, 28); // "aaa bbb" is 28 wide
    EXPECT_EQ(layout.lineCount(), 2U);
    EXPECT_EQ(layout.size().width, 28);
}

TEST_F(MarkupLayoutTest, NeverBreaksWithinAWordWhateverItsLooks)
{
    const MarkupLayout layout(u"xx H<sub>2</sub>O", {}, *metrics, 20);
    EXPECT_EQ(layout.lineCount(), 2U);
    layout.draw(device, {0, 0, 20, 20}, TextSide::Near, TextSide::Near);
    EXPECT_EQ(drawn(), "text 0,0 \"xx \" Tahoma 8 #000000\n"
                       "text 0,10 \"H\" Tahoma 8 #000000\n"
                       "text 4,13 \"2\" Tahoma 6 #000000\n"
                       "text 7,10 \"O\" Tahoma 8 #000000\n");
}

TEST_F(MarkupLayoutTest, WordThatIsTooLongStandsOnALineOfItsOwn)
{
    EXPECT_EQ(MarkupLayout(u"a bbbbbbbbbb c", {}, *metrics, 12).lineCount(), 3U);
}

TEST_F(MarkupLayoutTest, IsAlignedInBothDirectionsLineByLine)
{
    MarkupLayout(u"ab<br>abcd", {}, *metrics).draw(device, {0, 0, 100, 60}, TextSide::Middle, TextSide::Far);
    EXPECT_EQ(drawn(), "text 46,40 \"ab\" Tahoma 8 #000000\n"
                       "text 42,50 \"abcd\" Tahoma 8 #000000\n");
}

TEST_F(MarkupLayoutTest, PlainTextShowsItsTagsAndPartsItsLines)
{
    MarkupLayout(u"<b>x</b>\n<br>", {}, *metrics, std::nullopt, TextForm::Plain)
        .draw(device, {0, 0, 100, 60}, TextSide::Near, TextSide::Near);
    EXPECT_EQ(drawn(), "text 0,0 \"<b>x</b>\" Tahoma 8 #000000\n"
                       "text 0,10 \"<br>\" Tahoma 8 #000000\n");
}

TEST_F(MarkupLayoutTest, PlainTextIsBrokenWithinAWordThatIsWiderThanTheLine)
{
    MarkupLayout(u"aa bbbbbbb c", {}, *metrics, 12, TextForm::Plain)
        .draw(device, {0, 0, 12, 60}, TextSide::Near, TextSide::Near);
    EXPECT_EQ(drawn(), "text 0,0 \"aa \" Tahoma 8 #000000\n"
                       "text 0,10 \"bbb\" Tahoma 8 #000000\n"
                       "text 0,20 \"bbb\" Tahoma 8 #000000\n"
                       "text 0,30 \"b c\" Tahoma 8 #000000\n");
}

TEST_F(MarkupLayoutTest, PlainTextNeverPartsTheTwoUnitsOfALetter)
{
    const String four = u"\U0001F9EA\U0001F9EA\U0001F9EA\U0001F9EA"; // eight units of 4 pixels
    EXPECT_EQ(MarkupLayout(four, {}, *metrics, 12, TextForm::Plain).lineCount(), 4U);
    EXPECT_EQ(MarkupLayout(four, {}, *metrics, 1, TextForm::Plain).lineCount(), 4U);
}

TEST_F(MarkupLayoutTest, PlainTextWithoutBlanksIsSetInProportionToItsLength)
{
    EXPECT_EQ(MarkupLayout(String(100'000, u'x'), {}, *metrics, 100, TextForm::Plain).lineCount(), 4'000U);
}

TEST_F(MarkupLayoutTest, AHundredThousandSignsAreSetInProportionToTheirNumber)
{
    String text;
    for (int words = 0; words < 10'000; ++words) {
        text += u"<b>acht</b> ";
    }
    EXPECT_EQ(MarkupLayout(text, {}, *metrics, 100).lineCount(), 2'000U);
}

} // namespace

} // namespace phial::test
