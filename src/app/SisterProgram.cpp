#include "app/SisterProgram.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreCmdParser.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CurrentFolder.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr StringView Ending = u".exe";

bool leadsOutOfItsFolder(const String& path)
{
    const std::vector<StringView> parts = split(path, u"\\");
    return path.starts_with(u'\\') || path.find(u':') != String::npos ||
           std::ranges::find(parts, u"..") != parts.end();
}

/// The file of a program whose path is given with or without the ending; empty when there is none.
String programFile(const String& path)
{
    const CoreFiles& files = coreRoot().CoreFiles();
    if (files.Exists(path)) {
        return path;
    }
    const bool hasEnding = equalsIgnoringCase(CorePathText::Extension(path), Ending.substr(1));
    const String other = hasEnding ? CorePathText::WithoutExtension(path) : path + String(Ending);
    return files.Exists(other) ? other : String();
}

String findProgram(StringView app)
{
    const String relative = replaced(app, u"/", u"\\");
    if (trimmed(relative).empty() || leadsOutOfItsFolder(relative)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const String path = QVAPP()->URL()->APPS() + relative;
    String file = programFile(path);
    if (file.empty()) {
        file = programFile(CorePathText::WithBackslash(path) + CorePathText::FileName(relative));
    }
    if (file.empty()) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    return file;
}

ProgramCall callOf(StringView app, StringView parameters)
{
    return {.program = findProgram(app),
            .arguments = CoreCmdParser::Words(parameters),
            .folder = SessionState::current().currentFolder().path()};
}

} // namespace

std::int32_t startSisterProgram(StringView app, StringView parameters)
{
    const std::int64_t process = coreRoot().CoreSystem().StartProgram(callOf(app, parameters));
    if (process == 0) {
        throw RuntimeError(ErrorNumber::FileAccess);
    }
    return static_cast<std::int32_t>(process);
}

std::int32_t runSisterProgram(StringView app, StringView parameters)
{
    const std::optional<std::int32_t> result = coreRoot().CoreSystem().RunProgram(callOf(app, parameters));
    if (!result) {
        throw RuntimeError(ErrorNumber::FileAccess);
    }
    return *result;
}

} // namespace phial
