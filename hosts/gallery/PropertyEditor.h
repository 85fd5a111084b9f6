#pragma once

#include "core/Object.h"
#include "core/RuntimeError.h"
#include "core/String.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace gallery
{

/// One member of the object under edit.
struct PropertyRow {
    enum class Kind : std::uint8_t {
        Writable,
        ReadOnly,
        Part,     ///< an object that can be opened, such as a font
        Operation ///< can be run
    };

    phial::String name;
    phial::String value; ///< as propertyText writes it; empty for an operation
    Kind kind = Kind::ReadOnly;

    friend bool operator==(const PropertyRow&, const PropertyRow&) = default;
};

/// Edits any object through its member table: lists what it has, sets what can be set, opens the objects
/// within and runs operations. Nothing here knows a single class.
class PropertyEditor
{
public:
    /// Begins with another object; null for none.
    void edit(phial::ObjectPtr object);

    /// The object under edit: the one given, or the one opened last.
    const phial::ObjectPtr& object() const;
    /// The way to it: "ctl_Label \u203A Font".
    phial::String path() const;

    const std::vector<PropertyRow>& rows() const { return rows_; }
    /// Reads all members again; gives the positions of the rows that differ.
    std::vector<std::size_t> refresh();

    /// Sets a property from a typed text; gives what was raised, none when it went well.
    std::optional<phial::RuntimeError> set(std::size_t row, phial::StringView text);
    /// Runs an operation without arguments; like set.
    std::optional<phial::RuntimeError> run(std::size_t row);
    /// Opens the object that the row holds; false when it holds none.
    bool open(std::size_t row);
    /// Leaves the opened object again; false at the first one.
    bool back();

private:
    struct Level {
        phial::ObjectPtr object;
        phial::String name;
    };
    std::vector<PropertyRow> read() const;

    std::vector<Level> levels_;
    std::vector<PropertyRow> rows_;
};

} // namespace gallery
