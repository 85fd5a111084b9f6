#include "core/RecordFormat.h"

#include "core/Checksum.h"
#include "support/OddValues.h"
#include "support/Raises.h"
#include "support/RandomValues.h"
#include "support/RecordOf.h"

#include <cmath>
#include <gmock/gmock-matchers.h>
#include <limits>

namespace phial
{
namespace
{

using record_format::frameOf;
using record_format::State;
using record_format::valuesOf;
using Values = std::vector<Variant>;
using namespace std::string_literals;
using namespace std::string_view_literals;

std::string bodyOf(const Values& values)
{
    return test::recordOf(values).body();
}

TEST(Checksum, HasTheValuesOfItsStandard)
{
    EXPECT_EQ(crc32c(""), 0U);
    EXPECT_EQ(crc32c("123456789"), 0xE3069283U);
    EXPECT_EQ(crc32c(std::string(32, '\0')), 0x8A9136AAU);
    EXPECT_EQ(crc32c(std::string(32, '\xFF')), 0x62A8AB43U);
}

TEST(Checksum, ContinuesWhereAnotherEnded)
{
    const std::string_view text = "Wasserstoff, Helium, Lithium";
    for (std::size_t at = 0; at <= text.size(); ++at) {
        EXPECT_EQ(crc32c(text.substr(at), crc32c(text.substr(0, at))), crc32c(text)) << at;
    }
}

TEST(RecordFormat, ValuesOfEveryKindComeBack)
{
    const Values values = {{},
                           Variant(true),
                           Variant(false),
                           std::numeric_limits<std::int32_t>::min(),
                           std::numeric_limits<std::int32_t>::max(),
                           2.5,
                           -std::numeric_limits<double>::infinity(),
                           Moment{45292.75},
                           u"",
                           u"Säure",
                           u"H₂O",
                           String(u"\0\xD800\xFFFF", 3),
                           Variant::Array{},
                           Variant::Array{1, u"a", Variant::Array{{}}},
                           ObjectPtr()};
    EXPECT_EQ(valuesOf(bodyOf(values)), values);
}

TEST(RecordFormat, NumbersComeBackToTheLastBit)
{
    EXPECT_TRUE(std::signbit(valuesOf(bodyOf({-0.0})).at(0).toReal()));
    EXPECT_TRUE(std::isnan(valuesOf(bodyOf({std::nan("")})).at(0).toReal()));
    EXPECT_EQ(valuesOf(bodyOf({Variant(0.1)})).at(0).toReal(), 0.1);
}

TEST(RecordFormat, RandomValuesComeBack)
{
    for (unsigned seed = 0; seed < 200; ++seed) {
        test::RandomValues random(seed);
        Values values;
        for (unsigned count = seed % 20; count > 0; --count) {
            values.push_back(random.value());
        }
        EXPECT_EQ(valuesOf(bodyOf(values)), values) << "seed " << seed;
    }
}

TEST(RecordFormat, TheBytesAreAsDocumented)
{
    const std::string body = bodyOf({u"2.0", 3, Variant(true), 2.5, u"Ω"});
    EXPECT_EQ(body, "\x06\x03\0\0\0"
                    "2.0"
                    "\x03\x03\0\0\0"
                    "\x02"
                    "\x04\0\0\0\0\0\0\x04\x40"
                    "\x07\x01\0\0\0\xA9\x03"sv);
    EXPECT_EQ(record_format::framed(body, false), "QVR\x1A"
                                                  "\x01\0"
                                                  "\0\0"
                                                  "\x1E\0\0\0\0\0\0\0"
                                                  "\x5D\xD5\x97\x48"s +
                                                      body);
}

TEST(RecordFormat, TheFirstValueIsGivenWhenAllAreSound)
{
    const std::string body = bodyOf({u"2.0",
                                     Variant(true),
                                     {},
                                     7,
                                     2.5,
                                     Moment{1},
                                     u"a",
                                     u"Ω",
                                     Variant::Array{1, Variant::Array{u"b"}},
                                     ObjectPtr()});
    EXPECT_EQ(record_format::firstValueOf(body), Variant(u"2.0"));
    EXPECT_EQ(record_format::firstValueOf(""), Variant());
    for (std::size_t size = 1; size < body.size(); ++size) {
        const std::string_view part = std::string_view(body).substr(0, size);
        EXPECT_EQ(ignoringErrors([&] { record_format::firstValueOf(part); }),
                  ignoringErrors([&] { valuesOf(part); }))
            << size;
    }
    EXPECT_RAISES(record_format::firstValueOf(body + '\x0A'), InvalidArgument);
}

TEST(RecordFormat, AnObjectThatIsSetCannotBeWritten)
{
    EXPECT_RAISES(bodyOf({ObjectPtr(std::make_shared<test::Something>())}), TypeMismatch);
}

TEST(RecordFormat, NestingIsLimitedOnBothSides)
{
    const Values deepest = {test::nested(record_format::MaxNesting)};
    EXPECT_EQ(valuesOf(bodyOf(deepest)), deepest);
    EXPECT_RAISES(bodyOf({test::nested(record_format::MaxNesting + 1)}), InvalidArgument);
    std::string tooDeep;
    for (int level = 0; level <= record_format::MaxNesting; ++level) {
        tooDeep += "\x08\x01\0\0\0"sv;
    }
    EXPECT_RAISES(valuesOf(tooDeep + '\0'), InvalidArgument);
    EXPECT_RAISES(record_format::firstValueOf('\0' + tooDeep + '\0'), InvalidArgument);
}

TEST(RecordFormat, NoMoreValuesThanAllowedAreTaken)
{
    EXPECT_RAISES(valuesOf(std::string(record_format::MaxValues + 1, '\0')), InvalidArgument);
    EXPECT_RAISES(bodyOf(Values(record_format::MaxValues + 1)), InvalidArgument);
}

TEST(RecordFormat, LengthsBeyondTheBodyTakeNoMemory)
{
    EXPECT_RAISES(valuesOf("\x06\xFF\xFF\xFF\xFFxyz"sv), InvalidArgument);
    EXPECT_RAISES(valuesOf("\x07\xFF\xFF\xFF\xFFxyz"sv), InvalidArgument);
    EXPECT_RAISES(valuesOf("\x08\xFF\xFF\xFF\xFFxyz"sv), InvalidArgument);
    EXPECT_RAISES(valuesOf("\x08\xFF\xFF\xFF"sv), InvalidArgument);
}

TEST(RecordFormat, UnknownTagsEndTheReading)
{
    EXPECT_RAISES(valuesOf("\x02\x0A"sv), InvalidArgument);
    EXPECT_RAISES(valuesOf("\x02\xFF"sv), InvalidArgument);
}

TEST(RecordFormat, ATextHasOneFormOnly)
{
    EXPECT_RAISES(valuesOf("\x07\x01\0\0\0a\0"sv), InvalidArgument);
    EXPECT_RAISES(valuesOf("\x07\0\0\0\0"sv), InvalidArgument);
}

TEST(RecordFormat, AFrameTellsWhetherItIsSealed)
{
    for (const bool isSealed : {false, true}) {
        const std::string file = record_format::framed("body", isSealed);
        const record_format::Frame frame = frameOf(file);
        EXPECT_EQ(frame.state, State::Whole);
        EXPECT_EQ(frame.isSealed, isSealed);
        EXPECT_EQ(frame.body, "body");
    }
}

TEST(RecordFormat, EveryOtherByteInAnyPlaceIsNoticed)
{
    const std::string file = record_format::framed(bodyOf({u"2.0", u"ID", 10, Variant(true)}), false);
    for (std::size_t at = 0; at < file.size(); ++at) {
        for (int change = 1; change < 256; ++change) {
            std::string damaged = file;
            damaged[at] = static_cast<char>(damaged[at] ^ change);
            ASSERT_NE(frameOf(damaged).state, State::Whole) << "byte " << at << ", change " << change;
        }
    }
}

TEST(RecordFormat, EveryTruncationAndEveryAdditionIsNoticed)
{
    const std::string file = record_format::framed(bodyOf({u"2.0", u"ID", 10}), false);
    for (std::size_t size = 0; size < file.size(); ++size) {
        EXPECT_EQ(frameOf(std::string_view(file).substr(0, size)).state, State::Damaged) << size;
    }
    EXPECT_EQ(frameOf(file + '\0').state, State::Damaged);
    EXPECT_EQ(frameOf(file + file).state, State::Damaged);
}

TEST(RecordFormat, ALaterFormatIsTold)
{
    std::string file = record_format::framed("body", false);
    file[4] = 2;
    EXPECT_EQ(frameOf(file).state, State::Newer);
}

} // namespace
} // namespace phial
