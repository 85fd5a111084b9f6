#include "core/CoreRoot.h"
#include "core/CoreTiming.h"
#include "headless/TouchScreen.h"
#include "visual/ControlArray.h"
#include "visual/FormTest.h"
#include "visual/PictureBox.h"
#include "visual/Timer.h"

namespace phial::test
{

namespace
{

using ReEntry = FormTest;

TEST_F(ReEntry, AFormMayEndWithinAClickOnIt)
{
    auto gone = std::make_shared<Form>(u"frm_Gone");
    const auto button = gone->add<ctl_Button>(u"but_Quit");
    gone->Show();
    connections += button->CLICK.connect([&] {
        gone->Unload();
        gone.reset();
    });
    headless::click(*button);
    EXPECT_EQ(gone, nullptr);
    EXPECT_EQ(button->frame().Parent(), nullptr);
    EXPECT_EQ(button->frame().container(), nullptr);
}

TEST_F(ReEntry, AControlMayTakeItselfAwayWithinItsEvent)
{
    const auto box = form->add<TextBox>(u"txt_Once");
    form->Show();
    connections += box->Change.connect([this, held = std::weak_ptr(box)] { form->remove(*held.lock()); });
    headless::type(*form, u"ab");
    EXPECT_EQ(box->Text(), u"a") << "the second key finds no control";
    EXPECT_EQ(form->find(u"txt_Once"), nullptr);
}

/// What one hears when a press, its end or its click takes it away.
using Taken = std::vector<std::string>;

Taken heardUntilTaken(Form& form, StringView takenAt, const std::function<void(PictureBox&)>& act)
{
    Taken heard;
    const auto box = form.add<PictureBox>(u"pic_Once");
    box->Move(0, 0, 40, 40);
    const auto hear = [&](StringView what) {
        heard.push_back(toUtf8(what));
        if (what == takenAt) {
            form.remove(*box);
        }
    };
    Connections connections;
    connections += box->MouseDown.connect([&](const PointerEvent&) { hear(u"down"); });
    connections += box->MouseMove.connect([&](const PointerEvent&) { hear(u"move"); });
    connections += box->MouseUp.connect([&](const PointerEvent&) { hear(u"up"); });
    connections += box->Click.connect([&] { hear(u"click"); });
    connections += box->DblClick.connect([&] { hear(u"double"); });
    act(*box);
    return heard;
}

TEST_F(ReEntry, AControlThatIsTakenAwayHearsNoMore)
{
    form->ScaleMode(ScaleUnit::Pixels);
    form->Show();
    const auto taken = [&](StringView at, auto act) { return heardUntilTaken(*form, at, act); };
    const auto click = [](PictureBox& box) { headless::click(box); };
    EXPECT_THAT(taken(u"down", click), ElementsAre("down"));
    EXPECT_THAT(taken(u"up", click), ElementsAre("down", "up"));
    EXPECT_THAT(taken(u"click", click), ElementsAre("down", "up", "click"));
    const auto doubleClick = [](PictureBox& box) { headless::doubleClick(box); };
    EXPECT_THAT(taken(u"click", doubleClick), ElementsAre("down", "up", "click"));
    const auto drag = [](PictureBox& box) { headless::drag(box, {1, 1}, {9, 9}); };
    EXPECT_THAT(taken(u"down", drag), ElementsAre("down"));
    EXPECT_THAT(taken(u"move", drag), ElementsAre("down", "move"));
    const auto tap = [this](PictureBox& box) {
        headless::TouchScreen screen(outside.display());
        screen.press(1, box);
        screen.move(1, {1, 1});
        screen.release(1);
    };
    EXPECT_THAT(taken(u"down", tap), ElementsAre("down"));
    EXPECT_THAT(taken(u"move", tap), ElementsAre("down", "move"));
    EXPECT_THAT(taken(u"up", tap), ElementsAre("down", "move", "up"));
}

TEST_F(ReEntry, ATimerMayOpenAModalFormWhileAnotherOneIsWaitedFor)
{
    const auto late = std::make_shared<Form>(u"frm_Late");
    Timer timer(u"tmr_Late", 50, true);
    connections += timer.Tick.connect([&] {
        timer.Enabled(false);
        late->Show(FormShow::Modal);
        log.emplace_back("late returned");
        form->Unload();
    });
    outside.visual().onModal(u"frm_Test", [](Form&) {});
    outside.visual().onModal(u"frm_Late", [](Form& shown) { shown.Unload(); });
    form->Show(FormShow::Modal);
    log.emplace_back("first returned");
    EXPECT_THAT(log, ElementsAre("late returned", "first returned"));
}

TEST_F(ReEntry, HandlersRunWhileOneOfThemWaits)
{
    const auto button = form->add<ctl_Button>(u"but_Slow");
    Timer timer(u"tmr_Fast", 100, true);
    connections += timer.Tick.connect([this] { log.emplace_back("tick"); });
    connections += button->CLICK.connect([this] {
        coreRoot().CoreTiming().Wait(0.25, true);
        log.emplace_back("waited");
    });
    form->Show();
    headless::click(*button);
    EXPECT_THAT(log, ElementsAre("tick", "tick", "waited"));
}

TEST_F(ReEntry, LoadWithinLoadRaisesItOnce)
{
    connections += form->Load.connect([this] {
        log.emplace_back("load");
        form->load();
    });
    form->Show();
    EXPECT_THAT(log, ElementsAre("load"));
}

TEST_F(ReEntry, UnloadWithinUnloadIsOne)
{
    logs(form->Unloaded, "unloaded");
    connections += form->QueryUnload.connect([this](bool&) { EXPECT_FALSE(form->Unload()); });
    form->Show();
    EXPECT_TRUE(form->Unload());
    EXPECT_THAT(log, ElementsAre("unloaded"));
}

TEST_F(ReEntry, AnErrorInAHandlerLeavesTheFormUsable)
{
    const auto button = form->add<ctl_Button>(u"but_Wrong");
    connections += button->CLICK.connect([] { throw RuntimeError(ErrorNumber::DivisionByZero); });
    form->Show();
    EXPECT_RAISES(headless::click(*button), DivisionByZero);
    EXPECT_TRUE(form->Unload());
}

TEST_F(ReEntry, AnErrorWithinAModalFormEndsItsShow)
{
    outside.visual().onModal(u"frm_Test", [](Form&) { throw RuntimeError(ErrorNumber::Overflow); });
    EXPECT_RAISES(form->Show(FormShow::Modal), Overflow);
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(visualHost().forms().innermostModal(), nullptr);
}

} // namespace

} // namespace phial::test
