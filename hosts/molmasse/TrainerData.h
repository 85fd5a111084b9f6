#pragma once

#include "chem/cls_DataElements.h"
#include "common/TaskList.h"

#include <memory>
#include <optional>

namespace molmasse
{

/// The formulas to work out, among the program's own data.
inline constexpr phial::StringView TaskFileName = u"formeln.txt";

/// What the trainer works with, read from the installation tree.
struct TrainerData {
    /// The file without which it cannot work, since it is missing or holds nothing useful; "" for none.
    phial::String missingFile;
    /// The table of the elements; null when that file is missing.
    std::shared_ptr<phial::cls_DataElements> elements;
    learning::TaskList tasks;
};

/// What keeps a line of the task file from being one: what keeps it off the card, or masses that cannot be
/// judged.
std::optional<learning::TaskFault> faultOf(const phial::cls_DataElements& elements,
                                           const phial::String& formula);

/// Reads the element table and the tasks. The root must have been started; nothing is raised.
TrainerData loadTrainerData();

} // namespace molmasse
