#include "qt/base/BasePlatform.h"

#include "qt/base/LocalInterCom.h"
#include "qt/base/QtClock.h"
#include "qt/base/QtEnvironment.h"
#include "qt/base/QtEventPump.h"
#include "qt/base/QtFolders.h"
#include "qt/base/QtMachine.h"
#include "qt/base/QtRandom.h"
#include "qt/base/QtSettingsStore.h"
#include "qt/base/StandardFolder.h"

#ifdef PHIAL_HAS_SEALING
#include "sealing/PasswordSeal.h"
#endif

#include <QCoreApplication>
#include <QLocale>

namespace phial::qt
{

namespace
{

// The decimal sign is the user's; a desktop that knows none but the programmers' way says nothing about him.
Locale userLocale()
{
    Locale locale;
    const QLocale system = QLocale::system();
    if (system.language() != QLocale::C) {
        locale.decimalSign = system.decimalPoint() == QLatin1String(".") ? u'.' : u',';
    }
    return locale;
}

// Null in a build without sealing.
std::shared_ptr<RecordSeal> passwordSeal()
{
#ifdef PHIAL_HAS_SEALING
    return std::make_shared<PasswordSeal>();
#else
    return nullptr;
#endif
}

} // namespace

Platform basePlatform(const std::shared_ptr<DispatchGuard>& guard, const TrafficWindow& traffic)
{
    Platform platform;
    platform.clock = std::make_shared<QtClock>();
    platform.pump = std::make_shared<QtEventPump>(guard);
    platform.environment = std::make_shared<QtEnvironment>();
    platform.random = std::make_shared<QtRandom>();
    platform.folders = std::make_shared<QtFolders>();
    platform.machine = std::make_shared<QtMachine>();
    platform.settings = std::make_shared<QtSettingsStore>();
    platform.seal = passwordSeal();
    platform.locale = userLocale();
    if (QCoreApplication::instance() != nullptr) {
        platform.programFolder = asFolder(QCoreApplication::applicationDirPath());
    }
    platform.newNetClient = [guard, traffic] { return std::make_shared<QtNetClient>(guard, traffic); };
    platform.newInterCom = [] { return std::make_shared<LocalInterCom>(); };
    platform.reportError = [guard](const std::exception& error) { guard->report(error); };
    return platform;
}

} // namespace phial::qt
