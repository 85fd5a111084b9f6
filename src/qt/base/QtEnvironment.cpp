#include "qt/base/QtEnvironment.h"

#include "core/NativePath.h"
#include "qt/base/QtText.h"
#include "qt/base/StandardFolder.h"

#include <QDir>

namespace phial::qt
{

String QtEnvironment::variable(StringView name) const
{
    const QString value = qEnvironmentVariable(toQt(name).toUtf8().constData());
    if (value.isEmpty() && (name == u"PUBLIC" || name == u"ALLUSERPROFILE")) {
        return standardFolder(QStandardPaths::PublicShareLocation);
    }
    return QDir::isAbsolutePath(value) ? systemPath(value.toStdU16String()) : fromQt(value);
}

} // namespace phial::qt
