#include "chem/cls_DataElements.h"
#include "core/NativePath.h"
#include "support/HeadlessSession.h"
#include "support/Places.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <set>
#include <string_view>

namespace phial
{
namespace
{

constexpr std::string_view ThreeLines = "H\nWasserstoff*Hydrogen\n1.008\nHe\nHelium\n4.0026\n";
constexpr std::string_view FiveLines = "H\nWasserstoff*Hydrogen\n1.008\n1\n1\nCl\nChlor\n35.45\n3\n17\n";

class ElementImport : public test::HeadlessSession
{
protected:
    String fileWith(const char* name, std::string_view content)
    {
        folder.write(name, content);
        return folder.path() + fromUtf8(name);
    }

    cls_DataElements table;
};

TEST_F(ElementImport, ReadsThreeLinesAnElement)
{
    EXPECT_TRUE(table.IMPORT(fileWith("tafel.txt", ThreeLines)));
    ASSERT_EQ(table.COUNT(), 2);
    EXPECT_EQ(table.ITEM(1)->NAMELIST(), u"Wasserstoff*Hydrogen");
    EXPECT_EQ(table.ITEM(2)->PROTONS(), 2);
    EXPECT_EQ(table.ITEM(2)->MOL(), 4.0);
    EXPECT_EQ(table.ITEM(2)->Peri(), 0);
}

TEST_F(ElementImport, ReadsFiveLinesAnElement)
{
    EXPECT_TRUE(table.IMPORT2(fileWith("tafel.txt", FiveLines)));
    ASSERT_EQ(table.COUNT(), 2);
    EXPECT_EQ(table.ITEM(2)->SYMBOL(), u"Cl");
    EXPECT_EQ(table.ITEM(2)->PROTONS(), 2);
    EXPECT_EQ(table.ITEM(2)->MOL(), 35.5);
    EXPECT_EQ(table.ITEM(2)->Peri(), 3);
    EXPECT_EQ(table.ITEM(2)->Grup(), 17);
}

TEST_F(ElementImport, KeepsTheDigitsOfMassesBesideTheTaughtOnes)
{
    table.IMPORT2(fileWith("tafel.txt", FiveLines));
    EXPECT_EQ(table.ITEM(2)->exactMass(), 35.45);
    EXPECT_EQ(table.MOL(u"HCl"), 36.5);
    EXPECT_DOUBLE_EQ(table.exactMass(u"HCl").value_or(0), 36.458);
    EXPECT_DOUBLE_EQ(table.exactMass(u"(HCl)2").value_or(0), 72.916);
    EXPECT_EQ(table.exactMass(u"HBr"), std::nullopt) << "nobody is asked";
}

TEST_F(ElementImport, ForgetsTheDigitsWhereAMassIsSetOrComesFromARecord)
{
    table.IMPORT2(fileWith("tafel.txt", FiveLines));
    const auto chlorine = table.ITEM(2);
    cls_DataElement copied;
    copied.DATA()->Copy(*chlorine);
    EXPECT_EQ(copied.exactMass(), 35.45);
    copied.MOL(35);
    EXPECT_EQ(copied.exactMass(), 35);
    cls_DataElement unpacked;
    unpacked.exactMass(1);
    unpacked.DATA()->Unpack(chlorine->DATA()->Pack());
    EXPECT_EQ(unpacked.exactMass(), 35.5);
    cls_DataElement stored;
    stored.exactMass(1);
    ASSERT_TRUE(chlorine->SAVE(folder.path() + u"chlor.dat"));
    ASSERT_TRUE(stored.LOAD(folder.path() + u"chlor.dat"));
    EXPECT_EQ(stored.exactMass(), 35.5);
    EXPECT_EQ(table.CREATE(u"X", u"Etwas", 1, 2.5)->exactMass(), 2.5);
}

TEST_F(ElementImport, ReadsAFileNamedElements2WithFiveLinesWhateverIsCalled)
{
    for (const char* name : {"elements2.dat", "ELEMENTS2.DAT", "Elements2.Dat"}) {
        cls_DataElements elements;
        EXPECT_TRUE(elements.IMPORT(fileWith(name, FiveLines)));
        ASSERT_EQ(elements.COUNT(), 2) << name;
        EXPECT_EQ(elements.ITEM(1)->Grup(), 1) << name;
    }
}

TEST_F(ElementImport, ReadsAFileNamedElementsWithThreeLinesWhateverIsCalled)
{
    for (const char* name : {"ELEMENTS.DAT", "elements.dat"}) {
        cls_DataElements elements;
        EXPECT_TRUE(elements.IMPORT2(fileWith(name, ThreeLines)));
        EXPECT_EQ(elements.COUNT(), 2) << name;
    }
}

TEST_F(ElementImport, GoesByTheLastPartOfThePathAlone)
{
    folder.write("elements2.dat/tafel.txt", ThreeLines);
    EXPECT_TRUE(table.IMPORT(folder.path() + u"elements2.dat\\tafel.txt"));
    EXPECT_EQ(table.COUNT(), 2);
}

TEST_F(ElementImport, TakesSlashesForSeparators)
{
    folder.write("data/elements2.dat", FiveLines);
    EXPECT_TRUE(table.IMPORT(fromUtf8((folder.native() / "data/elements2.dat").string())));
    EXPECT_EQ(table.COUNT(), 2);
}

TEST_F(ElementImport, SkipsCommentsBetweenTheLinesOfAnElement)
{
    table.IMPORT2(
        fileWith("tafel.txt", "# Tafel\r\n\r\nH\r\n# Name\r\nWasserstoff\r\n1.008\r\n\r\n1\r\n1\r\n"));
    ASSERT_EQ(table.COUNT(), 1);
    EXPECT_EQ(table.ITEM(1)->NAME(), u"Wasserstoff");
    EXPECT_EQ(table.ITEM(1)->Grup(), 1);
}

TEST_F(ElementImport, DropsAnElementThatEndsEarly)
{
    EXPECT_TRUE(table.IMPORT2(fileWith("tafel.txt", "H\nWasserstoff\n1.008\n")));
    EXPECT_EQ(table.COUNT(), 0);
}

TEST_F(ElementImport, TakesAnEmptyFile)
{
    EXPECT_TRUE(table.IMPORT2(fileWith("tafel.txt", "")));
    EXPECT_EQ(table.COUNT(), 0);
}

TEST_F(ElementImport, AppendsASecondFileWithProtonsFromOneAgain)
{
    const String file = fileWith("tafel.txt", FiveLines);
    table.IMPORT2(file);
    table.IMPORT2(file);
    ASSERT_EQ(table.COUNT(), 4);
    EXPECT_EQ(table.ITEM(3)->PROTONS(), 1);
    EXPECT_EQ(table.ITEM(4)->PROTONS(), 2);
}

TEST_F(ElementImport, ReadsUmlautsWithAndWithoutAByteOrderMark)
{
    table.IMPORT(fileWith("tafel.txt", "\xEF\xBB\xBFMo\nMolybdän*Müßig\n95.95\n"));
    ASSERT_EQ(table.COUNT(), 1);
    EXPECT_EQ(table.ITEM(1)->SYMBOL(), u"Mo");
    EXPECT_EQ(table.ITEM(1)->NAMELIST(), u"Molybdän*Müßig");
}

TEST_F(ElementImport, RaisesTheErrorOfAMissingFile)
{
    for (const StringView name : {u"fehlt.txt", u"elements2.dat", u"ELEMENTS.DAT"}) {
        EXPECT_RAISES(table.IMPORT(folder.path() + String(name)), FileNotFound);
    }
}

TEST_F(ElementImport, SavesAndLoadsATable)
{
    table.IMPORT2(fileWith("tafel.txt", FiveLines));
    const String file = folder.path() + u"tafel.qv";
    EXPECT_TRUE(table.SAVE(file));
    cls_DataElements loaded;
    EXPECT_TRUE(loaded.LOAD(file));
    ASSERT_EQ(loaded.COUNT(), 2);
    EXPECT_EQ(loaded.ITEM(u"cl", false)->MOL(), 35.5);
    EXPECT_EQ(loaded.ITEM(u"cl", false)->Peri(), 0);
}

TEST_F(ElementImport, SavesAndLoadsOneElement)
{
    const auto element = table.CREATE(u"Cl", u"Chlor*Chlorine", 17, 35.5);
    const String file = folder.path() + u"chlor.qv";
    EXPECT_TRUE(element->SAVE(file));
    cls_DataElement loaded;
    EXPECT_TRUE(loaded.LOAD(file));
    EXPECT_EQ(loaded.SYMBOL(), u"Cl");
    EXPECT_EQ(loaded.NAMELIST(), u"Chlor*Chlorine");
}

TEST_F(ElementImport, AnswersFalseWhenARecordFileIsMissing)
{
    table.CREATE(u"H", u"Wasserstoff", 1, 1.0);
    EXPECT_FALSE(table.LOAD(folder.path() + u"fehlt.qv"));
    EXPECT_EQ(table.COUNT(), 1);
    EXPECT_FALSE(table.ITEM(1)->LOAD(folder.path() + u"fehlt.qv"));
    EXPECT_FALSE(table.SAVE(folder.path() + u"kein ordner\\tafel.qv"));
}

// The files that the installation tree brings.
class InstalledElements : public ElementImport
{
protected:
    static String installed(StringView name)
    {
        return systemPath(test::treeFolder()) + u"\\Resources\\data\\" + String(name);
    }
};

TEST_F(InstalledElements, AreTheSame118InBothFiles)
{
    cls_DataElements shortTable;
    EXPECT_TRUE(table.IMPORT2(installed(u"elements2.dat")));
    EXPECT_TRUE(shortTable.IMPORT(installed(u"ELEMENTS.DAT")));
    ASSERT_EQ(table.COUNT(), 118);
    ASSERT_EQ(shortTable.COUNT(), 118);
    std::set<String> symbols;
    for (std::int32_t protons = 1; protons <= 118; ++protons) {
        const auto element = table.ITEM(protons);
        symbols.insert(element->SYMBOL());
        EXPECT_EQ(element->PROTONS(), protons);
        EXPECT_EQ(shortTable.ITEM(protons)->SYMBOL(), element->SYMBOL());
        EXPECT_EQ(shortTable.ITEM(protons)->NAMELIST(), element->NAMELIST());
        EXPECT_EQ(shortTable.ITEM(protons)->MOL(), element->MOL());
    }
    EXPECT_EQ(symbols.size(), 118U);
}

TEST_F(InstalledElements, AcceptOlderSchoolNamesAndEnglishOnes)
{
    table.IMPORT2(installed(u"elements2.dat"));
    EXPECT_EQ(table.ITEM(53)->NAME(), u"Iod");
    EXPECT_TRUE(table.ITEM(53)->MATCH(u"Jod"));
    EXPECT_TRUE(table.ITEM(u"Cs", false)->MATCH(u"cäsium", true));
    EXPECT_TRUE(table.ITEM(u"Pb", false)->MATCH(u"Lead"));
}

} // namespace
} // namespace phial
