#pragma once

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/KeyNumbers.h"
#include "dialogs/TextLayout.h"
#include "dialogs/ctl_Keys.h"
#include "headless/TouchScreen.h"
#include "support/AppSession.h"
#include "visual/Form.h"

#include <gmock/gmock-more-matchers.h>
#include <memory>
#include <string>
#include <vector>

namespace phial::test
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The keys of the keyboard for texts on a form, on a screen that one touches, and a log of what they tell.
class KeysTest : public AppSession
{
protected:
    // Seconds.
    static constexpr double Hold = ctl_Keys::HoldInterval / 1000.0;
    static constexpr double Repeat = ctl_Keys::RepeatInterval / 1000.0;

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

} // namespace phial::test
