#pragma once

#include "visual/FormDesign.h"

/// The design of frm_ToolpHRules: rules at the left, the table of acids at the right.
namespace phial::tool_ph_rules_design
{

inline constexpr StringView TableHead = u"Säure               Base           pKs|"
                                        u"Acid                Base           pKa";

extern const FormDesign Design;

} // namespace phial::tool_ph_rules_design
