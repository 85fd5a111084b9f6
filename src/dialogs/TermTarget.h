#pragma once

#include "core/Object.h"

namespace phial
{

/// The term of a control that the keyboards for terms edit: `Term` of a clt_TermInput, `TEXT` of anything
/// else. Nothing is raised: a control that is null or has no such property gives the empty term, and is
/// written to nowhere.
String readTerm(const ObjectPtr& control);
void writeTerm(const ObjectPtr& control, const String& term);

} // namespace phial
