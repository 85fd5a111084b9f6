#include "master/CsvExport.h"

#include "core/CoreParameters.h"
#include "support/AppSession.h"

#include <gtest/gtest.h>

using namespace phial;
using namespace phial::master;

namespace
{

using CsvExportTest = phial::test::AppSession;

TEST_F(CsvExportTest, OpensRightInAGermanSpreadsheet)
{
    CoreParameters more;
    more.Set(u"Tipp", u"a;\"b\"");
    EXPECT_EQ(csvHead(), "\xEF\xBB\xBF"
                         "Datum;Zeit;Name;Login;Computer;Übung;Punkte;Erreichbar;Note;Zusatz;Hinweis\r\n");
    EXPECT_EQ(csvLine({Moment{45000.5}, {u"Zoë", u"zoe", u"PC7"}, u"Salze", 7.5, 10, more.Pack()}),
              "15.03.2023;12:00:00;\"Zoë\";\"zoe\";\"PC7\";\"Salze\";7,5;10;\"Gut\";"
              "\"Tipp = \"\"a;\\\"\"b\\\"\"\"\"\";\"\"\r\n");
    EXPECT_EQ(csvLine({Moment{45000.75}, {u"=1+1", u"-x", u"@PC"}, u"", -2, 0, CoreParameters().Pack()}),
              "15.03.2023;18:00:00;\"'=1+1\";\"'-x\";\"'@PC\";\"\";-2;0;\"Ungenügend\";\"\";\"\"\r\n");
}

TEST_F(CsvExportTest, RemarksOnWhatATeacherShouldLookAt)
{
    const auto endOf = [](StringView name, double points) {
        const std::string line = csvLine({Moment{45000.5}, {String(name), u"", u""}, u"", points, 10, u""});
        return line.substr(line.rfind(';') + 1);
    };
    EXPECT_EQ(endOf(u"Anna", 10), "\"\"\r\n");
    EXPECT_EQ(endOf(u"Anna", 11), "\"mehr Punkte als erreichbar\"\r\n");
    EXPECT_EQ(endOf(u"An\u200Bna", 1), "\"Name fraglich\"\r\n");
    EXPECT_EQ(endOf(u"An\u200Bna", 11), "\"mehr Punkte als erreichbar, Name fraglich\"\r\n");
}

TEST_F(CsvExportTest, TextsAreNeverTakenForFormulas)
{
    for (const StringView text : {u"=1", u"+1", u"-1", u"@SUM(A1)", u"\uFF1D1"}) {
        EXPECT_EQ(csvCell(text), u"\"'" + String(text) + u"\"");
    }
    EXPECT_EQ(csvCell(u"1-2"), u"\"1-2\"");
    EXPECT_EQ(csvCell(u""), u"\"\"");
    EXPECT_EQ(csvCell(u"\t=1"), u"\"\u20390009\u203A=1\"");
    EXPECT_EQ(csvCell(u"\u202Eb"), u"\"\u2039202E\u203Ab\"");
}

} // namespace
