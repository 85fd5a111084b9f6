#pragma once

#include "common/FrameDesign.h"
#include "dialogs/ctl_QVInput.h"
#include "formeln/FormulaTasks.h"
#include "term/ctl_TermLabel.h"

#include <optional>
#include <vector>

namespace formeln
{

/// An equation on the card of the task, with a field for the factor of each of its substances: what reacts in
/// the upper row, what is formed, behind the arrow, in the lower one. A field that is empty stands for 1, but
/// not all of them may be.
class EquationCard
{
public:
    /// An equation of more substances has no room.
    static constexpr std::int32_t MostSubstances = 8;

    // The rows of the app's table that make the card.
    static constexpr phial::ControlDesign card() { return learning::frame_design::card(u"pan_Equation"); }
    static constexpr phial::ControlDesign title()
    {
        return phial::design<phial::ctl_Label>(u"lab_Equation", {16, 8, RowWidth, 32})
            .inside(u"pan_Equation")
            .font(12)
            .ink(phial::Palette::Muted)
            .align(phial::TEXTALIGN::MiddleCentre)
            .set(u"PlainText", true);
    }
    static constexpr phial::ControlDesign substances()
    {
        return phial::design<phial::ctl_TermLabel>(u"trm_Substance", {0, 0, 40, FieldHeight})
            .repeated(MostSubstances, MostSubstances, 40, 0)
            .inside(u"pan_Equation")
            .ink(phial::Palette::Ink)
            .align(phial::TEXTALIGN::MiddleLeft)
            .hidden();
    }
    /// "+" before each substance but the first of a row, and the arrow.
    static constexpr phial::ControlDesign signs()
    {
        return phial::design<phial::ctl_TermLabel>(u"trm_Sign", {0, 0, SignWidth, FieldHeight})
            .repeated(MostSubstances, MostSubstances, SignWidth, 0)
            .inside(u"pan_Equation")
            .ink(phial::Palette::Muted)
            .align(phial::TEXTALIGN::MiddleCentre)
            .hidden();
    }
    static constexpr phial::ControlDesign factors()
    {
        return phial::design<phial::ctl_QVInput>(u"txt_Factor", {0, 0, FieldWidth, FieldHeight})
            .repeated(MostSubstances, MostSubstances, FieldWidth, 0)
            .inside(u"pan_Equation")
            .font(16)
            .ground(phial::Palette::Surface)
            .set(u"MODE", phial::ID_InputMode_Number)
            .set(u"AsTyped", true)
            .set(u"MaxLength", 2)
            .hidden();
    }

    /// Whether there is room for the equation.
    static bool fits(const Equation& equation);

    /// The controls stand on the form.
    explicit EquationCard(phial::Form& form);
    EquationCard(const EquationCard&) = delete;
    EquationCard& operator=(const EquationCard&) = delete;

    void Visible(bool value);
    void show(const Equation& equation, const phial::String& title);
    /// Says in the language in force which factor a field is.
    void TRANSLATE(const phial::String& title);

    /// What stands in the fields: one number for each substance, from left to right; empty where one of them
    /// holds anything else than a whole number above 0, or all are empty.
    std::optional<std::vector<int>> values() const;
    /// Puts these into the fields.
    void fill(const std::vector<int>& values);
    void fillUnreadable();
    phial::ControlPtr field() const;
    void openKeyboard();
    /// What is typed next into the first field replaces what stands there.
    void retry();
    /// They can be read and no longer changed.
    void close(bool isClosed);

private:
    static constexpr double RowWidth = 528;
    static constexpr double FieldWidth = 44;
    static constexpr double FieldHeight = 48;
    static constexpr double SignWidth = 30;
    static constexpr double ArrowWidth = 56;
    static constexpr double Gap = 6; ///< between a field and its substance

    static double rowWidth(const std::vector<phial::String>& row, double points);
    static std::optional<double> fittingSize(const Equation& equation);
    void place(const std::vector<phial::String>& row, std::int32_t first, double left, double top);
    phial::TextBox& input(std::int32_t index) const
    {
        return fields_.at(static_cast<std::size_t>(index))->input();
    }

    phial::Form& form_;
    std::vector<std::shared_ptr<phial::ctl_QVInput>> fields_;
    std::int32_t count_ = 0; ///< of the substances
    double points_ = 0;      ///< the letters' size
};

} // namespace formeln
