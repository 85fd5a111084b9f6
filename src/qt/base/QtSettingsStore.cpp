#include "qt/base/QtSettingsStore.h"

#include <utility>

namespace phial::qt
{

QtSettingsStore::QtSettingsStore(QString userFile, QString machineFile)
    : user_{std::move(userFile), nullptr}, machine_{std::move(machineFile), nullptr}
{
}

SettingsFile& QtSettingsStore::Hive::opened() const
{
    if (!file) {
        file = std::make_unique<SettingsFile>(path);
    }
    return *file;
}

const QtSettingsStore::Hive& QtSettingsStore::hiveOf(SettingsHive hive) const
{
    return hive == SettingsHive::LocalMachine ? machine_ : user_;
}

std::optional<Variant> QtSettingsStore::read(SettingsHive hive, StringView path) const
{
    return hiveOf(hive).opened().read(path);
}

void QtSettingsStore::write(SettingsHive hive, StringView path, const Variant& value)
{
    hiveOf(hive).opened().write(path, value);
}

void QtSettingsStore::writeTrace(SettingsHive hive, StringView path, const Variant& value)
{
    hiveOf(hive).opened().writeTrace(path, value);
}

void QtSettingsStore::flush()
{
    for (const Hive* hive : {&user_, &machine_}) {
        if (hive->file) {
            hive->file->flush();
        }
    }
}

} // namespace phial::qt
