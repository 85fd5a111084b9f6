#pragma once

#include "core/SettingsEncoding.h"

#include <QString>

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
    /// The file need not exist; its folder is made when something is first written.
    explicit SettingsFile(const QString& path);
    ~SettingsFile();
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;

    /// The entry at a path such as `Software\Phial\Language`; no value when it is missing or of no known
    /// form.
    std::optional<Variant> read(StringView path) const;
    /// Stores the entry; a value equal to the stored one changes nothing, the file's date included.
    void write(StringView path, const Variant& value);
    /// Writes changes to the disk and reads what others have written.
    void flush();

private:
    std::unique_ptr<QSettings> settings_;
};

/// Where the settings of this user and of this machine lie.
QString userSettingsPath();
QString machineSettingsPath();

} // namespace phial::qt
