#include "desk/QuizDesign.h"

#include "desk/SheetDesign.h"
#include "desk/SheetQuiz.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

namespace phial::tool_quiz_design
{

namespace
{

using sheet_design::Margin;

constexpr double Width = 640;
constexpr double Height = 344;
constexpr double Gap = 12;
constexpr double ChoiceWidth = (Width - 2 * Margin - Gap) / 2;
constexpr double ChoiceHeight = 64;
constexpr std::int32_t Columns = 2;

constexpr ButtonDesign Commands[] = {{GoesOn, u"Weiter|Next"}, {sheet_design::Confirm, u"Schließen|Close"}};

constexpr ControlDesign QuizControls[] = {
    design<ctl_Label>(u"lab_Progress", {Margin, 8, Width - 2 * Margin, 28})
        .font(11)
        .ink(Palette::Muted)
        .align(TEXTALIGN::MiddleLeft),
    design<ctl_Label>(u"lab_Question", {Margin, 36, Width - 2 * Margin, 80})
        .font(16, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(TEXTALIGN::MiddleLeft)
        .set(u"PlainText", true),
    design<ctl_Button>(u"but_Choice", {Margin, 124, ChoiceWidth, ChoiceHeight})
        .repeated(QuizChoices, Columns, ChoiceWidth + Gap, ChoiceHeight + Gap)
        .font(16),
    design<ctl_Label>(u"lab_Verdict", {Margin, 276, Width - 2 * Margin, 60})
        .font(13, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(TEXTALIGN::MiddleLeft)
        .set(u"PlainText", true),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height, Width, sheet_design::BarHeight}).buttons(Commands),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_ToolQuiz",
                            .caption = u"Üben|Practise",
                            .size = {Width, Height + sheet_design::BarHeight},
                            .border = BorderStyle::FixedDialog,
                            .closesByEscape = true,
                            .controls = QuizControls};

} // namespace phial::tool_quiz_design
