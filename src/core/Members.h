#pragma once

#include "core/Colour.h"
#include "core/Variant.h"

#include <type_traits>

/// Builders of member tables. A class writes its table once, in its .cpp:
///
///     constexpr Member Table[] = {
///         property<Label, String, &Label::Caption, &Label::Caption>(u"Caption"),
///         readOnly<Label, std::int32_t, &Label::Index>(u"Index"),
///         operation<Label, &Label::REDRAW>(u"REDRAW"),
///     };
namespace phial::members
{

/// A C++ value out of a Variant, by the type of the property.
template <typename Value>
Value fromVariant(const Variant& value)
{
    if constexpr (std::is_same_v<Value, Variant>) {
        return value;
    } else if constexpr (std::is_same_v<Value, bool>) {
        return value.toBoolean();
    } else if constexpr (std::is_same_v<Value, String>) {
        return value.toText();
    } else if constexpr (std::is_same_v<Value, Colour>) {
        return Colour{static_cast<std::uint32_t>(value.toWhole())};
    } else if constexpr (std::is_same_v<Value, Moment>) {
        return value.toMoment();
    } else if constexpr (std::is_enum_v<Value> || std::is_integral_v<Value>) {
        return static_cast<Value>(value.toWhole());
    } else if constexpr (std::is_floating_point_v<Value>) {
        return static_cast<Value>(value.toReal());
    } else {
        using Class = typename Value::element_type; // std::shared_ptr of a class of Object
        auto object = std::dynamic_pointer_cast<Class>(value.object());
        if (!object && value.object()) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        return object;
    }
}

/// A Variant out of a C++ value.
template <typename Value>
Variant toVariant(const Value& value)
{
    if constexpr (std::is_same_v<Value, Colour>) {
        return Variant(static_cast<std::int32_t>(value.value));
    } else if constexpr (std::is_same_v<Value, bool>) {
        return Variant(value);
    } else if constexpr (std::is_enum_v<Value> || std::is_integral_v<Value>) {
        return Variant(static_cast<std::int32_t>(value));
    } else if constexpr (std::is_floating_point_v<Value>) {
        return Variant(static_cast<double>(value));
    } else if constexpr (requires { typename Value::element_type; }) {
        return Variant(ObjectPtr(value));
    } else {
        return Variant(value);
    }
}

template <typename Class, typename Value, Value (Class::*Read)() const>
constexpr Member readOnly(StringView name)
{
    return {name, [](Object& object) { return toVariant<Value>((static_cast<Class&>(object).*Read)()); }};
}

template <typename Class, typename Value, Value (Class::*Read)() const, void (Class::*Write)(Value)>
constexpr Member property(StringView name)
{
    return {name, [](Object& object) { return toVariant<Value>((static_cast<Class&>(object).*Read)()); },
            [](Object& object, const Variant& value) {
                (static_cast<Class&>(object).*Write)(fromVariant<Value>(value));
            }};
}

/// A text that is read by reference.
template <typename Class, const String& (Class::*Read)() const, void (Class::*Write)(String)>
constexpr Member textProperty(StringView name)
{
    return {
        name, [](Object& object) { return Variant((static_cast<Class&>(object).*Read)()); },
        [](Object& object, const Variant& value) { (static_cast<Class&>(object).*Write)(value.toText()); }};
}

/// A property whose reader creates its value on first use and so is not const.
template <typename Class, typename Value, Value (Class::*Read)(), void (Class::*Write)(Value)>
constexpr Member lazyProperty(StringView name)
{
    return {name, [](Object& object) { return toVariant<Value>((static_cast<Class&>(object).*Read)()); },
            [](Object& object, const Variant& value) {
                (static_cast<Class&>(object).*Write)(fromVariant<Value>(value));
            }};
}

/// An operation without arguments and result.
template <typename Class, void (Class::*Call)()>
constexpr Member operation(StringView name)
{
    return {name, nullptr, nullptr, [](Object& object, std::span<const Variant>) {
                (static_cast<Class&>(object).*Call)();
                return Variant();
            }};
}

} // namespace phial::members
