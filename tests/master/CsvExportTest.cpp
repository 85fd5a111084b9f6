#include "master/CsvExport.h"

#include "MemoryStore.h"
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
    phial::test::MemoryStore store;
    CoreParameters more;
    more.Set(u"Tipp", u"a;\"b\"");
    store.addResult({Moment{45000.5}, {u"Zoë", u"zoe", u"PC7"}, u"Salze", 7.5, 10, more.Pack()});
    store.addResult({Moment{45000.75}, {u"=1+1", u"-x", u"@PC"}, u"", -2, 0, CoreParameters().Pack()});

    EXPECT_EQ(resultsAsCsv(store),
              "\xEF\xBB\xBF"
              "Datum;Zeit;Name;Login;Computer;Übung;Punkte;Erreichbar;Note;Zusatz\r\n"
              "15.03.2023;12:00:00;\"Zoë\";\"zoe\";\"PC7\";\"Salze\";7,5;10;\"Gut\";"
              "\"Tipp = \"\"a;\\\"\"b\\\"\"\"\"\"\r\n"
              "15.03.2023;18:00:00;\"'=1+1\";\"'-x\";\"'@PC\";\"\";-2;0;\"Ungenügend\";\"\"\r\n");
}

TEST_F(CsvExportTest, TextsAreNeverTakenForFormulas)
{
    for (const StringView text : {u"=1", u"+1", u"-1", u"@SUM(A1)", u"\t=1", u"\r=1", u"\n=1", u"\uFF1D1"}) {
        EXPECT_EQ(csvCell(text), u"\"'" + String(text) + u"\"");
    }
    EXPECT_EQ(csvCell(u"1-2"), u"\"1-2\"");
    EXPECT_EQ(csvCell(u""), u"\"\"");
}

} // namespace
