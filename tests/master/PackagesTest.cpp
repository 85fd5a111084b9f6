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
    EXPECT_EQ(cleaned(u"   ", 100), u"");
}

TEST(Packages, LongNamesAreCutButNotWithinASign)
{
    EXPECT_EQ(cleaned(u"abcdef", 3), u"abc");
    EXPECT_EQ(cleaned(u"ab\U0001F600", 3), u"ab");
    EXPECT_EQ(cleaned(u"ab cd", 3), u"ab");
}

TEST(Packages, PointsMustBeFiniteNumbers)
{
    EXPECT_EQ(unpackResult(packageWith(7.5), At).points, 7.5);
    EXPECT_EQ(unpackResult(packageWith(7), At).points, 7);
    EXPECT_RAISES(unpackResult(packageWith(std::numeric_limits<double>::infinity()), At), InvalidArgument);
    EXPECT_RAISES(unpackResult(packageWith(std::numeric_limits<double>::quiet_NaN()), At), InvalidArgument);
    EXPECT_RAISES(unpackResult(packageWith(u"viele"), At), TypeMismatch);
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
}

} // namespace
