#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/KeyNumbers.h"
#include "dialogs/TextLayout.h"
#include "dialogs/ctl_Keys.h"
#include "headless/Hand.h"
#include "headless/TouchScreen.h"
#include "support/AppSession.h"
#include "support/Raises.h"
#include "visual/Form.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double Hold = ctl_Keys::HoldInterval / 1000.0;
constexpr double Repeat = ctl_Keys::RepeatInterval / 1000.0;

class KeysTest : public test::AppSession
{
protected:
    KeysTest()
    {
        LNG()->CURRENT(ID_Language_German);
        form->ScaleMode(ScaleUnit::Pixels);
        keys = form->add<ctl_Keys>(u"key_Test");
        keys->layout(text_layout::Layout);
        keys->frame().Move(0, 0, 720, 240);
        connections += keys->PRESSED.connect([this](const PointerEvent&) { log.emplace_back("pressed"); });
        connections += keys->RELEASED.connect([this](std::int32_t) { log.emplace_back("released"); });
        connections += keys->VARIANT.connect([this](const String& text) { log.push_back(toUtf8(text)); });
        connections += keys->CLICK.connect([this](std::int32_t index) {
            log.push_back(toUtf8(keys->board().name(index)));
            keys->board().click(index);
        });
        form->Show();
    }

    void TearDown() override
    {
        form->discard();
        connections.clear();
        AppSession::TearDown();
    }

    PixelPoint middle(std::int32_t index) const
    {
        const PixelRectangle area = keys->areaOf(index);
        return {area.left + area.width / 2, area.top + area.height / 2};
    }
    void tap(std::int32_t index)
    {
        touch.press(1, *keys, middle(index));
        touch.release(1);
    }
    std::vector<std::string> struck()
    {
        std::erase(log, "pressed");
        std::erase(log, "released");
        return log;
    }
    String nameOf(std::int32_t index) const
    {
        return keys
            ->parts()[static_cast<std::size_t>(
                std::ranges::find(text_layout::Keys, index, &KeyDesign::index) - text_layout::Keys.begin())]
            .name;
    }
    std::string drawn()
    {
        const std::string all = outside.visual().drawing(*keys);
        return all.substr(all.rfind("clear"));
    }
    KeyEvent preview(Key key)
    {
        KeyEvent event{static_cast<std::int32_t>(key)};
        keys->previewKey(event);
        KeyEvent up{static_cast<std::int32_t>(key)};
        keys->previewKeyUp(up);
        return event;
    }
    void keyDown(Key key, bool isRepeat = false)
    {
        KeyEvent event{static_cast<std::int32_t>(key), 0, isRepeat};
        keys->previewKey(event);
        EXPECT_EQ(event.KeyCode, 0);
    }
    KeyEvent keyUp(Key key)
    {
        KeyEvent event{static_cast<std::int32_t>(key)};
        keys->previewKeyUp(event);
        return event;
    }

    std::vector<std::string> log;
    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_Keys> keys;
    headless::TouchScreen touch{outside.display()};
    Connections connections;
};

} // namespace

TEST_F(KeysTest, ATapStrikesAKey)
{
    tap(test::keys::LetterQ);
    EXPECT_THAT(log, ElementsAre("pressed", "released", "q"));
}

TEST_F(KeysTest, TheMouseIsAFinger)
{
    const PixelPoint at = middle(test::keys::LetterA);
    headless::click(*keys, at.x, at.y);
    EXPECT_THAT(log, ElementsAre("pressed", "released", "a"));
}

TEST_F(KeysTest, TwoFingersTypeInTheOrderInWhichTheyPress)
{
    touch.press(1, *keys, middle(test::keys::LetterQ));
    touch.press(2, *keys, middle(test::keys::LetterW));
    touch.release(2);
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("q", "w"));
}

TEST_F(KeysTest, ShiftIsSeenAndFallsBack)
{
    tap(test::keys::Shift);
    EXPECT_EQ(keys->board().face(test::keys::LetterQ).text, u"Q");
    EXPECT_EQ(nameOf(test::keys::LetterQ), u"Q");
    tap(test::keys::LetterQ);
    EXPECT_EQ(nameOf(test::keys::LetterQ), u"q");
    EXPECT_THAT(struck(), ElementsAre("Q"));
}

TEST_F(KeysTest, APressBetweenKeysIsForTheWindow)
{
    touch.press(1, *keys, {715, 170}); // beside UP and below nothing
    touch.release(1);
    tap(test::keys::Up);
    EXPECT_EQ(log.front(), "pressed");
    EXPECT_EQ(log[1], "released");
}

TEST_F(KeysTest, EnterStandsAroundTheKeyForUp)
{
    const PixelRectangle enter = keys->areaOf(test::keys::Enter);
    const PixelRectangle up = keys->areaOf(test::keys::Up);
    EXPECT_GT(up.right(), enter.left) << "their boxes meet";
    touch.press(1, *keys, {enter.left + 1, enter.bottom() - 2});
    touch.release(1);
    touch.press(1, *keys, {enter.left + 1, enter.top + 2});
    touch.release(1);
    touch.press(1, *keys, {enter.right() - 1, enter.bottom() - 2});
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("UP", "ENTER", "ENTER"));
}

TEST_F(KeysTest, ADragStrikesNothing)
{
    touch.press(1, *keys, middle(test::keys::Shift));
    keys->cancelPresses();
    touch.release(1);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Off);
    touch.press(1, *keys, middle(test::keys::LetterQ));
    keys->cancelPresses();
    touch.release(1);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, WhoeverHearsOfAPressMayCancelIt)
{
    connections += keys->PRESSED.connect([this](const PointerEvent&) { keys->cancelPresses(); });
    tap(test::keys::Shift);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Off);
    tap(test::keys::LetterQ);
    keys->scanInterval(800);
    tap(test::keys::LetterQ);
    outside.advance(0.8);
    EXPECT_THAT(drawn(), ::testing::HasSubstr("box 2,50 716x44")) << "rows still";
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, BackspaceIsStruckAgainAndAgain)
{
    touch.press(1, *keys, middle(test::keys::Backspace));
    outside.advance(Hold - 0.01);
    EXPECT_THAT(log, ElementsAre("pressed"));
    outside.advance(0.01);
    EXPECT_THAT(log, ElementsAre("pressed", "released", "BACKSPACE"));
    outside.advance(3 * Repeat);
    touch.release(1);
    outside.advance(1);
    EXPECT_THAT(struck(), ElementsAre("BACKSPACE", "BACKSPACE", "BACKSPACE", "BACKSPACE"));
}

TEST_F(KeysTest, AHeldKeyBeginsAnewAfterARepeatedOne)
{
    touch.press(1, *keys, middle(test::keys::Backspace));
    outside.advance(Hold + Repeat);
    touch.release(1);
    log.clear();
    touch.press(1, *keys, middle(test::keys::Up));
    outside.advance(Hold - 0.01);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, LettersDoNotRepeat)
{
    touch.press(1, *keys, middle(test::keys::LetterQ));
    outside.advance(2);
    EXPECT_THAT(struck(), IsEmpty());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("q"));
}

TEST_F(KeysTest, AHeldLetterShowsItsVariants)
{
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    EXPECT_TRUE(keys->showsVariants());
    EXPECT_THAT(log, ElementsAre("pressed", "released")) << "what is held drags no window";
    EXPECT_EQ(keys->frame().announcement(), u"ä");
    EXPECT_EQ(keys->parts().size(), text_layout::Keys.size() + 6);
    EXPECT_EQ(keys->parts().back().name, u"æ");
    touch.release(1);
    EXPECT_TRUE(keys->showsVariants()) << "a finger that does not slide leaves them to the next tap";
    const PixelRectangle second = keys->parts()[text_layout::Keys.size() + 1].area;
    touch.press(1, *keys, {second.left + 5, second.top + 5});
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("à"));
    EXPECT_FALSE(keys->showsVariants());
}

TEST_F(KeysTest, TheFingerSlidesOntoAVariant)
{
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    const PixelRectangle third = keys->parts()[text_layout::Keys.size() + 2].area;
    const PixelPoint from = middle(test::keys::LetterA);
    touch.move(1, {third.left + 5 - from.x, third.top + 5 - from.y});
    EXPECT_TRUE(keys->parts()[text_layout::Keys.size() + 2].state.pressed);
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("â"));
}

TEST_F(KeysTest, ArrowsReachVariants)
{
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    EXPECT_EQ(preview(Key::Right).KeyCode, 0);
    EXPECT_EQ(preview(Key::Left).KeyCode, 0);
    preview(Key::Left);
    EXPECT_EQ(keys->frame().announcement(), u"æ");
    preview(Key::Return);
    EXPECT_THAT(struck(), ElementsAre("æ"));
}

TEST_F(KeysTest, EscapeAndOtherKeysEndTheVariants)
{
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    EXPECT_EQ(preview(Key::Escape).KeyCode, 0);
    EXPECT_FALSE(keys->showsVariants());
    EXPECT_NE(preview(Key::Escape).KeyCode, 0) << "the next one is the form's";
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    EXPECT_NE(preview(Key::Delete).KeyCode, 0) << "it goes on to the field";
    EXPECT_FALSE(keys->showsVariants());
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, ATapBesideVariantsIsAKey)
{
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    touch.release(1);
    tap(test::keys::Enter);
    EXPECT_FALSE(keys->showsVariants());
    EXPECT_THAT(struck(), ElementsAre("ENTER"));
}

TEST_F(KeysTest, VariantsCanBeLeftOut)
{
    keys->offersVariants(false);
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("a"));
}

TEST_F(KeysTest, VariantsOfTheFirstRowStandBelow)
{
    touch.press(1, *keys, middle(test::keys::Two));
    outside.advance(Hold);
    EXPECT_EQ(keys->parts().back().area.top, keys->areaOf(test::keys::Two).bottom());
}

TEST_F(KeysTest, AScreenReaderPressesKeys)
{
    keys->activatePart(14);
    keys->activatePart(1000);
    EXPECT_THAT(struck(), ElementsAre("q"));
}

TEST_F(KeysTest, OnlyWhatHasChangedIsPaintedAgain)
{
    const std::size_t before = drawn().size();
    tap(test::keys::Shift);
    const std::string news = outside.visual().drawing(*keys).substr(before);
    EXPECT_NE(news.find("\"Q\" Tahoma"), std::string::npos);
    EXPECT_NE(news.find("\"http://\""), std::string::npos);
    EXPECT_EQ(news.find("\"Strg\""), std::string::npos);
    EXPECT_EQ(news.find("clear"), std::string::npos);
}

TEST_F(KeysTest, AKeyThatIsErasedByItsNeighbourIsPaintedAgain)
{
    drawn();
    touch.press(1, *keys, middle(test::keys::Enter));
    const std::string all = outside.visual().drawing(*keys);
    const std::size_t erased = all.rfind("box ");
    std::size_t signs = 0; // ENTER and UP, whose boxes meet
    for (std::size_t at = all.find("polygon", erased); at != std::string::npos;
         at = all.find("polygon", at + 1)) {
        ++signs;
    }
    EXPECT_EQ(signs, 2U);
}

TEST_F(KeysTest, SpeaksTheLanguageInForce)
{
    drawn();
    LNG()->CURRENT(ID_Language_English);
    keys->refresh();
    EXPECT_NE(outside.visual().drawing(*keys).find("\"Ctrl\""), std::string::npos);
    EXPECT_EQ(nameOf(test::keys::Backspace), u"Delete character");
}

TEST_F(KeysTest, KeysFillWhateverSizeItIsGiven)
{
    keys->frame().Move(0, 0, 1440, 480);
    EXPECT_EQ(keys->areaOf(test::keys::Enter).right(), 1440);
    EXPECT_EQ(keys->areaOf(1).height, 96);
    EXPECT_RAISES(keys->areaOf(99), IndexOutOfBounds);
}

TEST_F(KeysTest, NeverTakesTheFocus)
{
    EXPECT_FALSE(keys->frame().canFocus());
    EXPECT_TRUE(keys->frame().takesTouch());
}

TEST_F(KeysTest, WhatIsHiddenStrikesNothing)
{
    touch.press(1, *keys, middle(test::keys::Backspace));
    keys->frame().Visible(false);
    outside.advance(2);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, AScanStrikesKeysWithASingleSwitch)
{
    constexpr double Step = 0.8;
    keys->scanInterval(800);
    outside.advance(2 * Step);                         // the row of "a"
    touch.press(1, *keys, middle(test::keys::Escape)); // anywhere
    touch.release(1);
    outside.advance(Step); // behind "www."
    EXPECT_EQ(preview(Key::Space).KeyCode, 0);
    EXPECT_THAT(struck(), ElementsAre("a"));
}

TEST_F(KeysTest, TheSwitchDoesNotRepeat)
{
    keys->scanInterval(800);
    KeyEvent held{static_cast<std::int32_t>(Key::Return), 0, true};
    keys->previewKey(held);
    keys->previewKey(held);
    EXPECT_EQ(held.KeyCode, 0);
    EXPECT_THAT(struck(), IsEmpty());
}

TEST_F(KeysTest, WhatLightsUpHasAFrame)
{
    keys->scanInterval(800);
    EXPECT_NE(drawn().find("line #1C2836 w4"), std::string::npos) << drawn();
    outside.advance(0.8);
    const PixelRectangle second = keys->areaOf(13);
    EXPECT_NE(drawn().find("box " + std::to_string(static_cast<int>(second.left) + 2) + "," +
                           std::to_string(static_cast<int>(second.top) + 2)),
              std::string::npos)
        << drawn();
}

TEST_F(KeysTest, AModifierIsStruckByTheSwitchToo)
{
    keys->scanInterval(800);
    outside.advance(3 * 0.8);
    preview(Key::Space);
    preview(Key::Space);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeysTest, AScanEndsWithItsInterval)
{
    keys->scanInterval(800);
    keys->scanInterval(0);
    EXPECT_NE(preview(Key::Space).KeyCode, 0);
    EXPECT_EQ(drawn().find(" w4"), std::string::npos);
    EXPECT_RAISES(keys->scanInterval(-1), InvalidArgument);
}

TEST_F(KeysTest, KeysThatAreNotSeenAreNotScanned)
{
    keys->scanInterval(800);
    keys->frame().Visible(false);
    EXPECT_NE(preview(Key::Space).KeyCode, 0);
    keys->frame().Visible(true);
    EXPECT_EQ(preview(Key::Space).KeyCode, 0);
}

TEST_F(KeysTest, AllCapsAndFacesArePainted)
{
    const std::string all = drawn();
    const auto count = [&](const std::string& what) {
        std::size_t found = 0;
        for (std::size_t at = all.find(what); at != std::string::npos; at = all.find(what, at + 1)) {
            ++found;
        }
        return found;
    };
    EXPECT_EQ(count("\nimage "), text_layout::Keys.size());
    EXPECT_EQ(count("\nimage 48x48 "), 50U);
    EXPECT_NE(all.find("image 80x96 "), std::string::npos) << "ENTER";
}

TEST_F(KeysTest, AnotherSizeIsPaintedAnew)
{
    drawn();
    keys->frame().Move(0, 0, 1440, 480);
    const std::string all = drawn();
    EXPECT_NE(all.find("image 96x96 "), std::string::npos);
    EXPECT_EQ(all.find("image 48x48 "), std::string::npos);
}

TEST_F(KeysTest, VariantsArePainted)
{
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    const std::string all = drawn();
    for (const char* variant : {"\"ä\" Tahoma", "\"à\" Tahoma", "\"æ\" Tahoma"}) {
        EXPECT_NE(all.find(variant), std::string::npos) << variant;
    }
    keys->activatePart(text_layout::Keys.size() + 6); // one beyond the last
    EXPECT_THAT(struck(), IsEmpty());
    keys->activatePart(text_layout::Keys.size() + 5);
    EXPECT_THAT(struck(), ElementsAre("æ"));
}

TEST_F(KeysTest, WhatTheSwitchHasChosenLightsUpItsWholeTime)
{
    keys->scanInterval(800);
    outside.advance(0.7);
    preview(Key::Space); // the first row; its first key lights up
    outside.advance(0.7);
    preview(Key::Space);
    EXPECT_THAT(struck(), ElementsAre("ESC"));
}

TEST_F(KeysTest, TheFrameSurroundsTheRow)
{
    keys->scanInterval(800);
    EXPECT_NE(drawn().find("box 2,2 716x44 line #1C2836 w4"), std::string::npos) << drawn();
}

TEST_F(KeysTest, TheKeyForClearingOffersNoVariants)
{
    constexpr std::int32_t Clear = 59;
    touch.press(1, *keys, middle(Clear));
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("CLEAR"));
}

TEST_F(KeysTest, AGestureOfTheDesktopStrikesNothing)
{
    touch.press(1, *keys, middle(test::keys::Shift));
    touch.press(2, *keys, middle(test::keys::LetterQ));
    touch.press(3, *keys, middle(test::keys::Enter));
    touch.cancel();
    EXPECT_THAT(struck(), ElementsAre("Q")) << "which the third finger had struck";
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Off);
    touch.press(1, *keys, middle(test::keys::LetterA));
    outside.advance(Hold);
    touch.cancel();
    EXPECT_TRUE(keys->showsVariants());
}

TEST_F(KeysTest, ATapOfAnotherFingerDoesNotEndWhatIsHeld)
{
    touch.press(1, *keys, middle(test::keys::Backspace));
    outside.advance(Hold);
    touch.press(2, *keys, middle(test::keys::LetterQ));
    touch.release(2);
    log.clear();
    outside.advance(Hold + 2 * Repeat);
    EXPECT_THAT(struck(), ElementsAre("BACKSPACE", "BACKSPACE", "BACKSPACE"));
}

TEST_F(KeysTest, ALetterThatTheNextKeyHasStruckOffersNoVariants)
{
    touch.press(1, *keys, middle(test::keys::LetterA));
    touch.press(2, *keys, middle(test::keys::LetterQ));
    touch.release(2);
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    touch.release(1);
    EXPECT_THAT(struck(), ElementsAre("a", "q"));
}

TEST_F(KeysTest, ADragIsNoPressOfTheSwitch)
{
    keys->scanInterval(800);
    touch.press(1, *keys, middle(test::keys::LetterA));
    keys->cancelPresses();
    touch.release(1);
    outside.advance(0.8);
    EXPECT_THAT(drawn(), ::testing::HasSubstr("box 2,50 716x44")) << "rows still";
}

TEST_F(KeysTest, TheHeldSwitchShowsVariantsWhichLightUpInTurn)
{
    keys->scanInterval(800);
    outside.advance(2 * 0.8);
    preview(Key::Space);
    outside.advance(0.8); // "a"
    touch.press(1, *keys, middle(test::keys::Escape));
    outside.advance(Hold);
    EXPECT_TRUE(keys->showsVariants());
    touch.release(1);
    EXPECT_TRUE(keys->showsVariants()) << "letting it go is no second press";
    outside.advance(0.8);
    EXPECT_EQ(keys->frame().announcement(), u"à");
    preview(Key::Space);
    EXPECT_THAT(struck(), ElementsAre("à"));
    EXPECT_FALSE(keys->showsVariants());
}

TEST_F(KeysTest, VariantsThatNobodyChoosesGoAfterTwoRounds)
{
    keys->scanInterval(800);
    outside.advance(2 * 0.8);
    preview(Key::Space);
    outside.advance(0.8);
    touch.press(1, *keys, middle(test::keys::Escape));
    outside.advance(Hold);
    touch.release(1);
    outside.advance(11 * 0.8);
    EXPECT_TRUE(keys->showsVariants());
    outside.advance(0.8);
    EXPECT_FALSE(keys->showsVariants());
}

TEST_F(KeysTest, ASwitchOfTheDeskStrikesWhenItIsLetGo)
{
    keys->scanInterval(800);
    outside.advance(2 * 0.8);
    preview(Key::Return);
    outside.advance(0.8); // "a"
    keyDown(Key::Return);
    EXPECT_THAT(struck(), IsEmpty());
    EXPECT_EQ(keyUp(Key::Return).KeyCode, 0);
    EXPECT_THAT(struck(), ElementsAre("a"));
    EXPECT_NE(keyUp(Key::Return).KeyCode, 0);
    EXPECT_NE(keyUp(Key::Delete).KeyCode, 0);
}

TEST_F(KeysTest, AHeldSwitchOfTheDeskShowsVariants)
{
    for (const Key key : {Key::Space, Key::Return}) {
        keys->scanInterval(800);
        log.clear();
        outside.advance(2 * 0.8);
        preview(key);
        outside.advance(0.8); // "a"
        keyDown(key);
        outside.advance(Hold - 0.05);
        keyDown(key, true);
        EXPECT_FALSE(keys->showsVariants());
        outside.advance(0.05);
        EXPECT_TRUE(keys->showsVariants());
        keyDown(key, true);
        EXPECT_NE(keyUp(key).KeyCode, 0) << "letting it go is no second press";
        EXPECT_TRUE(keys->showsVariants());
        outside.advance(0.8);
        preview(key);
        EXPECT_THAT(struck(), ElementsAre("à"));
    }
}

TEST_F(KeysTest, ASwitchThatIsHeldOnAKeyWithoutVariantsStrikesIt)
{
    keys->scanInterval(5000);
    outside.advance(3 * 5);
    preview(Key::Space); // Shift lights up
    keyDown(Key::Space);
    outside.advance(2);
    EXPECT_FALSE(keys->showsVariants());
    keyUp(Key::Space);
    EXPECT_EQ(keys->board().state(Modifier::Shift), KeyState::Once);
}

TEST_F(KeysTest, ADragIsNoPressOfTheSwitchOfTheDesk)
{
    keys->scanInterval(800);
    keyDown(Key::Space);
    keys->cancelPresses();
    EXPECT_NE(keyUp(Key::Space).KeyCode, 0);
    outside.advance(0.8);
    EXPECT_THAT(drawn(), ::testing::HasSubstr("box 2,50 716x44")) << "rows still";
}

TEST_F(KeysTest, TellsWhereEachFingerIs)
{
    std::vector<std::pair<std::int32_t, PixelPoint>> told;
    connections += keys->PRESSED.connect([&](const PointerEvent& event) {
        told.push_back({event.Touch, {event.X, event.Y}});
    });
    connections += keys->MOVED.connect([&](const PointerEvent& event) {
        told.push_back({event.Touch, {event.X, event.Y}});
    });
    connections += keys->RELEASED.connect([&](std::int32_t finger) { told.push_back({finger, {}}); });
    touch.press(1, *keys, {5, 6});
    touch.press(2, *keys, {50, 60});
    touch.move(1, {7, 8});
    touch.release(2);
    touch.release(1);
    const std::vector<std::pair<std::int32_t, PixelPoint>> expected{
        {1, {5, 6}}, {2, {50, 60}}, {1, {12, 14}}, {2, {}}, {1, {}}};
    EXPECT_EQ(told, expected);
}

} // namespace phial
