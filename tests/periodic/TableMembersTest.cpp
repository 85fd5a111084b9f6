#include "PeriodicTableTest.h"
#include "chem/cls_DataElements.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/TableFont.h"
#include "support/Raises.h"
#include "visual/TextMetrics.h"

#include <algorithm>
#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What is reached by name, and the table of elements that a host can give.
class TableMembers : public PeriodicTableTest
{
protected:
    Variant get(StringView name) { return getMember(*table, name); }
    void set(StringView name, const Variant& value) { setMember(*table, name, value); }
    Variant call(StringView name, const Variant::Array& arguments = {})
    {
        return callMember(*table, name, arguments);
    }
    void loadByName() { call(u"LOAD", {elementFile()}); }
    bool has(const std::string& line) { return drawn().find(line) != std::string::npos; }
};

TEST_F(TableMembers, TheBubbleIsSetByReference)
{
    EXPECT_FALSE(get(u"BUBBLE").object());
    const auto bubble = form->add<ctl_Bubble>(u"ctl_Bubble1");
    set(u"BUBBLE", ObjectPtr(bubble));
    EXPECT_EQ(table->BUBBLE(), bubble);
    EXPECT_EQ(get(u"BUBBLE").object(), bubble);
    EXPECT_EQ(test::raisedBy([&] { set(u"BUBBLE", ObjectPtr(form)); }), 13);
}

TEST_F(TableMembers, ListsOfSymbolsAreTexts)
{
    for (const StringView name : {u"FADED", u"GONE"}) {
        EXPECT_EQ(get(name), Variant(u""));
        set(name, u" He  Ne ");
        EXPECT_EQ(get(name), Variant(u"He Ne"));
        set(name, u"");
        EXPECT_EQ(get(name), Variant(u""));
    }
    table->FADED()->Add(u"Ar");
    EXPECT_EQ(get(u"FADED"), Variant(u"Ar"));
    EXPECT_EQ(get(u"GONE"), Variant(u""));
}

TEST_F(TableMembers, AListIsReplacedByAWrittenOneAndCountsFromTheNextRedrawOn)
{
    loadByName();
    const auto before = table->GONE();
    const std::string full = cell("He");
    set(u"GONE", u"He");
    EXPECT_TRUE(table->GONE()->Exists(u"He"));
    EXPECT_FALSE(before->Exists(u"He")) << "the host's own list";
    call(u"REDRAW");
    EXPECT_NE(cell("He"), full);
}

TEST_F(TableMembers, FramesArePairsOfSymbolAndColour)
{
    loadByName();
    set(u"HIGHLIGHTS", u"Cl 65280 Na 255");
    EXPECT_EQ(get(u"HIGHLIGHTS"), Variant(u"Cl 65280 Na 255"));
    call(u"REDRAW");
    EXPECT_NE(cell("Cl").find("#00FF00 w3"), std::string::npos) << cell("Cl");
    EXPECT_RAISES(set(u"HIGHLIGHTS", u"Cl"), InvalidArgument);
    EXPECT_EQ(test::raisedBy([&] { set(u"HIGHLIGHTS", u"Cl green"); }), 13);
    EXPECT_EQ(table->HIGHLIGHTS()->Count(), 2);
    set(u"HIGHLIGHTS", u"");
    EXPECT_EQ(table->HIGHLIGHTS()->Count(), 0);
}

TEST_F(TableMembers, TilesAreAddedToldAndSentHome)
{
    loadByName();
    set(u"MODE", 1);
    call(u"DRAGADD", {u"Cl"});
    EXPECT_EQ(call(u"DRAGSYMBOL", {0}), Variant(u"Cl"));
    EXPECT_EQ(call(u"DRAGSYMBOLDROP", {0}), Variant(u""));
    press({PointerButton::Left, 0, 3.5 * TableCell, 9.5 * TableCell});
    press(over(16, 2));
    EXPECT_EQ(call(u"DRAGSYMBOLDROP", {0}), Variant(u"Cl"));
    call(u"DRAGRESET", {0});
    EXPECT_EQ(call(u"DRAGSYMBOLDROP", {0}), Variant(u""));
    EXPECT_EQ(test::raisedBy([&] { call(u"DRAGSYMBOL", {11}); }), 9);
    EXPECT_EQ(test::raisedBy([&] { call(u"DRAGRESET", {-1}); }), 9);
    for (const StringView name : {u"DRAGADD", u"DRAGSYMBOL", u"DRAGSYMBOLDROP", u"DRAGRESET", u"LOAD"}) {
        EXPECT_RAISES(call(name), InvalidArgument);
        EXPECT_RAISES(call(name, {1, 1, 1}), InvalidArgument);
    }
}

TEST_F(TableMembers, AFileIsLoadedWithItsKindOrWithout)
{
    EXPECT_RAISES(call(u"LOAD", {elementFile(), 2}), InvalidArgument);
    EXPECT_THAT(table->parts(), IsEmpty());
    call(u"LOAD", {elementFile(), 1});
    EXPECT_EQ(table->parts().size(), 118U);
}

TEST_F(TableMembers, TheTableOfElementsCanBeReached)
{
    load();
    EXPECT_EQ(table->Elements()->COUNT(), 118);
    EXPECT_EQ(get(u"Elements").object(), table->Elements());
    EXPECT_RAISES(table->Elements(nullptr), ObjectNotSet);
}

TEST_F(TableMembers, AGivenTableOfElementsIsShownInsteadOfAFile)
{
    const auto own = std::make_shared<cls_DataElements>();
    own->CREATE(u"X", u"Xenium", 1, 1);
    set(u"Elements", ObjectPtr(own));
    EXPECT_THAT(table->parts(), IsEmpty()) << "nothing is shown before LOAD";
    load();
    EXPECT_EQ(own->COUNT(), 1);
    ASSERT_EQ(table->parts().size(), 1U);
    EXPECT_EQ(table->parts()[0].name.substr(0, 9), u"Xenium, X");
}

TEST_F(TableMembers, AnEmptyGivenTableTakesTheFile)
{
    load();
    const auto own = std::make_shared<cls_DataElements>();
    table->Elements(own);
    EXPECT_THAT(table->parts(), IsEmpty());
    load();
    EXPECT_EQ(own->COUNT(), 118);
    EXPECT_EQ(table->parts().size(), 118U);
}

TEST_F(TableMembers, AnotherTableEndsWhatWasPointedAtClickedAndPlaced)
{
    load();
    press(over(0, 0));
    press(over(0, 0));
    EXPECT_THAT(log, ElementsAre("click H", "again H"));
    table->MODE(enm_PSEMode::ID_PSEMode_Place);
    table->DRAGADD(u"Cl");
    press({PointerButton::Left, 0, 3.5 * TableCell, 9.5 * TableCell});
    press(over(16, 2));
    ASSERT_EQ(table->DRAGSYMBOLDROP(0), u"Cl");
    const auto own = std::make_shared<cls_DataElements>();
    own->CREATE(u"X", u"Xenium", 1, 1);
    table->Elements(own);
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"");
    table->MODE(enm_PSEMode::ID_PSEMode_Normal);
    press(BesideTable);
    EXPECT_THAT(log, ElementsAre("click H", "again H")) << "nothing has been clicked in this table";
    press(over(0, 0));
    EXPECT_EQ(log.back(), "click X");
}

/// A display that has some fonts.
class SomeFonts final : public TextMetrics
{
public:
    explicit SomeFonts(std::vector<StringView> names) : names_(std::move(names)) {}

    std::shared_ptr<const FontFace> face(const FontSpec&) override { return nullptr; }
    bool hasFont(StringView name) const override
    {
        return std::find(names_.begin(), names_.end(), name) != names_.end();
    }

private:
    std::vector<StringView> names_;
};

TEST(TableFont, IsTheFirstOfThreeThatCanBeHad)
{
    EXPECT_EQ(tableFont(SomeFonts({u"Arial", u"Tahoma", u"Calibri"})), u"Calibri");
    EXPECT_EQ(tableFont(SomeFonts({u"Arial", u"Tahoma"})), u"Tahoma");
    EXPECT_EQ(tableFont(SomeFonts({u"Verdana", u"Arial"})), u"Arial");
    EXPECT_EQ(tableFont(SomeFonts({})), u"Calibri");
}

} // namespace

} // namespace phial
