#include "core/CoreParameters.h"

#include "core/CoreValuePacker.h"
#include "core/NumberText.h"
#include "support/OddValues.h"
#include "support/Raises.h"
#include "support/RandomValues.h"

#include <bit>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <random>
#include <utility>

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
    EXPECT_EQ(parameters.Text(), u"Zeit = 2.5\r\nFehler = \"zwei\\r\\nZeilen\"\r\nTipps = [1, \"a\"]");
    EXPECT_EQ(parameters.TextLine(), u"Zeit = 2.5; Fehler = \"zwei\\r\\nZeilen\"; Tipps = [1, \"a\"]");
    EXPECT_EQ(CoreParameters().Text(), u"");
    EXPECT_EQ(CoreParameters().TextLine(), u"");
}

TEST(CoreParametersTest, WorkedExamples)
{
    CoreParameters parameters;
    parameters.Set(u"NAME", u"Anna");
    parameters.Set(u"POINTS", 12.5);
    EXPECT_EQ(parameters.Pack(), u"QV1;4;T4=NAME;T4=Anna;T6=POINTS;D4=12.5;");
    EXPECT_EQ(parameters.TextLine(), u"NAME = \"Anna\"; POINTS = 12.5");

    parameters.Clear();
    parameters.Set(u"Zeit", Moment{45292.75});
    parameters.Set(u"LIVE", true);
    EXPECT_EQ(parameters.TextLine(), u"Zeit = 2024-01-01T18:00:00; LIVE = true");

    parameters.Clear();
    parameters.Set(u"ein Name", u"50 % \"{a|b}\"");
    EXPECT_EQ(parameters.TextLine(), u"\"ein Name\" = \"50 % \\\"{a|b}\\\"\"");
}

/// Expects that each form of the parameters, read again, gives entries of the same names, kinds and values to
/// the last bit.
void expectEveryFormComesBack(const CoreParameters& parameters)
{
    const String packed = parameters.Pack();
    for (const String& text : {packed, parameters.Text(), parameters.TextLine()}) {
        CoreParameters read = certificate();
        read.Unpack(text);
        ASSERT_EQ(read.Pack(), packed) << toUtf8(text);
    }
}

CoreParameters withValue(const Variant& value)
{
    CoreParameters parameters;
    parameters.Set(u"before", 1);
    parameters.Set(u"VALUE", value);
    parameters.Set(u"behind", u"end");
    return parameters;
}

TEST(CoreParametersTest, EveryKindIsReadableAndComesBackInEveryForm)
{
    using Limits = std::numeric_limits<double>;
    const std::pair<Variant, StringView> examples[] = {
        {Variant(), u"empty"},
        {true, u"true"},
        {false, u"false"},
        {0, u"0"},
        {std::numeric_limits<std::int32_t>::min(), u"-2147483648"},
        {2.5, u"2.5"},
        {42.0, u"42.0"},
        {-0.0, u"-0.0"},
        {3e9, u"3e+09"},
        {Limits::max(), u"1.7976931348623157e+308"},
        {Limits::denorm_min(), u"5e-324"},
        {-Limits::infinity(), u"#FFF0000000000000"},
        {Moment{45292.75}, u"2024-01-01T18:00:00"},
        {Moment{0}, u"1899-12-30T00:00:00"},
        {Moment{-0.0}, u"@-0"},
        {Moment{0.375}, u"1899-12-30T09:00:00"},
        {Moment{0.3333}, u"@0.3333"},
        {Moment{1e10}, u"@1e+10"},
        {Moment{Limits::infinity()}, u"@#7FF0000000000000"},
        {u"", u"\"\""},
        {u"true", u"\"true\""},
        {u"42; x = [1]", u"\"42; x = [1]\""},
        {Variant::Array{}, u"[]"},
        {Variant::Array{1, 1.0, Variant::Array{u"a]"}, Variant()}, u"[1, 1.0, [\"a]\"], empty]"},
        {ObjectPtr(), u"nothing"},
    };
    for (const auto& [value, text] : examples) {
        const CoreParameters parameters = withValue(value);
        EXPECT_EQ(parameters.TextLine(),
                  String(u"before = 1; VALUE = ").append(text) + u"; behind = \"end\"");
        expectEveryFormComesBack(parameters);
    }
}

TEST(CoreParametersTest, DifficultTextsComeBackInEveryForm)
{
    String every;
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        every += static_cast<char16_t>(unit);
    }
    for (const String& text : {every, String(u"\u00E4\u00F6\u00FC \"q\" 'a' \\ % {NEXT_ITEM}|"),
                               String(u"\U0001F9EA\uFEFF"), String{0xDC00, u'a', 0xD800}}) {
        CoreParameters parameters = withValue(text);
        parameters.Set(text, Variant::Array{text});
        expectEveryFormComesBack(parameters);
        EXPECT_EQ(parameters.TextLine().find_first_of(StringView(u"\r\n\0\u0085\u2028\u2029", 6)),
                  String::npos);
    }
}

TEST(CoreParametersTest, LongTextsComeBackInEveryForm)
{
    expectEveryFormComesBack(withValue(String(1'000'000, u'"')));
}

TEST(CoreParametersTest, EveryNameComesBackInEveryForm)
{
    for (const StringView name : {u"", u" ", u"a b", u"=", u"a=b", u"\"", u";", u"QV1;", u"QV1",
                                  u"Gr\u00F6\u00DFe", u"empty", u"1", u"\u03B1", u"a\r\nb"}) {
        CoreParameters parameters;
        parameters.Set(name, 5);
        expectEveryFormComesBack(parameters);
    }
}

TEST(CoreParametersTest, EveryListComesBackInEveryForm)
{
    test::RandomValues random(6);
    for (int round = 0; round < 1000; ++round) {
        CoreParameters parameters;
        for (int count = round % 8; count > 0; --count) {
            parameters.Set(random.text(), random.value());
        }
        expectEveryFormComesBack(parameters);
    }
}

TEST(CoreParametersTest, MomentsComeBackToTheLastBitInEveryForm)
{
    std::mt19937_64 random(30);
    for (int count = 0; count < 1000; ++count) {
        const auto seconds = static_cast<double>(random() % 200'000'000'000);
        expectEveryFormComesBack(withValue(Moment{seconds / 86400 - 600'000}));
        expectEveryFormComesBack(withValue(Moment{std::bit_cast<double>(random())}));
    }
}

TEST(CoreParametersTest, TextMayBeWrittenByHand)
{
    CoreParameters parameters;
    parameters.Unpack(
        u"\n  NAME=\"\\u004Anna\\/\"  \r\n\n;POINTS =\t12 ; LIST = [ 1 ,2.5,[ ] ];;big = 3000000000\r");
    EXPECT_EQ(parameters.TextLine(), u"NAME = \"Jnna/\"; POINTS = 12; LIST = [1, 2.5, []]; big = 3e+09");
    parameters.Unpack(u"a = 1; A = 2");
    ASSERT_EQ(parameters.Count(), 1);
    EXPECT_EQ(parameters.Get(u"a"), Variant(2));
}

TEST(CoreParametersTest, DamagedTextLeavesTheEntries)
{
    for (const StringView text : {u"a",
                                  u"a =",
                                  u"a = ;",
                                  u"= 1",
                                  u"a = 1 b = 2",
                                  u"a = yes",
                                  u"a = 1,5",
                                  u"a = +1",
                                  u"a = 0x1",
                                  u"a = nan",
                                  u"a = 1e999",
                                  u"a = \"",
                                  u"a = \"b",
                                  u"a = \"\\",
                                  u"a = \"\\u00\"",
                                  u"a = \"\\x\"",
                                  u"a = \"b\r\nc\"",
                                  u"a = \"b\" c",
                                  u"a = [",
                                  u"a = [1",
                                  u"a = [1,]",
                                  u"a = [1 2]",
                                  u"a = [1; 2]",
                                  u"a = ]",
                                  u"a = @",
                                  u"a = @nan",
                                  u"a = #0",
                                  u"a = 2024-02-30T00:00:00",
                                  u"a = 2024-01-01T24:00:00",
                                  u"a = 2024-01-01 18:00:00",
                                  u"a b = 1",
                                  u"\u03B1 = 1",
                                  u"a = TRUE",
                                  u"a = 1; b"}) {
        CoreParameters parameters = certificate();
        EXPECT_RAISES(parameters.Unpack(text), InvalidArgument) << toUtf8(text);
        EXPECT_EQ(parameters.Count(), 3);
    }
}

TEST(CoreParametersTest, EveryTruncationOfTheTextIsDamageOrFewerEntries)
{
    const CoreParameters whole = withValue(Variant::Array{u"a\r\n", 2.5, true, Moment{1}});
    const String line = whole.TextLine();
    for (std::size_t length = 0; length < line.size(); ++length) {
        CoreParameters read;
        const auto raised = test::raisedBy([&] { read.Unpack(line.substr(0, length)); });
        EXPECT_TRUE(raised == 5 || (!raised && read.Count() < whole.Count())) << length;
    }
}

TEST(CoreParametersTest, ArraysNestToTheLimitInEveryForm)
{
    expectEveryFormComesBack(withValue(test::nested(CoreValuePacker::MaxNesting)));
    const CoreParameters tooDeep = withValue(test::nested(CoreValuePacker::MaxNesting + 1));
    EXPECT_RAISES(tooDeep.Pack(), InvalidArgument);
    EXPECT_RAISES(tooDeep.Text(), InvalidArgument);
    EXPECT_RAISES(tooDeep.TextLine(), InvalidArgument);
    CoreParameters read;
    EXPECT_RAISES(read.Unpack(u"a = " + String(1'000'000, u'[')), InvalidArgument);
}

TEST(CoreParametersTest, AnObjectIsNamedButNotRead)
{
    const CoreParameters parameters = withValue(ObjectPtr(std::make_shared<test::Something>()));
    EXPECT_EQ(parameters.TextLine(), u"before = 1; VALUE = <Something>; behind = \"end\"");
    CoreParameters read = certificate();
    EXPECT_RAISES(read.Unpack(parameters.TextLine()), TypeMismatch);
    EXPECT_EQ(read.Count(), 3);
}

} // namespace
} // namespace phial
