#include "visual/DesignedForm.h"

#include "visual/FormTest.h"
#include "visual/PictureBox.h"

#include <optional>

namespace phial::test
{

namespace
{

constexpr ButtonDesign MadeButtons[] = {{u"DIALOG.OK();", u"OK|OK"},
                                        {u"DIALOG.ABORT();", u"Abbrechen|Cancel"}};
constexpr ControlDesign MadeControls[] = {
    design<ctl_Button>(u"but_Go", {0, 0, 99, 30}, u"Los|Go"),
    design<PictureBox>(u"pic_Place", {0, 40, 30, 30})
        .repeated(2, 2, 40, 0)
        .focusable()
        .spoken(u"Platz|Place"),
    design<ctl_CmdBar>(u"bar_Buttons", {0, 80, 200, 40}).buttons(MadeButtons),
};
constexpr ControlDesign Further[] = {
    design<TextBox>(u"txt_In", {0, 130, 99, 30}).spoken(u"Wert|Value"),
};
constexpr FormDesign MadeDesign{
    .name = u"frm_Made", .size = {200, 200}, .closesByEscape = true, .controls = MadeControls};

class DesignedForms : public FormTest
{
protected:
    std::optional<DesignedForm> made{std::in_place, MadeDesign};
};

TEST_F(DesignedForms, HandlersHearEventsButtonsAndCommands)
{
    DesignedForm& held = *made;
    held.on(held->Load, [this] { log.emplace_back("load"); });
    held.press(u"but_Go", [this] { log.emplace_back("go"); });
    held.command(u"bar_Buttons", u"DIALOG.OK();", [this] { log.emplace_back("ok"); });
    held.command(u"bar_Buttons", u"dialog.abort();", [this] { log.emplace_back("abort"); });
    held->Show();
    headless::click(*held->control<ctl_Button>(u"but_Go"));
    headless::clickButton(*held->control<ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.ABORT();");
    headless::clickButton(*held->control<ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.OK();");
    EXPECT_THAT(log, ElementsAre("load", "go", "abort", "ok"));
}

TEST_F(DesignedForms, TheEndDiscardsTheFormAndRunsNoHandler)
{
    const std::weak_ptr<Form> watched = made->pointer();
    made->on((*made)->Unloaded, [this] { log.emplace_back("unloaded"); });
    made->on((*made)->control<ctl_Button>(u"but_Go")->LostFocus, [this] { log.emplace_back("lost"); });
    (*made)->Show();
    EXPECT_EQ(visualHost().forms().Count(), 1U);
    made.reset();
    EXPECT_EQ(visualHost().forms().Count(), 0U);
    EXPECT_TRUE(watched.expired());
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(DesignedForms, EscapeClosesWhatSaysSo)
{
    (*made)->Show();
    headless::strike(**made, {.key = Key::Escape});
    EXPECT_FALSE((*made)->isLoaded());

    constexpr FormDesign Open{.name = u"frm_Open", .hearsKeysFirst = true};
    const DesignedForm other(Open);
    other->Show();
    headless::strike(*other, {.key = Key::Escape});
    EXPECT_TRUE(other->isLoaded());
}

TEST_F(DesignedForms, ScreenReadersAreToldOneHalfOfEachTableAndElement)
{
    made->add(Further);
    made->speak([](StringView both) { return String(both.substr(0, both.find(u'|'))); });
    EXPECT_EQ((*made)->control<PictureBox>(u"pic_Place", 0)->frame().AccessibleName(), u"Platz");
    EXPECT_EQ((*made)->control<PictureBox>(u"pic_Place", 1)->frame().AccessibleName(), u"Platz");
    EXPECT_EQ((*made)->control<TextBox>(u"txt_In")->frame().AccessibleName(), u"Wert");
    EXPECT_EQ((*made)->control<ctl_Button>(u"but_Go")->frame().AccessibleName(), u"");
}

TEST_F(DesignedForms, AHandlerMayEndTheWindowItBelongsTo)
{
    made->press(u"but_Go", [this] { (*made)->Unload(); });
    (*made)->Show();
    headless::click(*(*made)->control<ctl_Button>(u"but_Go"));
    EXPECT_FALSE((*made)->isLoaded());
}

} // namespace

} // namespace phial::test
