#include "app/AppTest.h"
#include "app/cls_Language.h"
#include "core/Locale.h"
#include "visual/Form.h"

namespace phial
{

namespace
{

class Language : public AppTest
{
};

TEST_F(Language, FollowsTheSystemWhenNothingIsStored)
{
    variable(u"LANG", u"de_AT.UTF-8");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_German);
    variable(u"LANG", u"fr_FR.UTF-8");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
    EXPECT_EQ(cls_Language().CURRENT(), ID_Language_System);
}

TEST_F(Language, AsksTheVariablesInTheirOrder)
{
    variable(u"LANG", u"en_GB.UTF-8");
    variable(u"LC_MESSAGES", u"de");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_German);
    variable(u"LC_ALL", u"C");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
}

TEST_F(Language, TakesTheFirstLanguageThatItSpeaksFromTheUsersOwnList)
{
    variable(u"LC_ALL", u"en_GB.UTF-8");
    for (const StringView list : {u"de", u"de_CH:en", u"fr:de:en", u"nds:de_AT"}) {
        variable(u"LANGUAGE", String(list));
        EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_German) << toUtf8(list);
    }
    variable(u"LC_ALL", u"de_DE.UTF-8");
    for (const StringView list : {u"en", u"en_US:de", u"fr", u"fr:en_GB:de", u":"}) {
        variable(u"LANGUAGE", String(list));
        EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English) << toUtf8(list);
    }
    variable(u"LANGUAGE", u"");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_German);
}

TEST_F(Language, AsksTheDesktopWhereTheEnvironmentNamesNone)
{
    outside.machine().UserLanguage(LanguageGerman);
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_German);
    outside.machine().UserLanguage(LanguageEnglish);
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
    outside.machine().UserLanguage(0);
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
    outside.machine().UserLanguage(LanguageGerman);
    variable(u"LANG", u"fr_FR.UTF-8");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
}

TEST_F(Language, SpeaksEnglishOnAMachineThatTellsNothing)
{
    session.reset();
    Platform bare = outside.platform();
    bare.machine = nullptr;
    session.emplace(bare);
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
}

TEST_F(Language, TakesNoOtherLanguageThatBeginsAlikeForGerman)
{
    variable(u"LANG", u"den_CA");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
}

TEST_F(Language, ReadsTheStoredChoice)
{
    prepareUserSetting(u"Language", u"DE");
    EXPECT_EQ(cls_Language().CURRENT(), ID_Language_German);
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_German);
    prepareUserSetting(u"Language", u"EN");
    EXPECT_EQ(cls_Language().EFFECTIVE(), ID_Language_English);
}

TEST_F(Language, SpeaksEnglishWithoutDetectionForAnUnknownStoredChoice)
{
    variable(u"LANG", u"de_DE");
    prepareUserSetting(u"Language", u"FR");
    const cls_Language language;
    EXPECT_EQ(language.CURRENT(), ID_Language_System);
    EXPECT_EQ(language.EFFECTIVE(), ID_Language_System);
    EXPECT_EQ(language.TRANSLATE(u"Hallo", u"Hello"), u"Hello");
    EXPECT_EQ(userSetting(u"Language"), Variant(u""));
}

TEST_F(Language, StoresAChoiceAndTellsTheCore)
{
    cls_Language language;
    language.CURRENT(ID_Language_German);
    EXPECT_EQ(userSetting(u"Language"), Variant(u"DE"));
    EXPECT_EQ(currentLocale().language, LanguageGerman);
    language.CURRENT(ID_Language_English);
    EXPECT_EQ(userSetting(u"Language"), Variant(u"EN"));
    EXPECT_EQ(currentLocale().language, LanguageEnglish);
    variable(u"LANG", u"de_DE");
    language.CURRENT(ID_Language_System);
    EXPECT_EQ(userSetting(u"Language"), Variant(u""));
    EXPECT_EQ(language.EFFECTIVE(), ID_Language_German);
}

TEST_F(Language, AsksEveryOpenFormToTranslateItself)
{
    cls_Language language;
    std::vector<std::shared_ptr<Form>> forms;
    Connections translating;
    int translated = 0;
    for (const StringView name : {u"frm_First", u"frm_Silent", u"frm_Failing", u"frm_Last"}) {
        forms.push_back(std::make_shared<Form>(String(name)));
        forms.back()->Show();
    }
    translating += forms[0]->TRANSLATE.connect([&] { ++translated; });
    translating += forms[2]->TRANSLATE.connect([] { throw RuntimeError(ErrorNumber::InvalidArgument); });
    translating += forms[3]->TRANSLATE.connect([&] { ++translated; });
    language.CURRENT(ID_Language_German);
    EXPECT_EQ(translated, 2);
    language.CURRENT(ID_Language_German);
    EXPECT_EQ(translated, 2);
    for (const auto& form : forms) {
        form->Unload();
    }
}

TEST_F(Language, ReplacesNumberedPlaceholdersOnTheRunningText)
{
    cls_Language language;
    language.CURRENT(ID_Language_German);
    EXPECT_EQ(language.TRANSLATE(u"{1} von {2}", u"{1} of {2}", {3, 10}), u"3 von 10");
    EXPECT_EQ(language.TRANSLATE(u"{1}", u"", {u"<{2}>", u"x"}), u"<x>");
    EXPECT_EQ(language.TRANSLATE(u"{1}{1}", u"", {u"a"}), u"aa");
}

TEST_F(Language, KeepsPlaceholdersWithoutValues)
{
    cls_Language language;
    language.CURRENT(ID_Language_English);
    EXPECT_EQ(language.TRANSLATE(u"{1} Punkte", u"{1} points"), u"{1} points");
}

TEST_F(Language, TakesItsPartOfADividedText)
{
    cls_Language language;
    language.CURRENT(ID_Language_German);
    EXPECT_EQ(language.TRANSLATEAUTO(u"Hallo|Hello"), u"Hallo");
    EXPECT_EQ(language.TRANSLATEAUTO(u"Hallo"), u"Hallo");
    language.CURRENT(ID_Language_English);
    EXPECT_EQ(language.TRANSLATEAUTO(u"Hallo|Hello|Salut"), u"Hello|Salut");
}

TEST_F(Language, GivesTheDatePatternsOfTheLanguage)
{
    cls_Language language;
    language.CURRENT(ID_Language_German);
    EXPECT_EQ(language.DATEFORMAT(), u"dd.mm.yyyy");
    EXPECT_EQ(language.DATETIMEFORMAT(), u"dd.mm.yyyy HH:MM");
    language.CURRENT(ID_Language_English);
    EXPECT_EQ(language.DATEFORMAT(), u"dd-mm-yyyy");
    EXPECT_EQ(language.DATETIMEFORMAT(), u"dd-mm-yyyy HH:MM");
}

TEST_F(Language, MarksAFileName)
{
    cls_Language language;
    language.CURRENT(ID_Language_German);
    EXPECT_EQ(language.FILEADD(u"sfx\\a.wav"), u"sfx\\a-de.wav");
    language.CURRENT(ID_Language_English);
    EXPECT_EQ(language.FILEADD(u"sfx\\a.wav"), u"sfx\\a-en.wav");
}

} // namespace

} // namespace phial
