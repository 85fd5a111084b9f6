#pragma once

#include "common/LearningApp.h"

namespace learning
{

/// Leads the app through each of its states in both languages, on the open session with INIT behind it, and
/// shows each to `take` with a name such as "molmasse-task-de", which begins with the app's own in small
/// letters.
void showEachState(const MakeApp& makeApp,
                   const std::function<void(phial::StringView name, const phial::Form& form)>& take);

} // namespace learning
