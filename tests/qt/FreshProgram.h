#pragma once

namespace phial::qt
{

/// With this argument the test program prints the user's language instead of testing: the toolkit looks at
/// the environment once a process.
inline constexpr auto TellLanguage = "--user-language";

} // namespace phial::qt
