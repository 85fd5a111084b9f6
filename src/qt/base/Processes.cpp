#include "qt/base/Processes.h"

#include "core/NativePath.h"
#include "qt/base/QtText.h"

#include <QProcess>
#include <QStringList>

namespace phial::qt
{

bool startProcess(StringView program, std::span<const String> arguments)
{
    const bool isPath = program.find_first_of(u"\\/") != StringView::npos;
    const QString native = isPath ? toQt(nativePath(program).u16string()) : toQt(program);
    QStringList list;
    for (const String& argument : arguments) {
        list += toQt(argument);
    }
    return !native.isEmpty() && QProcess::startDetached(native, list);
}

} // namespace phial::qt
