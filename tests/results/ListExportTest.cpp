#include "results/ResultsTest.h"
#include "results/cls_DataEvents.h"
#include "support/Raises.h"

#include <fstream>
#include <gmock/gmock-matchers.h>
#include <iterator>

namespace phial
{

namespace
{

constexpr StringView FolderSetting = u"Software\\QV Brunnhof\\Phial\\MRU\\Highscore";

/// The texts of a score list, and the way into a file.
class ListExport : public ResultsTest
{
protected:
    ListExport() { list.ADD(7.5, 10, u"Salze", nullptr, u"a.meier", u"PC-07", u"Änne"); }

    std::string bytes(StringView file) const
    {
        std::ifstream stream(folder.native() / native(file), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const headless::ShownBox& fileDialog() { return outside.dialogs().shown().front(); }

    cls_DataScores list;
};

TEST_F(ListExport, WritesOneTitleMoreThanALineHasFields)
{
    EXPECT_EQ(list.TEXT(),
              u"Rang\tName\tLogin\tComputer\tDatum\tZeit\tScore\tPunkte\tNote\tNotentext\tZusatz\r\n"
              u"1\tÄnne\ta.meier\tPC-07\t02.03.2026\t08:00:00\t7,5\t10\tGut\t\t\r\n");
}

TEST_F(ListExport, WritesTheTitlesAloneForAnEmptyList)
{
    EXPECT_EQ(cls_DataScores().TEXT(),
              u"Rang\tName\tLogin\tComputer\tDatum\tZeit\tScore\tPunkte\tNote\tNotentext\tZusatz\r\n");
}

TEST_F(ListExport, ShowsRankNameAndPointsOfEachEntry)
{
    add(list, u"Ben", 3);
    outside.dialogs().expect(headless::Box::Text, u"1. Änne 7,5\r\n2. Ben 3\r\n");
    list.DEBUGSHOW();
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Info:");
}

TEST_F(ListExport, WritesUtf8WithMarkIntoTheChosenFile)
{
    outside.dialogs().expectSaveFile(path(u"liste.txt"));
    outside.dialogs().expect(headless::Box::Done, u"Gespeichert");
    EXPECT_TRUE(list.EXPORT());
    EXPECT_EQ(bytes(u"liste.txt"), "\xEF\xBB\xBF" + toUtf8(list.TEXT()));
    EXPECT_EQ(fileDialog().title, u"Highscore speichern");
    EXPECT_EQ(fileDialog().detail, u"Textdatei|*.txt");
    EXPECT_EQ(fileDialog().text, u"*.txt");
}

TEST_F(ListExport, ProposesTheNameItIsGiven)
{
    outside.dialogs().expectSaveFile({});
    EXPECT_FALSE(list.EXPORT(u"Klasse 9.txt"));
    EXPECT_EQ(fileDialog().text, u"Klasse 9.txt");
}

TEST_F(ListExport, BeginsInTheFolderOfTheLastOne)
{
    outside.dialogs().expectSaveFile(path(u"liste.txt"));
    outside.dialogs().expect(headless::Box::Done);
    list.EXPORT();
    EXPECT_EQ(outside.settings().read(SettingsHive::CurrentUser, FolderSetting), Variant(path(u"")));

    outside.dialogs().expectSaveFile({});
    list.EXPORT(u"b.txt");
    EXPECT_EQ(outside.dialogs().shown().back().text, path(u"b.txt"));
    outside.dialogs().expectSaveFile({});
    list.EXPORT(u"D:\\Stick\\b.txt");
    EXPECT_EQ(outside.dialogs().shown().back().text, u"D:\\Stick\\b.txt");
}

TEST_F(ListExport, WritesNothingWhenTheUserChoosesNoFile)
{
    outside.dialogs().expectSaveFile({});
    EXPECT_FALSE(list.EXPORT());
    EXPECT_EQ(outside.settings().read(SettingsHive::CurrentUser, FolderSetting), std::nullopt);
}

TEST_F(ListExport, RaisesAFailingWrite)
{
    outside.dialogs().expectSaveFile(path(u"keinOrdner\\liste.txt"));
    EXPECT_RAISES(list.EXPORT(), FileNotFound);
}

TEST_F(ListExport, TakesALogTheSameWay)
{
    cls_DataEvents log;
    log.ADD(u"Start");
    outside.dialogs().expectSaveFile(path(u"log.txt"));
    outside.dialogs().expect(headless::Box::Done, u"Gespeichert");
    EXPECT_TRUE(log.EXPORT());
    EXPECT_EQ(bytes(u"log.txt"), "\xEF\xBB\xBF" + toUtf8(log.TEXT()));
    EXPECT_EQ(fileDialog().title, u"Highscore speichern");
}

} // namespace

} // namespace phial
