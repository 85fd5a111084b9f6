#include "core/CoreParameters.h"

#include "core/NumberText.h"
#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

CoreParameters certificate()
{
    CoreParameters parameters;
    parameters.Set(u"NAME", u"J\u00FCrgen \"Jo\" {NEXT_ITEM}|");
    parameters.Set(u"POINTS", 12.5);
    parameters.Set(u"LIVE", true);
    return parameters;
}

TEST(CoreParametersTest, SetAddsOrReplaces)
{
    CoreParameters parameters;
    parameters.Set(u"Task", 1);
    parameters.Set(u"Other", 2);
    parameters.Set(u"TASK", u"new");
    ASSERT_EQ(parameters.Count(), 2);
    EXPECT_EQ(parameters.Name(1), u"Task");
    EXPECT_EQ(parameters.Value(1), Variant(u"new"));
    EXPECT_RAISES(parameters.Name(0), IndexOutOfBounds);
    EXPECT_RAISES(parameters.Value(3), IndexOutOfBounds);
}

TEST(CoreParametersTest, GetGivesTheDefaultOnlyForMissingNames)
{
    CoreParameters parameters;
    parameters.Set(u"EMPTY", Variant());
    EXPECT_EQ(parameters.Get(u"empty", 5), Variant());
    EXPECT_EQ(parameters.Get(u"MISSING", 5), Variant(5));
    EXPECT_TRUE(parameters.Get(u"MISSING").isEmpty());
    EXPECT_TRUE(parameters.Exists(u"Empty"));
    EXPECT_FALSE(parameters.Exists(u"MISSING"));
}

TEST(CoreParametersTest, MergeKeepsWhatIsThere)
{
    CoreParameters parameters;
    parameters.Set(u"a", 1);
    parameters.Set(u"b", 2);
    CoreParameters more;
    more.Set(u"B", 3);
    more.Set(u"c", 4);
    parameters.Merge(more);
    EXPECT_EQ(parameters.Count(), 3);
    EXPECT_EQ(parameters.Get(u"a"), Variant(1));
    EXPECT_EQ(parameters.Get(u"b"), Variant(3));
    parameters.Merge(parameters);
    EXPECT_EQ(parameters.Count(), 3);
}

TEST(CoreParametersTest, CopyFromReplacesEverything)
{
    CoreParameters parameters;
    parameters.Set(u"old", 1);
    CoreParameters source = certificate();
    parameters.CopyFrom(source);
    source.Set(u"NAME", u"changed");
    EXPECT_EQ(parameters.Count(), 3);
    EXPECT_FALSE(parameters.Exists(u"old"));
    EXPECT_EQ(parameters.Get(u"NAME"), Variant(u"J\u00FCrgen \"Jo\" {NEXT_ITEM}|"));
    parameters.CopyFrom(parameters);
    EXPECT_EQ(parameters.Count(), 3);
}

TEST(CoreParametersTest, LongListsFindEveryName)
{
    CoreParameters parameters;
    for (std::int32_t i = 0; i < 1000; ++i) {
        parameters.Set(u"Name" + plainText(i), i);
    }
    for (std::int32_t i = 0; i < 1000; ++i) {
        ASSERT_EQ(parameters.Get(u"NAME" + plainText(i)), Variant(i));
    }
    parameters.Clear();
    EXPECT_FALSE(parameters.Exists(u"Name5"));
}

TEST(CoreParametersTest, PackedEntriesComeBack)
{
    CoreParameters parameters;
    parameters.Set(u"old", 1);
    parameters.Unpack(certificate().Pack(), 0, 1);
    ASSERT_EQ(parameters.Count(), 3);
    EXPECT_EQ(parameters.Name(1), u"NAME");
    EXPECT_EQ(parameters.Get(u"NAME"), Variant(u"J\u00FCrgen \"Jo\" {NEXT_ITEM}|"));
    EXPECT_EQ(parameters.Get(u"POINTS"), Variant(12.5));
    EXPECT_EQ(parameters.Get(u"LIVE"), Variant(true));
}

TEST(CoreParametersTest, PackedTextStandsWithinDividedTexts)
{
    const String packed = certificate().Pack();
    EXPECT_EQ(packed.find_first_of(u"{|:\r\n"), String::npos);
}

TEST(CoreParametersTest, TheEmptyTextHasNoEntries)
{
    CoreParameters parameters = certificate();
    parameters.Unpack(u"");
    EXPECT_EQ(parameters.Count(), 0);
    parameters = certificate();
    parameters.Unpack(CoreParameters().Pack());
    EXPECT_EQ(parameters.Count(), 0);
}

TEST(CoreParametersTest, WhatIsNotPackedLeavesTheEntries)
{
    const String whole = certificate().Pack();
    for (const String& text : {String(u"nothing"), String(u"QV1;1;T1=a;"), String(u"QV1;2;I1=1;I1=2;"),
                               whole.substr(0, whole.size() - 1), whole + u";"}) {
        CoreParameters parameters = certificate();
        EXPECT_RAISES(parameters.Unpack(text), InvalidArgument);
        EXPECT_EQ(parameters.Count(), 3);
    }
}

TEST(CoreParametersTest, OtherFormsAreRefused)
{
    CoreParameters parameters;
    EXPECT_RAISES(parameters.Unpack(certificate().Pack(), 1, 1), InvalidArgument);
    EXPECT_RAISES(parameters.Unpack(certificate().Pack(), 0, 2), InvalidArgument);
}

TEST(CoreParametersTest, TextHasALineForEachEntry)
{
    CoreParameters parameters;
    parameters.Set(u"Zeit", 2.5);
    parameters.Set(u"Fehler", u"zwei\r\nZeilen");
    parameters.Set(u"Tipps", Variant::Array{1, u"a"});
    EXPECT_EQ(parameters.Text(), u"Zeit: 2,5\r\nFehler: zwei Zeilen\r\nTipps: 1, a");
    EXPECT_EQ(parameters.TextLine(), u"Zeit: 2,5; Fehler: zwei Zeilen; Tipps: 1, a");
    EXPECT_EQ(CoreParameters().Text(), u"");
}

} // namespace
} // namespace phial
