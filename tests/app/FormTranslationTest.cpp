#include "app/AppTest.h"
#include "app/cls_Language.h"
#include "core/CoreTokenList.h"
#include "support/Texts.h"
#include "visual/ComboBox.h"
#include "visual/ControlArray.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Title.h"

namespace phial
{

namespace
{

/// A form with one label, and a language that is German at first.
class FormTranslationTest : public AppTest
{
protected:
    FormTranslationTest()
    {
        language.CURRENT(ID_Language_German);
        label->Caption(u"Hallo|Hello");
    }

    void showIn(enm_LanguageC choice)
    {
        language.CURRENT(choice);
        language.Form(*form, buffer);
    }

    cls_Language language;
    CoreTokenList buffer;
    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<Label> label = form->add<Label>(u"lab_Hello");
};

TEST_F(FormTranslationTest, SwitchesATextThereAndBackWithTheSameBuffer)
{
    showIn(ID_Language_German);
    EXPECT_EQ(label->Caption(), u"Hallo");
    showIn(ID_Language_English);
    EXPECT_EQ(label->Caption(), u"Hello");
    showIn(ID_Language_German);
    EXPECT_EQ(label->Caption(), u"Hallo");
}

TEST_F(FormTranslationTest, WithoutABufferASecondWalkFindsNothingToChange)
{
    language.Form(*form);
    EXPECT_EQ(label->Caption(), u"Hallo");
    language.CURRENT(ID_Language_English);
    language.Form(*form);
    EXPECT_EQ(label->Caption(), u"Hallo");
}

TEST_F(FormTranslationTest, ATextWithoutEnglishPartKeepsItsSeparatorInBothLanguages)
{
    label->Caption(u"Start|");
    showIn(ID_Language_German);
    EXPECT_EQ(label->Caption(), u"Start|");
    showIn(ID_Language_English);
    EXPECT_EQ(label->Caption(), u"Start|");
}

TEST_F(FormTranslationTest, TheFormsCaptionIsTranslatedToo)
{
    form->Caption(u"Fenster|Window");
    showIn(ID_Language_English);
    EXPECT_EQ(form->Caption(), u"Window");
    EXPECT_TRUE(buffer.Exists(u"frm_Test.Caption"));
}

TEST_F(FormTranslationTest, EachKindOfControlGivesItsTexts)
{
    const auto title = form->add<ctl_Title>(u"bar_Header");
    const auto button = form->add<ctl_Button>(u"but_Go");
    const auto text = form->add<TextBox>(u"txt_Name");
    title->Title(u"Titel|Title");
    button->Caption(u"Los|Go");
    button->frame().ToolTipText(u"Es geht los|Off it goes");
    button->Tag(u"Marke|Mark");
    text->Text(u"Dein Name|Your name");
    showIn(ID_Language_English);
    EXPECT_EQ(title->Title(), u"Title");
    EXPECT_EQ(button->Caption(), u"Go");
    EXPECT_EQ(button->frame().ToolTipText(), u"Off it goes");
    EXPECT_EQ(button->Tag(), u"Mark");
    EXPECT_EQ(text->Text(), u"Your name");
}

TEST_F(FormTranslationTest, MembersOfAControlArrayHaveKeysOfTheirOwn)
{
    ControlArray<ctl_Button> keys(*form, u"but_Key");
    keys.add(0, std::make_shared<ctl_Button>())->Caption(u"Null|Zero");
    keys.add(7, std::make_shared<ctl_Button>())->Caption(u"Sieben|Seven");
    showIn(ID_Language_English);
    EXPECT_EQ(keys(0)->Caption(), u"Zero");
    EXPECT_EQ(keys(7)->Caption(), u"Seven");
    EXPECT_TRUE(buffer.Exists(u"but_Key(7).CAPTION"));
}

TEST_F(FormTranslationTest, ButtonsOfABarAreTranslated)
{
    const auto bar = form->add<ctl_CmdBar>(u"bar_Buttons");
    bar->BUTTONS()->Add(u"DIALOG.OK();", u"Fertig|Done");
    showIn(ID_Language_English);
    EXPECT_EQ(bar->BUTTONS()->Item(1)->Caption(), u"Done");
    EXPECT_EQ(bar->BUTTONS()->Item(1)->Key(), u"DIALOG.OK();");
    EXPECT_TRUE(buffer.Exists(u"bar_Buttons.BUTTONS(1).CAPTION"));
}

TEST_F(FormTranslationTest, EntriesOfTheMenuBarAreTranslatedAtEveryDepth)
{
    const auto file = form->menu().add(u"mnu_File", u"&Datei|&File");
    const auto recent = file->add(u"mnu_FileMRU", u"Zuletzt|Recent", 0);
    recent->Tag(u"Marke|Mark");
    const auto save = file->add(u"mnu_FileSave", u"Sichern|Save")->add(u"mnu_SaveAs", u"Unter|As");
    showIn(ID_Language_English);
    EXPECT_EQ(file->Caption(), u"&File");
    EXPECT_EQ(recent->Caption(), u"Recent");
    EXPECT_EQ(recent->Tag(), u"Mark");
    EXPECT_EQ(save->Caption(), u"As");
    EXPECT_TRUE(buffer.Exists(u"mnu_FileMRU(0).CAPTION"));
    showIn(ID_Language_German);
    EXPECT_EQ(file->Caption(), u"&Datei");
    EXPECT_EQ(save->Caption(), u"Unter");
}

TEST_F(FormTranslationTest, AssignsOnlyTextsThatDiffer)
{
    const auto text = form->add<TextBox>(u"txt_Name");
    text->Text(u"Name|Name");
    showIn(ID_Language_German);
    int changes = 0;
    const auto connection = text->Change.connect([&changes] { ++changes; });
    showIn(ID_Language_English);
    EXPECT_EQ(changes, 0);
}

TEST_F(FormTranslationTest, TheFirstWalkTintsFieldsInTheWindowColour)
{
    const auto text = form->add<TextBox>(u"txt_Name");
    const auto list = form->add<ListBox>(u"lst_Names");
    const auto combo = form->add<ComboBox>(u"cmb_Names");
    list->BackColor(RGB(1, 2, 3));
    showIn(ID_Language_German);
    EXPECT_NE(text->BackColor(), SystemColour::Window);
    EXPECT_NE(combo->BackColor(), SystemColour::Window);
    EXPECT_EQ(list->BackColor(), RGB(1, 2, 3));

    text->BackColor(SystemColour::Window);
    showIn(ID_Language_English);
    EXPECT_EQ(text->BackColor(), SystemColour::Window);
}

TEST_F(FormTranslationTest, NamesTextsThatNobodyHasTranslated)
{
    for (const auto* text : {u"Vergessen", u"OK", u"a1", u"C:\\Ordner", u"Text", u"Title", u"Ärger"}) {
        form->add<Label>(String(u"lab_") + text)->Caption(text);
    }
    language.Form(*form, buffer);
    EXPECT_EQ(test::texts(language.untranslated()),
              (std::vector<String>{u"lab_Vergessen.CAPTION in frm_Test", u"lab_Ärger.CAPTION in frm_Test"}));
}

TEST_F(FormTranslationTest, TheLanguageOfOpenFormsFollowsTheChoice)
{
    const auto connection = form->TRANSLATE.connect([this] { language.Form(*form, buffer); });
    form->Show();
    language.CURRENT(ID_Language_English);
    EXPECT_EQ(label->Caption(), u"Hello");
    form->Unload();
}

} // namespace

} // namespace phial
