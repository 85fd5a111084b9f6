#include "core/CoreValuePacker.h"

#include "core/DATA.h"
#include "core/DataOwner.h"
#include "core/NumberText.h"
#include "core/tmp_Data.h"
#include "support/OddValues.h"
#include "support/Raises.h"
#include "support/RandomValues.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <random>

namespace phial
{
namespace
{

Variant roundTrip(const Variant& value)
{
    Variant result = u"untouched";
    CoreValuePacker::Unpack(CoreValuePacker::Pack({value}), {result});
    return result;
}

String packedText(StringView text)
{
    return CoreValuePacker::Pack({Variant(text)});
}

TEST(CoreValuePackerTest, WorkedExamples)
{
    EXPECT_EQ(CoreValuePacker::Pack({}), u"QV1;0;");
    EXPECT_EQ(CoreValuePacker::Pack({u"Hallo", 42, 2.5}), u"QV1;3;T5=Hallo;I2=42;D3=2.5;");
    EXPECT_EQ(CoreValuePacker::Pack({true, false, Variant(), ObjectPtr()}), u"QV1;4;B2=-1;B1=0;E0=;N0=;");
    EXPECT_EQ(CoreValuePacker::Pack({Moment{45292.75}}), u"QV1;1;M8=45292.75;");
    EXPECT_EQ(CoreValuePacker::Pack({Variant::Array{1, u"a"}}), u"QV1;1;A12=2;I1=1;T1=a;;");
    EXPECT_EQ(packedText(u"50 % {a|b}"), u"QV1;1;T22=50 %0025 %007Ba%007Cb};");
    EXPECT_EQ(CoreValuePacker::Pack({std::numeric_limits<double>::infinity()}),
              u"QV1;1;D17=#7FF0000000000000;");
}

TEST(CoreValuePackerTest, ValuesFillTheTargetsInOrder)
{
    Variant name;
    Variant points;
    CoreValuePacker::Unpack(CoreValuePacker::Pack({u"Anna", 12.0}), {name, points});
    EXPECT_EQ(name, Variant(u"Anna"));
    EXPECT_EQ(points, Variant(12.0));
}

TEST(CoreValuePackerTest, KindsComeBack)
{
    for (const Variant& value : {Variant(), Variant(true), Variant(1), Variant(1.0), Variant(Moment{1}),
                                 Variant(u"1"), Variant(Variant::Array{}), Variant(ObjectPtr())}) {
        EXPECT_EQ(roundTrip(value).kind(), value.kind());
    }
}

TEST(CoreValuePackerTest, DifficultTextsComeBack)
{
    const String withNul(u"a\0b", 3);
    const String halves = {0xDC00, u'a', 0xD800};
    for (const String& text :
         {String(), withNul, halves, String(u"\u00E4\u00F6\u00FC\u00DF \u201EZitat\u201C \"q\""),
          String(u"a\r\nb\tc"), String(u"a|b::c;d=e"), String(u"{NEXT_ITEM}"), String(u"%007C%"),
          String(u"\U0001F9EA\u202E\uFEFF\uFFFF")}) {
        EXPECT_EQ(roundTrip(text), Variant(text));
    }
}

TEST(CoreValuePackerTest, LongTextsComeBack)
{
    const String long1(1'000'000, u'|');
    EXPECT_EQ(roundTrip(long1), Variant(long1));
}

TEST(CoreValuePackerTest, ThePackedTextFitsIntoOtherTexts)
{
    String every;
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        every += static_cast<char16_t>(unit);
    }
    const String packed = packedText(every);
    EXPECT_EQ(packed.find_first_of(u"{|:\r\n\u2028\u2029"), String::npos);
    EXPECT_EQ(packed.find(u'\0'), String::npos);
    EXPECT_EQ(roundTrip(every), Variant(every));
}

TEST(CoreValuePackerTest, PackedTextsAreValuesToo)
{
    String text = u"|";
    for (int depth = 0; depth < 5; ++depth) {
        text = packedText(text);
    }
    for (int depth = 0; depth < 5; ++depth) {
        text = CoreValuePacker::unpackAll(text).front().text();
    }
    EXPECT_EQ(text, u"|");
}

TEST(CoreValuePackerTest, DoublesComeBackToTheLastBit)
{
    using Limits = std::numeric_limits<double>;
    std::mt19937_64 random(7);
    std::vector<double> numbers = {0.0,
                                   -0.0,
                                   0.1,
                                   Limits::max(),
                                   Limits::min(),
                                   Limits::denorm_min(),
                                   Limits::infinity(),
                                   -Limits::infinity(),
                                   Limits::quiet_NaN(),
                                   std::bit_cast<double>(0xFFF8000000000123U)};
    for (int i = 0; i < 20000; ++i) {
        numbers.push_back(std::bit_cast<double>(random()));
    }
    for (const double number : numbers) {
        const auto bits = std::bit_cast<std::uint64_t>(number);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(roundTrip(number).toReal()), bits);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(roundTrip(Moment{number}).toMoment().days), bits);
    }
}

TEST(CoreValuePackerTest, WholeNumbersComeBack)
{
    for (const std::int32_t number :
         {0, -1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(roundTrip(number), Variant(number));
    }
}

TEST(CoreValuePackerTest, EveryListComesBack)
{
    test::RandomValues random(2024);
    for (int round = 0; round < 2000; ++round) {
        std::vector<Variant> values(static_cast<std::size_t>(round % 8));
        for (Variant& value : values) {
            value = random.value();
        }
        const String packed = CoreValuePacker::Pack(values);
        ASSERT_EQ(CoreValuePacker::unpackAll(packed), values);
        ASSERT_EQ(CoreValuePacker::Pack(CoreValuePacker::unpackAll(packed)), packed);
    }
}

TEST(CoreValuePackerTest, ArraysNestToTheLimit)
{
    const Variant deepest = test::nested(CoreValuePacker::MaxNesting);
    EXPECT_EQ(roundTrip(deepest), deepest);
    EXPECT_RAISES(CoreValuePacker::Pack({test::nested(CoreValuePacker::MaxNesting + 1)}), InvalidArgument);
}

/// The packed text of empty arrays within each other.
String nestedText(int depth)
{
    std::vector<String> heads = {u"0;"};
    std::size_t length = 2;
    for (int i = 0; i < depth; ++i) {
        heads.push_back(u"1;A" + plainText(static_cast<std::int32_t>(length)) + u'=');
        length += heads.back().size() + 1;
    }
    String text = u"QV1;";
    for (auto head = heads.rbegin(); head != heads.rend(); ++head) {
        text += *head;
    }
    return text.append(static_cast<std::size_t>(depth), u';');
}

TEST(CoreValuePackerTest, DeeperTextsAreRefused)
{
    EXPECT_EQ(CoreValuePacker::unpackAll(nestedText(CoreValuePacker::MaxNesting)).size(), 1U);
    EXPECT_RAISES(CoreValuePacker::unpackAll(nestedText(CoreValuePacker::MaxNesting + 1)), InvalidArgument);
    EXPECT_RAISES(CoreValuePacker::unpackAll(nestedText(100000)), InvalidArgument);
}

TEST(CoreValuePackerTest, EveryTruncationIsDamage)
{
    const String whole =
        CoreValuePacker::Pack({u"Hallo %", 42, 2.5, Variant::Array{1, u"a"}, true, Moment{1}});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_RAISES(CoreValuePacker::unpackAll(whole.substr(0, length)), InvalidArgument);
    }
}

TEST(CoreValuePackerTest, DamagedTextsAreRefused)
{
    for (const StringView text : {u"",
                                  u"QV2;0;",
                                  u"QV1;",
                                  u"QV1;-1;",
                                  u"QV1;0;x",
                                  u"QV1;1;T5=abc;",
                                  u"QV1;1;T1=abc;",
                                  u"QV1;1;T=;",
                                  u"QV1;4294967295;",
                                  u"QV1;99999999999999999999;",
                                  u"QV1;1;T4294967295=a;",
                                  u"QV1;1;T1=%;",
                                  u"QV1;1;T5=%00G0;",
                                  u"QV1;1;I1=a;",
                                  u"QV1;1;I10=2147483648;",
                                  u"QV1;1;I0=;",
                                  u"QV1;1;B1=1;",
                                  u"QV1;1;D3=inf;",
                                  u"QV1;1;D3=nan;",
                                  u"QV1;1;D5=1e999;",
                                  u"QV1;1;D4= 2.5;",
                                  u"QV1;1;D2=#0;",
                                  u"QV1;1;D17=#7FF000000000000G;",
                                  u"QV1;1;E1=a;",
                                  u"QV1;1;N1=a;",
                                  u"QV1;1;A2=1;;",
                                  u"QV1;1;R6=1;E0=;;"}) {
        EXPECT_RAISES(CoreValuePacker::unpackAll(text), InvalidArgument) << toUtf8(text);
    }
}

TEST(CoreValuePackerTest, UnknownKindsAreRefused)
{
    EXPECT_RAISES(CoreValuePacker::unpackAll(u"QV1;1;X1=a;"), TypeMismatch);
}

TEST(CoreValuePackerTest, AnotherNumberOfValuesLeavesTheTargets)
{
    Variant first = 1;
    Variant second = 2;
    EXPECT_RAISES(CoreValuePacker::Unpack(CoreValuePacker::Pack({u"a"}), {first, second}), InvalidArgument);
    EXPECT_RAISES(CoreValuePacker::Unpack(CoreValuePacker::Pack({u"a", u"b", u"c"}), {first, second}),
                  InvalidArgument);
    EXPECT_EQ(first, Variant(1));
    EXPECT_EQ(second, Variant(2));
}

/// A record with one field.
class Score : public Object, public tmp_Data, private DataOwner
{
public:
    explicit Score(String name = {}, String classTag = u"Test.Score") : name_(std::move(name))
    {
        data_.get()->ClassTag(std::move(classTag));
    }

    StringView typeName() const override { return u"Score"; }
    MemberTable members() const override { return {}; }
    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    const String& name() const { return name_; }

private:
    bool DataCopy(tmp_Data&) override { return false; }
    String DataPACK() override { return CoreValuePacker::Pack({name_}); }
    void DataUnpack(StringView pText) override
    {
        Variant name;
        CoreValuePacker::Unpack(pText, {name});
        name_ = name.text();
    }
    void DataStore(CoreDataStream&) override {}
    void DataRead(CoreDataStream&) override {}
    std::shared_ptr<tmp_Data> DataSpawn() override { return std::make_shared<Score>(); }

    String name_;
    DataHolder data_{*this};
};

TEST(CoreValuePackerTest, ARecordFillsTheRecordInItsTarget)
{
    const String packed = CoreValuePacker::Pack({u"before", ObjectPtr(std::make_shared<Score>(u"Anna|Ben"))});
    const auto score = std::make_shared<Score>();
    Variant first;
    Variant second = ObjectPtr(score);
    CoreValuePacker::Unpack(packed, {first, second});
    EXPECT_EQ(first, Variant(u"before"));
    EXPECT_EQ(second, Variant(ObjectPtr(score)));
    EXPECT_EQ(score->name(), u"Anna|Ben");
}

TEST(CoreValuePackerTest, ARecordIsItsClassAndItsText)
{
    EXPECT_EQ(CoreValuePacker::Pack({ObjectPtr(std::make_shared<Score>(u"Anna"))}),
              u"QV1;1;R36=2;T10=Test.Score;T14=QV1;1;T4=Anna;;;");
}

TEST(CoreValuePackerTest, ARecordNeedsATargetOfItsClass)
{
    const String packed = CoreValuePacker::Pack({u"before", ObjectPtr(std::make_shared<Score>(u"Anna"))});
    const auto other = std::make_shared<Score>(u"Ben", u"Test.Other");
    for (const Variant& target : {Variant(), Variant(ObjectPtr()), Variant(ObjectPtr(other))}) {
        Variant first = 1;
        Variant second = target;
        EXPECT_RAISES(CoreValuePacker::Unpack(packed, {first, second}), TypeMismatch);
        EXPECT_EQ(first, Variant(1));
    }
    EXPECT_EQ(other->name(), u"Ben");
    EXPECT_RAISES(CoreValuePacker::unpackAll(packed), TypeMismatch);
}

TEST(CoreValuePackerTest, OtherObjectsHaveNoTextForm)
{
    EXPECT_RAISES(CoreValuePacker::Pack({ObjectPtr(std::make_shared<test::Something>())}), TypeMismatch);
}

} // namespace
} // namespace phial
