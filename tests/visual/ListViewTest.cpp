#include "visual/ListView.h"

#include "core/Palette.h"
#include "core/Variant.h"
#include "visual/FormTest.h"

namespace phial::test
{

namespace
{

class ListViews : public FormTest
{
protected:
    ListViews()
    {
        for (const StringView title : {u"a", u"b", u"c"}) {
            list->ITEMS()->Add(String(title));
        }
    }

    String chosen() const
    {
        return list->ListIndex() == 0 ? String() : list->ITEMS()->Item(list->ListIndex())->Title();
    }

    std::shared_ptr<ListView> list = form->add<ListView>(u"lst_Pupils");
};

TEST_F(ListViews, ChoosingTellsWhenTheChoiceDiffersAndAUsersChoiceAlways)
{
    logs(list->Click, "click");
    list->ListIndex(2);
    list->ListIndex(2);
    EXPECT_EQ(chosen(), u"b");
    EXPECT_THAT(log, ElementsAre("click"));
    list->inputChoice(2);
    list->inputChoice(3);
    EXPECT_EQ(chosen(), u"c");
    EXPECT_EQ(log.size(), 3U);
    list->ListIndex(0);
    EXPECT_EQ(chosen(), u"");
    EXPECT_EQ(log.size(), 4U);
}

TEST_F(ListViews, TheChoiceStaysOnItsRowAndGoesWithIt)
{
    list->ListIndex(3);
    list->ITEMS()->RemoveAt(1);
    EXPECT_EQ(list->ListIndex(), 2);
    EXPECT_EQ(chosen(), u"c");
    const auto kept = list->ITEMS()->Item(2); // a row that is still held elsewhere is gone all the same
    list->ITEMS()->RemoveAt(2);
    EXPECT_EQ(list->ListIndex(), 0);
}

TEST_F(ListViews, RefuseWhatIsNotThere)
{
    EXPECT_EQ(raisedBy([&] { list->ListIndex(4); }), 380);
    EXPECT_EQ(raisedBy([&] { list->ListIndex(-1); }), 380);
    EXPECT_RAISES(list->inputChoice(0), IndexOutOfBounds);
    EXPECT_RAISES(list->ITEMS()->Item(0), IndexOutOfBounds);
    EXPECT_RAISES(list->ITEMS()->Item(4), IndexOutOfBounds);
    EXPECT_RAISES(list->ITEMS()->RemoveAt(4), IndexOutOfBounds);
    EXPECT_RAISES(list->COLUMNHEADERS()->Add(u"Name", 100)->Width(-1), InvalidArgument);
}

TEST_F(ListViews, ARowMayHaveAColourOfItsOwn)
{
    const auto row = list->ITEMS()->Item(2);
    EXPECT_EQ(row->ForeColor(), SystemColour::WindowText);
    logs(list->ITEMS()->changed(), "changed");
    row->ForeColor(Palette::Right);
    EXPECT_EQ(row->ForeColor(), Palette::Right);
    EXPECT_EQ(log.size(), 1U);
}

TEST_F(ListViews, TheTitleIsTheFirstCellAndFurtherOnesComeAsTheyAreSet)
{
    const auto row = list->ITEMS()->Item(1);
    row->Cell(1, u"Anna");
    row->Cell(3, u"12");
    EXPECT_EQ(row->Title(), u"Anna");
    EXPECT_EQ(row->Cell(1), u"Anna");
    EXPECT_EQ(row->Cell(2), u"");
    EXPECT_EQ(row->Cell(3), u"12");
    EXPECT_EQ(row->Cell(ListRow::MostColumns), u"");
    EXPECT_RAISES(row->Cell(0), IndexOutOfBounds);
    EXPECT_RAISES(row->Cell(0, u"x"), IndexOutOfBounds);
    EXPECT_RAISES(row->Cell(ListRow::MostColumns + 1, u"x"), IndexOutOfBounds);
}

TEST_F(ListViews, ACellMayBeSpokenOtherwiseThanItIsWritten)
{
    const auto row = list->ITEMS()->Add(u"-sulfit");
    EXPECT_EQ(row->Spoken(2), u"");
    row->Spoken(2, u"S O drei");
    EXPECT_EQ(row->Spoken(2), u"S O drei");
    EXPECT_EQ(row->Spoken(1), u"");
    EXPECT_EQ(row->Spoken(3), u"");
    EXPECT_RAISES(row->Spoken(0, u"x"), IndexOutOfBounds);
    EXPECT_RAISES(row->Spoken(ListRow::MostColumns + 1), IndexOutOfBounds);
}

TEST_F(ListViews, AHeaderThatIsPressedTellsItsColumn)
{
    connections +=
        list->ColumnClick.connect([this](std::int32_t column) { log.push_back(std::to_string(column)); });
    list->inputColumn(2);
    EXPECT_THAT(log, ElementsAre("2"));
}

TEST_F(ListViews, TellTheirWidgetWhenRowsOrColumnsLookDifferent)
{
    class Watch final : public ControlPeer
    {
    public:
        void modelChanged(ControlAspect aspect) override { items += aspect == ControlAspect::Items ? 1 : 0; }
        int items = 0;
    };
    Watch watch;
    list->frame().peer(&watch);
    const auto column = list->COLUMNHEADERS()->Add(u"Name", 0);
    column->Text(u"Namen");
    column->Text(u"Namen");
    const auto row = list->ITEMS()->Item(1);
    row->TitleShort(u"A.");
    row->Cell(2, u"x");
    row->Tag(u"nothing to be seen");
    list->ITEMS()->Clear();
    EXPECT_EQ(watch.items, 5);
    row->Title(u"gone");
    list->frame().peer(nullptr);
}

TEST_F(ListViews, PartsAreReachedByName)
{
    list->COLUMNHEADERS()->Add(u"Name", 120);
    const auto rows = getMember(*list, u"items").object();
    EXPECT_EQ(getMember(*rows, u"Count"), Variant(3));
    const Variant second[] = {Variant(2)};
    const auto row = callMember(*rows, u"Item", second).object();
    setMember(*row, u"TITLESHORT", u"B.");
    EXPECT_EQ(list->ITEMS()->Item(2)->TitleShort(), u"B.");
    const auto columns = getMember(*list, u"ColumnHeaders").object();
    const Variant first[] = {Variant(1)};
    const auto column = callMember(*columns, u"ITEM", first).object();
    EXPECT_EQ(getMember(*column, u"Width"), Variant(120.0));
    EXPECT_RAISES(callMember(*columns, u"Item"), InvalidArgument);
    callMember(*rows, u"Clear");
    EXPECT_EQ(list->ITEMS()->Count(), 0);
}

} // namespace

} // namespace phial::test
