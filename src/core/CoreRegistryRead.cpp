#include "core/CoreRegistryRead.h"

#include <algorithm>

namespace phial
{

namespace
{

/// What `convert` makes of a stored value, or the default when there is none or it cannot be converted.
template <typename Result, typename Convert>
Result readAs(const SettingsStore& store, SettingsHive hive, StringView path, Result fallback,
              const Convert& convert)
{
    ignoringErrors([&] {
        if (const auto value = store.read(hive, path)) {
            fallback = convert(*value);
        }
    });
    return fallback;
}

} // namespace

CoreRegistryRead::CoreRegistryRead(std::shared_ptr<const SettingsStore> store) : store_(std::move(store)) {}

String CoreRegistryRead::ReadString(SettingsHive pHive, StringView pPath, StringView pDefault,
                                    std::int32_t pLimit) const
{
    const auto limit = static_cast<std::size_t>(std::max(pLimit, 0));
    return readAs(*store_, pHive, pPath, String(pDefault),
                  [&](const Variant& value) { return value.toText().substr(0, limit); });
}

std::int32_t CoreRegistryRead::ReadLong(SettingsHive pHive, StringView pPath, std::int32_t pDefault) const
{
    return readAs(*store_, pHive, pPath, pDefault, [](const Variant& value) { return value.toWhole(); });
}

bool CoreRegistryRead::ReadBool(SettingsHive pHive, StringView pPath, bool pDefault) const
{
    return readAs(*store_, pHive, pPath, pDefault, [](const Variant& value) { return value.toBoolean(); });
}

CoreStringList CoreRegistryRead::ReadList(SettingsHive pHive, StringView pPath,
                                          const CoreStringList& pDefault) const
{
    return readAs(*store_, pHive, pPath, pDefault, [](const Variant& value) {
        CoreStringList list;
        for (const Variant& entry : value.array()) {
            list.Add(entry.toText());
        }
        return list;
    });
}

} // namespace phial
