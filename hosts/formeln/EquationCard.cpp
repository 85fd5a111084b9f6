#include "formeln/EquationCard.h"

#include "common/FormulaCard.h"
#include "common/FrameTexts.h"
#include "common/TermFit.h"
#include "core/CoreNumbers.h"
#include "term/TermSpeech.h"
#include "visual/Form.h"

#include <algorithm>
#include <array>

namespace formeln
{

using phial::String;

namespace
{

constexpr auto SubstanceSizes = std::to_array<double>({22, 19, 16, 13.5}); // points
constexpr phial::StringView Arrow = u"->";
constexpr double UpperRow = 46;
constexpr double LowerRow = 108;
constexpr double Margin = 16; // of the card

} // namespace

double EquationCard::rowWidth(const std::vector<String>& row, double points)
{
    double width = static_cast<double>(row.size() - 1) * SignWidth;
    for (const String& substance : row) {
        width += FieldWidth + Gap + learning::termWidth(substance, points) + Gap;
    }
    return width;
}

std::optional<double> EquationCard::fittingSize(const Equation& equation)
{
    const auto* const size = std::ranges::find_if(SubstanceSizes, [&](double points) {
        return rowWidth(equation.left, points) <= RowWidth &&
               rowWidth(equation.right, points) + ArrowWidth <= RowWidth;
    });
    return size == SubstanceSizes.end() ? std::nullopt : std::optional(*size);
}

bool EquationCard::fits(const Equation& equation)
{
    return equation.count() <= static_cast<std::size_t>(MostSubstances) && fittingSize(equation).has_value();
}

EquationCard::EquationCard(phial::Form& form) : form_(form)
{
    const auto panel = form.control<phial::ctl_Pannel>(u"pan_Equation");
    for (std::int32_t index = 0; index < MostSubstances; ++index) {
        fields_.push_back(form.control<phial::ctl_QVInput>(u"txt_Factor", index));
        fields_.back()->KeyboardBeside(panel);
    }
}

void EquationCard::Visible(bool value)
{
    form_.control<phial::ctl_Pannel>(u"pan_Equation")->Visible(value);
}

void EquationCard::show(const Equation& equation, const String& title)
{
    count_ = static_cast<std::int32_t>(equation.count());
    points_ = fittingSize(equation).value_or(SubstanceSizes.back());
    for (std::int32_t index = 0; index < MostSubstances; ++index) {
        const bool isSeen = index < count_;
        fields_.at(static_cast<std::size_t>(index))->Visible(isSeen);
        form_.control<phial::ctl_TermLabel>(u"trm_Substance", index)->Visible(isSeen);
        form_.control<phial::ctl_TermLabel>(u"trm_Sign", index)->Visible(isSeen && index > 0);
        input(index).Text({});
    }
    const double upper = rowWidth(equation.left, points_);
    const double lower = rowWidth(equation.right, points_) + ArrowWidth;
    const auto behind = static_cast<std::int32_t>(equation.left.size());
    place(equation.left, 0, Margin + (RowWidth - upper) / 2, UpperRow);
    place(equation.right, behind, Margin + (RowWidth - lower) / 2, LowerRow);
    close(false);
    TRANSLATE(title);
}

/// Each substance behind its field, and before it the sign that leads to it.
void EquationCard::place(const std::vector<String>& row, std::int32_t first, double left, double top)
{
    std::int32_t index = first;
    for (const String& substance : row) {
        const bool isArrow = index == first && first > 0;
        if (index > 0 && (isArrow || index != first)) {
            const auto sign = form_.control<phial::ctl_TermLabel>(u"trm_Sign", index);
            const double width = isArrow ? ArrowWidth : SignWidth;
            sign->frame().pixelRectangle({left, top, width, FieldHeight});
            sign->TEXTFONT()->Size(points_);
            sign->Term(isArrow ? String(Arrow) : String(u" + ")); // with blanks it is no charge
            left += width;
        }
        fields_.at(static_cast<std::size_t>(index))
            ->frame()
            .pixelRectangle({left, top, FieldWidth, FieldHeight});
        left += FieldWidth + Gap;
        const auto label = form_.control<phial::ctl_TermLabel>(u"trm_Substance", index);
        const double width = learning::termWidth(substance, points_);
        label->frame().pixelRectangle({left, top, width + Gap, FieldHeight});
        label->TEXTFONT()->Size(points_);
        label->Term(substance);
        left += width + Gap;
        ++index;
    }
}

void EquationCard::TRANSLATE(const String& title)
{
    learning::caption(form_, u"lab_Equation", title);
    for (std::int32_t index = 0; index < count_; ++index) {
        const String substance = form_.control<phial::ctl_TermLabel>(u"trm_Substance", index)->Term();
        const auto& field = fields_.at(static_cast<std::size_t>(index));
        const auto factorOf = [](const String& formula) {
            return learning::translate(u"Faktor vor {1}", u"Factor of {1}", {formula});
        };
        field->frame().AccessibleName(factorOf(phial::spelledTerm(substance)));
        field->TEXT(factorOf(learning::formulaLine(substance))); // on the pad
    }
}

std::optional<std::vector<int>> EquationCard::values() const
{
    constexpr double MostFactor = 99;
    std::vector<int> values;
    bool isTyped = false;
    for (std::int32_t index = 0; index < count_; ++index) {
        const String text = phial::trimmed(input(index).Text());
        double value = 1;
        if (!text.empty() && (!phial::CoreNumbers::ToDouble(text, value) || value < 1 || value > MostFactor ||
                              value != static_cast<int>(value))) {
            return std::nullopt;
        }
        isTyped = isTyped || !text.empty();
        values.push_back(static_cast<int>(value));
    }
    return isTyped ? std::optional(values) : std::nullopt;
}

void EquationCard::fill(const std::vector<int>& values)
{
    for (std::int32_t index = 0; index < count_; ++index) {
        input(index).Text(learning::number(values.at(static_cast<std::size_t>(index))));
    }
}

void EquationCard::fillUnreadable()
{
    for (std::int32_t index = 0; index < count_; ++index) {
        input(index).Text({});
    }
    input(0).Text(u"x");
}

phial::ControlPtr EquationCard::field() const
{
    return std::static_pointer_cast<phial::TextBox>(input(0).shared_from_this());
}

/// For the field that has the focus, else for the first one.
void EquationCard::openKeyboard()
{
    const auto active = form_.ActiveControl();
    const auto focused = std::ranges::find_if(fields_, [&](const auto& field) {
        return active.get() == static_cast<phial::Control*>(&field->input());
    });
    const auto& field = focused == fields_.end() ? fields_.front() : *focused;
    field->input().SetFocus();
    field->OpenKeyboard();
}

void EquationCard::retry()
{
    input(0).SelStart(0);
    input(0).SelLength(static_cast<std::int32_t>(input(0).Text().size()));
}

void EquationCard::close(bool isClosed)
{
    for (const auto& field : fields_) {
        field->input().Locked(isClosed);
        field->input().BackColor(isClosed ? phial::Palette::DisabledGround : phial::Palette::Surface);
        field->input().ForeColor(isClosed ? phial::Palette::DisabledText : phial::Palette::Ink);
    }
}

} // namespace formeln
