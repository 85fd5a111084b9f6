#include "molmasse/TrainerData.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"

namespace molmasse
{

using phial::String;

namespace
{

std::shared_ptr<phial::cls_DataElements> readElements(const String& file)
{
    auto elements = std::make_shared<phial::cls_DataElements>();
    phial::ignoringErrors([&] { elements->IMPORT2(file); });
    return elements->COUNT() > 0 ? elements : nullptr;
}

TaskList readTasks(const String& file)
{
    TaskList tasks;
    phial::ignoringErrors([&] { tasks = readTaskList(phial::coreRoot().CoreFiles().ReadText(file)); });
    return tasks;
}

} // namespace

TrainerData loadTrainerData()
{
    TrainerData data;
    const auto& folders = phial::QVAPP()->URL();
    const String elementFile = folders->DATASHARED() + u"elements2.dat";
    data.elements = readElements(elementFile);
    if (!data.elements) {
        data.missingFile = elementFile;
        return data;
    }
    const String taskFile = folders->DATAAPP() + u"formeln.txt";
    data.tasks = readTasks(taskFile);
    if (data.tasks.levels.empty()) {
        data.missingFile = taskFile;
    }
    return data;
}

} // namespace molmasse
