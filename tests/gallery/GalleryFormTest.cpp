#include "app/cls_App.h"
#include "app/cls_AppMRU.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Colour.h"
#include "core/NumberText.h"
#include "dialogs/ScanChoice.h"
#include "gallery/GalleryTest.h"
#include "results/ctl_Mark.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/VisualHost.h"

#include <set>

namespace gallery
{
namespace
{

using phial::String;
using phial::StringView;

TEST_F(GalleryTest, BeginsWithTheFirstExhibit)
{
    open();

    EXPECT_EQ(caption(u"lab_Name"), u"Label");
    EXPECT_EQ(caption(u"lab_About"), u"Zeigt einen Text.");
    EXPECT_EQ(get<phial::Label>(u"Label1")->Caption(), u"Guten Morgen!");
    EXPECT_TRUE(get<phial::ctl_Button>(u"but_State", 0)->Accent());
    EXPECT_FALSE(get<phial::ctl_Button>(u"but_State", 4)->Visible());
}

TEST_F(GalleryTest, ChoosingALineShowsItsExhibit)
{
    open();
    const auto list = get<phial::ListBox>(u"lst_Exhibits");

    list->inputChoice(2);

    EXPECT_EQ(caption(u"lab_Name"), u"ctl_Label");
    EXPECT_EQ(form().find(u"Label1"), nullptr);
    EXPECT_NE(form().find(u"ctl_Label1"), nullptr);
}

TEST_F(GalleryTest, AHeadingIsSteppedOverInTheDirectionOfTheMove)
{
    open();
    const auto list = get<phial::ListBox>(u"lst_Exhibits");
    gallery->show(exhibit(u"ctl_Avatar"));
    const std::int32_t above = list->ListIndex();

    list->inputChoice(above + 1);
    EXPECT_EQ(caption(u"lab_Name"), u"TextBox");
    EXPECT_EQ(list->ListIndex(), above + 2);

    list->inputChoice(above + 1);
    EXPECT_EQ(caption(u"lab_Name"), u"ctl_Avatar");

    list->inputChoice(0);
    EXPECT_EQ(caption(u"lab_Name"), u"Label");
}

TEST_F(GalleryTest, AStateButtonBuildsTheExhibitAnewInThatState)
{
    open();
    show(u"TextBox");
    get<phial::TextBox>(u"TextBox1")->Locked(true);

    phial::headless::click(*get<phial::ctl_Button>(u"but_State", 1));

    EXPECT_EQ(get<phial::TextBox>(u"TextBox1")->Text(), u"Natürlich!");
    EXPECT_FALSE(get<phial::TextBox>(u"TextBox1")->Locked());
    EXPECT_TRUE(get<phial::ctl_Button>(u"but_State", 1)->Accent());
    EXPECT_FALSE(get<phial::ctl_Button>(u"but_State", 0)->Accent());
}

TEST_F(GalleryTest, TheMemberTableMakesThePropertyList)
{
    open();
    show(u"ctl_Label");

    const auto label = get<phial::ctl_Label>(u"ctl_Label1");
    EXPECT_EQ(static_cast<std::size_t>(get<phial::ListBox>(u"lst_Properties")->ListCount()),
              label->members().size());
    EXPECT_EQ(propertyText(u"Caption"), u"Caption = Säuren und Basen");
    EXPECT_EQ(propertyText(u"ForeColor"), u"ForeColor = #1C2836");
    EXPECT_EQ(propertyText(u"Font"), u"Font = \u2192 Font");
    EXPECT_EQ(propertyText(u"SetFocus"), u"SetFocus( )");
}

TEST_F(GalleryTest, SetsAProperty)
{
    open();
    show(u"ctl_Label");

    set(u"Caption", u"Salze");
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"Salze");
    EXPECT_EQ(propertyText(u"Caption"), u"Caption = Salze");
    EXPECT_EQ(caption(u"lab_Message"), u"Erledigt.");

    set(u"ForeColor", u"#ff0010");
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->ForeColor(), phial::RGB(255, 0, 16));
}

TEST_F(GalleryTest, TellsWhyAValueIsRefused)
{
    open();
    show(u"ctl_Label");

    set(u"Width", u"breit");
    EXPECT_EQ(caption(u"lab_Message"), u"Dieser Wert passt nicht zu der Eigenschaft.");

    set(u"Width", u"-5");
    EXPECT_EQ(caption(u"lab_Message"), u"Dieser Wert ist hier nicht erlaubt.");
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Width(), 300);
}

TEST_F(GalleryTest, WhatCannotBeWrittenCannotBeTyped)
{
    open();
    show(u"ctl_Label");

    choose(u"hWnd");

    EXPECT_FALSE(get<phial::TextBox>(u"txt_Value")->Enabled());
    EXPECT_FALSE(get<phial::ctl_Button>(u"but_Set")->Enabled());
}

TEST_F(GalleryTest, OpensAFontAndLeavesItAgain)
{
    open();
    show(u"ctl_Label");

    choose(u"Font");
    EXPECT_EQ(get<phial::ctl_Button>(u"but_Set")->Caption(), u"Öffnen");
    phial::headless::click(*get<phial::ctl_Button>(u"but_Set"));
    EXPECT_EQ(caption(u"lab_Path"), u"ctl_Label \u203A Font");

    set(u"Size", u"9");
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Font()->Size(), 9);

    phial::headless::type(form(), u"{esc}");
    EXPECT_EQ(caption(u"lab_Path"), u"ctl_Label");
    EXPECT_FALSE(get<phial::ctl_Button>(u"but_Back")->Visible());
}

TEST_F(GalleryTest, ReturnSetsAPropertyWhileTheUserIsThere)
{
    open();
    show(u"ctl_Button");
    choose(u"Caption");
    get<phial::TextBox>(u"txt_Value")->SetFocus();

    phial::headless::type(form(), u"^aLos{enter}");
    EXPECT_EQ(get<phial::ctl_Button>(u"ctl_Button1")->Caption(), u"Los");

    get<phial::TextBox>(u"txt_Value")->inputText(u"Halt", 4, 0);
    get<phial::ListBox>(u"lst_Exhibits")->SetFocus();
    phial::headless::type(form(), u"{enter}");
    EXPECT_EQ(get<phial::ctl_Button>(u"ctl_Button1")->Caption(), u"Los");
}

TEST_F(GalleryTest, RunsAnOperation)
{
    open();
    show(u"ListBox", 1);
    choose(u"Clear");
    EXPECT_EQ(get<phial::ctl_Button>(u"but_Set")->Caption(), u"Ausführen");

    phial::headless::click(*get<phial::ctl_Button>(u"but_Set"));

    EXPECT_EQ(get<phial::ListBox>(u"ListBox1")->ListCount(), 0);
}

TEST_F(GalleryTest, TheListFollowsWhatTheUserDoesOnTheStage)
{
    open();
    show(u"TextBox");
    choose(u"Text");

    get<phial::TextBox>(u"TextBox1")->inputText(u"Zink", 4, 0);
    outside.advance(0.5);

    EXPECT_EQ(propertyText(u"Text"), u"Text = Zink");
    EXPECT_EQ(get<phial::TextBox>(u"txt_Value")->Text(), u"Zink");
}

TEST_F(GalleryTest, WhatIsBeingTypedIsNotOverwritten)
{
    open();
    show(u"TextBox");
    choose(u"Text");
    get<phial::TextBox>(u"txt_Value")->inputText(u"Ble", 3, 0);

    get<phial::TextBox>(u"TextBox1")->inputText(u"Zink", 4, 0);
    outside.advance(0.5);

    EXPECT_EQ(get<phial::TextBox>(u"txt_Value")->Text(), u"Ble");
}

TEST_F(GalleryTest, ChangesTheLanguageFromTheMenu)
{
    open();
    show(u"TextBox", 1);

    form().menu().entry(u"men_Language")->entry(u"men_Choice", 1)->inputClick();

    EXPECT_EQ(form().Caption(), u"QV Phial: Gallery");
    EXPECT_EQ(caption(u"lab_Name"), u"TextBox");
    EXPECT_EQ(get<phial::TextBox>(u"TextBox1")->Text(), u"Of course!");
    EXPECT_EQ(get<phial::ctl_Button>(u"but_Set")->Caption(), u"Set");
    EXPECT_TRUE(form().menu().entry(u"men_Language")->entry(u"men_Choice", 1)->Checked());
    EXPECT_FALSE(form().menu().entry(u"men_Language")->entry(u"men_Choice", 0)->Checked());
}

TEST_F(GalleryTest, TheMenuChoosesTheSpeedOfASingleSwitch)
{
    open();
    const auto keyboards = form().menu().entry(u"men_Keyboards");
    EXPECT_TRUE(keyboards->entry(u"men_Scan", 0)->Checked());
    keyboards->entry(u"men_Scan", 2)->inputClick();
    EXPECT_EQ(phial::rememberedScan(), 1500);
    EXPECT_TRUE(keyboards->entry(u"men_Scan", 2)->Checked());
    EXPECT_FALSE(keyboards->entry(u"men_Scan", 0)->Checked());
}

TEST_F(GalleryTest, TheFileMenuLeadsBackToWhatWasChosenLast)
{
    open();
    const auto list = get<phial::ListBox>(u"lst_Exhibits");
    for (std::int32_t line = 1; line <= 6; ++line) {
        list->inputChoice(line);
    }
    const auto file = form().menu().entry(u"men_File");
    EXPECT_EQ(file->upperBound(u"mnu_FileMRU"), 4);
    const String earlier = file->entry(u"mnu_FileMRU", 3)->Caption();
    EXPECT_NE(caption(u"lab_Name"), earlier);

    file->entry(u"mnu_FileMRU", 3)->inputClick();

    EXPECT_EQ(caption(u"lab_Name"), earlier);
    EXPECT_EQ(file->entry(u"mnu_FileMRU", 1)->Caption(), earlier) << "it is the last one now";
}

TEST_F(GalleryTest, RemembersWhatWasChosenForTheNextTime)
{
    open();
    get<phial::ListBox>(u"lst_Exhibits")->inputChoice(2);
    phial::QVAPP()->MRU({});
    gallery.reset();
    open();
    EXPECT_EQ(get<phial::Menu>(u"mnu_FileMRU", 1)->Caption(), u"ctl_Label");
}

TEST_F(GalleryTest, TellsAboutItselfFromTheMenu)
{
    open();
    outside.visual().onModal(u"frm_AppAbout", [](phial::Form& about) {
        EXPECT_EQ(about.Caption(), u"Info über Galerie");
        about.Unload();
    });
    get<phial::Menu>(u"men_Info")->inputClick();
}

TEST_F(GalleryTest, QuitsFromTheMenu)
{
    open();

    form().menu().entry(u"men_File")->entry(u"men_Quit")->inputClick();

    EXPECT_FALSE(form().Visible());
}

TEST_F(GalleryTest, AWindowOfAnExhibitGoesWithTheGallery)
{
    open();
    show(u"Form", 1);
    const auto window = phial::visualHost().forms().Item(u"frm_Sample");
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->Visible());

    form().Unload();

    EXPECT_FALSE(window->Visible());
}

TEST_F(GalleryTest, ADialogTellsItsAnswerOnTheStage)
{
    open();
    show(u"CoreDialogs.YesNo");
    EXPECT_EQ(caption(u"lab_Path"), u"Hier gibt es keine.");
    outside.dialogs().expectYesNo(phial::DialogAnswer::Yes, u"Möchtest du noch eine Runde üben?");

    phial::headless::click(*get<phial::ctl_Button>(u"but_State", 1));

    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"Antwort: Ja");
}

TEST_F(GalleryTest, AModalWindowIsClosedByItsButton)
{
    open();
    outside.visual().onModal(u"frm_Sample",
                             [](phial::Form& window) { phial::headless::type(window, u"{esc}"); });

    show(u"Form", 6);

    EXPECT_EQ(phial::visualHost().forms().Item(u"frm_Sample"), nullptr);
}

TEST_F(GalleryTest, TheCoverGoesByAKey)
{
    open();
    show(u"frm_Fade", 1);
    const auto cover = phial::visualHost().forms().Item(u"frm_Fade");
    ASSERT_NE(cover, nullptr);

    phial::headless::type(*cover, u"{esc}");

    EXPECT_FALSE(cover->Visible());
    EXPECT_TRUE(form().Visible());
}

TEST_F(GalleryTest, SetsAMarkByItsText)
{
    open();
    show(u"ctl_Mark");
    set(u"MARKTEXT", u"2-");
    EXPECT_EQ(get<phial::ctl_Mark>(u"ctl_Mark1")->MARK(), phial::enm_Mark::ID_Mark_2M);
    EXPECT_EQ(propertyText(u"MARK"), u"MARK = 10");
}

TEST_F(GalleryTest, TheScaleHasEachMark)
{
    open();
    std::set<phial::enm_Mark> shown;
    for (const std::size_t half : {0U, 1U}) {
        show(u"enm_Mark", half);
        for (int place = 1; place <= 8; ++place) {
            shown.insert(get<phial::ctl_Mark>(u"ctl_Mark" + phial::plainText(place))->MARK());
        }
    }
    EXPECT_EQ(shown.size(), 16U);
}

TEST_F(GalleryTest, AHighscoreGoesWithItsExhibit)
{
    open();
    show(u"frm_DialogHighscore", 1);
    const auto& forms = phial::visualHost().forms();
    ASSERT_EQ(forms.Count(), 2U);
    const auto window = forms.Item(1);
    EXPECT_TRUE(window->Visible());
    EXPECT_EQ(window->control<phial::Label>(u"lab_Rank", 9)->Caption(), u"10");
    show(u"Label");
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(GalleryTest, TellsWhetherAListWasSaved)
{
    open();
    outside.dialogs().expectSaveFile(u"");
    show(u"cls_DataScores", 2);
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"Antwort: nicht gesichert");
}

TEST_F(GalleryTest, TheTimerCounts)
{
    open();
    show(u"Timer", 1);

    outside.advance(3.1);

    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"3");
}

TEST_F(GalleryTest, ARelayRepeatsAPress)
{
    open();
    show(u"ctl_ReEvent");

    phial::headless::click(*get<phial::ctl_Button>(u"ctl_Button1"));

    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"1");
}

TEST_F(GalleryTest, TheImageListIsLeafedThrough)
{
    open();
    show(u"ImageList");
    const auto box = get<phial::PictureBox>(u"PictureBox1");
    const auto next = get<phial::ctl_Button>(u"ctl_Button1");
    const auto first = box->Picture();

    phial::headless::click(*next);
    EXPECT_NE(box->Picture(), first);
    phial::headless::click(*next);
    EXPECT_EQ(box->Picture(), first);
}

TEST_F(GalleryTest, TheSampleMenuComesAndGoesWithItsExhibit)
{
    open();
    const std::size_t own = form().menu().entries().size();
    show(u"Menu", 3);
    ASSERT_EQ(form().menu().entries().size(), own + 1);
    const auto menu = form().menu().entries().back();
    EXPECT_EQ(menu->entry(u"men_Level", 2)->Caption(), u"&Schwer");

    menu->entry(u"men_Level", 1)->inputClick();
    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"Mittel");

    show(u"Label");
    EXPECT_EQ(form().menu().entries().size(), own);
}

TEST_F(GalleryTest, ABarTellsItsKeys)
{
    open();
    show(u"ctl_CmdBar");

    phial::headless::clickButton(*get<phial::Control>(u"ctl_CmdBar1"), u"DIALOG.CANCEL();");

    EXPECT_EQ(get<phial::ctl_Label>(u"ctl_Label1")->Caption(), u"DIALOG.CANCEL();");
}

} // namespace
} // namespace gallery
