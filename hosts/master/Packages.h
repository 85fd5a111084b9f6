#pragma once

#include "core/Moment.h"
#include "core/String.h"
#include "master/MasterStore.h"

#include <cstddef>

namespace phial::master
{

/// What is kept of names and labels, and of further values in their packed form, in units.
inline constexpr std::size_t MaxNameLength = 100;
inline constexpr std::size_t MaxLabelLength = 200;
inline constexpr std::size_t MaxAdditionalLength = 65536;
/// Points are numbers from -1E9 to 1E9, and reachable points not below 0.
inline constexpr double MaxPoints = 1e9;

/// A text from outside as it may be kept and shown: on one line, without control characters and surrogate
/// halves, without outer blanks, and cut to that length.
String cleaned(StringView text, std::size_t maxLength);

/// The result in the package of a submission: points, reachable points, exercise, additional values, screen
/// name, computer, login. Raises 5 or 13 for another package and for additional values that are too long or
/// no packed list, and 6 for points that cannot be.
Result unpackResult(StringView package, Moment at);

/// Whether somebody has more points than can be reached, which is taken in and marked.
bool isImplausible(double points, double pointsMax);

/// The event in the package of `EVENT` `ADD`: action, additional values, screen name, computer, login. Raises
/// as above.
PupilEvent unpackEvent(StringView package, Moment at);

/// Kept additional values for people, on one line; the empty text for what is none of ours.
String shownAdditional(const String& packed);

} // namespace phial::master
