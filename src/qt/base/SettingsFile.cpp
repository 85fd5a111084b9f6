#include "qt/base/SettingsFile.h"

#include "qt/base/QtText.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <utility>

namespace phial::qt
{

namespace
{

constexpr qint64 MaxFileSize = 16 * 1024 * 1024;
constexpr int MaxDamagedFiles = 1000;
constexpr std::chrono::milliseconds LockPatience{500};
constexpr auto FileInSuiteFolder = "qv-phial/settings.ini";

// The toolkit overlooks lines that mean nothing to it, and would drop them at the next writing.
bool isEntry(QByteArrayView line)
{
    const QByteArrayView text = line.trimmed();
    return text.isEmpty() || text.startsWith(';') || text.contains('=') ||
           (text.startsWith('[') && text.endsWith(']'));
}

// Every line of a sound file is ended, so the last byte tells a file that was cut within a line.
bool isSound(const QByteArray& content)
{
    if (content.isEmpty()) {
        return true;
    }
    const QList<QByteArray> lines = content.split('\n');
    return content.endsWith('\n') && !content.contains('\0') &&
           std::all_of(lines.begin(), lines.end(), isEntry);
}

bool isDamaged(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    return file.size() > MaxFileSize || !isSound(file.readAll());
}

void moveAside(const QString& path)
{
    for (int number = 1; number <= MaxDamagedFiles; ++number) {
        if (QFile::rename(path, QStringLiteral("%1.damaged-%2").arg(path).arg(number))) {
            return;
        }
    }
}

// Looks a second time under the lock that the settings class takes as well: two programs starting at once
// must not move the file aside that the other one has just begun.
void moveAsideIfDamaged(const QString& path)
{
    if (!isDamaged(path)) {
        return;
    }
    QLockFile lock(path + QStringLiteral(".lock"));
    const bool locked = lock.tryLock(static_cast<int>(LockPatience.count()));
    if (locked && isDamaged(path)) {
        moveAside(path);
    }
}

} // namespace

SettingsFile::SettingsFile(const QString& path, std::chrono::milliseconds traceDelay)
{
    moveAsideIfDamaged(path);
    settings_ = std::make_unique<QSettings>(path, QSettings::IniFormat);
    delay_.setSingleShot(true);
    delay_.setInterval(traceDelay);
    QObject::connect(&delay_, &QTimer::timeout, &delay_, [this] { putTraces(); });
}

SettingsFile::~SettingsFile()
{
    putTraces();
}

std::optional<Variant> SettingsFile::read(StringView path) const
{
    const String key = settingKey(path);
    if (const auto trace = traces_.find(key); trace != traces_.end()) {
        return decodeSetting(trace->second);
    }
    const QVariant entry = settings_->value(toQt(key));
    if (entry.typeId() != QMetaType::QString) {
        return std::nullopt;
    }
    return decodeSetting(fromQt(entry.toString()));
}

void SettingsFile::write(StringView path, const Variant& value)
{
    const String key = settingKey(path);
    const String line = encodeSetting(value);
    if (!key.empty() && line.size() <= MaxSettingLength && read(path) != value) {
        traces_.erase(key);
        put(key, line);
        putTraces();
    }
}

void SettingsFile::writeTrace(StringView path, const Variant& value)
{
    const String key = settingKey(path);
    String line = encodeSetting(value);
    if (key.empty() || line.size() > MaxSettingLength) {
        return;
    }
    traces_.insert_or_assign(key, std::move(line));
    if (!delay_.isActive() && QCoreApplication::instance() != nullptr) {
        delay_.start();
    }
}

void SettingsFile::put(const String& key, const String& line)
{
    settings_->setValue(toQt(key), toQt(line));
}

void SettingsFile::putTraces()
{
    delay_.stop();
    for (const auto& [key, line] : std::exchange(traces_, {})) {
        put(key, line);
    }
}

void SettingsFile::flush()
{
    putTraces();
    settings_->sync();
}

QString userSettingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' +
           QLatin1String(FileInSuiteFolder);
}

QString machineSettingsPath()
{
    const QStringList places = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
#ifdef Q_OS_WIN
    const QString machine = places.value(1); // behind the user's, before those beside the program
#else
    const QString machine = places.constLast(); // the desktops' own come before the general one
#endif
    return machine + u'/' + QLatin1String(FileInSuiteFolder);
}

} // namespace phial::qt
