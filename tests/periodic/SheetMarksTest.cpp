#include "periodic/PeriodicSheet.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

TEST(SheetMarks, TellWhoIsPale)
{
    SheetMarks marks;
    EXPECT_FALSE(marks.isPale(u"O", false));
    marks.faded->Add(u"N");
    EXPECT_FALSE(marks.isPale(u"O", false));
    EXPECT_TRUE(marks.isPale(u"N", false));
    marks.highlight = u"N";
    EXPECT_TRUE(marks.isPale(u"O", false));
    EXPECT_FALSE(marks.isPale(u"N", false));
    marks.isPlacing = true;
    EXPECT_TRUE(marks.isPale(u"O", false));
    EXPECT_FALSE(marks.isPale(u"N", false)); // faded, and so no empty place
    marks.highlight = u"O";
    EXPECT_TRUE(marks.isPale(u"O", false)); // the highlight does not count
    EXPECT_FALSE(marks.isPale(u"O", true));
    EXPECT_TRUE(marks.isPale(u"N", true));
    marks.highlight.clear();
    EXPECT_TRUE(marks.isPale(u"N", true));
    EXPECT_FALSE(marks.isPale(u"H", true));
}

TEST(SheetMarks, TellGreyEmptyAndFramed)
{
    SheetMarks marks;
    marks.gone->Add(u"O");
    marks.frames->Add(u"O", 0x0000FF);
    marks.frames->Add(u"N", Variant());
    marks.highlight = u"O";
    const CellLook oxygen = marks.lookOf(u"O", false);
    EXPECT_TRUE(oxygen.isGrey);
    EXPECT_TRUE(oxygen.isHighlighted);
    EXPECT_FALSE(oxygen.isEmpty);
    EXPECT_EQ(oxygen.frame, RGB(255, 0, 0));
    EXPECT_EQ(marks.lookOf(u"N", false).frame, std::nullopt);
    EXPECT_EQ(marks.lookOf(u"H", false).frame, std::nullopt);
    marks.frames->Add(u"Fe", {});
    marks.frames->Add(u"Cu", Variant(u"red"));
    EXPECT_EQ(marks.lookOf(u"Fe", false).frame, std::nullopt);
    EXPECT_EQ(marks.lookOf(u"Cu", false).frame, std::nullopt);
    EXPECT_EQ(marks.frames->Count(), 4);
    marks.isPlacing = true;
    EXPECT_TRUE(marks.lookOf(u"N", false).isEmpty);
    EXPECT_FALSE(marks.lookOf(u"N", true).isEmpty);
}

} // namespace

} // namespace phial
