#include "qt/base/StandardFolder.h"

#include "core/NativePath.h"

#include <QDir>

namespace phial::qt
{

String asFolder(const QString& nativeFolder)
{
    QString folder = QDir::cleanPath(nativeFolder);
    if (!QDir::isAbsolutePath(folder) || QDir(folder).isRoot()) {
        folder = QDir::tempPath();
    }
    String path = systemPath(folder.toStdU16String());
    if (!path.ends_with(u'\\')) {
        path += u'\\';
    }
    return path;
}

String standardFolder(QStandardPaths::StandardLocation location)
{
    return asFolder(QStandardPaths::writableLocation(location));
}

} // namespace phial::qt
