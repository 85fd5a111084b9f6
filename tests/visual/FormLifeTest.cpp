#include "visual/FormTest.h"
#include "visual/Timer.h"

namespace phial::test
{

namespace
{

using FormLife = FormTest;
using ModalForms = FormTest;
using FormActivation = FormTest;

TEST_F(FormLife, ShowLoadsOnceAndActivates)
{
    logs(form->Load, "load");
    logs(form->Resize, "resize");
    logs(form->Activate, "activate");
    form->Show();
    form->Show();
    EXPECT_THAT(log, ElementsAre("load", "resize", "activate"));
    EXPECT_TRUE(form->Visible());
    EXPECT_EQ(visualHost().forms().Count(), 1U);
    EXPECT_EQ(visualHost().forms().ActiveForm(), form);
}

TEST_F(FormLife, HideKeepsTheFormLoaded)
{
    logs(form->Load, "load");
    form->Show();
    form->Hide();
    EXPECT_FALSE(form->Visible());
    EXPECT_TRUE(form->isLoaded());
    form->Show();
    EXPECT_THAT(log, ElementsAre("load"));
}

TEST_F(FormLife, UnloadAsksThenTellsAndLeavesTheControlsReadable)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    connections += form->QueryUnload.connect([this](bool&) { log.emplace_back("query"); });
    connections += form->Unloading.connect([this](bool&) { log.emplace_back("unloading"); });
    logs(form->Unloaded, "unloaded");
    form->Show();
    box->Text(u"Ergebnis");
    EXPECT_TRUE(form->Unload());
    EXPECT_THAT(log, ElementsAre("query", "unloading", "unloaded"));
    EXPECT_EQ(visualHost().forms().Count(), 0U);
    EXPECT_EQ(form->control<TextBox>(u"TXT_input")->Text(), u"Ergebnis");
}

TEST_F(FormLife, AHandlerCanRefuseTheUnload)
{
    connections += form->QueryUnload.connect([](bool& refused) { refused = true; });
    form->Show();
    form->inputClose();
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(form->isLoaded());
    form->discard();
    EXPECT_FALSE(form->Visible());
}

TEST_F(FormLife, UnloadWithinLoadOpensNoWindow)
{
    connections += form->Load.connect([this] { form->Unload(); });
    form->Show();
    EXPECT_FALSE(form->Visible());
    EXPECT_THAT(outside.visual().windows(), IsEmpty());
}

TEST_F(FormLife, UnloadStopsTheTimersOfTheForm)
{
    const auto timer = std::make_shared<Timer>(u"tmr_Test", 10, true);
    form->addComponent(timer);
    logs(timer->Tick, "tick");
    form->load();
    form->Unload();
    outside.advance(1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(FormLife, ALoadedFormLivesOnWithoutItsHolder)
{
    auto other = std::make_shared<Form>(u"frm_Other");
    const std::weak_ptr<Form> watched = other;
    other->Show();
    other.reset();
    ASSERT_FALSE(watched.expired());
    watched.lock()->Unload();
    EXPECT_TRUE(watched.expired());
}

TEST_F(FormLife, FormsAreFoundByNumberFromZeroAndByName)
{
    form->load();
    EXPECT_EQ(visualHost().forms().Item(0), form);
    EXPECT_EQ(visualHost().forms().Item(u"FRM_TEST"), form);
    EXPECT_EQ(visualHost().forms().Item(u"frm_None"), nullptr);
    EXPECT_RAISES(visualHost().forms().Item(1), IndexOutOfBounds);
}

TEST_F(FormLife, CentredFormStandsInTheMiddleOfTheScreen)
{
    outside.display().resize(1000, 800);
    form->Move(0, 0, 3000, 1500);
    form->centred(true);
    form->Show();
    EXPECT_EQ(form->Left(), 6000);
    EXPECT_EQ(form->Top(), 5250);
}

TEST_F(FormLife, AFormHasAPlaceWhenItIsGivenOneTheDesktopsCornerToo)
{
    EXPECT_FALSE(form->hasPlace());
    form->Width(3000);
    form->Height(1500);
    form->innerSize({200, 100});
    EXPECT_FALSE(form->hasPlace()) << "a size is no place";
    form->Move(0, 0);
    EXPECT_TRUE(form->hasPlace());
}

TEST_F(FormLife, EachWayOfPlacingAFormCounts)
{
    const auto hasPlaceBehind = [](const std::function<void(Form&)>& act) {
        const auto placed = std::make_shared<Form>(u"frm_Placed");
        act(*placed);
        const bool result = placed->hasPlace();
        placed->discard();
        return result;
    };
    EXPECT_TRUE(hasPlaceBehind([](Form& placed) { placed.Left(0); }));
    EXPECT_TRUE(hasPlaceBehind([](Form& placed) { placed.Top(0); }));
    EXPECT_TRUE(hasPlaceBehind([](Form& placed) { placed.Move(0, 0, 100, 100); }));
    EXPECT_TRUE(hasPlaceBehind([](Form& placed) {
        placed.centred(true);
        placed.Show();
    }));
    EXPECT_TRUE(hasPlaceBehind([](Form& placed) { placed.inputGeometry(15, 0, 4800, 3600); }));
    EXPECT_TRUE(hasPlaceBehind([](Form& placed) { placed.inputGeometry(0, 15, 4800, 3600); }));
    EXPECT_FALSE(hasPlaceBehind([](Form& placed) { placed.inputGeometry(0, 0, 1500, 1500); }));
}

TEST_F(FormActivation, ABackdropIsNeverTheActiveForm)
{
    const auto backdrop = std::make_shared<Form>(u"frm_Backdrop");
    backdrop->backdrop(true);
    logs(backdrop->Activate, "backdrop");
    backdrop->Show();
    EXPECT_EQ(visualHost().forms().ActiveForm(), nullptr);
    form->Show();
    backdrop->inputActivate();
    EXPECT_EQ(visualHost().forms().ActiveForm(), form);
    EXPECT_THAT(log, IsEmpty());
    backdrop->discard();
}

TEST_F(FormActivation, WhoActivatesABackdropGetsTheFormThatWasActiveLast)
{
    const auto backdrop = std::make_shared<Form>(u"frm_Backdrop");
    backdrop->backdrop(true);
    backdrop->Show();
    const auto other = std::make_shared<Form>(u"frm_Other");
    form->Show();
    other->Show();
    form->inputActivate();
    form->inputDeactivate(); // another program has come
    logs(form->Activate, "form");
    logs(other->Activate, "other");
    backdrop->inputActivate();
    EXPECT_THAT(log, ElementsAre("form"));
    EXPECT_EQ(visualHost().forms().ActiveForm(), form);
    form->Hide();
    backdrop->inputActivate();
    EXPECT_THAT(log, ElementsAre("form")) << "what is not shown stays away";
    other->discard();
    backdrop->discard();
}

TEST_F(ModalForms, ShowReturnsWhenTheFormIsUnloadedAndResultsAreReadBehind)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    outside.visual().onModal(u"frm_Test", [&](Form& shown) {
        EXPECT_TRUE(shown.isModal());
        EXPECT_EQ(visualHost().forms().innermostModal(), form);
        box->Text(u"42");
        shown.Unload();
    });
    form->Show(FormShow::Modal);
    EXPECT_EQ(box->Text(), u"42");
    EXPECT_EQ(visualHost().forms().innermostModal(), nullptr);
}

TEST_F(ModalForms, NestAndEndInnermostFirst)
{
    const auto inner = std::make_shared<Form>(u"frm_Inner");
    outside.visual().onModal(u"frm_Test", [&](Form& outer) {
        inner->Show(FormShow::Modal);
        log.emplace_back("inner returned");
        EXPECT_FALSE(outer.isModal()) << "it was closed meanwhile";
    });
    outside.visual().onModal(u"frm_Inner", [&](Form& shown) {
        EXPECT_EQ(visualHost().forms().innermostModal(), inner);
        form->Unload();
        log.emplace_back("outer unloaded");
        EXPECT_TRUE(shown.isModal());
        shown.Hide();
    });
    form->Show(FormShow::Modal);
    log.emplace_back("outer returned");
    EXPECT_THAT(log, ElementsAre("outer unloaded", "inner returned", "outer returned"));
    inner->discard();
}

TEST_F(ModalForms, AFormThatClosesByATimerIsWaitedFor)
{
    const auto timer = std::make_shared<Timer>(u"tmr_Unload", 100);
    form->addComponent(timer);
    connections += timer->Tick.connect([this] { form->Unload(); });
    outside.visual().onModal(u"frm_Test", [&](Form&) { timer->Enabled(true); });
    form->Show(FormShow::Modal);
    EXPECT_FALSE(form->isLoaded());
}

TEST_F(ModalForms, UnloadAllEndsTheInnermostModalFormFirst)
{
    const auto inner = std::make_shared<Form>(u"frm_Inner");
    logs(form->Unloaded, "outer");
    logs(inner->Unloaded, "inner");
    outside.visual().onModal(u"frm_Test", [&](Form&) { inner->Show(FormShow::Modal); });
    outside.visual().onModal(u"frm_Inner", [&](Form&) { visualHost().forms().unloadAll(); });
    form->Show(FormShow::Modal);
    EXPECT_THAT(log, ElementsAre("inner", "outer"));
    EXPECT_EQ(visualHost().forms().Count(), 0U);
}

TEST_F(ModalForms, AFormThatIsShownCannotBeShownModally)
{
    form->Show();
    EXPECT_EQ(raisedBy([this] { form->Show(FormShow::Modal); }), 400);
}

TEST_F(ModalForms, HideWithinActivateEndsItAtOnce)
{
    connections += form->Activate.connect([this] { form->Hide(); });
    form->Show(FormShow::Modal);
    EXPECT_FALSE(form->Visible());
}

TEST(ModalFormsOutsideTheScript, AreAFailureAndAreClosed)
{
    std::vector<String> failures;
    TemporaryFolder folder;
    headless::HeadlessPlatform outside(folder.path(), [&](const String& what) { failures.push_back(what); });
    const SessionState session(outside.platform());
    const auto unexpected = std::make_shared<Form>(u"frm_Unexpected");
    unexpected->Show(FormShow::Modal);
    EXPECT_FALSE(unexpected->isLoaded());
    outside.visual().onModal(u"frm_Left", [](Form&) {});
    std::make_shared<Form>(u"frm_Left")->Show(FormShow::Modal);
    outside.visual().onModal(u"frm_Never", [](Form&) {});
    outside.visual().checkDone();
    EXPECT_THAT(failures, ElementsAre(u"unexpected modal form: frm_Unexpected",
                                      u"the script leaves the form open: frm_Left",
                                      u"the form did not come: FRM_NEVER"));
}

TEST_F(FormActivation, AnotherFormOfTheProgramDeactivates)
{
    const auto other = std::make_shared<Form>(u"frm_Other");
    logs(form->Deactivate, "deactivate");
    logs(form->Activate, "activate");
    form->Show();
    other->Show();
    form->SetFocus();
    EXPECT_THAT(log, ElementsAre("activate", "deactivate", "activate"));
    other->discard();
}

TEST_F(FormActivation, AnotherProgramDeactivates)
{
    logs(form->Deactivate, "deactivate");
    form->Show();
    form->inputDeactivate();
    form->inputDeactivate();
    EXPECT_THAT(log, ElementsAre("deactivate"));
    EXPECT_EQ(visualHost().screen().ActiveForm(), nullptr);
}

TEST_F(FormActivation, ADialogOfItsOwnDoesNot)
{
    const auto dialog = std::make_shared<Form>(u"frm_Dialog");
    logs(form->Activate, "activate");
    logs(form->Deactivate, "deactivate");
    outside.visual().onModal(u"frm_Dialog", [](Form& shown) { shown.Unload(); });
    form->Show();
    dialog->Show(FormShow::Modal);
    EXPECT_THAT(log, ElementsAre("activate"));
    EXPECT_EQ(visualHost().forms().ActiveForm(), form);
}

TEST_F(FormActivation, IsNotToldWhileTheFormClosesOrOnceAnAbortHasBegun)
{
    logs(form->Deactivate, "deactivate");
    connections += form->Unloading.connect([this](bool&) { form->inputDeactivate(); });
    form->Show();
    form->Unload();
    form->Show();
    form->abortBegun();
    form->inputDeactivate();
    EXPECT_THAT(log, IsEmpty());
}

} // namespace

} // namespace phial::test
