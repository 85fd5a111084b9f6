#pragma once

#include "core/SettingsEncoding.h"

#include <QString>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>
#include <optional>

class QSettings;

namespace phial::qt
{

/// One file of settings, shared by all programs of the suite.
///
/// Several programs may have it open at once: what one of them writes is merged with what the others wrote,
/// entry by entry. Writing happens in memory; the file follows when the event loop has time, at `flush` and
/// at the end. A file that cannot be read as settings, one cut short included, is moved aside as
/// `<name>.damaged-1`,
/// `.damaged-2`, … and a new one is begun. Where nothing can be written, settings last as long as the
/// program.
class SettingsFile
{
public:
    /// The file need not exist; its folder is made when something is first written. Traces wait so long.
    explicit SettingsFile(const QString& path,
                          std::chrono::milliseconds traceDelay = std::chrono::minutes(1));
    ~SettingsFile();
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;

    /// The entry at a path such as `Software\Phial\Language`; no value when it is missing or of no known
    /// form.
    std::optional<Variant> read(StringView path) const;
    /// Stores the entry; a value equal to the stored one changes nothing, the file's date included.
    void write(StringView path, const Variant& value);
    /// The same, but the file follows only with the next other entry, behind the delay, or at the end.
    void writeTrace(StringView path, const Variant& value);
    /// Writes changes to the disk and reads what others have written.
    void flush();

private:
    void put(const String& key, const String& line);
    void putTraces();

    std::unique_ptr<QSettings> settings_;
    std::map<String, String> traces_; // lines by their keys, which are not in the file yet
    QTimer delay_;
};

/// Where the settings of this user and of this machine lie.
QString userSettingsPath();
QString machineSettingsPath();

} // namespace phial::qt
