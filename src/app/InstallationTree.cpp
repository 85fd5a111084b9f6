#include "app/InstallationTree.h"

#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"

namespace phial::installationTree
{

bool isRoot(StringView folder)
{
    const CoreFiles& files = coreRoot().CoreFiles();
    return files.Exists(String(folder) + u"QVStart.exe") &&
           files.FolderExists(String(folder) + u"Resources\\");
}

std::optional<String> nearProgram(StringView programFolder)
{
    for (const StringView place : {u"..\\..\\", u"", u"..\\share\\phial\\", u"..\\tree\\"}) {
        const String folder = CorePathText::WithBackslash(CorePathText::Absolute(programFolder, place));
        if (isRoot(folder)) {
            return folder;
        }
    }
    return std::nullopt;
}

} // namespace phial::installationTree
