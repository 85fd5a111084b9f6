#include "common/TermFit.h"

#include "support/AppSession.h"
#include "visual/Form.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

using phial::String;

// A sign is half its size in points wide here.
class TermFit : public phial::test::AppSession
{
protected:
    static String letters(std::size_t count) { return String(count, u'C'); }
};

TEST_F(TermFit, TakesTheLargestSizeThatIsNarrowEnough)
{
    EXPECT_EQ(fittingTermSize(letters(10), 195), 39);
    EXPECT_EQ(fittingTermSize(letters(10), 194), 33);
    EXPECT_EQ(fittingTermSize(letters(10), 164), 28.5);
    EXPECT_EQ(fittingTermSize(letters(10), 141), 24);
    EXPECT_EQ(fittingTermSize(letters(10), 120), 24);
    EXPECT_EQ(fittingTermSize(letters(10), 119), std::nullopt);
    EXPECT_EQ(fittingTermSize(u"", 1), 39);
}

TEST_F(TermFit, ShowsTheTermInIt)
{
    const auto form = std::make_shared<phial::Form>(u"frm_Test");
    const auto label = form->add<phial::ctl_TermLabel>(u"trm_Formula");
    label->frame().pixelRectangle({0, 0, 130, 60});
    showFitting(*label, letters(10));
    EXPECT_EQ(label->Term(), letters(10));
    EXPECT_EQ(label->TEXTFONT()->Size(), 24);
    showFitting(*label, u"H2O");
    EXPECT_EQ(label->TEXTFONT()->Size(), 39);
    form->discard();
}

TEST_F(TermFit, TextsOfManyLinesAreShownSmaller)
{
    const auto form = std::make_shared<phial::Form>(u"frm_Test");
    const auto label = form->add<phial::ctl_Label>(u"lab_Hint");
    label->frame().pixelRectangle({0, 0, 324, 120});
    const auto lines = [](int count) {
        String text = u"1 x H";
        for (int line = 1; line < count; ++line) {
            text += u"<br>1 x H";
        }
        return text;
    };
    showFitting(*label, lines(6), 12);
    EXPECT_EQ(label->Font()->Size(), 12) << "six elements";
    showFitting(*label, lines(9), 12);
    EXPECT_LT(label->Font()->Size(), 12);
    EXPECT_EQ(label->Caption(), lines(9));
    showFitting(*label, lines(40), 12);
    EXPECT_EQ(label->Font()->Size(), 10) << "no smaller";
    form->discard();
}

TEST_F(TermFit, BreaksLinesBetweenWords)
{
    using Lines = std::vector<String>;
    phial::FontSpec font;
    font.size = 12;
    const double letter = 6;
    EXPECT_EQ(brokenLines(u"aa bb cc", font, {5 * letter, 100}), (Lines{u"aa bb", u"cc"}));
    EXPECT_EQ(brokenLines(u"aa bb cc", font, {5 * letter - 1, 100}), (Lines{u"aa", u"bb", u"cc"}));
    EXPECT_EQ(brokenLines(u"aa bb cc", font, {5 * letter, 20}), std::nullopt);
    EXPECT_EQ(brokenLines(u"aaaaaa b", font, {5 * letter, 100}), std::nullopt);
}

} // namespace
} // namespace learning
