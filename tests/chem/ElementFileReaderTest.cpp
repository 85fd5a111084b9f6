#include "chem/ElementFileReader.h"

#include "support/Raises.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <vector>

namespace phial
{
namespace
{

using Format = ElementFileReader::Format;

std::vector<ElementRecord> read(Format format, std::initializer_list<StringView> lines)
{
    ElementFileReader reader(format);
    std::vector<ElementRecord> records;
    for (const StringView line : lines) {
        if (auto record = reader.take(line)) {
            records.push_back(std::move(*record));
        }
    }
    return records;
}

double massRead(StringView line)
{
    return read(Format::ThreeLines, {u"X", u"Name", line}).at(0).mass;
}

TEST(ElementFileReader, ReadsFiveLinesAsOneElement)
{
    const auto records = read(Format::FiveLines, {u"Cl", u"Chlor*Chlorine", u"35.45", u"3", u"17"});
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].symbol, u"Cl");
    EXPECT_EQ(records[0].names, u"Chlor*Chlorine");
    EXPECT_EQ(records[0].mass, 35.5);
    EXPECT_EQ(records[0].period, 3);
    EXPECT_EQ(records[0].group, 17);
}

TEST(ElementFileReader, ReadsThreeLinesAsOneElementWithoutPlace)
{
    const auto records =
        read(Format::ThreeLines, {u"H", u"Wasserstoff", u"1.008", u"He", u"Helium", u"4.0026"});
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[1].symbol, u"He");
    EXPECT_EQ(records[1].mass, 4.0);
    EXPECT_EQ(records[1].period, 0);
    EXPECT_EQ(records[1].group, 0);
}

TEST(ElementFileReader, SkipsCommentsAndEmptyLinesWithinARecord)
{
    const auto records = read(Format::FiveLines, {u"# Elemente", u"", u"H", u"# Name", u"Wasserstoff", u"",
                                                  u"1.008", u"1", u"#", u"1"});
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].names, u"Wasserstoff");
    EXPECT_EQ(records[0].group, 1);
}

TEST(ElementFileReader, TakesANumberSignBehindABlankForAField)
{
    EXPECT_EQ(read(Format::ThreeLines, {u" #", u"Name", u"1"}).at(0).symbol, u" #");
}

TEST(ElementFileReader, TakesALineOfBlanksForAField)
{
    const auto records = read(Format::ThreeLines, {u"H", u"  ", u"1.0"});
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].names, u"  ");
}

TEST(ElementFileReader, DropsAnUnfinishedRecord)
{
    EXPECT_EQ(read(Format::FiveLines, {u"H", u"Wasserstoff", u"1.008"}).size(), 0U);
    EXPECT_EQ(read(Format::FiveLines, {u"H", u"Wasserstoff", u"1.008", u"1", u"1", u"He", u"Helium"}).size(),
              1U);
}

TEST(ElementFileReader, RoundsMassesToOneDecimalWithAnExactFiveGoingUp)
{
    EXPECT_EQ(massRead(u"35.45"), 35.5);
    EXPECT_EQ(massRead(u"1.008"), 1.0);
    EXPECT_EQ(massRead(u"35.449"), 35.4);
    EXPECT_EQ(massRead(u"0.25"), 0.3);
    EXPECT_EQ(massRead(u"63.55"), 63.6);
    EXPECT_EQ(massRead(u"257"), 257.0);
}

TEST(ElementFileReader, ReadsNumbersWithCommaOrPoint)
{
    EXPECT_EQ(massRead(u"40,078"), 40.1);
}

TEST(ElementFileReader, TakesWhatIsNoNumberForTheNumberItBeginsWith)
{
    EXPECT_EQ(massRead(u"schwer"), 0.0);
    EXPECT_EQ(massRead(u"12.0 u"), 12.0);
}

TEST(ElementFileReader, RoundsPeriodAndGroupToTheEvenNeighbour)
{
    const auto records = read(Format::FiveLines, {u"X", u"Name", u"1", u"2.5", u"3.5"});
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].period, 2);
    EXPECT_EQ(records[0].group, 4);
}

TEST(ElementFileReader, RaisesAnOverflowForAPeriodBeyond32Bits)
{
    EXPECT_RAISES(read(Format::FiveLines, {u"X", u"Name", u"1", u"3000000000", u"1"}), Overflow);
}

} // namespace
} // namespace phial
