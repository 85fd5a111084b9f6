#pragma once

#include "chem/cls_DataElements.h"
#include "common/TaskList.h"

#include <memory>
#include <optional>
#include <vector>

namespace formeln
{

/// The substances and equations, among the program's own data.
inline constexpr phial::StringView TaskFileName = u"aufgaben.txt";

/// What a pupil is asked for.
enum class Asked : std::uint8_t {
    Formula, ///< of a substance whose name is told
    Name,    ///< of a substance whose formula is shown
    Factors  ///< of an equation
};

/// An equation as the file writes it: what stands on either side of the arrow, without factors.
struct Equation {
    std::vector<phial::String> left;
    std::vector<phial::String> right;

    std::size_t count() const { return left.size() + right.size(); }
};

/// The equation that a line holds; empty where there is no arrow, or nothing on one of its sides.
std::optional<Equation> equationIn(phial::StringView text);

/// What keeps a line of the file from being a task; empty for nothing.
std::optional<learning::TaskFault> faultOf(const phial::String& text,
                                           const phial::cls_DataElements& elements);

/// A task of a round.
struct FormulaTask {
    learning::ListedTask listed;
    Asked asked = Asked::Formula;

    /// What tells it apart from all others: the line's text, and what is asked of it.
    phial::String name() const;
};

/// The tasks, and the round that is drawn from them. Of a substance a round asks either for the formula or
/// for the name; a task that was missed before is asked in the same way again.
class FormulaTasks
{
public:
    FormulaTasks() = default;
    explicit FormulaTasks(learning::TaskList list) : list_(std::move(list)) {}

    const learning::TaskList& list() const { return list_; }
    bool holds(phial::StringView name) const;
    int begin(std::size_t level, const learning::TaskChoice& choice);
    /// The task of the round at that position, counted from 1.
    const FormulaTask& at(int position) const { return round_.at(static_cast<std::size_t>(position - 1)); }
    /// The names, in both languages, of all substances of the level with that formula.
    std::vector<phial::String> namesOf(phial::StringView formula) const;

private:
    learning::TaskList list_;
    std::vector<FormulaTask> round_;
};

/// What the trainer works with, read from the installation tree.
struct FormulaData {
    /// The file without which it cannot work, since it is missing or holds nothing useful; "" for none.
    phial::String missingFile;
    /// The table of the elements; null when that file is missing.
    std::shared_ptr<phial::cls_DataElements> elements;
    FormulaTasks tasks;
};

/// The root must have been started; nothing is raised.
FormulaData loadFormulaData();

} // namespace formeln
