#pragma once

#include "core/SettingsStore.h"

#include <map>
#include <utility>

namespace phial
{

/// Settings that live as long as the object.
class MemorySettingsStore : public SettingsStore
{
public:
    std::optional<Variant> read(SettingsHive hive, StringView path) const override;
    void write(SettingsHive hive, StringView path, const Variant& value) override;

private:
    std::map<std::pair<SettingsHive, String>, Variant> values_;
};

} // namespace phial
