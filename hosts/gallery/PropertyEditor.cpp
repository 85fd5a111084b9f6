#include "gallery/PropertyEditor.h"

#include "gallery/PropertyText.h"

namespace gallery
{

using phial::ObjectPtr;
using phial::String;
using phial::StringView;

namespace
{

PropertyRow rowOf(phial::Object& object, const phial::Member& member)
{
    PropertyRow row{String(member.name), {}, PropertyRow::Kind::ReadOnly};
    if (!member.read) {
        row.kind = member.call ? PropertyRow::Kind::Operation : PropertyRow::Kind::Writable;
        return row;
    }
    try {
        const phial::Variant value = member.read(object);
        row.value = propertyText(row.name, value);
        const bool holdsObject = value.kind() == phial::Variant::Kind::Object;
        if (holdsObject && value.object()) {
            row.kind = PropertyRow::Kind::Part;
        } else if (member.write && !holdsObject) {
            row.kind = PropertyRow::Kind::Writable;
        }
    } catch (const phial::RuntimeError& error) {
        row.value = u"(" + error.Description() + u")";
    }
    return row;
}

/// Runs a statement; gives what it raises.
template <typename Statement>
std::optional<phial::RuntimeError> errorOf(Statement&& statement)
{
    try {
        statement();
        return std::nullopt;
    } catch (const phial::RuntimeError& error) {
        return error;
    }
}

} // namespace

void PropertyEditor::edit(ObjectPtr object)
{
    levels_.clear();
    if (object) {
        const String name(object->typeName());
        levels_.push_back({std::move(object), name});
    }
    rows_ = read();
}

const ObjectPtr& PropertyEditor::object() const
{
    static const ObjectPtr None;
    return levels_.empty() ? None : levels_.back().object;
}

String PropertyEditor::path() const
{
    String path;
    for (const Level& level : levels_) {
        path += path.empty() ? level.name : u" \u203A " + level.name;
    }
    return path;
}

std::vector<PropertyRow> PropertyEditor::read() const
{
    std::vector<PropertyRow> rows;
    if (object()) {
        for (const phial::Member& member : object()->members()) {
            rows.push_back(rowOf(*object(), member));
        }
    }
    return rows;
}

std::vector<std::size_t> PropertyEditor::refresh()
{
    auto rows = read();
    std::vector<std::size_t> changed;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i >= rows_.size() || rows[i] != rows_[i]) {
            changed.push_back(i);
        }
    }
    rows_ = std::move(rows);
    return changed;
}

std::optional<phial::RuntimeError> PropertyEditor::set(std::size_t row, StringView text)
{
    const String& name = rows_.at(row).name;
    return errorOf([&] { phial::setMember(*object(), name, propertyValue(name, text)); });
}

std::optional<phial::RuntimeError> PropertyEditor::run(std::size_t row)
{
    return errorOf([&] { phial::callMember(*object(), rows_.at(row).name); });
}

bool PropertyEditor::open(std::size_t row)
{
    const String name = rows_.at(row).name;
    const auto value = phial::tryGet(*object(), name);
    if (!value || value->kind() != phial::Variant::Kind::Object || !value->object()) {
        return false;
    }
    levels_.push_back({value->object(), name});
    rows_ = read();
    return true;
}

bool PropertyEditor::back()
{
    if (levels_.size() < 2) {
        return false;
    }
    levels_.pop_back();
    rows_ = read();
    return true;
}

} // namespace gallery
