#include "DesktopSession.h"
#include "qt/desktop/ShotBook.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Pannel.h"

#include <QLineEdit>
#include <QTest>

using namespace phial;
using namespace phial::qt;

namespace
{

/// A form of 200 by 100 pixels at twice its size.
class ZoomTest : public DesktopSession
{
protected:
    ZoomTest() : form(std::make_shared<Form>(u"frm_Test"))
    {
        form->ScaleMode(ScaleUnit::Pixels);
        form->innerSize({400, 200});
        panel = form->add<ctl_Pannel>(u"pan_Inner");
        panel->Move(10, 20, 100, 60);
        panel->BackColor(RGB(200, 30, 30));
        panel->container()->ScaleMode(ScaleUnit::Pixels);
        button = form->add<ctl_Button>(u"but_Go", panel->container());
        button->Move(5, 6, 50, 30);
        button->Font()->Size(10);
        form->Show();
        form->Zoom(2);
    }

    std::shared_ptr<Form> form;
    std::shared_ptr<ctl_Pannel> panel;
    std::shared_ptr<ctl_Button> button;
};

TEST_F(ZoomTest, ShowsAllThatStandsOnTheFormLarger)
{
    EXPECT_EQ(widgetOf(*form).size(), QSize(400, 200));
    EXPECT_EQ(widgetOf(*panel).geometry(), QRect(20, 40, 200, 120));
    EXPECT_EQ(widgetOf(*button).geometry().size(), QSize(100, 60));
    EXPECT_NEAR(widgetOf(*button).font().pointSizeF(), 20, 0.1);
    EXPECT_EQ(panel->Width(), 100);
}

TEST_F(ZoomTest, PaintsToTheEdge)
{
    const PicturePtr picture = grabForm(*form, 1);
    const auto colourAt = [&](std::size_t x, std::size_t y) { return picture->at(x, y); };
    EXPECT_EQ(colourAt(215, 155), colourAt(150, 120));
    EXPECT_NE(colourAt(225, 155), colourAt(150, 120));
}

TEST_F(ZoomTest, TellsPressesInTheFormsOwnPixels)
{
    PointerEvent heard;
    const auto connection = form->MouseDown.connect([&](const PointerEvent& event) { heard = event; });
    QWidget& area = *widgetOf(*panel).parentWidget();
    QTest::mousePress(&area, Qt::LeftButton, {}, QPoint(300, 180));
    EXPECT_EQ(heard.X, 150);
    EXPECT_EQ(heard.Y, 90);
}

TEST_F(ZoomTest, AControlThatComesLaterIsLargerToo)
{
    const auto field = form->add<TextBox>(u"txt_Late");
    field->Move(120, 20, 60, 20);
    field->Font()->Size(9);
    EXPECT_EQ(widgetOf(*field).geometry(), QRect(240, 40, 120, 40));
    EXPECT_NEAR(widgetOf(*field).focusProxy()->font().pointSizeF(), 18, 0.1);
}

TEST_F(ZoomTest, FollowsTheWindowWhenTheProgramDoes)
{
    const auto following = form->Resize.connect([&] {
        form->Zoom(form->innerSize().width * form->Zoom() / 200); // as wide as the window, always
    });
    widgetOf(*form).resize(600, 300);
    EXPECT_TRUE(eventually([&] { return form->Zoom() == 3; }));
    EXPECT_EQ(form->ScaleWidth(), 200);
    EXPECT_EQ(widgetOf(*panel).geometry(), QRect(30, 60, 300, 180));
}

TEST_F(ZoomTest, AWindowIsNoSmallerThanItsLeastSize)
{
    form->leastSize({320, 160});
    widgetOf(*form).resize(100, 100);
    EXPECT_EQ(widgetOf(*form).size(), QSize(320, 160));
}

} // namespace
