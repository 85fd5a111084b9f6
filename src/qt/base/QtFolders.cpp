#include "qt/base/QtFolders.h"

#include "qt/base/StandardFolder.h"

#include <QDir>

#include <initializer_list>

namespace phial::qt
{

namespace
{

QString firstSet(std::initializer_list<const char*> variables)
{
    for (const char* variable : variables) {
        const QString value = qEnvironmentVariable(variable);
        if (QDir::isAbsolutePath(value)) {
            return value;
        }
    }
    return {};
}

String folderOf(std::initializer_list<const char*> variables, const QString& otherwise)
{
    const QString set = firstSet(variables);
    return asFolder(set.isEmpty() ? otherwise : set);
}

QString desktopFolder(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location);
}

} // namespace

String QtFolders::ProgramFiles() const
{
    return folderOf({"PROGRAMFILES"}, QStringLiteral("/opt"));
}

String QtFolders::UserDocuments() const
{
    const QString profile = firstSet({"USERPROFILE"});
    return profile.isEmpty() ? standardFolder(QStandardPaths::DocumentsLocation)
                             : asFolder(profile + QStringLiteral("/Documents"));
}

String QtFolders::UserAppData() const
{
    return folderOf({"APPDATA"}, desktopFolder(QStandardPaths::GenericDataLocation));
}

String QtFolders::CommonAppData() const
{
    return folderOf({"PROGRAMDATA", "ALLUSERSPROFILE"}, QStringLiteral("/var/lib"));
}

String QtFolders::Temp() const
{
    return folderOf({"TEMP", "TMP"}, QDir::tempPath());
}

} // namespace phial::qt
