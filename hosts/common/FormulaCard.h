#pragma once

#include "common/FrameDesign.h"
#include "common/TaskFile.h"
#include "term/ctl_TermLabel.h"

namespace phial
{
class cls_DataElements;
}

namespace learning
{

/// A formula or an equation in one line of plain text: "Ca(OH)₂" for Ca(OH)2, "CuSO₄·5H₂O" for CuSO4*5H2O,
/// "SO₄²⁻" for SO4^2-. Anything else as it stands.
phial::String formulaLine(phial::StringView formula);

/// A formula and what it is called, on the card of the task: as large as the formula fits.
class FormulaCard
{
public:
    /// The rows of the app's table that make the card.
    static constexpr phial::ControlDesign card() { return frame_design::card(u"pan_Formula"); }
    static constexpr phial::ControlDesign formula()
    {
        return phial::design<phial::ctl_TermLabel>(u"trm_Formula", {16, 24, Width, 84})
            .inside(u"pan_Formula")
            .ink(phial::Palette::Ink)
            .align(phial::TEXTALIGN::MiddleCentre);
    }
    static constexpr phial::ControlDesign name()
    {
        return phial::design<phial::ctl_Label>(u"lab_Name", {16, 120, Width, 36})
            .inside(u"pan_Formula")
            .font(13)
            .ink(phial::Palette::Muted)
            .align(phial::TEXTALIGN::MiddleCentre)
            .set(u"PlainText", true);
    }

    /// What keeps a line of a task file from being a formula for the card: it has no symbol, counts what
    /// nobody can, or is too wide even in the smallest size.
    static std::optional<TaskFault> faultOf(const phial::String& formula);
    /// The same, and whether it has a symbol that is not in that table.
    static std::optional<TaskFault> faultOf(const phial::String& formula,
                                            const phial::cls_DataElements& elements);

    explicit FormulaCard(phial::Form& form);

    /// The card as a whole.
    phial::ControlPtr panel() const { return form_.control<phial::ctl_Pannel>(u"pan_Formula"); }

    void show(const ListedTask& task);
    /// Shows the name in the language in force.
    void TRANSLATE();
    /// The name, and the formula in words.
    phial::String spoken() const;

private:
    static constexpr double Width = 528;

    phial::String calledName() const;

    phial::Form& form_;
    std::shared_ptr<phial::ctl_TermLabel> formula_;
    ListedTask task_;
};

} // namespace learning
