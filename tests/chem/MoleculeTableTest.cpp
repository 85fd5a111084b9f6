#include "chem/MoleculeTable.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

/// The file of the model that is found; empty when none is.
String found(const MoleculeTable& table, StringView term, StringView name = {})
{
    const MoleculeModel* model = table.find(term, name);
    return model ? model->file : String();
}

TEST(MoleculeTable, ReadsNameMassFormulaAndFile)
{
    const MoleculeTable table(u"Ethanol\t46,1\tC@2H@6O\tethanol.pdb\n");
    ASSERT_EQ(table.size(), 1U);
    const MoleculeModel* model = table.find(u"Ethanol");
    ASSERT_TRUE(model);
    EXPECT_EQ(model->name, u"Ethanol");
    EXPECT_EQ(model->mass, 46.1);
    EXPECT_EQ(model->formula, u"C2H6O");
    EXPECT_EQ(model->file, u"ethanol");
}

TEST(MoleculeTable, TakesAPointAsDecimalSignAndAnythingElseAsNoMass)
{
    const MoleculeTable table(u"A\t18.02\tX\ta\nB\tviel\tY\tb");
    EXPECT_EQ(table.find(u"A")->mass, 18.02);
    EXPECT_EQ(table.find(u"B")->mass, 0);
}

TEST(MoleculeTable, TrimsLinesAndNamesAndSkipsEmptyLines)
{
    const MoleculeTable table(
        u"\r\n   \r\n   Wasser \t18,0\t H@2O \t wasser \r\n\r\nMethan\t16\tCH@4\tmethan");
    EXPECT_EQ(table.size(), 2U);
    EXPECT_EQ(found(table, u"Wasser"), u"wasser");
    EXPECT_EQ(found(table, u"H2O"), u"wasser");
    EXPECT_EQ(table.find(u"Wasser")->formula, u"H2O");
    EXPECT_EQ(found(table, u"Methan"), u"methan");
}

TEST(MoleculeTable, EndsAtItsMark)
{
    const MoleculeTable table(u"Wasser\t18\tH@2O\twasser\n <> \nMethan\t16\tCH@4\tmethan\n");
    EXPECT_EQ(table.size(), 1U);
    EXPECT_EQ(found(table, u"Methan"), u"");
}

TEST(MoleculeTable, DoesNotReadBehindTheTenthColumn)
{
    const MoleculeTable table(u"A\t1\tX\ta\t5\t6\t7\t8\t9\t10\t11\t12");
    EXPECT_EQ(found(table, u"A"), u"a");
    EXPECT_EQ(table.size(), 1U);
}

TEST(MoleculeTable, LeavesOutRowsThatNameNoModelOfItsFolder)
{
    for (const StringView row :
         {u"Wasser", u"Wasser\t18\tH@2O", u"Wasser\t18\tH@2O\t ", u"\t18\tH@2O\twasser",
          u"Wasser\t18\tH@2O\t..\\wasser", u"Wasser\t18\tH@2O\ta/wasser", u"Wasser\t18\tH@2O\tC:wasser",
          u"Wasser\t18\tH@2O\twas ser", u"Wasser\t18\tH@2O\twas\u0007ser", u"Wasser\t18\tH@2O\twasser;quit",
          u"Wasser\t18\tH@2O\t\"wasser\"", u"Wasser\t18\tH@2O\twasser'"}) {
        EXPECT_EQ(MoleculeTable(row).size(), 0U) << toUtf8(row);
    }
}

TEST(MoleculeTable, AnEndingAloneIsAFileName)
{
    EXPECT_EQ(found(MoleculeTable(u"A\t1\tX\t.pdb"), u"A"), u".pdb");
    EXPECT_EQ(found(MoleculeTable(u"A\t1\tX\ta.PDB"), u"A"), u"a");
}

TEST(MoleculeTable, FindsNamesInAnyCaseAndFormulasAsTheyStand)
{
    const MoleculeTable table(
        u"Äthanol\t46\tC@2H@6O\tethanol\nCobalt\t58,9\tCo\tcobalt\nKohlenmonoxid\t28\tCO\tco");
    EXPECT_EQ(found(table, u"äTHANOL"), u"ethanol");
    EXPECT_EQ(found(table, u"C2H6O"), u"ethanol");
    EXPECT_EQ(found(table, u"c2h6o"), u"");
    EXPECT_EQ(found(table, u"CO"), u"co");
    EXPECT_EQ(found(table, u"Co"), u"cobalt");
}

TEST(MoleculeTable, CommasMinusSignsAndBlanksMakeNoDifference)
{
    const MoleculeTable table(u"1,2-Di chlorethan\t99\tCH@2Cl-CH@2Cl\tdichlor-ethan");
    EXPECT_EQ(found(table, u"12dichlorethan"), u"dichlor-ethan");
    EXPECT_EQ(found(table, u"1, 2-Dichlor-Ethan"), u"dichlor-ethan");
    EXPECT_EQ(found(table, u"CH2Cl CH2Cl"), u"dichlor-ethan");
    EXPECT_EQ(found(table, {}, u"dichlorethan"), u"dichlor-ethan");
}

TEST(MoleculeTable, TheFirstRowThatFitsCounts)
{
    const MoleculeTable table(u"Ethanol\t46\tC@2H@6O\tethanol\nDimethylether\t46\tC@2H@6O\tether");
    EXPECT_EQ(found(table, u"C2H6O"), u"ethanol");
    EXPECT_EQ(found(table, u"Dimethylether"), u"ether");
}

TEST(MoleculeTable, ANameAloneIsThatOfTheCompoundOrOfItsFile)
{
    const MoleculeTable table(u"Wasser\t18\tH@2O\twater\nMethan\t16\tCH@4\tmethane");
    EXPECT_EQ(found(table, {}, u"METHAN"), u"methane");
    EXPECT_EQ(found(table, {}, u"Water"), u"water");
    EXPECT_EQ(found(table, {}, u"H2O"), u"") << "a formula is no name";
    EXPECT_EQ(found(table, u"water"), u"") << "a file is no compound";
    EXPECT_EQ(found(table, u"nichts", u"methane"), u"methane");
}

TEST(MoleculeTable, WhatIsEmptyIsNotFound)
{
    const MoleculeTable table(u"-\t1\t\ta\n,\t2\tX\tb");
    EXPECT_EQ(table.size(), 2U);
    EXPECT_EQ(found(table, u""), u"");
    EXPECT_EQ(found(table, u" ,-"), u"");
    EXPECT_EQ(found(table, {}, u"-"), u"");
}

TEST(MoleculeTable, TakesItsMostRowsAndNoMore)
{
    String text;
    for (std::size_t row = 0; row <= MoleculeTable::MaximumRows; ++row) {
        text += u"N" + fromUtf8(std::to_string(row)) + u"\t1\tX\ta\n";
    }
    const MoleculeTable table(text);
    EXPECT_EQ(table.size(), MoleculeTable::MaximumRows);
    EXPECT_EQ(found(table, u"N9999"), u"a");
    EXPECT_EQ(found(table, u"N10000"), u"");
}

TEST(MoleculeTable, AnEmptyTextIsAnEmptyTable)
{
    EXPECT_EQ(MoleculeTable(u"").size(), 0U);
    EXPECT_EQ(MoleculeTable().size(), 0U);
}

} // namespace
} // namespace phial::test
