#pragma once

#include "visual/FormDesign.h"

/// The design of frm_ToolQuiz: a question with four keys for what may be the answer.
namespace phial::tool_quiz_design
{

inline constexpr StringView GoesOn = u"QUIZ.NEXT();";

extern const FormDesign Design;

} // namespace phial::tool_quiz_design
