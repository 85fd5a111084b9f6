#pragma once

#include "chem/cls_DataElements.h"
#include "molmasse/TaskList.h"

#include <memory>

namespace molmasse
{

/// What the trainer works with, read from the installation tree.
struct TrainerData {
    /// The file without which it cannot work, since it is missing or holds nothing useful; "" for none.
    phial::String missingFile;
    /// The table of the elements; null when that file is missing.
    std::shared_ptr<phial::cls_DataElements> elements;
    TaskList tasks;
};

/// Reads the element table and the tasks. The root must have been started; nothing is raised.
TrainerData loadTrainerData();

} // namespace molmasse
