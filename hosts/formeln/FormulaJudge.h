#pragma once

#include "chem/cls_DataElements.h"
#include "common/Round.h"
#include "core/String.h"
#include "formeln/FormulaTasks.h"

#include <optional>
#include <vector>

namespace formeln
{

/// What a typed formula is worth beside the right one, and what the pupil is told about it in the language in
/// force: one sentence, which does not give the solution; "" for nothing. One that cannot be read is no
/// answer, and the sentence says why.
struct FormulaOpinion {
    learning::Judgement judgement = learning::Judgement::Wrong;
    phial::String remark{};
};
FormulaOpinion judgeFormula(phial::StringView answer, phial::StringView right);

/// The smallest whole factors that balance an equation, from left to right; none where there are none, or
/// more than one set of them.
std::optional<std::vector<int>> balanced(const Equation& equation);

/// What these factors are worth. Those that are right but for a common divisor are not the smallest.
FormulaOpinion judgeFactors(const Equation& equation, const std::vector<int>& factors);

/// How many atoms of each element stand on both sides with these factors, one element a line.
phial::String atomsOnBothSides(const Equation& equation, const std::vector<int>& factors);

/// Whether it reads as one formula, all of whose elements there are.
bool isFormula(phial::StringView text, const phial::cls_DataElements& elements);

/// With the markup of labels.
phial::String formulaMarkup(phial::StringView text);
/// Its elements, "Na, S, O", and how many atoms of each, "2 × Na, 1 × S, 4 × O", with its charge.
phial::String elementsOf(phial::StringView text);
phial::String atomsOf(phial::StringView text);
/// The equation with these factors, with the markup of labels.
phial::String balancedMarkup(const Equation& equation, const std::vector<int>& factors);

} // namespace formeln
