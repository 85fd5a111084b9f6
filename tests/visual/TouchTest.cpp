#include "FormTest.h"
#include "headless/TouchScreen.h"
#include "visual/FormDesign.h"
#include "visual/PictureBox.h"

using namespace phial;
using namespace phial::test;

namespace
{

class TouchTest : public FormTest
{
protected:
    TouchTest()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        form->Move(100 * TwipsPerPixel, 50 * TwipsPerPixel);
        form->Show();
    }

    std::shared_ptr<PictureBox> key(const char* name, double left, bool takesTouch = true)
    {
        auto box = form->add<PictureBox>(fromUtf8(name));
        box->Move(left, 10, 48, 48);
        box->frame().takesTouch(takesTouch);
        const auto told = [this, name](const char* what, const PointerEvent& event) {
            log.push_back(name + std::string(what) + std::to_string(event.Touch) + " " +
                          std::to_string(static_cast<int>(event.X)) + "," +
                          std::to_string(static_cast<int>(event.Y)));
        };
        connections += box->MouseDown.connect([=](const PointerEvent& event) { told(" down ", event); });
        connections += box->MouseMove.connect([=](const PointerEvent& event) { told(" move ", event); });
        connections += box->MouseUp.connect([=](const PointerEvent& event) { told(" up ", event); });
        connections += box->Click.connect([=, this] { log.push_back(name + std::string(" click")); });
        return box;
    }
    PixelPoint pointer()
    {
        return {double(outside.display().CursorX()), double(outside.display().CursorY())};
    }

    headless::TouchScreen screen{outside.display()};
};

TEST_F(TouchTest, ASecondKeyBeforeTheFirstIsLetGoIsNotLost)
{
    const auto a = key("a", 0);
    const auto b = key("b", 60);
    screen.press(1, *a);
    screen.press(2, *b);
    screen.release(1);
    screen.release(2);
    EXPECT_THAT(log, ElementsAre("a down 1 24,24", "b down 1 24,24", "a up 1 24,24", "a click",
                                 "b up 1 24,24", "b click"));
}

TEST_F(TouchTest, FingersOnOneControlHaveNumbers)
{
    const auto a = key("a", 0);
    screen.press(7, *a, {1, 1});
    screen.press(8, *a, {2, 2});
    screen.release(7);
    screen.press(9, *a, {3, 3});
    screen.move(8, {1, 0});
    EXPECT_THAT(log, ElementsAre("a down 1 1,1", "a down 2 2,2", "a up 1 1,1", "a click", "a down 1 3,3",
                                 "a move 2 3,2"));
}

TEST_F(TouchTest, ElsewhereOneFingerIsTheMouse)
{
    const auto a = key("a", 0, false);
    const auto b = key("b", 60, false);
    const auto c = key("c", 120);
    screen.press(1, *a);
    screen.press(2, *b);
    screen.press(3, *c);
    screen.release(2);
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("a down 0 24,24", "c down 1 24,24", "a up 0 24,24", "a click"));
    log.clear();
    screen.press(1, *b);
    EXPECT_THAT(log, ElementsAre("b down 0 24,24"));
}

TEST_F(TouchTest, LettingGoOutsideIsNoClick)
{
    const auto a = key("a", 0);
    screen.press(1, *a);
    screen.move(1, {0, 30});
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("a down 1 24,24", "a move 1 24,54", "a up 1 24,54"));
}

TEST_F(TouchTest, ThePointerGoesWithTheFingerThatPressedLast)
{
    const auto a = key("a", 0);
    const auto b = key("b", 60);
    screen.press(1, *a, {4, 6});
    EXPECT_EQ(pointer(), (PixelPoint{104, 66}));
    screen.move(1, {10, 5});
    EXPECT_EQ(pointer(), (PixelPoint{114, 71}));
    screen.press(2, *b, {0, 0});
    screen.move(1, {1, 1});
    EXPECT_EQ(pointer(), (PixelPoint{160, 60}));
    screen.release(2);
    screen.move(1, {1, 1});
    EXPECT_EQ(pointer(), (PixelPoint{160, 60}));
}

TEST_F(TouchTest, AFingerStaysOnTheScreenWhileTheFormMoves)
{
    const auto a = key("a", 0);
    screen.press(1, *a, {20, 20});
    screen.move(1, {30, 0});
    form->Move(130 * TwipsPerPixel, 50 * TwipsPerPixel); // as a keyboard that is dragged
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("a down 1 20,20", "a move 1 50,20", "a up 1 20,20", "a click"));
}

TEST_F(TouchTest, WhatCannotBeReachedHearsNothing)
{
    const auto a = key("a", 0);
    a->Enabled(false);
    screen.press(1, *a);
    screen.move(1, {1, 1});
    screen.release(1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TouchTest, AFingerOnAHoleMeetsWhatLiesBelow)
{
    const auto below = key("below", 0);
    const auto above = key("above", 10);
    above->transparent(true);
    above->Cls();
    above->MaskPicture(std::make_shared<Picture>(PixelSize{48, 48}));
    screen.press(1, *above, {5, 5});
    EXPECT_THAT(log, ElementsAre("below down 1 15,5"));
}

TEST_F(TouchTest, APressGivesTheFocus)
{
    const auto a = key("a", 0);
    a->frame().canFocus(true);
    screen.press(1, *a);
    EXPECT_EQ(form->ActiveControl(), a);
}

TEST_F(TouchTest, AHandlerMayCloseTheForm)
{
    const auto a = key("a", 0);
    connections += a->MouseUp.connect([this](const PointerEvent&) { form->Unload(); });
    screen.press(1, *a);
    screen.release(1);
    EXPECT_THAT(log, ElementsAre("a down 1 24,24", "a up 1 24,24"));
}

TEST_F(TouchTest, FingersThatAreNotThereAndThoseThatAreDownAreRefused)
{
    const auto a = key("a", 0);
    EXPECT_RAISES(screen.release(1), InvalidArgument);
    screen.press(1, *a);
    EXPECT_RAISES(screen.press(1, *a), InvalidArgument);
}

TEST_F(TouchTest, ADesignTellsWhichControlsTakeTouch)
{
    static constexpr ControlDesign Controls[] = {
        design<PictureBox>(u"pic_Key", {0, 0, 48, 48}).repeated(2, 2, 60, 0).touchable(),
        design<TextBox>(u"txt_Input", {0, 60, 100, 20}).keyboarded(),
    };
    addControls(*form, Controls);
    EXPECT_TRUE(form->control<Control>(u"pic_Key", 1)->frame().takesTouch());
    EXPECT_FALSE(form->control<Control>(u"pic_Key", 1)->frame().ownKeyboard());
    EXPECT_FALSE(form->control<Control>(u"txt_Input")->frame().takesTouch());
    EXPECT_TRUE(form->control<Control>(u"txt_Input")->frame().ownKeyboard());
}

} // namespace
