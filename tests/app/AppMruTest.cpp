#include "app/AppTest.h"
#include "app/cls_AppMRU.h"
#include "support/Raises.h"
#include "support/Texts.h"
#include "visual/Form.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The list of recent files of the program "Molmasse", based at "C:\Data\", and a form with a File menu.
class RecentFiles : public AppTest
{
protected:
    RecentFiles()
    {
        file->add(u"mnu_FileOpen", u"Öffnen|Open");
        file->add(u"mnu_FileMRUSep", u"-");
        file->add(u"mnu_FileMRU", u"", 0);
        file->add(u"mnu_FileQuit", u"Beenden|Quit");
        ident(u"Molmasse");
        mru().BASEPATH(u"C:\\Data\\");
        mru().DEVICE(form);
    }

    static cls_AppMRU& mru() { return *QVAPP()->MRU(); }
    static std::vector<String> entries() { return test::texts(*mru().ENTRIES()); }
    static void fill(std::initializer_list<StringView> list)
    {
        mru().ENTRIES(std::make_shared<CoreStringList>(list));
    }

    /// The File menu as the user sees it.
    std::vector<String> seen() const
    {
        std::vector<String> captions;
        for (const auto& entry : file->entries()) {
            if (entry->Visible()) {
                captions.push_back(entry->Caption());
            }
        }
        return captions;
    }
    std::shared_ptr<Menu> item(std::int32_t index) const { return file->entry(u"mnu_FileMRU", index); }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Host");
    std::shared_ptr<Menu> file = form->menu().add(u"mnu_File", u"&Datei|&File");
};

TEST_F(RecentFiles, AreNoneAtFirst)
{
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_EQ(mru().MAX(), 4);
    const cls_AppMRU fresh;
    EXPECT_EQ(fresh.BASEPATH(), u"");
    EXPECT_EQ(fresh.DEVICE(), nullptr);
}

TEST_F(RecentFiles, AddPutsTheFileOnTopAsSeenFromTheBase)
{
    mru().ADD(u"C:\\Data\\a.txt");
    mru().ADD(u"C:\\Data\\Salze\\b.txt");
    mru().ADD(u"C:\\Other\\c.txt");
    EXPECT_THAT(entries(), ElementsAre(u"..\\Other\\c.txt", u"Salze\\b.txt", u"a.txt"));
}

TEST_F(RecentFiles, AFileWithoutCommonRootKeepsItsFolder)
{
    mru().ADD(u"D:\\Stick\\d.txt");
    EXPECT_THAT(entries(), ElementsAre(u"D:\\Stick\\d.txt"));
    EXPECT_EQ(item(1)->Tag(), u"D:\\Stick\\d.txt");
}

TEST_F(RecentFiles, WithoutABaseAFileKeepsItsFolder)
{
    mru().BASEPATH({});
    mru().ADD(u"C:\\Data\\a.txt");
    EXPECT_THAT(entries(), ElementsAre(u"C:\\Data\\a.txt"));
    EXPECT_EQ(item(1)->Tag(), u"C:\\Data\\a.txt");
}

TEST_F(RecentFiles, AFileAddedAgainIsListedOnceAtTheTop)
{
    mru().ADD(u"C:\\Data\\a.txt");
    mru().ADD(u"C:\\Data\\b.txt");
    mru().ADD(u"C:\\Data\\A.TXT");
    EXPECT_THAT(entries(), ElementsAre(u"A.TXT", u"b.txt"));
}

TEST_F(RecentFiles, GrowBeyondTheirIntendedLength)
{
    for (const auto* name : {u"1.txt", u"2.txt", u"3.txt", u"4.txt", u"5.txt"}) {
        mru().ADD(String(u"C:\\Data\\") + name);
    }
    EXPECT_EQ(mru().ENTRIES()->Count(), 5);
    EXPECT_THAT(seen(), ElementsAre(u"Öffnen|Open", u"-", u"5", u"4", u"3", u"2", u"1", u"Beenden|Quit"));
    mru().MAX(2);
    EXPECT_EQ(mru().MAX(), 2);
    mru().UPDATE();
    EXPECT_EQ(item(5)->Caption(), u"1");
}

TEST_F(RecentFiles, AreWrittenBySaveOnlyUnderTheProgramsKey)
{
    mru().ADD(u"C:\\Data\\a.txt");
    EXPECT_EQ(userSetting(u"Molmasse\\MRU"), Variant());
    mru().SAVE();

    const cls_AppMRU again;
    EXPECT_THAT(test::texts(*again.ENTRIES()), ElementsAre(u"a.txt"));
    EXPECT_NE(userSetting(u"Molmasse\\MRU"), Variant());
}

TEST_F(RecentFiles, LieBelowTheRootsKey)
{
    QVAPP()->REGKEY(u"Elsewhere\\");
    mru().ADD(u"C:\\Data\\a.txt");
    mru().SAVE();
    EXPECT_TRUE(outside.settings().read(SettingsHive::CurrentUser, u"Elsewhere\\Molmasse\\MRU").has_value());
}

TEST_F(RecentFiles, LoadReplacesTheListAndShowsIt)
{
    fill({u"a.txt", u"b.txt"});
    mru().SAVE();
    fill({u"c.txt"});
    const auto before = mru().ENTRIES();
    mru().LOAD();
    EXPECT_NE(mru().ENTRIES(), before);
    EXPECT_THAT(seen(), ElementsAre(u"Öffnen|Open", u"-", u"a", u"b", u"Beenden|Quit"));
}

TEST_F(RecentFiles, AnEmptyListShowsNeitherSeparatorNorTemplate)
{
    fill({u"a.txt"});
    mru().UPDATE();
    fill({});
    mru().UPDATE();
    EXPECT_THAT(seen(), ElementsAre(u"Öffnen|Open", u"Beenden|Quit"));
    EXPECT_EQ(file->upperBound(u"mnu_FileMRU"), 0);
}

TEST_F(RecentFiles, AFileAddedBeforeTheFormIsSetIsShownAtTheNextUpdate)
{
    mru().DEVICE(nullptr);
    mru().ADD(u"C:\\Data\\a.txt");
    mru().DEVICE(form);
    EXPECT_EQ(file->upperBound(u"mnu_FileMRU"), 0);
    mru().UPDATE();
    EXPECT_THAT(seen(), ElementsAre(u"Öffnen|Open", u"-", u"a", u"Beenden|Quit"));
}

TEST_F(RecentFiles, AnItemIsCaptionedWithoutExtensionAndCutAtABlank)
{
    const String words = u"Salze\\Die Salze der Alkalimetalle und Erdalkalimetalle.txt";
    const String oneWord = String(60, u'x') + u".txt";
    fill({words, oneWord, u"Ordner.alt\\ohne", u" Rand .txt"});
    mru().UPDATE();
    EXPECT_EQ(item(1)->Caption(), u"Salze\\Die Salze der Alkalimetalle und");
    EXPECT_EQ(item(2)->Caption(), String(50, u'x'));
    EXPECT_EQ(item(3)->Caption(), u"Ordner.alt\\ohne");
    EXPECT_EQ(item(4)->Caption(), u"Rand");
    EXPECT_EQ(item(4)->Tag(), u"C:\\Data\\ Rand .txt");
}

TEST_F(RecentFiles, PointToTheNewPlaceWhenTheBaseMoves)
{
    mru().ADD(u"C:\\Data\\Salze\\b.txt");
    EXPECT_EQ(item(1)->Tag(), u"C:\\Data\\Salze\\b.txt");
    mru().BASEPATH(u"E:\\Stick");
    mru().UPDATE();
    EXPECT_EQ(item(1)->Tag(), u"E:\\Stick\\Salze\\b.txt");
    fill({u"..\\c.txt"});
    mru().UPDATE();
    EXPECT_EQ(item(1)->Tag(), u"E:\\c.txt");
}

TEST_F(RecentFiles, AChosenItemTellsItsPathToTheHost)
{
    fill({u"a.txt", u"b.txt"});
    mru().UPDATE();
    String chosen;
    const auto listening = file->Chosen.connect([&](Menu& entry) { chosen = entry.Tag(); });
    item(2)->inputClick();
    EXPECT_EQ(chosen, u"C:\\Data\\b.txt");
}

TEST_F(RecentFiles, AFileMayBeAddedWhileItsItemIsChosen)
{
    fill({u"a.txt", u"b.txt"});
    mru().UPDATE();
    const auto listening = file->Chosen.connect([&](Menu& entry) { mru().ADD(entry.Tag()); });
    item(2)->inputClick();
    EXPECT_THAT(seen(), ElementsAre(u"Öffnen|Open", u"-", u"b", u"a", u"Beenden|Quit"));
}

TEST_F(RecentFiles, AFormWithoutTheMenuEntriesIsPassedOver)
{
    mru().DEVICE(std::make_shared<Form>(u"frm_Plain"));
    mru().ADD(u"C:\\Data\\a.txt");
    EXPECT_THAT(entries(), ElementsAre(u"a.txt"));
}

TEST_F(RecentFiles, AFormWithoutSeparatorShowsTheItems)
{
    file->remove(*file->entry(u"mnu_FileMRUSep"));
    mru().ADD(u"C:\\Data\\a.txt");
    EXPECT_THAT(seen(), ElementsAre(u"Öffnen|Open", u"a", u"Beenden|Quit"));
}

TEST_F(RecentFiles, CleanRemovesFilesThatHaveGoneAndShowsNothing)
{
    makeFile(u"texts\\a.txt", u"a");
    makeFile(u"texts\\deep\\c.txt", u"c");
    mru().BASEPATH(path(u"texts\\"));
    fill({u"gone.txt", u"gone\\too.txt", u"a.txt", u"deep", u"deep\\c.txt", u"..\\gone.txt"});
    mru().UPDATE();
    mru().CLEAN();
    EXPECT_THAT(entries(), ElementsAre(u"a.txt", u"deep\\c.txt"));
    EXPECT_EQ(file->upperBound(u"mnu_FileMRU"), 6);
    EXPECT_EQ(userSetting(u"Molmasse\\MRU"), Variant());
}

TEST_F(RecentFiles, CleanOnAnEmptyListDoesNothing)
{
    mru().CLEAN();
    EXPECT_THAT(entries(), IsEmpty());
}

TEST_F(RecentFiles, RefuseToBeWithoutAList)
{
    EXPECT_RAISES(mru().ENTRIES(nullptr), ObjectNotSet);
}

TEST_F(RecentFiles, SurviveASettingThatIsNoList)
{
    prepareUserSetting(u"Molmasse\\MRU", Variant(12));
    mru().LOAD();
    EXPECT_THAT(entries(), IsEmpty());
}

} // namespace

} // namespace phial
