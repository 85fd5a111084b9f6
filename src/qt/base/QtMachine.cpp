#include "qt/base/QtMachine.h"

#include "core/Locale.h"
#include "qt/base/QtText.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QOperatingSystemVersion>
#include <QSysInfo>
#include <QUuid>

namespace phial::qt
{

String QtMachine::UserName() const
{
    for (const char* variable : {"USERNAME", "USER", "LOGNAME"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty()) {
            return fromQt(name);
        }
    }
    return fromQt(QFileInfo(QDir::homePath()).owner());
}

String QtMachine::ComputerName() const
{
    return fromQt(QSysInfo::machineHostName().section(QLatin1Char('.'), 0, 0));
}

String QtMachine::OSVersion() const
{
#ifdef Q_OS_WIN
    const auto version = QOperatingSystemVersion::current();
    return fromQt(QStringLiteral("%1.%2").arg(version.majorVersion()).arg(version.minorVersion()));
#else
    return u"6.1";
#endif
}

std::int32_t QtMachine::UserLanguage() const
{
    const QStringList languages = QLocale::system().uiLanguages(); // the preferred one comes first
    switch (languages.isEmpty() ? QLocale::C : QLocale(languages.constFirst()).language()) {
    case QLocale::German:
        return LanguageGerman;
    case QLocale::English:
        return LanguageEnglish;
    default:
        return 0;
    }
}

String QtMachine::NewUniqueID(std::int32_t /*pKind*/, std::int32_t /*pOptions*/)
{
    return fromQt(QUuid::createUuid().toString(QUuid::WithoutBraces));
}

} // namespace phial::qt
