#include "desk/pHRulesDesign.h"

#include "desk/SheetDesign.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Title.h"

namespace phial::tool_ph_rules_design
{

namespace
{

using sheet_design::Margin;

constexpr double Header = 56;
constexpr double Width = 760;
constexpr double Height = 420;
constexpr double RulesWidth = 400;
constexpr double RuleHeight = 66;
constexpr double TableLeft = Margin + RulesWidth + 24;

/// A rule with what it is for above it.
constexpr ControlDesign rule(std::int32_t row, StringView text)
{
    return design<ctl_Label>(u"lab_Rule", {Margin, Header + 12 + row * RuleHeight, RulesWidth, RuleHeight},
                             text)
        .at(row)
        .font(12)
        .ink(Palette::Ink)
        .align(TEXTALIGN::TopLeft);
}

constexpr ControlDesign RuleControls[] = {
    design<ctl_Title>(u"bar_Header", {0, 0, Width, Header}, u"Regeln zum pH-Wert|Rules of pH")
        .font(16, FontWeight::Bold)
        .set(u"Closable", false)
        .unfocusable(),
    rule(0, u"<b>pH und pOH</b><br>pH = −log c(H<sub>3</sub>O<sup>+</sup>)   pH + pOH = 14 (25 °C)|"
            u"<b>pH and pOH</b><br>pH = −log c(H<sub>3</sub>O<sup>+</sup>)   pH + pOH = 14 (25 °C)"),
    rule(1, u"<b>Starke Säure</b> (pKs unter −1,74)<br>pH = −log c<sub>0</sub>|"
            u"<b>Strong acid</b> (pKa below −1.74)<br>pH = −log c<sub>0</sub>"),
    rule(2, u"<b>Schwache Säure</b><br>pH = ½ · (pKs − log c<sub>0</sub>)|"
            u"<b>Weak acid</b><br>pH = ½ · (pKa − log c<sub>0</sub>)"),
    rule(3, u"<b>Säure und ihre Base</b><br>pKs + pKb = 14 (25 °C)|"
            u"<b>An acid and its base</b><br>pKa + pKb = 14 (25 °C)"),
    rule(4, u"<b>Puffer</b><br>pH = pKs + log(c(Base) : c(Säure))|"
            u"<b>Buffer</b><br>pH = pKa + log(c(base) : c(acid))"),
    design<ctl_Label>(u"ctl_Label1",
                      {TableLeft, Header + 12, Width - TableLeft - Margin, Height - Header - 24})
        .font(12)
        .ink(Palette::Ink)
        .align(TEXTALIGN::TopLeft),
    sheet_design::commandBar(Width, Height),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_ToolpHRules",
                            .caption = u"Regeln zum pH-Wert|Rules of pH",
                            .size = {Width, Height + sheet_design::BarHeight},
                            .border = BorderStyle::FixedDialog,
                            .closesByEscape = true,
                            .controls = RuleControls};

} // namespace phial::tool_ph_rules_design
