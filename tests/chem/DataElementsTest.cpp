#include "chem/cls_DataElements.h"
#include "support/MemoryStream.h"
#include "support/Raises.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace phial
{
namespace
{

using test::MemoryStream;

std::vector<String> symbols(cls_DataElements& table)
{
    std::vector<String> result;
    for (std::int32_t index = 1; index <= table.COUNT(); ++index) {
        result.push_back(table.ITEM(index)->SYMBOL());
    }
    return result;
}

class DataElements : public testing::Test
{
protected:
    DataElements()
    {
        table.CREATE2(u"Cl", u"Chlor*Chlorine", 17, 3, 17, 35.5);
        table.CREATE2(u"Co", u"Cobalt*Kobalt", 27, 4, 9, 58.9);
        table.CREATE(u"Ne", u"Neon", 10, 20.2);
    }

    cls_DataElements table;
};

TEST_F(DataElements, AreNoneInANewTable)
{
    cls_DataElements empty;
    EXPECT_EQ(empty.COUNT(), 0);
    EXPECT_FALSE(empty.EXISTS(u"H"));
    EXPECT_RAISES(empty.ITEM(1), IndexOutOfBounds);
}

TEST_F(DataElements, NameTheirClassAfterTheProgram)
{
    EXPECT_EQ(table.DATA()->ClassTag(), u"Phial.cls_DataElements");
}

TEST_F(DataElements, StandInTheOrderInWhichTheyCame)
{
    EXPECT_THAT(symbols(table), testing::ElementsAre(u"Cl", u"Co", u"Ne"));
}

TEST_F(DataElements, AreCreatedWithTheirFields)
{
    const auto created = table.CREATE2(u"Na", u"Natrium", 11, 3, 1, 22.98976928);
    EXPECT_EQ(table.COUNT(), 4);
    EXPECT_EQ(created, table.ITEM(4));
    EXPECT_EQ(created->SYMBOL(), u"Na");
    EXPECT_EQ(created->PROTONS(), 11);
    EXPECT_EQ(created->Peri(), 3);
    EXPECT_EQ(created->Grup(), 1);
    EXPECT_EQ(created->MOL(), 22.98976928);
}

TEST_F(DataElements, SplitAListOfNames)
{
    const auto created = table.CREATE(u"X", u"A*B*C", 1, 1.0);
    EXPECT_EQ(created->NAME(), u"A");
    EXPECT_EQ(*created->NAMEALT(), (CoreStringList{u"B", u"C"}));
    EXPECT_TRUE(created->MATCH(u"c", true));
    EXPECT_FALSE(created->MATCH(u"c"));
}

TEST_F(DataElements, KeepEmptyNamesOfAList)
{
    const auto created = table.CREATE(u"X", u"*B*", 1, 1.0);
    EXPECT_EQ(created->NAME(), u"");
    EXPECT_EQ(*created->NAMEALT(), (CoreStringList{u"B", u""}));
}

TEST_F(DataElements, AreFoundWithoutRegardToCaseAndOuterBlanks)
{
    for (const StringView key : {u"cl", u"  CL ", u"Cl"}) {
        EXPECT_TRUE(table.EXISTS(key));
        EXPECT_EQ(table.ITEM(key, false)->PROTONS(), 17);
    }
    EXPECT_EQ(table.ITEM(u"CO", false)->NAME(), u"Cobalt");
    EXPECT_FALSE(table.EXISTS(u"C"));
    EXPECT_FALSE(table.EXISTS(u"C l"));
}

TEST_F(DataElements, AreFoundWhenTheirOwnSymbolHasBlanks)
{
    table.CREATE(u" fe ", u"Eisen", 26, 55.8);
    EXPECT_EQ(table.ITEM(u"Fe", false)->NAME(), u"Eisen");
}

TEST_F(DataElements, AreFoundFirstOfTwoWithTheSameSymbol)
{
    table.CREATE(u"CL", u"Doppelt", 99, 1.0);
    EXPECT_EQ(table.COUNT(), 4);
    EXPECT_EQ(table.ITEM(u"cl", false)->NAME(), u"Chlor");
}

TEST_F(DataElements, AreComparedAsPlainValuesWhereAnIdIsNoText)
{
    table.ADD(std::make_shared<cls_DataElement>(), Variant(7));
    EXPECT_TRUE(table.EXISTS(7));
    EXPECT_TRUE(table.EXISTS(7.0));
    EXPECT_FALSE(table.EXISTS(u"7"));
    EXPECT_FALSE(table.EXISTS(17));
}

TEST_F(DataElements, AreNoGasUnderASymbolInCapitals)
{
    const auto created = table.CREATE(u"XE", u"Xenon", 54, 131.3);
    EXPECT_FALSE(created->GAS());
    EXPECT_EQ(table.ITEM(u"Xe", false), created);
}

TEST_F(DataElements, RaiseAnErrorOutsideTheTable)
{
    for (const std::int32_t index : {0, -1, 4}) {
        EXPECT_RAISES(table.ITEM(index), IndexOutOfBounds);
    }
    EXPECT_RAISES(table.ITEM(u"Fe", false), IndexOutOfBounds);
}

TEST_F(DataElements, AreAddedWithTheirOwnSymbolOrAGivenOne)
{
    const auto element = std::make_shared<cls_DataElement>();
    element->SYMBOL(u"Fe");
    EXPECT_EQ(table.ADD(element), element);
    EXPECT_EQ(element->SYMBOL(), u"Fe");
    EXPECT_EQ(table.ADD(element, Variant(u"Cu")), element);
    EXPECT_EQ(element->SYMBOL(), u"Cu");
    EXPECT_EQ(table.COUNT(), 5);
    EXPECT_RAISES(table.ADD(nullptr), ObjectNotSet);
}

TEST_F(DataElements, TakeTheLastOnesPlaceWhenOneIsRemoved)
{
    EXPECT_TRUE(table.REMOVE(1, true));
    EXPECT_THAT(symbols(table), testing::ElementsAre(u"Ne", u"Co"));
    EXPECT_TRUE(table.REMOVE(2, true));
    EXPECT_THAT(symbols(table), testing::ElementsAre(u"Ne"));
}

TEST_F(DataElements, AreRemovedByTheirSymbolUnlessAPositionIsMeant)
{
    EXPECT_FALSE(table.REMOVE(1));
    EXPECT_TRUE(table.REMOVE(u"co"));
    EXPECT_FALSE(table.REMOVE(u"co"));
    EXPECT_FALSE(table.REMOVE(3, true));
    EXPECT_THAT(symbols(table), testing::ElementsAre(u"Cl", u"Ne"));
}

TEST_F(DataElements, AreGoneWhenTheListIsCleared)
{
    table.DATABASE()->Clear();
    EXPECT_EQ(table.COUNT(), 0);
}

TEST_F(DataElements, AreGivenAsObjectsWithNamedMembers)
{
    EXPECT_EQ(getMember(*table.DATABASE()->ItemObj(u"ne", false), u"NAME"), Variant(u"Neon"));
    EXPECT_EQ(getMember(table, u"COUNT"), Variant(3));
}

TEST_F(DataElements, RefuseRecordsOfAnotherClass)
{
    const auto other = std::make_shared<cls_DataElements>();
    EXPECT_RAISES(table.DATABASE()->Import(other), TypeMismatch);
    EXPECT_FALSE(table.DATA()->Copy(*table.ITEM(1)));
}

TEST_F(DataElements, StoreTheirCountAndThenEachOther)
{
    MemoryStream stream;
    table.DATA()->ID(u"Tabelle");
    table.DATA()->Store(stream);
    ASSERT_GE(stream.values.size(), 4U);
    EXPECT_EQ(stream.values[0], Variant(u"1.0"));
    EXPECT_EQ(stream.values[1], Variant(u"Tabelle"));
    EXPECT_EQ(stream.values[2], Variant(3));
    EXPECT_EQ(stream.values[3], Variant(u"1.1"));
}

TEST_F(DataElements, AreReadBackWithoutTheirPlaces)
{
    MemoryStream stream;
    table.DATA()->Store(stream);
    cls_DataElements read;
    read.CREATE(u"H", u"Wasserstoff", 1, 1.0);
    read.DATA()->Read(stream);
    EXPECT_THAT(symbols(read), testing::ElementsAre(u"Cl", u"Co", u"Ne"));
    EXPECT_EQ(read.ITEM(1)->NAMELIST(), u"Chlor*Chlorine");
    EXPECT_EQ(read.ITEM(1)->MOL(), 35.5);
    EXPECT_EQ(read.ITEM(1)->Peri(), 0);
    EXPECT_EQ(read.ITEM(1)->Grup(), 0);
}

TEST_F(DataElements, StayAsTheyWereForAnUnknownVersion)
{
    MemoryStream stream({u"1.1", u"", 0});
    table.DATA()->Read(stream);
    EXPECT_EQ(table.COUNT(), 3);
    EXPECT_EQ(stream.next, 1U);
}

TEST_F(DataElements, RefuseAStoredCountThatNoTableHas)
{
    for (const std::int32_t count : {-1, 2'000'000'000}) {
        MemoryStream stream({u"1.0", u"", count});
        EXPECT_THROW(table.DATA()->Read(stream), RuntimeError);
    }
    EXPECT_EQ(table.COUNT(), 3);
}

TEST_F(DataElements, AreEmptyWhereAReadBreaksOff)
{
    MemoryStream stream({u"1.0", u"", 3, u"1.0", u"H", u"Wasserstoff", 1.0, 1, u"1.0", u"He"});
    EXPECT_THROW(table.DATA()->Read(stream), RuntimeError);
    EXPECT_THAT(symbols(table), testing::ElementsAre(u"H", u"He", u""));
    EXPECT_EQ(table.ITEM(3), table.ITEM(3));
}

TEST_F(DataElements, AreUnpackedFromTheirOneText)
{
    table.DATA()->ID(u"Tabelle");
    cls_DataElements unpacked;
    unpacked.DATA()->Unpack(table.DATA()->Pack());
    EXPECT_EQ(unpacked.DATA()->ID(), Variant(u"Tabelle"));
    EXPECT_THAT(symbols(unpacked), testing::ElementsAre(u"Cl", u"Co", u"Ne"));
    EXPECT_EQ(unpacked.ITEM(2)->NAMELIST(), u"Cobalt*Kobalt");
}

TEST_F(DataElements, AreCopiedDeeplyWithTheirPlaces)
{
    cls_DataElements copy;
    EXPECT_TRUE(copy.DATA()->Copy(table));
    table.ITEM(1)->NAME(u"anders");
    EXPECT_THAT(symbols(copy), testing::ElementsAre(u"Cl", u"Co", u"Ne"));
    EXPECT_EQ(copy.ITEM(1)->NAME(), u"Chlor");
    EXPECT_EQ(copy.ITEM(1)->Peri(), 3);
    EXPECT_EQ(copy.ITEM(1)->Grup(), 17);
}

TEST_F(DataElements, SpawnAnEmptyTable)
{
    const auto spawned = std::dynamic_pointer_cast<cls_DataElements>(table.DATA()->Spawn());
    ASSERT_NE(spawned, nullptr);
    EXPECT_EQ(spawned->COUNT(), 0);
}

TEST_F(DataElements, RaiseAnErrorThroughAnEngineThatOutlivesThem)
{
    auto shortLived = std::make_unique<cls_DataElements>();
    const auto engine = shortLived->DATABASE();
    shortLived.reset();
    EXPECT_RAISES(engine->Count(), ObjectNotSet);
}

} // namespace
} // namespace phial
