#include "core/CoreDataFile.h"

#include "support/HeadlessSession.h"
#include "support/Raises.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;

class CoreDataFileTest : public test::HeadlessSession
{
protected:
    std::vector<String> linesOf(std::string_view bytes)
    {
        folder.write("lines.dat", bytes);
        CoreDataFile file;
        file.Open(folder.path() + u"lines.dat", DataFileMode::Read);
        std::vector<String> lines;
        while (!file.AtEnd()) {
            lines.push_back(file.ReadLine());
        }
        return lines;
    }
};

TEST_F(CoreDataFileTest, LinesEndInLineFeedWithOrWithoutCarriageReturn)
{
    EXPECT_THAT(linesOf("H\r\nWasserstoff\n\n1"), ElementsAre(u"H", u"Wasserstoff", u"", u"1"));
}

TEST_F(CoreDataFileTest, ALineEndAtTheEndBeginsNoLine)
{
    EXPECT_THAT(linesOf("H\n"), ElementsAre(u"H"));
    EXPECT_THAT(linesOf("\n"), ElementsAre(u""));
    EXPECT_THAT(linesOf(""), ElementsAre());
}

TEST_F(CoreDataFileTest, TheMarkIsNoPartOfTheFirstLine)
{
    EXPECT_THAT(linesOf("\xEF\xBB\xBF"
                        "Cäsium"),
                ElementsAre(u"Cäsium"));
    EXPECT_THAT(linesOf("\xEF\xBB\xBF"), ElementsAre());
}

TEST_F(CoreDataFileTest, ReadingBehindTheLastLineRaises)
{
    folder.write("a.txt", "x");
    CoreDataFile file;
    file.Open(folder.path() + u"a.txt", DataFileMode::Read);
    file.ReadLine();
    EXPECT_RAISES(file.ReadLine(), InputPastEnd);
}

TEST_F(CoreDataFileTest, AMissingFileRaisesOnOpening)
{
    CoreDataFile file;
    EXPECT_RAISES(file.Open(folder.path() + u"missing.txt", DataFileMode::Read), FileNotFound);
    EXPECT_RAISES(file.AtEnd(), InvalidArgument);
}

TEST_F(CoreDataFileTest, TextReplacesTheFileWhenItIsClosed)
{
    folder.write("a.txt", "old");
    CoreDataFile file;
    file.Open(folder.path() + u"a.txt", DataFileMode::Write);
    file.WriteText(u"Säu");
    file.WriteText(u"re\r\n");
    EXPECT_EQ(folder.read("a.txt"), "old");
    file.Close();
    EXPECT_EQ(folder.read("a.txt"), "Säure\r\n");
    file.Close();
}

TEST_F(CoreDataFileTest, WithoutClosingTheOldFileStays)
{
    folder.write("a.txt", "old");
    {
        CoreDataFile file;
        file.Open(folder.path() + u"a.txt", DataFileMode::Write);
        file.WriteText(u"new");
    }
    EXPECT_EQ(folder.read("a.txt"), "old");
}

TEST_F(CoreDataFileTest, ValuesComeBackInOrderWithTheirTypes)
{
    const String path = folder.path() + u"a.rec";
    CoreDataFile file;
    file.Open(path, DataFileMode::Write);
    file.Write(u"2.0", std::int32_t{7}, true, 1.5);
    file.writeValue(Moment{45000.25});
    file.Close();

    String version;
    std::int32_t count = 0;
    bool flag = false;
    double points = 0;
    file.Open(path, DataFileMode::Read);
    file.Read(version, count, flag, points);
    EXPECT_EQ(version, u"2.0");
    EXPECT_EQ(count, 7);
    EXPECT_TRUE(flag);
    EXPECT_EQ(points, 1.5);
    EXPECT_EQ(file.ReadValue(), Variant(Moment{45000.25}));
    EXPECT_RAISES(file.ReadValue(), InputPastEnd);
}

TEST_F(CoreDataFileTest, TheEndOfTheValuesIsTold)
{
    CoreDataFile file;
    file.Open(folder.path() + u"a.rec", DataFileMode::Write);
    file.Write(u"2.0", 1);
    file.Close();
    file.Open(folder.path() + u"a.rec", DataFileMode::Read);
    file.ReadValue();
    EXPECT_FALSE(file.AtEnd());
    file.ReadValue();
    EXPECT_TRUE(file.AtEnd());
}

TEST_F(CoreDataFileTest, TheOldValuesAreKeptOnWish)
{
    const String path = folder.path() + u"a.rec";
    CoreDataFile file;
    EXPECT_RAISES(file.keepOldFile(), InvalidArgument);
    for (const StringView version : {u"1.0", u"2.0"}) {
        file.Open(path, DataFileMode::Write);
        file.Write(version);
        file.keepOldFile();
        file.Close();
    }
    EXPECT_THAT(folder.names(), ElementsAre("a.rec", "a.rec.kept"));
}

TEST_F(CoreDataFileTest, TheFirstCallDecidesBetweenTextAndValues)
{
    CoreDataFile file;
    file.Open(folder.path() + u"a.txt", DataFileMode::Write);
    file.WriteText(u"text");
    EXPECT_RAISES(file.Write(u"value"), InvalidArgument);
    EXPECT_RAISES(file.ReadLine(), InvalidArgument);
}

TEST_F(CoreDataFileTest, AFileOfLinesHasNoValues)
{
    folder.write("a.txt", "H\r\nWasserstoff\r\n");
    CoreDataFile file;
    file.Open(folder.path() + u"a.txt", DataFileMode::Read);
    EXPECT_RAISES(file.ReadValue(), InvalidArgument);
    EXPECT_EQ(folder.read("a.txt"), "H\r\nWasserstoff\r\n");
}

} // namespace
} // namespace phial
