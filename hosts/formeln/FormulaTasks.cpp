#include "formeln/FormulaTasks.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "common/Drawing.h"
#include "core/RuntimeError.h"
#include "formeln/NameJudge.h"

#include <algorithm>

namespace formeln
{

using phial::String;
using phial::StringView;

namespace
{

constexpr StringView EquationArrow = u"->";
constexpr StringView NameMark = u" ?"; ///< behind a formula whose name is asked for

std::vector<String> substancesIn(StringView side)
{
    std::vector<String> substances;
    for (const StringView piece : phial::split(side, u" + ")) { // a "+" without blanks is a charge
        substances.emplace_back(phial::trimmed(piece));
    }
    return substances;
}

bool isEquation(StringView text)
{
    return text.find(EquationArrow) != StringView::npos;
}

/// What is asked, where nothing tells: the formula or the name, drawn.
Asked drawn(const learning::ListedTask& task)
{
    return isEquation(task.text)           ? Asked::Factors
           : learning::randomBelow(2) == 0 ? Asked::Formula
                                           : Asked::Name;
}

} // namespace

std::optional<Equation> equationIn(StringView text)
{
    const auto arrow = text.find(EquationArrow);
    if (arrow == StringView::npos) {
        return std::nullopt;
    }
    Equation equation{substancesIn(text.substr(0, arrow)),
                      substancesIn(text.substr(arrow + EquationArrow.size()))};
    const auto isComplete = [](const std::vector<String>& side) {
        return std::ranges::none_of(side, [](const String& each) { return each.empty(); });
    };
    return isComplete(equation.left) && isComplete(equation.right) ? std::optional(std::move(equation))
                                                                   : std::nullopt;
}

String FormulaTask::name() const
{
    return asked == Asked::Name ? listed.text + String(NameMark) : listed.text;
}

bool FormulaTasks::holds(StringView name) const
{
    return list_.holds(name.ends_with(NameMark) ? name.substr(0, name.size() - NameMark.size()) : name);
}

int FormulaTasks::begin(std::size_t level, const learning::TaskChoice& choice)
{
    const auto isNameAsked = [&](StringView text) {
        return choice.preferred(String(text) + String(NameMark));
    };
    const learning::TaskChoice either{
        [&](StringView text) { return choice.preferred(text) || isNameAsked(text); }, choice.preferredOnly};
    const int count = list_.begin(level, either);
    round_.clear();
    for (int position = 1; position <= count; ++position) {
        const learning::ListedTask& listed = list_.at(position);
        const Asked asked = isNameAsked(listed.text)         ? Asked::Name
                            : !choice.preferred(listed.text) ? drawn(listed)
                            : isEquation(listed.text)        ? Asked::Factors
                                                             : Asked::Formula;
        round_.push_back({listed, asked});
    }
    return count;
}

std::vector<String> FormulaTasks::namesOf(StringView formula) const
{
    std::vector<String> names;
    for (const learning::ListedTask& task : list_.tasks()) {
        if (task.text == formula) {
            for (const String& column : {task.germanName, task.englishName}) {
                std::ranges::move(namesIn(column), std::back_inserter(names));
            }
        }
    }
    return names;
}

FormulaData loadFormulaData()
{
    FormulaData data;
    const String elementFile = phial::QVAPP()->URL()->DATASHARED() + u"elements2.dat";
    data.elements = std::make_shared<phial::cls_DataElements>();
    phial::ignoringErrors([&] { data.elements->IMPORT2(elementFile); });
    if (data.elements->COUNT() == 0) {
        data.elements = nullptr;
        data.missingFile = elementFile;
        return data;
    }
    learning::TaskList list(TaskFileName, [&](const String& text) { return faultOf(text, *data.elements); });
    if (list.isEmpty()) {
        data.missingFile = list.path();
    }
    data.tasks = FormulaTasks(std::move(list));
    return data;
}

} // namespace formeln
