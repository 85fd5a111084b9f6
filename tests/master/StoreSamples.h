#pragma once

#include "master/MasterStore.h"

#include <string>

namespace phial::test
{

/// A place for a new database, another one each time, of the kind that this test program is for.
std::string newStorePlace();

/// A second apart, as the store keeps time.
inline Moment at(int second)
{
    return Moment::fromCalendar({2026, 11, 20, 8, 15, second});
}

inline master::Result resultOf(StringView name, int second = 0)
{
    return {at(second), {String(name), u"login", u"PC 7"}, u"Säuren \U0001F9EA", -7.25, 1e100, u"QV1;0;"};
}

inline master::PupilEvent eventOf(StringView action)
{
    return {at(1), {u"Zoë", u"", u"PC'7\"; --"}, String(action), u"QV1;0;"};
}

} // namespace phial::test
