#include "app/AppTest.h"
#include "app/cls_Language.h"
#include "core/CoreTokenList.h"
#include "support/Texts.h"
#include "visual/ComboBox.h"
#include "visual/ControlArray.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/ListBox.h"
#include "visual/ListView.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Title.h"
#include "visual/ctl_UICommandbar.h"

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
    label->Caption(u"Stop");
    showIn(ID_Language_English);
    EXPECT_EQ(label->Caption(), u"Start|") << "it is kept as the others are";
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

/// A text that the walk takes up: the object that shows it, by which member, and under which key.
struct Place {
    Object& object;
    const char16_t* member;
    const char16_t* key;
};

class TranslatedPlaces : public FormTranslationTest
{
protected:
    /// Each place gets a text of its own, which must then follow the language under the place's key.
    void expectToFollow(const std::vector<Place>& places, StringView behind = {})
    {
        for (const Place& place : places) {
            setMember(place.object, place.member, germanOf(place) + u"|" + englishOf(place));
        }
        showIn(ID_Language_English);
        for (const Place& place : places) {
            SCOPED_TRACE(toUtf8(place.key));
            EXPECT_EQ(getMember(place.object, place.member).toText(), englishOf(place) + String(behind));
            ASSERT_TRUE(buffer.Exists(place.key));
            EXPECT_EQ(buffer.Item(place.key).Values().Item(1).toText(), germanOf(place));
            EXPECT_EQ(buffer.Item(place.key).Values().Item(2).toText(), englishOf(place));
        }
        showIn(ID_Language_German);
        for (const Place& place : places) {
            EXPECT_EQ(getMember(place.object, place.member).toText(), germanOf(place) + String(behind));
        }
    }

private:
    static String germanOf(const Place& place) { return String(u"Wort ") + place.key; }
    static String englishOf(const Place& place) { return String(u"Word ") + place.key; }
};

TEST_F(TranslatedPlaces, AreTheTextsOfAControl)
{
    const auto title = form->add<ctl_Title>(u"bar_Header");
    const auto text = form->add<TextBox>(u"txt_Name");
    const auto button = form->add<ctl_Button>(u"but_Go");
    expectToFollow({{*title, u"Title", u"bar_Header.TITLE"},
                    {*title, u"TextLeft", u"bar_Header.TEXTLEFT"},
                    {*title, u"TextRight", u"bar_Header.TEXTRIGHT"},
                    {*text, u"Text", u"txt_Name.TEXT"},
                    {*text, u"ToolTipText", u"txt_Name.TOOLTIPTEXT"},
                    {*button, u"Caption", u"but_Go.CAPTION"},
                    {*button, u"Tag", u"but_Go.TAG"}});
}

TEST_F(TranslatedPlaces, AreTheTextsOfABarsButtons)
{
    for (const StringView name : {u"bar_Dialog", u"bar_Editor"}) {
        const ControlPtr bar = name == u"bar_Dialog" ? ControlPtr(form->add<ctl_CmdBar>(name))
                                                     : ControlPtr(form->add<ctl_UICommandbar>(name));
        dynamic_cast<CommandBar&>(*bar).BUTTONS()->Add(u"a", u"");
    }
    const auto dialog = form->control<ctl_CmdBar>(u"bar_Dialog")->BUTTONS()->Item(1);
    const auto editor = form->control<ctl_UICommandbar>(u"bar_Editor")->BUTTONS()->Item(1);
    expectToFollow({{*dialog, u"Caption", u"bar_Dialog.BUTTONS(1).CAPTION"},
                    {*dialog, u"ToolTipText", u"bar_Dialog.BUTTONS(1).TOOLTIPTEXT"},
                    {*dialog, u"Description", u"bar_Dialog.BUTTONS(1).DESCRIPTION"},
                    {*editor, u"Tag", u"bar_Editor.BUTTONS(1).TAG"}});
}

TEST_F(TranslatedPlaces, AreTheTextsOfABarsPanels)
{
    const auto bar = form->add<ctl_CmdBar>(u"bar_Status");
    bar->PANELS()->Add(u"", u"erstes");
    const auto panel = bar->PANELS()->Add(u"", u"");
    expectToFollow({{*panel, u"Text", u"bar_Status.PANELS(2).TEXT"},
                    {*panel, u"Caption", u"bar_Status.PANELS(2).CAPTION"},
                    {*panel, u"ToolTipText", u"bar_Status.PANELS(2).TOOLTIPTEXT"},
                    {*panel, u"Description", u"bar_Status.PANELS(2).DESCRIPTION"},
                    {*panel, u"Tag", u"bar_Status.PANELS(2).TAG"}});
}

TEST_F(TranslatedPlaces, AreTheTextsOfAListsRowsAndColumns)
{
    const auto list = form->add<ListView>(u"lst_Pupils");
    const auto column = list->COLUMNHEADERS()->Add(u"", 0);
    const auto row = list->ITEMS()->Add(u"");
    expectToFollow({{*row, u"Title", u"lst_Pupils.ITEMS(1).TITLE"},
                    {*row, u"TitleShort", u"lst_Pupils.ITEMS(1).TITLESHORT"},
                    {*row, u"ToolTipText", u"lst_Pupils.ITEMS(1).TOOLTIPTEXT"},
                    {*row, u"Tag", u"lst_Pupils.ITEMS(1).TAG"},
                    {*column, u"Text", u"lst_Pupils.COLUMNHEADERS(1).TEXT"},
                    {*column, u"ToolTipText", u"lst_Pupils.COLUMNHEADERS(1).TOOLTIPTEXT"}});
}

TEST_F(TranslatedPlaces, AButtonsTextIsKeptApartFromItsEdgeByThreeBlanks)
{
    const auto bar = form->add<ctl_UICommandbar>(u"bar_Editor");
    const auto button = bar->BUTTONS()->Add(u"b", u"");
    expectToFollow({{*button, u"Text", u"bar_Editor.BUTTONS(1).TEXT"}}, u"   ");
}

TEST_F(FormTranslationTest, AButtonsTextThatIsNoPairIsTrimmedBeforeTheBlanksComeBehind)
{
    const auto bar = form->add<ctl_CmdBar>(u"bar_Buttons");
    const auto plain = bar->BUTTONS()->Add(u"b", u"Fett");
    const auto padded = bar->BUTTONS()->Add(u"i", u"");
    const auto panel = bar->PANELS()->Add(u"", u"");
    padded->Text(u"  schräg ");
    panel->Text(u" bereit ");
    showIn(ID_Language_German);
    showIn(ID_Language_German);
    EXPECT_EQ(padded->Text(), u"schräg   ") << "however often";
    EXPECT_EQ(panel->Text(), u" bereit ") << "only buttons are";
    EXPECT_EQ(plain->Text(), u"   ");
    EXPECT_EQ(plain->face(), u"Fett") << "blanks alone do not hide the caption";
}

TEST_F(FormTranslationTest, TheFirstWalkTintsFieldsInTheWindowColour)
{
    constexpr Colour PaleBlue = RGB(204, 225, 240); // a fifth of RGB(0, 106, 181) in white
    const auto text = form->add<TextBox>(u"txt_Name");
    const auto list = form->add<ListBox>(u"lst_Names");
    const auto combo = form->add<ComboBox>(u"cmb_Names");
    const auto view = form->add<ListView>(u"lst_View");
    const auto rich = form->add<RichTextBox>(u"rtf_Text");
    const auto own = form->add<TextBox>(u"txt_Own");
    own->BackColor(RGB(1, 2, 3));
    showIn(ID_Language_German);
    EXPECT_EQ(text->BackColor(), PaleBlue);
    EXPECT_EQ(list->BackColor(), PaleBlue);
    EXPECT_EQ(combo->BackColor(), PaleBlue);
    EXPECT_EQ(view->BackColor(), PaleBlue);
    EXPECT_EQ(rich->BackColor(), SystemColour::Window) << "no field of these kinds";
    EXPECT_EQ(own->BackColor(), RGB(1, 2, 3));

    text->BackColor(SystemColour::Window);
    showIn(ID_Language_English);
    EXPECT_EQ(text->BackColor(), SystemColour::Window) << "later walks tint nothing";
}

TEST_F(FormTranslationTest, NamesTextsThatNobodyHasTranslated)
{
    for (const auto* text :
         {u"Vergessen", u"OK", u"a1", u"a12", u"C:\\Ordner", u"Text", u"Title", u"Ärger", u"Ahz"}) {
        form->add<Label>(String(u"lab_") + text)->Caption(text);
    }
    language.Form(*form, buffer);
    EXPECT_EQ(test::texts(language.untranslated()),
              (std::vector<String>{u"lab_Vergessen.CAPTION in frm_Test", u"lab_Ärger.CAPTION in frm_Test",
                                   u"lab_Ahz.CAPTION in frm_Test"}));
}

TEST_F(FormTranslationTest, WhatHoldsNoControlsIsLeftAlone)
{
    Font font;
    language.Form(font, buffer);
    EXPECT_EQ(test::texts(language.untranslated()), std::vector<String>());
    EXPECT_EQ(font.traits(), FontSpec{});
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
