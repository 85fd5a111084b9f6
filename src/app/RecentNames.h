#pragma once

#include "core/String.h"

#include <vector>

namespace phial
{

/// The name under which a pupil is shown, and the picture that goes with it.
struct RecentName {
    String name;
    String avatar; ///< the avatar's ID; empty for none

    friend bool operator==(const RecentName&, const RecentName&) = default;
};

/// The names chosen so far on this account, the latest first. A stored entry is the name, a ":" and the
/// avatar's ID and is divided at its first ":", so that a name which holds one comes back cut there. One
/// without ":" is a name without avatar. A store that cannot be read gives none.
std::vector<RecentName> recentNames();

/// Puts a name in first place. Equal entries, whose case does not count, leave the list, which may grow
/// without limit.
void rememberName(const RecentName& chosen);

} // namespace phial
