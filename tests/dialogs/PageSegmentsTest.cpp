#include "dialogs/PageSegments.h"

#include "headless/Hand.h"
#include "headless/HeadlessVisualHost.h"
#include "support/HeadlessSession.h"
#include "visual/Form.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

/// Two labels of 4 by 10 pixels with a pixel between them, 20 pixels from the left.
class PageSegmentsTest : public test::HeadlessSession
{
protected:
    PageSegmentsTest()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        form->add(strip);
        strip->Move(0, 50, 100, 14);
        strip->container()->ScaleMode(ScaleUnit::Pixels);
        for (const auto& [label, left] : {std::pair(first, 20.0), std::pair(second, 25.0)}) {
            form->add(label, strip->container());
            label->Move(left, 2, 4, 10);
            label->BackStyle(BackStyle::Opaque);
        }
        first->BackColor(QBColor(12));
        second->BackColor(QBColor(9));
        connections += first->Click.connect([this] { clicked += "1"; });
        connections += second->Click.connect([this] { clicked += "2"; });
    }
    ~PageSegmentsTest() override { form->discard(); }

    std::string painted() { return outside.visual().drawing(*strip); }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<PageSegments> strip = makeNamed<PageSegments>(u"pic_Strip");
    std::shared_ptr<Label> first = makeNamed<Label>(u"bar_Progress", 1);
    std::shared_ptr<Label> second = makeNamed<Label>(u"bar_Progress", 2);
    std::string clicked;
    Connections connections;
};

} // namespace

TEST_F(PageSegmentsTest, ShowsTheLabelsInTheirColours)
{
    form->Show();
    EXPECT_THAT(painted(), HasSubstr("box 20,2 4x10 fill #FF0000"));
    EXPECT_THAT(painted(), HasSubstr("box 25,2 4x10 fill #0000FF"));
    EXPECT_TRUE(strip->surface().transparent()) << "the window's ground is seen beside them";
}

TEST_F(PageSegmentsTest, LeavesOutWhatIsHidden)
{
    form->Show();
    second->Visible(false);
    strip->refresh();
    EXPECT_THAT(painted(), Not(HasSubstr("box 25,2")));
    headless::click(*strip, 26, 5);
    EXPECT_EQ(clicked, "");
}

TEST_F(PageSegmentsTest, EdgesAreThoseOfPixels)
{
    form->Show();
    second->Move(25.4, 2, 3.84, 10);
    strip->refresh();
    EXPECT_THAT(painted(), HasSubstr("box 25,2 4x10 fill #0000FF"));
}

TEST_F(PageSegmentsTest, APressIsTheLabelsOnWhichItIs)
{
    form->Show();
    headless::click(*strip, 21, 5);
    headless::click(*strip, 28, 5);
    EXPECT_EQ(clicked, "12");
    headless::click(*strip, 24.5, 5);
    headless::click(*strip, 26, 1);
    headless::click(*strip, 60, 5);
    EXPECT_EQ(clicked, "12") << "between, above and behind them is nothing";
}

} // namespace phial
