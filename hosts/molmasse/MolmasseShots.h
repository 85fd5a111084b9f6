#pragma once

#include "core/String.h"

#include <functional>

namespace phial
{
class Form;
}

namespace molmasse
{

/// Leads the trainer through each of its states in both languages, on the open session with INIT behind it,
/// and shows each to `take` with a name such as "molmasse-task-de".
void showEachState(const std::function<void(phial::StringView name, const phial::Form& form)>& take);

} // namespace molmasse
