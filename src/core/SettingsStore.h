#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <cstdint>
#include <optional>

namespace phial
{

/// Whose settings are meant.
enum class SettingsHive : std::uint32_t {
    CurrentUser = 0x80000001U,
    LocalMachine = 0x80000002U,
};

/// The hierarchical store of typed settings, behind `CoreRegistry`.
///
/// A path names key and value in one text, such as "Software\Maker\Product\Value"; case does not count.
/// Values are Boolean, 32-bit whole, text, or a list of texts (an array of text values), and come back with
/// the type with which they were written.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;

    /// No value when there is none, or when it cannot be read.
    virtual std::optional<Variant> read(SettingsHive hive, StringView path) const = 0;

    /// Stores a value. A store that cannot be written keeps it for this run at most; no failure is raised.
    virtual void write(SettingsHive hive, StringView path, const Variant& value) = 0;

    /// The same for a value that changes often and need not outlive every crash: a store with a file may keep
    /// it in memory until the next other value is written, for a minute at most while events run, or until
    /// its end. It is read like any other.
    virtual void writeTrace(SettingsHive hive, StringView path, const Variant& value)
    {
        write(hive, path, value);
    }
};

} // namespace phial
