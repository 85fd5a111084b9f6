#include "FormTest.h"

namespace phial::test
{

namespace
{

using FormZoom = FormTest;

TEST_F(FormZoom, MeasuresTheInsideInItsOwnPixelsAndLeavesTheWindow)
{
    form->ScaleMode(ScaleUnit::Pixels);
    form->innerSize({1200, 900});
    const double width = form->Width();
    logs(form->Resize, "resize");
    form->Zoom(1.5);

    EXPECT_EQ(form->Width(), width);
    EXPECT_EQ(form->ScaleWidth(), 800);
    EXPECT_EQ(form->ScaleHeight(), 600);
    form->Zoom(1.5);
    EXPECT_THAT(log, ElementsAre("resize"));
}

TEST_F(FormZoom, AWindowIsMadeAsLargeAsItsZoomedInsideNeeds)
{
    form->Zoom(2);
    form->innerSize({400, 300});
    form->decoration({10, 30});

    EXPECT_EQ(form->innerSize(), (PixelSize{400, 300}));
    EXPECT_EQ(form->Width(), (800 + 10) * TwipsPerPixel);
    EXPECT_EQ(form->Height(), (600 + 30) * TwipsPerPixel);
}

TEST_F(FormZoom, IsAboveNothing)
{
    EXPECT_RAISES(form->Zoom(0), InvalidArgument);
    EXPECT_RAISES(form->Zoom(-1), InvalidArgument);
    EXPECT_EQ(form->Zoom(), 1);
}

TEST_F(FormZoom, StaysAtOneInAWindowWithHoles)
{
    Translucency holes;
    holes.colourKey = RGB(255, 0, 255);
    form->translucency(holes);
    form->Zoom(2);
    EXPECT_EQ(form->Zoom(), 1);
}

/// A dialog over a form that has the zoom.
class DialogZoom : public FormTest
{
protected:
    ~DialogZoom() override { dialog->discard(); }

    double zoomOver(double openersZoom, PixelSize inner)
    {
        form->Zoom(openersZoom);
        form->Show();
        dialog->innerSize(inner);
        double shown = 0;
        outside.visual().onModal(u"frm_Dialog", [&](Form& opened) {
            shown = opened.Zoom();
            EXPECT_EQ(opened.innerSize(), inner);
            opened.Unload();
        });
        dialog->Show(FormShow::Modal);
        return shown;
    }

    std::shared_ptr<Form> dialog = std::make_shared<Form>(u"frm_Dialog");
};

TEST_F(DialogZoom, IsThatOfItsOpener)
{
    EXPECT_EQ(zoomOver(1.5, {200, 100}), 1.5);
}

TEST_F(DialogZoom, IsThatOfItsOpenerWhenThatGrowsMeanwhile)
{
    form->Show();
    dialog->innerSize({200, 100});
    outside.visual().onModal(u"frm_Dialog", [&](Form& opened) {
        const PixelRectangle screen = visualHost().screen().first();
        opened.Move(0, 0);
        form->Zoom(1.5);
        EXPECT_EQ(opened.Zoom(), 1.5);
        EXPECT_EQ(opened.innerSize(), (PixelSize{200, 100}));
        EXPECT_NEAR(opened.Left() + opened.Width() / 2, screen.width / 2 * TwipsPerPixel, TwipsPerPixel);
        form->Zoom(2);
        EXPECT_EQ(opened.Zoom(), 1.5) << "it does not change under the hand";
        opened.Unload();
    });
    dialog->Show(FormShow::Modal);
    form->Zoom(2.5);
}

TEST_F(DialogZoom, LeavesRoomOnTheScreen)
{
    const PixelRectangle screen = visualHost().screen().first();
    const double zoom = zoomOver(4, {screen.width / 2, screen.height / 2});
    EXPECT_GT(zoom, 1.5);
    EXPECT_LT(zoom, 2);
}

TEST_F(DialogZoom, IsNeverBelowOne)
{
    EXPECT_EQ(zoomOver(0.8, {200, 100}), 1);
}

TEST_F(DialogZoom, IsOneForADialogAsLargeAsTheScreen)
{
    const PixelRectangle screen = visualHost().screen().first();
    EXPECT_EQ(zoomOver(2, {screen.width, screen.height}), 1);
}

} // namespace

} // namespace phial::test
