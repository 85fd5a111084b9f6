#include "core/CoreRegistryWrite.h"

namespace phial
{

CoreRegistryWrite::CoreRegistryWrite(std::shared_ptr<SettingsStore> store) : store_(std::move(store)) {}

void CoreRegistryWrite::WriteString(SettingsHive pHive, StringView pPath, StringView pText)
{
    writeChanged(pHive, pPath, pText);
}

void CoreRegistryWrite::WriteLong(SettingsHive pHive, StringView pPath, std::int32_t pNumber)
{
    writeChanged(pHive, pPath, pNumber);
}

void CoreRegistryWrite::WriteBool(SettingsHive pHive, StringView pPath, bool pValue)
{
    writeChanged(pHive, pPath, pValue);
}

void CoreRegistryWrite::WriteList(SettingsHive pHive, StringView pPath, const CoreStringList& pList)
{
    writeChanged(pHive, pPath, Variant::Array(pList.begin(), pList.end()));
}

void CoreRegistryWrite::writeTrace(SettingsHive hive, StringView path, StringView text)
{
    store_->writeTrace(hive, path, text);
}

void CoreRegistryWrite::writeChanged(SettingsHive hive, StringView path, const Variant& value)
{
    const auto stored = store_->read(hive, path);
    if (!stored || stored->kind() != value.kind() || *stored != value) {
        store_->write(hive, path, value);
    }
}

} // namespace phial
