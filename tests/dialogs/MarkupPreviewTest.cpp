#include "dialogs/MarkupPreview.h"

#include "dialogs/frm_DialogMiniHTML.h"
#include "headless/Hand.h"
#include "support/AppSession.h"

namespace phial::test
{

namespace
{

/// The preview beside the field of the dialog.
class MarkupPreviewTest : public AppSession
{
protected:
    MarkupPreviewTest() { dialog.form().Show(); }

    TextBox& field() { return dialog.form().control<ctl_MiniHTMLInput>(u"txt_Input")->input(); }
    static String lines(int count)
    {
        String text;
        for (int line = 0; line < count; ++line) {
            text += u"Zeile\r\n";
        }
        return text + u"Ende";
    }
    /// Writes it at that place, as the user does.
    void write(std::int32_t place, const String& text)
    {
        field().SelStart(place);
        field().SelText(text);
    }
    double top() const { return label->frame().pixelRectangle().top; }
    double bottom() const { return label->frame().pixelRectangle().bottom(); }
    double view() const { return holder->frame().pixelRectangle().height; }

    frm_DialogMiniHTML dialog;
    std::shared_ptr<PictureBox> holder = dialog.form().control<PictureBox>(u"pic_Preview");
    std::shared_ptr<ctl_Label> label = dialog.form().control<ctl_Label>(u"lab_Preview");
    std::shared_ptr<ScrollBar> bar = dialog.form().control<ScrollBar>(u"srl_Preview");
};

TEST_F(MarkupPreviewTest, AShortTextHasNoBar)
{
    field().Text(u"H<sub>2</sub>O");
    EXPECT_FALSE(bar->Visible());
    EXPECT_EQ(top(), 0);
    headless::turnWheel(*label, -1);
    headless::drag(*label, {5, 5}, {5, -40});
    EXPECT_EQ(top(), 0);
}

TEST_F(MarkupPreviewTest, ATextThatJustFitsHasNoBar)
{
    field().Text(lines(3));
    PixelRectangle place = holder->frame().pixelRectangle();
    place.height = label->frame().pixelRectangle().height;
    holder->frame().pixelRectangle(place);
    write(0, u"x");
    EXPECT_FALSE(bar->Visible());
    place.height -= 1;
    holder->frame().pixelRectangle(place);
    write(0, u"x");
    EXPECT_TRUE(bar->Visible());
}

TEST_F(MarkupPreviewTest, ALongTextIsShownWhereItIsChanged)
{
    write(0, lines(60));
    EXPECT_TRUE(bar->Visible());
    EXPECT_DOUBLE_EQ(bottom(), view()) << "its end";
    const double end = top();
    write(static_cast<std::int32_t>(field().Text().size()) - 10, u"x");
    EXPECT_EQ(top(), end) << "the line is in view";
    write(0, u"x");
    EXPECT_EQ(top(), 0) << "its beginning";
}

TEST_F(MarkupPreviewTest, ALineBelowTheViewComesToItsFoot)
{
    field().Text(lines(60));
    constexpr int Line = 30;
    write(Line * static_cast<std::int32_t>(StringView(u"Zeile\r\n").size()), u"x");
    EXPECT_DOUBLE_EQ(top() + (Line + 1) * bar->SmallChange(), view());
}

TEST_F(MarkupPreviewTest, ATextThatGetsShortComesBackWhole)
{
    write(0, lines(60));
    field().Text(u"kurz");
    EXPECT_FALSE(bar->Visible());
    EXPECT_EQ(top(), 0);
}

TEST_F(MarkupPreviewTest, IsScrolledByTheBar)
{
    field().Text(lines(60));
    bar->inputValue(bar->Max());
    EXPECT_DOUBLE_EQ(bottom(), view());
    bar->inputScroll(12);
    EXPECT_EQ(top(), -12);
}

TEST_F(MarkupPreviewTest, IsScrolledByTheWheelAndNoFurtherThanItGoes)
{
    field().Text(lines(60));
    headless::turnWheel(*label, -1);
    EXPECT_EQ(top(), -3.0 * bar->SmallChange());
    headless::turnWheel(*holder, -1);
    EXPECT_EQ(top(), -6.0 * bar->SmallChange());
    headless::turnWheel(*label, 9);
    EXPECT_EQ(top(), 0);
    headless::turnWheel(*label, -1000);
    EXPECT_DOUBLE_EQ(bottom(), view());
}

TEST_F(MarkupPreviewTest, IsDraggedByAFinger)
{
    field().Text(lines(60));
    headless::drag(*label, {20, 100}, {20, 40});
    EXPECT_EQ(top(), -60);
    label->pointerMove({PointerButton::None, 0, 20, 90});
    EXPECT_EQ(top(), -60) << "nothing is held any more";
    headless::drag(*label, {20, 160}, {20, 130});
    EXPECT_EQ(top(), -90);
    headless::drag(*holder, {20, 100}, {20, 90});
    EXPECT_EQ(top(), -100);
    label->pointerDown({PointerButton::Right, 0, 20, 200});
    label->pointerMove({PointerButton::Right, 0, 20, 150});
    label->pointerUp({PointerButton::Right, 0, 20, 150});
    EXPECT_EQ(top(), -100);
    headless::drag(*label, {20, 100}, {20, 900});
    EXPECT_EQ(top(), 0);
}

TEST_F(MarkupPreviewTest, BeginsWithTheBeginningOfItsText)
{
    dialog.form().Unload();
    dialog.pText(lines(60));
    dialog.form().Show();
    EXPECT_TRUE(bar->Visible());
    EXPECT_EQ(top(), 0);
}

} // namespace

} // namespace phial::test
