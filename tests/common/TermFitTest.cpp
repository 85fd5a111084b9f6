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

} // namespace
} // namespace learning
