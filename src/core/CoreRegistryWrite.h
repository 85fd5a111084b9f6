#pragma once

#include "core/CoreStringList.h"
#include "core/SettingsStore.h"
#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// Writes settings. A value equal to the stored one is not written. A store that cannot be written raises
/// nothing.
class CoreRegistryWrite
{
public:
    explicit CoreRegistryWrite(std::shared_ptr<SettingsStore> store);

    void WriteString(SettingsHive pHive, StringView pPath, StringView pText);
    void WriteLong(SettingsHive pHive, StringView pPath, std::int32_t pNumber);
    void WriteBool(SettingsHive pHive, StringView pPath, bool pValue);
    void WriteList(SettingsHive pHive, StringView pPath, const CoreStringList& pList);
    /// A text that only shows how far a run got, see `SettingsStore::writeTrace`.
    void writeTrace(SettingsHive hive, StringView path, StringView text);

private:
    void writeChanged(SettingsHive hive, StringView path, const Variant& value);

    std::shared_ptr<SettingsStore> store_;
};

} // namespace phial
