#include "core/CoreRoot.h"
#include "core/CoreTiming.h"
#include "visual/ControlArray.h"
#include "visual/FormTest.h"
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
