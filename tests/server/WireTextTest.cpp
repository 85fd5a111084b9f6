#include "server/WireText.h"

#include "core/CoreParameters.h"
#include "core/CoreValuePacker.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <limits>

namespace phial
{

namespace
{

TEST(RequestText, JoinsModuleCommandAndPackage)
{
    EXPECT_EQ(requestText(u"SERVER", u"LOGON", u"Anna"), u"SERVER::LOGON::Anna");
    EXPECT_EQ(requestText(u"SERVER", u"ALIVE", u""), u"SERVER::ALIVE::");
}

TEST(RequestText, ComesApartAgain)
{
    const WireRequest request{u"PROPERTIES", u"GET", u"a::b::"};
    EXPECT_EQ(parseRequest(requestText(request.module, request.command, request.package)), request);
    EXPECT_EQ(parseRequest(u"::::"), WireRequest());
}

TEST(RequestText, NeedsTwoDividers)
{
    EXPECT_EQ(parseRequest(u""), std::nullopt);
    EXPECT_EQ(parseRequest(u"SERVER"), std::nullopt);
    EXPECT_EQ(parseRequest(u"SERVER::ALIVE:"), std::nullopt);
    EXPECT_EQ(parseRequest(u"SERVER:::ALIVE"), std::nullopt);
}

TEST(AnswerText, BeginsWithTheType)
{
    EXPECT_EQ(answerText(u"LOGON:OK"), u"008:LOGON:OK");
    EXPECT_EQ(answerText(-3), u"003:-3");
    EXPECT_EQ(answerText(2.5), u"005:2.5");
    EXPECT_EQ(answerText(true), u"011:1");
    EXPECT_EQ(answerText(false), u"011:0");
}

TEST(AnswerText, PacksWhatHasNoTypeOfItsOwn)
{
    EXPECT_EQ(answerText(Variant()), u"000:" + CoreValuePacker::Pack({Variant()}));
    const Variant list(Variant::Array{1, u"a|b"});
    EXPECT_EQ(answerText(list), u"012:" + CoreValuePacker::Pack({list}));
}

TEST(AnswerText, ComesBackAsItsValue)
{
    const std::vector<Variant> values = {Variant(),
                                         u"",
                                         u"a::b\r\n|{ä",
                                         std::numeric_limits<std::int32_t>::min(),
                                         0.1,
                                         -1e-300,
                                         std::numeric_limits<double>::infinity(),
                                         true,
                                         false,
                                         Moment{46083.25},
                                         Variant::Array{1, Variant::Array{u"x"}}};
    for (const Variant& value : values) {
        EXPECT_EQ(answerValue(answerText(value)), value) << toUtf8(answerText(value));
    }
}

TEST(AnswerValue, ReadsEachType)
{
    EXPECT_EQ(answerValue(u"002:-32768"), Variant(-32768));
    EXPECT_EQ(answerValue(u"003:70000"), Variant(70000));
    EXPECT_EQ(answerValue(u"004:1.5"), Variant(1.5));
    EXPECT_EQ(answerValue(u"005:1E3"), Variant(1000.0));
    EXPECT_EQ(answerValue(u"008:  as it stands "), Variant(u"  as it stands "));
    EXPECT_EQ(answerValue(u"011:1"), Variant(true));
    EXPECT_EQ(answerValue(u"011:true"), Variant(false));
    EXPECT_EQ(answerValue(u"099:" + CoreValuePacker::Pack({u"x"})), Variant(u"x"));
}

TEST(AnswerValue, TakesAnySignBetweenTypeAndPayload)
{
    EXPECT_EQ(answerValue(u"008 text"), Variant(u"text"));
    EXPECT_EQ(answerPayload(u"0081text"), u"text");
}

TEST(AnswerValue, RoundsForWholeTypes)
{
    EXPECT_EQ(answerValue(u"003:2.5"), Variant(2));
    EXPECT_EQ(answerValue(u"002: 7 "), Variant(7));
}

TEST(AnswerValue, RaisesWhereTheTypeWantsANumber)
{
    EXPECT_RAISES(answerValue(u"003:"), TypeMismatch);
    EXPECT_RAISES(answerValue(u"003:seven"), TypeMismatch);
    EXPECT_RAISES(answerValue(u"005:1,5"), TypeMismatch);
}

TEST(AnswerValue, RaisesBeyondTheRangeOfTheType)
{
    EXPECT_RAISES(answerValue(u"002:32768"), Overflow);
    EXPECT_RAISES(answerValue(u"002:-32769"), Overflow);
    EXPECT_RAISES(answerValue(u"003:2147483648"), Overflow);
    EXPECT_RAISES(answerValue(u"005:1e999"), Overflow);
}

TEST(AnswerValue, RaisesWhereNoSinglePackedValueIsFound)
{
    EXPECT_RAISES(answerValue(u""), InvalidArgument);
    EXPECT_RAISES(answerValue(u"LOGON:OK"), InvalidArgument);
    EXPECT_RAISES(answerValue(u"000:" + CoreValuePacker::Pack({1, 2})), InvalidArgument);
}

TEST(AnswerPayload, IsEmptyForAnAnswerWithoutOne)
{
    EXPECT_EQ(answerPayload(u"008:"), u"");
    EXPECT_EQ(answerPayload(u"008"), u"");
    EXPECT_EQ(answerPayload(u""), u"");
    EXPECT_EQ(answerPayload(u"LOGON:OK"), u"N:OK");
}

} // namespace

} // namespace phial
