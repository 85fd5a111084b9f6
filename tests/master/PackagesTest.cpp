#include "master/Packages.h"

#include "core/CoreParameters.h"
#include "core/CoreValuePacker.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <limits>

using namespace phial;
using namespace phial::master;

namespace
{

constexpr Moment At{45000.5};

String packageWith(const Variant& points, const Variant& additional = CoreParameters().Pack())
{
    return CoreValuePacker::Pack({points, 10.0, u"Salze", additional, u"Anna", u"PC7", u"anna"});
}

TEST(Packages, NamesLoseWhatCannotBeShown)
{
    EXPECT_EQ(cleaned(u"  An\nna\0\x85 ", 100), u"An na");
    EXPECT_EQ(cleaned(String(u"a\0b", 3), 100), u"a b");
    EXPECT_EQ(cleaned(String(u"x\xD800y\xDC00", 4), 100), u"x\uFFFDy\uFFFD");
    EXPECT_EQ(cleaned(u"\U0001F600", 100), u"\U0001F600");
    EXPECT_EQ(cleaned(u"\uFEFFAn\uFEFFna", 100), u"An na");
    EXPECT_EQ(cleaned(u"   ", 100), u"");
    EXPECT_EQ(cleaned(u"a\u001Fb\u007Fc\u0080d\u009Fe\u00A0f\u2028g\u2029h~i", 100),
              u"a b c d e\u00A0f g h~i");
    EXPECT_EQ(cleaned(String(u"\xDBFF\xDFFF\xD800\xDC00\xDBFF", 5), 100),
              String(u"\xDBFF\xDFFF\xD800\xDC00\uFFFD", 5));
    EXPECT_EQ(cleaned(String(u"\xDFFF\xD7FF\xE000", 3), 100), String(u"\uFFFD\xD7FF\xE000", 3));
}

TEST(Packages, LongNamesAreCutButNotWithinASign)
{
    EXPECT_EQ(cleaned(u"abcdef", 3), u"abc");
    EXPECT_EQ(cleaned(u"ab\U0001F600", 3), u"ab");
    EXPECT_EQ(cleaned(u"ab cd", 3), u"ab");
    EXPECT_EQ(cleaned(u"\U0001F600", 0), u"");
    EXPECT_EQ(cleaned(u"abc", 3), u"abc");
    EXPECT_EQ(cleaned(u"a\U0001F600", 3), u"a\U0001F600");
}

TEST(Packages, PointsMustBePossible)
{
    for (const double points : {7.5, 0.0, -3.0, MaxPoints, -MaxPoints}) {
        EXPECT_EQ(unpackResult(packageWith(points), At).points, points);
    }
    EXPECT_EQ(unpackResult(packageWith(7), At).points, 7);
    for (const double points :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN(), 1e300, MaxPoints + 1, -MaxPoints - 1}) {
        EXPECT_RAISES(unpackResult(packageWith(points), At), Overflow) << points;
    }
    EXPECT_RAISES(unpackResult(packageWith(u"viele"), At), TypeMismatch);
}

TEST(Packages, ReachablePointsAreNotNegative)
{
    const auto reachable = [](double points) {
        const String package =
            CoreValuePacker::Pack({1.0, points, u"", CoreParameters().Pack(), u"Anna", u"PC7", u"anna"});
        return unpackResult(package, At).pointsMax;
    };
    EXPECT_EQ(reachable(0), 0);
    EXPECT_EQ(reachable(MaxPoints), MaxPoints);
    for (const double points : {-1e-9, -1.0, MaxPoints + 1, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_RAISES(reachable(points), Overflow) << points;
    }
}

TEST(Packages, MorePointsThanCanBeReachedAreImplausible)
{
    EXPECT_FALSE(isImplausible(10, 10));
    EXPECT_TRUE(isImplausible(10.5, 10));
    EXPECT_FALSE(isImplausible(0, 0));
    EXPECT_TRUE(isImplausible(1, 0));
}

TEST(Packages, AdditionalValuesAreReadAndPackedAnew)
{
    CoreParameters values;
    values.Set(u"Fehler", 3);
    EXPECT_EQ(unpackResult(packageWith(1.0, values.TextLine()), At).additional, values.Pack());
    EXPECT_RAISES(unpackResult(packageWith(1.0, u"junk"), At), InvalidArgument);
    EXPECT_RAISES(unpackResult(packageWith(1.0, String(MaxAdditionalLength + 1, u' ')), At), InvalidArgument);
    EXPECT_RAISES(unpackResult(packageWith(1.0, 3), At), TypeMismatch);
}

TEST(Packages, AnotherNumberOfValuesIsRefused)
{
    EXPECT_RAISES(unpackResult(CoreValuePacker::Pack({1.0, 2.0}), At), InvalidArgument);
    EXPECT_RAISES(unpackEvent(packageWith(1.0), At), InvalidArgument);
    EXPECT_RAISES(unpackEvent(u"", At), InvalidArgument);
}

TEST(Packages, WhoHasNoNameIsCalledByTheLogin)
{
    const String package = CoreValuePacker::Pack({u"Start", CoreParameters().Pack(), u" ", u"PC7", u"anna"});
    EXPECT_EQ(unpackEvent(package, At).sender.screenName, u"anna");
    EXPECT_EQ(unpackEvent(package, At).sender.computer, u"PC7");
    EXPECT_EQ(unpackEvent(package, At).action, u"Start");
    EXPECT_EQ(unpackEvent(package, At).at, At);
}

TEST(Packages, NamesAndLabelsAreCutToTheirLengths)
{
    const String longText(300, u'x');
    const Result result = unpackResult(
        CoreValuePacker::Pack({1.0, 2.0, longText, CoreParameters().Pack(), longText, longText, longText}),
        At);
    EXPECT_EQ(result.exercise.size(), MaxLabelLength);
    EXPECT_EQ(result.sender.screenName.size(), MaxNameLength);
    EXPECT_EQ(result.sender.userName.size(), MaxNameLength);
    EXPECT_EQ(result.sender.computer.size(), MaxNameLength);
    EXPECT_EQ(result.pointsMax, 2.0);
    const PupilEvent event =
        unpackEvent(CoreValuePacker::Pack({longText, CoreParameters().Pack(), u"Anna", u"PC7", u"anna"}), At);
    EXPECT_EQ(event.action.size(), MaxLabelLength);
}

TEST(Packages, FurtherValuesAreShownOnOneLine)
{
    CoreParameters values;
    values.Set(u"Fehler", 3);
    EXPECT_EQ(shownAdditional(values.Pack()), u"Fehler = 3");
    EXPECT_EQ(shownAdditional(u"junk"), u"");
}

} // namespace
