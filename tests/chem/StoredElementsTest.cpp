#include "chem/cls_DataElements.h"
#include "core/CoreDataFile.h"
#include "core/CoreStringList.h"
#include "core/NativePath.h"
#include "support/HeadlessSession.h"
#include "support/Places.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

/// Elements in record files, among them those of earlier programs in tests/vectors/records.
class StoredElements : public test::HeadlessSession
{
protected:
    static String stored(StringView name)
    {
        return systemPath(test::vectorsFolder()) + u"\\records\\" + String(name);
    }

    /// A record file with these values.
    String fileWith(const std::vector<Variant>& values) const
    {
        const String path = folder.path() + u"element.qv";
        CoreDataFile file;
        file.Open(path, DataFileMode::Write);
        for (const Variant& value : values) {
            file.writeValue(value);
        }
        file.Close();
        return path;
    }

    cls_DataElement element;
    cls_DataElements table;
};

TEST_F(StoredElements, TheOldLayoutHasNoFurtherNames)
{
    ASSERT_TRUE(element.LOAD(stored(u"element_1.0.qv")));
    EXPECT_EQ(element.SYMBOL(), u"Cl");
    EXPECT_EQ(element.NAMELIST(), u"Chlor");
    EXPECT_EQ(element.MOL(), 35.5);
    EXPECT_EQ(element.PROTONS(), 17);
}

TEST_F(StoredElements, ATableHoldsElementsOfBothLayouts)
{
    ASSERT_TRUE(table.LOAD(stored(u"elements.qv")));
    ASSERT_EQ(table.COUNT(), 2);
    EXPECT_EQ(table.ITEM(1)->NAMELIST(), u"Wasserstoff*Hydrogen*Hydrogenium");
    EXPECT_EQ(table.ITEM(u"he", false)->NAMELIST(), u"Helium");
}

TEST_F(StoredElements, AnElementOfAnotherVersionLeavesAllAsItWas)
{
    element.SYMBOL(u"Br");
    element.NAME(u"Brom");
    for (const StringView version : {u"0.9", u"1.2", u"2.0"}) {
        std::filesystem::remove(folder.native() / "element.qv");
        EXPECT_TRUE(element.LOAD(fileWith({version, u"Cl", u"Chlor", 35.5, 17, 0})));
        EXPECT_EQ(element.SYMBOL(), u"Br");
        EXPECT_EQ(element.NAMELIST(), u"Brom");
    }
}

TEST_F(StoredElements, ATableOfAnotherVersionLeavesAllAsItWas)
{
    table.CREATE(u"Br", u"Brom", 35, 79.9);
    EXPECT_TRUE(table.LOAD(fileWith({u"1.1", u"", 0})));
    EXPECT_EQ(table.COUNT(), 1);
}

TEST_F(StoredElements, ValuesThatEndEarlyAnswerFalse)
{
    EXPECT_FALSE(element.LOAD(fileWith({u"1.1", u"Cl", u"Chlor"})));
    EXPECT_FALSE(table.LOAD(fileWith({u"1.0", u"", 2, u"1.1", u"H"})));
}

TEST_F(StoredElements, PeriodAndGroupAreNotStored)
{
    table.CREATE2(u"Cl", u"Chlor*Chlorine", 17, 3, 17, 35.5);
    const String file = folder.path() + u"elements.qv";
    ASSERT_TRUE(table.SAVE(file));
    cls_DataElements loaded;
    ASSERT_TRUE(loaded.LOAD(file));
    EXPECT_EQ(loaded.ITEM(1)->NAMELIST(), u"Chlor*Chlorine");
    EXPECT_EQ(loaded.ITEM(1)->PROTONS(), 17);
    EXPECT_EQ(loaded.ITEM(1)->Peri(), 0);
    EXPECT_EQ(loaded.ITEM(1)->Grup(), 0);
}

TEST_F(StoredElements, APasswordNeedsSealing)
{
    const String file = folder.path() + u"elements.qv";
    EXPECT_FALSE(table.SAVE(file, u"geheim"));
    EXPECT_FALSE(folder.has("elements.qv"));
    ASSERT_TRUE(table.SAVE(file));
    EXPECT_FALSE(table.LOAD(file, u"geheim"));
    EXPECT_TRUE(table.LOAD(file));
}

} // namespace
} // namespace phial
