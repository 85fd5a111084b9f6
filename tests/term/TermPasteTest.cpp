#include "term/TermPaste.h"

#include "support/CaseTable.h"
#include "term/TermCopy.h"
#include "term/TermDraw.h"
#include "term/TermPicture.h"

#include <gtest/gtest.h>
#include <random>

namespace phial::test
{
namespace
{

std::string drawn(StringView term)
{
    TermPicture picture;
    TermDraw(picture.device(), term, 0, 0, TEXTALIGN::TopLeft);
    return picture.runs();
}

class OutsideTable : public ::testing::TestWithParam<CaseRow>
{
};

TEST_P(OutsideTable, IsReadAsTold)
{
    const auto& columns = GetParam().columns;
    EXPECT_EQ(toUtf8(termOfText(columns[0])), toUtf8(columns[1]));
    EXPECT_EQ(drawn(termOfText(columns[0])), toUtf8(columns[2]));
}

INSTANTIATE_TEST_SUITE_P(Texts, OutsideTable, ::testing::ValuesIn(readCaseTable("term_texts.txt", 3)),
                         caseName<::testing::TestParamInfo<CaseRow>>);

TEST(TermPasteTest, ATextBecomesOneLine)
{
    EXPECT_EQ(termOfText(u"  H2O \r\n"), u"H2O");
    EXPECT_EQ(termOfText(u"2H2\t+\r\n\r\nO2"), u"2H2 + O2");
    EXPECT_EQ(termOfText(u"a\u2028b\u0085c\u00A0d"), u"a b c d");
    EXPECT_EQ(termOfText(StringView(u"a\0b\x1B\x7F", 5)), u"ab");
    EXPECT_EQ(termOfText(u"a\xD83D\U0001F600\xDE00z"), u"a\U0001F600z");
    EXPECT_EQ(termOfText(u" \n"), u"");
    EXPECT_EQ(termOfText(u""), u"");
}

TEST(TermPasteTest, ATermStaysAsItIs)
{
    for (const StringView term :
         {u"2H2 + O2 -> 2H2O", u"SO4^2-", u"§a|b~~*µ#=^(a)/(b)", u"2  x", u"a <- b", u"x<sub", u"<p>a</p>"}) {
        EXPECT_EQ(toUtf8(termOfText(term)), toUtf8(term));
    }
}

TEST(TermPasteTest, HtmlCountsWhereItRaisesOrLowers)
{
    EXPECT_EQ(termOfClipboard(u"SO42-", u"<p>SO<sub>4</sub><sup>2&minus;</sup></p>"), u"SO4^2-");
    EXPECT_EQ(termOfClipboard(u"H2O", u"<b>H2O, Wasser</b>"), u"H2O") << "else the text does";
    EXPECT_EQ(termOfClipboard(u"H2O", u""), u"H2O");
    EXPECT_EQ(termOfClipboard(u"", u"CO<SUB class=\"x\">2</SUB>"), u"CO2");
}

TEST(TermPasteTest, OfHtmlIsReadWhatIsSeen)
{
    const auto seen = [](StringView html) { return toUtf8(termOfClipboard(u"", html)); };
    EXPECT_EQ(seen(u"<!DOCTYPE x><html><head><title>t</title></head><style>p{a:b}</style>"
                   u"<body><!-- <sub>9</sub> -->H<sub>2</sub>O</body></html>"),
              "H2O");
    EXPECT_EQ(seen(u"<div>H<sub>2</sub></div>\n<div>O</div>"), "H2 O");
    EXPECT_EQ(seen(u"a  \n b<sub>2</sub>"), "a b2");
    EXPECT_EQ(seen(u"a &lt;- b<sub>2</sub>&#8594;&#x2192;&middot;&nope;&"), "a <- b2->->*&nope;&");
    EXPECT_EQ(seen(u"&#128512;<sub>2</sub>"), "\xF0\x9F\x98\x80\x32");
    EXPECT_EQ(seen(u"&#xD800;&#1114112;&#;H<sub>2</sub>"), "&#xD800;&#1114112;&#;H2");
    EXPECT_EQ(seen(u"H<sub>2"), "H2") << "an end that is missing";
    EXPECT_EQ(seen(u"</sub>H<sub>2</sub></sup>O"), "H2O");
    EXPECT_EQ(seen(u"<script>H<sub>3</sub></script"), "");
}

TEST(TermPasteTest, ATermThatWasCopiedComesBackExactly)
{
    for (const StringView term :
         {u"§a|b \"x\" & <y>", u"^2#^3U", u"(a)/(b)", u"x²·y", u"a\U0001F600", u"  a "}) {
        EXPECT_EQ(toUtf8(termOfClipboard(u"?", htmlOfTerm(term))), toUtf8(term));
    }
    EXPECT_EQ(termOfClipboard(u"", u"<span data-term=\"a&#10;b&#xD800;\">"), u"ab&#xD800;");
    EXPECT_EQ(termOfClipboard(u"x", u"<span data-term=\"ab"), u"x");
}

TEST(TermPasteTest, OfAVeryLongTextTheBeginningIsRead)
{
    EXPECT_EQ(termOfText(String(1'000'000, u'a')).size(), 100'000U);
    EXPECT_LE(termOfClipboard(u"", u"<sub>" + String(1'000'000, u'a')).size(), 400'000U);
}

TEST(TermCopyTest, GivesSmallCharactersAndTheUsualSigns)
{
    const auto text = [](StringView term) { return toUtf8(textOfTerm(term)); };
    EXPECT_EQ(text(u"H2SO4"), "H₂SO₄");
    EXPECT_EQ(text(u"SO4^2-"), "SO₄²⁻");
    EXPECT_EQ(text(u"2H2O"), "2H₂O");
    EXPECT_EQ(text(u"Ca(OH)2"), "Ca(OH)₂");
    EXPECT_EQ(text(u"10^-3"), "10⁻³");
    EXPECT_EQ(text(u"CuSO4*5H2O -> x"), "CuSO₄·5H₂O → x");
    EXPECT_EQ(text(u"a<-b~~c=^d"), "a←b≈c≙d");
    EXPECT_EQ(text(u"§a|b#c|"), "abc|");
    EXPECT_EQ(text(u"xµn^q"), "xₙ^q");
    EXPECT_EQ(text(u"a\U0001F600"), "a\xF0\x9F\x98\x80");
    EXPECT_EQ(text(u""), "");
}

TEST(TermCopyTest, AFractionStaysInBracketsAndItsPartsHaveRulesOfTheirOwn)
{
    EXPECT_EQ(toUtf8(textOfTerm(u"(n)/(V)2")), "(n)/(V)2") << "a digit behind it is an ordinary one";
    EXPECT_EQ(toUtf8(textOfTerm(u"x(2a2)/((1)/(H2))2")), "x(2a₂)/((1)/(H₂))₂");
    EXPECT_EQ(toUtf8(textOfTerm(u"(a)/(b2")), "(a)/(b₂");
    EXPECT_EQ(toUtf8(textOfTerm(u"(a|)/(b|)")), "(a|)/(b|)") << "at an end it strikes nothing";
    const String deep = String(20'000, u'(') + u"a";
    EXPECT_EQ(textOfTerm(deep), deep);
    String nested = u"a";
    for (int depth = 0; depth < 3'000; ++depth) {
        nested = u"(" + nested + u")/(b)";
    }
    EXPECT_EQ(textOfTerm(nested), nested);
}

TEST(TermCopyTest, GivesHtmlWithTheTermUnseen)
{
    EXPECT_EQ(toUtf8(htmlOfTerm(u"SO4^2-")), "<span data-term=\"SO4^2-\">SO<sub>4</sub><sup>2-</sup></span>");
    EXPECT_EQ(toUtf8(htmlOfTerm(u"2H2O -> \"<&>\"")),
              "<span data-term=\"2H2O -&gt; &quot;&lt;&amp;&gt;&quot;\">2H<sub>2</sub>O → "
              "&quot;&lt;&amp;&gt;&quot;</span>");
    EXPECT_EQ(toUtf8(htmlOfTerm(u"x^2")), "<span data-term=\"x^2\">x<sup>2</sup></span>");
}

/// Formulas as pupils write them: what stands in them is drawn alike when it has been copied and pasted as
/// plain text or as HTML without the term.
TEST(TermCopyTest, WhatOtherProgramsGiveBackIsDrawnAlike)
{
    for (const StringView term :
         {u"H2SO4", u"SO4^2-", u"2H2 + O2 -> 2H2O", u"Na^+ + Cl^-", u"10^-3", u"CuSO4*5H2O", u"Fe^3+",
          u"[Cu(NH3)4]^2+", u"x^2 + y^2", u"a~~b", u"c=^d", u"xµn", u"HCO3^-", u"C6H12O6"}) {
        EXPECT_EQ(drawn(termOfText(textOfTerm(term))), drawn(term)) << toUtf8(term);
        const String html = replaced(htmlOfTerm(term), u"data-term", u"title");
        EXPECT_EQ(drawn(termOfClipboard(textOfTerm(term), html)), drawn(term)) << toUtf8(term);
    }
}

TEST(TermCopyTest, AnythingCanBeCopiedAndComesBack)
{
    constexpr StringView Copied[] = {u"H",  u"2", u"(", u")/(", u")", u"^",         u"µ",
                                     u"#",  u"-", u"+", u"->",  u"~", u"=^",        u"<",
                                     u"\"", u"&", u"§", u"|",   u" ", u"\U0001F600"};
    std::mt19937 random(3); // NOLINT(cert-msc51-cpp): the same terms every time
    for (int round = 0; round < 2000; ++round) {
        String term;
        for (auto count = random() % 14; count > 0; --count) {
            term += Copied[random() % std::size(Copied)];
        }
        EXPECT_EQ(toUtf8(termOfClipboard(textOfTerm(term), htmlOfTerm(term))), toUtf8(term));
    }
}

} // namespace
} // namespace phial::test
