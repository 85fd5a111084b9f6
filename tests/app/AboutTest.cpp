#include "app/AppTest.h"
#include "app/cls_AppDialog.h"
#include "app/cls_Language.h"
#include "headless/Hand.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/VisualHost.h"
#include "visual/ctl_CmdBar.h"

#include <gmock/gmock-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;

/// The about box of a program "Molmasse", opened through the root, in German at first.
class About : public AppTest
{
protected:
    About()
    {
        start();
        LNG()->CURRENT(ID_Language_German);
        auto& config = *QVAPP()->CONFIG();
        config.NAME(u"Molmassen-Trainer");
        config.VERSION(u"5.1.2");
        config.COPYRIGHT(u"(c) Somebody");
        config.makerAddress(u"https://maker.example/");
        config.productAddress(u"https://maker.example/phial/");
    }

    /// Opens the box and lets `look` see it before it is closed.
    void open(const std::function<void(Form&)>& look)
    {
        outside.visual().onModal(u"frm_AppAbout", [&](Form& form) {
            look(form);
            form.Unload();
        });
        QVAPP()->DIALOG()->ABOUT();
    }

    static String caption(Form& form, StringView label, std::int32_t index = -1)
    {
        return form.control<Label>(label, index)->Caption();
    }
    String cursor(StringView file) { return QVAPP()->URL()->RESOURCEGFX() + u"cur\\" + String(file); }
};

TEST_F(About, TellsWhatTheSettingsSayOfTheProgram)
{
    open([](Form& form) {
        EXPECT_EQ(form.Caption(), u"Info über Molmassen-Trainer");
        EXPECT_EQ(caption(form, u"lab_Product"), u"Molmassen-Trainer");
        EXPECT_EQ(caption(form, u"lab_Version"), u"Version 5.1.2");
        EXPECT_EQ(caption(form, u"lab_Copyright"), u"(c) Somebody");
        EXPECT_EQ(caption(form, u"lab_Ident"), u"Molmasse");
    });
}

TEST_F(About, TellsTheCurrentFolderAsSeenFromTheRoot)
{
    makeFolder(u"installed\\apps\\Molmasse");
    open([](Form& form) { EXPECT_EQ(caption(form, u"lab_Base"), u"") << "the root itself"; });
    goTo(path(u"installed\\apps\\Molmasse"));
    open([](Form& form) { EXPECT_EQ(caption(form, u"lab_Base"), u"apps\\Molmasse\\"); });
    goTo(path(u""));
    open([](Form& form) { EXPECT_EQ(caption(form, u"lab_Base"), u"..\\"); });
}

TEST_F(About, SpeaksBothLanguages)
{
    open([](Form& form) {
        EXPECT_EQ(caption(form, u"Descript", 0), u"Programmentwicklung:");
        EXPECT_EQ(caption(form, u"Descript", 1), u"Besuchen Sie uns im ");
        EXPECT_EQ(caption(form, u"Descript", 2), u"Technische Angaben");
        EXPECT_EQ(caption(form, u"lab_Hyperlink"), u"Internet");
    });
    LNG()->CURRENT(ID_Language_English);
    open([](Form& form) {
        EXPECT_EQ(form.Caption(), u"About Molmassen-Trainer");
        EXPECT_EQ(caption(form, u"Descript", 0), u"Program development:");
        EXPECT_EQ(caption(form, u"Descript", 1), u"Visit us on the ");
        EXPECT_EQ(caption(form, u"Descript", 2), u"Technical details");
        EXPECT_EQ(caption(form, u"lab_Hyperlink"), u"Internet");
        EXPECT_EQ(form.control<ctl_CmdBar>(u"ctl_CmdBar1")->BUTTONS()->Item(1)->Caption(), u"Close");
    });
}

TEST_F(About, FollowsALanguageChangeWhileItIsOpen)
{
    open([](Form& form) {
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(form.Caption(), u"About Molmassen-Trainer");
        EXPECT_EQ(caption(form, u"Descript", 2), u"Technical details");
        EXPECT_EQ(caption(form, u"lab_Product"), u"Molmassen-Trainer");
        LNG()->CURRENT(ID_Language_German);
        EXPECT_EQ(form.Caption(), u"Info über Molmassen-Trainer");
        EXPECT_EQ(caption(form, u"Descript", 2), u"Technische Angaben");
    });
}

TEST_F(About, EachOfItsOwnTextsHasAnEnglishPart)
{
    open([](Form&) { EXPECT_EQ(LNG()->untranslated(), CoreStringList()); });
}

TEST_F(About, AProgramsNameIsShownAsItIsWhateverItHolds)
{
    QVAPP()->CONFIG()->NAME(u"A|B {1}");
    open([](Form& form) {
        EXPECT_EQ(caption(form, u"lab_Product"), u"A|B {1}");
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(caption(form, u"lab_Product"), u"A|B {1}");
        EXPECT_EQ(form.Caption(), u"About A|B {1}");
    });
}

TEST_F(About, EachLinkOpensItsSite)
{
    open([this](Form& form) {
        headless::click(*form.control<Label>(u"lab_TDR"));
        headless::click(*form.control<Label>(u"lab_Hyperlink"));
        EXPECT_THAT(outside.shell().opened(),
                    ElementsAre(u"https://maker.example/", u"https://maker.example/phial/"));
    });
}

TEST_F(About, ShowsNoLinkWithoutAnAddress)
{
    QVAPP()->CONFIG()->makerAddress(u"");
    QVAPP()->CONFIG()->productAddress(u"");
    open([this](Form& form) {
        const auto maker = form.control<Label>(u"lab_TDR");
        EXPECT_TRUE(maker->Visible()) << "the name stays";
        EXPECT_FALSE(maker->Font()->Underline());
        EXPECT_EQ(maker->ForeColor(), form.control<Label>(u"Descript", 0)->ForeColor());
        EXPECT_FALSE(maker->frame().TabStop());
        headless::click(*maker);
        EXPECT_FALSE(form.control<Label>(u"lab_Hyperlink")->Visible());
        EXPECT_FALSE(form.control<Label>(u"lab_Hyperlink")->frame().TabStop());
        EXPECT_FALSE(form.control<Label>(u"Descript", 1)->Visible());
        EXPECT_TRUE(outside.shell().opened().empty());
    });
}

TEST_F(About, ShowsTheOneLinkThatHasAnAddress)
{
    QVAPP()->CONFIG()->makerAddress(u"");
    open([](Form& form) {
        EXPECT_FALSE(form.control<Label>(u"lab_TDR")->Font()->Underline());
        EXPECT_TRUE(form.control<Label>(u"lab_Hyperlink")->Visible());
        EXPECT_TRUE(form.control<Label>(u"Descript", 1)->Visible());
    });
    QVAPP()->CONFIG()->makerAddress(u"https://maker.example/");
    QVAPP()->CONFIG()->productAddress(u"");
    open([](Form& form) {
        EXPECT_TRUE(form.control<Label>(u"lab_TDR")->Font()->Underline());
        EXPECT_NE(form.control<Label>(u"lab_TDR")->ForeColor(),
                  form.control<Label>(u"Descript", 0)->ForeColor());
        EXPECT_FALSE(form.control<Label>(u"lab_Hyperlink")->Visible());
        EXPECT_FALSE(form.control<Label>(u"Descript", 1)->Visible());
    });
}

TEST_F(About, AProgramHasNoAddressesUnlessItSetsThem)
{
    const cls_AppConfig config;
    EXPECT_EQ(config.makerAddress(), u"");
    EXPECT_EQ(config.productAddress(), u"");
}

TEST_F(About, ALinkThatCannotBeOpenedIsPassedOverInSilence)
{
    outside.shell().answer(false);
    open([](Form& form) { headless::click(*form.control<Label>(u"lab_Hyperlink")); });
}

TEST_F(About, LinksAreReachedAndOpenedByKeyboard)
{
    open([this](Form& form) {
        const auto link = form.control<Label>(u"lab_Hyperlink");
        form.control<Label>(u"lab_TDR")->SetFocus();
        headless::tab(form);
        EXPECT_EQ(form.ActiveControl(), link);
        headless::strike(form, {.key = Key::Return});
        headless::strike(form, {.key = Key::Space});
        EXPECT_EQ(outside.shell().opened().size(), 2U);
    });
}

TEST_F(About, TheHandClosesOnTheHyperlinkWhileItIsPressed)
{
    open([this](Form& form) {
        const auto link = form.control<Label>(u"lab_Hyperlink");
        EXPECT_EQ(link->frame().MousePointer(), MousePointer::Custom);
        EXPECT_THAT(outside.cursors().loaded(), ElementsAre(cursor(u"hand up.ico")));
        headless::click(*link);
        EXPECT_THAT(outside.cursors().loaded(),
                    ElementsAre(cursor(u"hand up.ico"), cursor(u"hand closed.ico"), cursor(u"hand up.ico")));
    });
}

TEST_F(About, ItsButtonClosesIt)
{
    outside.visual().onModal(u"frm_AppAbout", [](Form& form) {
        headless::clickButton(*form.control<ctl_CmdBar>(u"ctl_CmdBar1"), u"DIALOG.OK();");
        EXPECT_FALSE(form.isLoaded());
    });
    QVAPP()->DIALOG()->ABOUT();
}

TEST_F(About, EscapeClosesIt)
{
    outside.visual().onModal(u"frm_AppAbout", [](Form& form) {
        headless::strike(form, {.key = Key::Escape});
        EXPECT_FALSE(form.isLoaded());
    });
    QVAPP()->DIALOG()->ABOUT();
}

TEST_F(About, ShowsAnEmblem)
{
    open([this](Form& form) {
        EXPECT_THAT(outside.visual().drawing(*form.control<PictureBox>(u"Picture1")),
                    ::testing::HasSubstr("gradient"));
    });
}

TEST_F(About, ItsButtonHasTheFocusAtFirst)
{
    open([](Form& form) { EXPECT_EQ(form.ActiveControl(), form.find(u"ctl_CmdBar1")); });
}

TEST_F(About, IsMadeAnewEachTime)
{
    open([](Form& form) { form.Tag(u"first"); });
    open([](Form& form) { EXPECT_EQ(form.Tag(), u""); });
    EXPECT_EQ(visualHost().forms().Count(), 0U);
}

TEST_F(About, TheLinksFollowTheTextsBeforeThem)
{
    open([](Form& form) {
        const auto text = form.control<Label>(u"Descript", 1);
        const auto link = form.control<Label>(u"lab_Hyperlink");
        const double german = link->Left();
        EXPECT_GT(german, text->Left() + text->Width());
        LNG()->CURRENT(ID_Language_English);
        EXPECT_NE(link->Left(), german);
        EXPECT_GT(link->Left(), text->Left() + text->Width());
    });
}

TEST_F(About, TheDialogsAreOneSubObjectThatCanBeReplaced)
{
    const auto other = std::make_shared<cls_AppDialog>();
    EXPECT_EQ(QVAPP()->DIALOG(), QVAPP()->DIALOG());
    QVAPP()->DIALOG(other);
    EXPECT_EQ(QVAPP()->DIALOG(), other);
}

} // namespace

} // namespace phial
