#pragma once

#include "core/CoreStringList.h"
#include "core/SettingsStore.h"
#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// Reads settings. A value that is missing, or of a type that cannot be converted, gives the default; nothing
/// is raised.
class CoreRegistryRead
{
public:
    explicit CoreRegistryRead(std::shared_ptr<const SettingsStore> store);

    /// A text; a longer one is cut to `pLimit` units.
    String ReadString(SettingsHive pHive, StringView pPath, StringView pDefault = {},
                      std::int32_t pLimit = 1000) const;
    std::int32_t ReadLong(SettingsHive pHive, StringView pPath, std::int32_t pDefault = 0) const;
    bool ReadBool(SettingsHive pHive, StringView pPath, bool pDefault = false) const;
    /// The stored texts in their order, or `pDefault`.
    CoreStringList ReadList(SettingsHive pHive, StringView pPath, const CoreStringList& pDefault = {}) const;

private:
    std::shared_ptr<const SettingsStore> store_;
};

} // namespace phial
