#include "common/TaskList.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/RuntimeError.h"

namespace learning
{

TaskList::TaskList(phial::StringView name, const TaskCheck& check) : name_(name)
{
    phial::ignoringErrors(
        [&] { file_ = readTaskFile(phial::coreRoot().CoreFiles().ReadText(path()), check); });
}

phial::String TaskList::path() const
{
    return phial::QVAPP()->URL()->DATAAPP() + name_;
}

int TaskList::begin(std::size_t level, const TaskChoice& choice)
{
    level_ = level;
    round_ = drawRound(file_.levels.at(level), choice);
    return static_cast<int>(round_.size());
}

} // namespace learning
