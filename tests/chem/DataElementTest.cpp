#include "chem/cls_DataElement.h"
#include "core/CoreValuePacker.h"
#include "support/MemoryStream.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

namespace phial
{
namespace
{

using test::MemoryStream;

std::shared_ptr<cls_DataElement> chlorine()
{
    auto element = std::make_shared<cls_DataElement>();
    element->SYMBOL(u"Cl");
    element->NAME(u"Chlor");
    element->NAMEALT()->Add(u"Chlorine");
    element->NAMEALT()->Add(u"Chlorum");
    element->MOL(35.5);
    element->PROTONS(17);
    element->Peri(3);
    element->Grup(17);
    return element;
}

std::shared_ptr<cls_DataElement> elementWithSymbol(StringView symbol)
{
    auto element = std::make_shared<cls_DataElement>();
    element->SYMBOL(String(symbol));
    return element;
}

TEST(cls_DataElement, IsEmptyWhenNew)
{
    cls_DataElement element;
    EXPECT_EQ(element.SYMBOL(), u"");
    EXPECT_EQ(element.NAME(), u"");
    EXPECT_EQ(element.NAMEALT()->Count(), 0);
    EXPECT_EQ(element.MOL(), 0);
    EXPECT_EQ(element.PROTONS(), 0);
    EXPECT_EQ(element.Peri(), 0);
    EXPECT_EQ(element.Grup(), 0);
}

TEST(cls_DataElement, HasTheSymbolAsTheIdOfItsHeader)
{
    cls_DataElement element;
    element.SYMBOL(u"Na");
    EXPECT_EQ(element.DATA()->ID(), Variant(u"Na"));
    element.DATA()->ID(Variant(u"K"));
    EXPECT_EQ(element.SYMBOL(), u"K");
}

TEST(cls_DataElement, NamesItsClassAfterTheProgram)
{
    EXPECT_EQ(cls_DataElement().DATA()->ClassTag(), u"Phial.cls_DataElement");
}

TEST(cls_DataElement, MakesItsNamesAnewWhenTheirListIsTakenAway)
{
    const auto element = chlorine();
    element->NAMEALT(nullptr);
    ASSERT_NE(element->NAMEALT(), nullptr);
    EXPECT_EQ(element->NAMEALT()->Count(), 0);
    EXPECT_EQ(element->NAMELIST(), u"Chlor");
}

TEST(cls_DataElement, MatchesItsNamesExactly)
{
    const auto element = chlorine();
    EXPECT_TRUE(element->MATCH(u"Chlor"));
    EXPECT_TRUE(element->MATCH(u"Chlorum"));
    EXPECT_FALSE(element->MATCH(u"chlorum"));
    EXPECT_FALSE(element->MATCH(u"Chlo"));
}

TEST(cls_DataElement, MatchesItsNamesWithoutRegardToCase)
{
    const auto element = chlorine();
    element->NAMEALT()->Add(u"Müßig");
    EXPECT_TRUE(element->MATCH(u"CHLOR", true));
    EXPECT_TRUE(element->MATCH(u"chlorum", true));
    EXPECT_TRUE(element->MATCH(u"MÜßIG", true));
    EXPECT_FALSE(element->MATCH(u"Brom", true));
}

TEST(cls_DataElement, DoesNotMatchItsSymbol)
{
    EXPECT_FALSE(chlorine()->MATCH(u"Cl", true));
}

TEST(cls_DataElement, ListsItsNamesInTheFormOfTheFile)
{
    EXPECT_EQ(chlorine()->NAMELIST(), u"Chlor*Chlorine*Chlorum");
}

TEST(cls_DataElement, ListsASingleNameWithoutStar)
{
    cls_DataElement element;
    element.NAME(u"Neon");
    EXPECT_EQ(element.NAMELIST(), u"Neon");
}

TEST(cls_DataElement, KnowsTheGases)
{
    for (const StringView gas : {u"H", u"N", u"O", u"F", u"Cl", u"He", u"Ne", u"Ar", u"Kr", u"Xe", u"Rn"}) {
        EXPECT_TRUE(elementWithSymbol(gas)->GAS()) << toUtf8(gas);
    }
    for (const StringView other : {u"CL", u"he", u"Br", u"C", u"Og", u""}) {
        EXPECT_FALSE(elementWithSymbol(other)->GAS()) << toUtf8(other);
    }
}

TEST(cls_DataElement, KnowsTheLiquids)
{
    for (const StringView liquid : {u"Hg", u"Br", u"Cn"}) {
        EXPECT_TRUE(elementWithSymbol(liquid)->LIQUID()) << toUtf8(liquid);
    }
    for (const StringView other : {u"HG", u"Ga", u"I", u""}) {
        EXPECT_FALSE(elementWithSymbol(other)->LIQUID()) << toUtf8(other);
    }
}

TEST(cls_DataElement, KnowsTheMoleculesOfTwoAtoms)
{
    for (const StringView pair : {u"H", u"N", u"O", u"F", u"Cl", u"Br", u"I"}) {
        EXPECT_TRUE(elementWithSymbol(pair)->DOUBLEATOMS()) << toUtf8(pair);
    }
    for (const StringView other : {u"h", u"He", u"S", u"At", u""}) {
        EXPECT_FALSE(elementWithSymbol(other)->DOUBLEATOMS()) << toUtf8(other);
    }
}

TEST(cls_DataElement, StoresItsValuesInOrderWithoutItsPlace)
{
    MemoryStream stream;
    chlorine()->DATA()->Store(stream);
    EXPECT_THAT(stream.values,
                testing::ElementsAre(Variant(u"1.1"), Variant(u"Cl"), Variant(u"Chlor"), Variant(35.5),
                                     Variant(17), Variant(2), Variant(u"Chlorine"), Variant(u"Chlorum")));
}

TEST(cls_DataElement, ReadsBackWhatItStored)
{
    MemoryStream stream;
    chlorine()->DATA()->Store(stream);
    cls_DataElement element;
    element.DATA()->Read(stream);
    EXPECT_EQ(element.SYMBOL(), u"Cl");
    EXPECT_EQ(element.NAMELIST(), u"Chlor*Chlorine*Chlorum");
    EXPECT_EQ(element.MOL(), 35.5);
    EXPECT_EQ(element.PROTONS(), 17);
    EXPECT_EQ(element.Peri(), 0);
    EXPECT_EQ(element.Grup(), 0);
    EXPECT_EQ(stream.next, stream.values.size());
}

TEST(cls_DataElement, ReadsTheOldVersionWithoutFurtherNames)
{
    MemoryStream stream({u"1.0", u"Cl", u"Chlor", 35.5, 17, u"behind"});
    cls_DataElement element;
    element.DATA()->Read(stream);
    EXPECT_EQ(element.NAMELIST(), u"Chlor");
    EXPECT_EQ(element.PROTONS(), 17);
    EXPECT_EQ(stream.next, 5U);
}

TEST(cls_DataElement, StaysAsItWasForAnUnknownVersion)
{
    for (const StringView version : {u"0.9", u"1.2", u"2.0", u""}) {
        MemoryStream stream({version, u"Br", u"Brom", 79.9, 35, 0});
        const auto element = chlorine();
        element->DATA()->Read(stream);
        EXPECT_EQ(element->SYMBOL(), u"Cl");
        EXPECT_EQ(stream.next, 1U);
    }
}

TEST(cls_DataElement, RaisesAnErrorForAListOfNamesThatEndsEarly)
{
    MemoryStream stream({u"1.1", u"Cl", u"Chlor", 35.5, 17, 2'000'000'000, u"Chlorine"});
    cls_DataElement element;
    EXPECT_THROW(element.DATA()->Read(stream), RuntimeError);
}

TEST(cls_DataElement, UnpacksWhatItPackedWithoutItsPlace)
{
    const auto source = chlorine();
    source->NAMEALT()->Add(u"mit | und {NEXT_ITEM}");
    cls_DataElement element;
    element.DATA()->Unpack(source->DATA()->Pack());
    EXPECT_EQ(element.SYMBOL(), u"Cl");
    EXPECT_EQ(element.NAMELIST(), source->NAMELIST());
    EXPECT_EQ(element.MOL(), 35.5);
    EXPECT_EQ(element.PROTONS(), 17);
    EXPECT_EQ(element.Peri(), 0);
}

TEST(cls_DataElement, StaysAsItWasForADamagedText)
{
    const auto element = chlorine();
    EXPECT_THROW(element->DATA()->Unpack(u"nothing of that kind"), RuntimeError);
    EXPECT_EQ(element->NAMELIST(), u"Chlor*Chlorine*Chlorum");
}

TEST(cls_DataElement, CopiesAllFieldsItsPlaceIncluded)
{
    const auto source = chlorine();
    cls_DataElement copy;
    EXPECT_TRUE(copy.DATA()->Copy(*source));
    source->NAMEALT()->Add(u"later");
    EXPECT_EQ(copy.SYMBOL(), u"Cl");
    EXPECT_EQ(copy.NAMELIST(), u"Chlor*Chlorine*Chlorum");
    EXPECT_EQ(copy.MOL(), 35.5);
    EXPECT_EQ(copy.PROTONS(), 17);
    EXPECT_EQ(copy.Peri(), 3);
    EXPECT_EQ(copy.Grup(), 17);
}

TEST(cls_DataElement, SpawnsAnEmptyElement)
{
    const auto spawned = std::dynamic_pointer_cast<cls_DataElement>(chlorine()->DATA()->Spawn());
    ASSERT_NE(spawned, nullptr);
    EXPECT_EQ(spawned->SYMBOL(), u"");
}

TEST(cls_DataElement, GivesAReplacedHeaderItsOwnSymbol)
{
    const auto element = chlorine();
    const auto old = element->DATA();
    element->DATA(std::make_shared<DATA>());
    EXPECT_EQ(element->SYMBOL(), u"");
    EXPECT_EQ(old->ID(), Variant(u"Cl"));
    EXPECT_THROW(old->Pack(), RuntimeError);
}

TEST(cls_DataElement, IsReachedByTheNamesOfItsMembers)
{
    const auto element = chlorine();
    EXPECT_EQ(getMember(*element, u"symbol"), Variant(u"Cl"));
    EXPECT_EQ(getMember(*element, u"GAS"), Variant(true));
    setMember(*element, u"Name", u"Chlorgas");
    EXPECT_EQ(element->NAME(), u"Chlorgas");
    EXPECT_EQ(tryGet(*element, u"COLOR"), std::nullopt);
}

} // namespace
} // namespace phial
