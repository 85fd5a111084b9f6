#pragma once

#include "core/SettingsStore.h"
#include "qt/base/SettingsFile.h"

namespace phial::qt
{

/// The settings store in two files, one of this user and one of this machine (see SettingsFile). What has no
/// known type in a file counts as missing.
class QtSettingsStore final : public SettingsStore
{
public:
    /// Both files are opened when first asked for.
    explicit QtSettingsStore(QString userFile = userSettingsPath(),
                             QString machineFile = machineSettingsPath());

    std::optional<Variant> read(SettingsHive hive, StringView path) const override;
    void write(SettingsHive hive, StringView path, const Variant& value) override;
    void writeTrace(SettingsHive hive, StringView path, const Variant& value) override;
    /// Writes changes to the disk and reads what other programs have written.
    void flush();

private:
    struct Hive {
        QString path;
        mutable std::unique_ptr<SettingsFile> file;
        SettingsFile& opened() const;
    };

    const Hive& hiveOf(SettingsHive hive) const;

    Hive user_;
    Hive machine_;
};

} // namespace phial::qt
