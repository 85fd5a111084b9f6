#include "core/MemorySettingsStore.h"

namespace phial
{

std::optional<Variant> MemorySettingsStore::read(SettingsHive hive, StringView path) const
{
    const auto value = values_.find({hive, upperCase(path)});
    return value == values_.end() ? std::nullopt : std::optional(value->second);
}

void MemorySettingsStore::write(SettingsHive hive, StringView path, const Variant& value)
{
    values_.insert_or_assign({hive, upperCase(path)}, value);
}

} // namespace phial
