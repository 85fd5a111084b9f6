#pragma once

#include "core/Locale.h"
#include "core/String.h"
#include "core/Variant.h"

namespace phial
{

/// A value formatted by a pattern. A pattern with `0` or `#` formats a number, any other a moment; the value
/// is converted to what the pattern asks for (13 when it cannot be).
///
/// Number patterns, such as `#0.00`: before the point each `0` is a digit that is always shown, `#` one that
/// is shown when needed; behind it likewise. The point becomes the locale's decimal sign. The number is
/// rounded as roundToDecimals does; no "-0".
///
/// Moment patterns, letters in either case: `d` day, `dd` with two digits, `ddd` and `dddd` its short and
/// full name; `m`, `mm`, `mmm`, `mmmm` month likewise; `yy`, `yyyy` year; `h`, `hh` hour 0 to 23; `n`, `nn`
/// minute; `s`, `ss` second. `m` and `mm` directly behind an hour are minutes. Names are in the language in
/// force.
///
/// In both, `"quoted"` text, the unit behind a backslash, and every other sign stand for themselves.
String formatPattern(const Variant& value, StringView pattern, const Locale& locale = currentLocale());

} // namespace phial
