#pragma once

#include "core/Variant.h"
#include "visual/ControlPeer.h"
#include "visual/Picture.h"
#include "visual/PropertyPlaces.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <tuple>
#include <type_traits>

/// The rows of a table of properties, and what makes them; see PropertyRows.h.
namespace phial::rows
{

/// A name as part of a type.
template <std::size_t Size>
struct Name {
    char16_t text[Size]{};

    // NOLINTNEXTLINE(google-explicit-constructor): a literal is a name
    consteval Name(const char16_t (&literal)[Size]) { std::copy_n(literal, Size, text); }
    constexpr StringView view() const { return {text, Size - 1}; }
};

/// What a constant table holds for a default of that type.
template <typename Value>
struct DefaultOf {
    using Type = Value;
};
template <>
struct DefaultOf<String> {
    using Type = StringView;
};
template <>
struct DefaultOf<FontPtr> {
    using Type = FontDesign;
};
template <>
struct DefaultOf<PicturePtr> {
    using Type = std::nullptr_t;
};

/// A property. `Place` is where its value lies; `Access` is how it is reached by name, where that differs.
template <Name RowName, typename Place, typename Access = Place>
struct Property {
    using Owner = typename Place::Owner;
    using Value = typename Place::Value;
    using Default = typename DefaultOf<Value>::Type;
    using Effect = void (Owner::*)();
    using Check = bool (*)(const Value&);

    static constexpr StringView name = RowName.view();

    Place place;
    Access access;
    Default standard{};
    Default freshValue{};
    bool isStarted = false; ///< whether the row gives the field its first value
    StringView key{};       ///< empty: not kept
    Value (Owner::*keptValue)() const = nullptr;
    std::optional<bool> isAlways{};
    bool isTold = true;
    bool isSpoken = false;
    bool isStill = false;
    Effect effect = nullptr;
    std::optional<ControlAspect> aspect{};
    Check check = nullptr;
    bool raises = false;
    bool nullIsDefault = false; ///< of a font

    /// Goes into bags, under the row's name or another key.
    constexpr Property kept(StringView otherKey = name) const
    {
        return with(&Property::key, otherKey).with(&Property::isStarted, true);
    }
    /// What a bag is given instead of the value.
    constexpr Property keptAs(Value (Owner::*reader)() const) const
    {
        return with(&Property::keptValue, reader);
    }
    /// The value of a freshly placed control, where it is not the default.
    constexpr Property fresh(Default value) const { return with(&Property::freshValue, value); }

    /// A write of the present value counts as a change, or does not.
    constexpr Property always() const { return with(&Property::isAlways, true); }
    constexpr Property ifDiffers() const { return with(&Property::isAlways, false); }
    /// PropertyChanged is not raised.
    constexpr Property untold() const { return with(&Property::isTold, false); }
    /// A screen reader hears of the change.
    constexpr Property spoken() const { return with(&Property::isSpoken, true); }

    /// What follows a change: a function of the control, one side of the model for the widget, or nothing.
    constexpr Property then(Effect function) const { return with(&Property::effect, function); }
    constexpr Property reports(ControlAspect side) const { return with(&Property::aspect, side); }
    constexpr Property still() const { return with(&Property::isStill, true); }

    /// Other values are dropped without a word, or raise 5; either way nothing is stored. Bags are not
    /// checked.
    constexpr Property ignoringUnless(Check isGood) const { return with(&Property::check, isGood); }
    constexpr Property raisingUnless(Check isGood) const
    {
        return ignoringUnless(isGood).with(&Property::raises, true);
    }
    /// For a font: null brings back the default instead of raising 91.
    constexpr Property nullGivesDefault() const { return with(&Property::nullIsDefault, true); }

    /// By name the property is reached through these functions, of which the second does all that a write
    /// does.
    template <typename Type, typename Argument>
    constexpr auto through(Type (Owner::*reader)() const, void (Owner::*writer)(Argument)) const
    {
        using Reached = Accessors<Owner, Type, Argument>;
        return Property<RowName, Place, Reached>{.place = place,
                                                 .access = Reached{reader, writer},
                                                 .standard = standard,
                                                 .freshValue = freshValue,
                                                 .isStarted = isStarted,
                                                 .key = key,
                                                 .keptValue = keptValue};
    }

private:
    template <typename Type>
    constexpr Property with(Type Property::*field, std::type_identity_t<Type> value) const
    {
        auto row = *this;
        row.*field = value;
        return row;
    }
};

/// A value that can only be read.
template <Name RowName, typename Object, typename Type>
struct ReadOnly {
    using Owner = Object;
    static constexpr StringView name = RowName.view();

    Type (Object::*reader)() const;
};

/// Something to do, without arguments and result, or with both.
template <Name RowName, typename Object, typename Call>
struct Operation {
    using Owner = Object;
    static constexpr StringView name = RowName.view();

    Call call;
};

/// The rows of a class; the frame's members come before them in a control.
template <typename... Rows>
struct Table {
    using Owner = typename std::tuple_element_t<0, std::tuple<Rows...>>::Owner;
    static constexpr std::size_t size = sizeof...(Rows);

    std::tuple<Rows...> rows;

    constexpr explicit Table(Rows... all) : rows(all...) {}
};

/// In a field. Without a default the field's own initial value stays.
template <Name RowName, typename Object, typename Type>
constexpr auto property(Type Object::*field)
{
    using Place = Field<Object, Type>;
    return Property<RowName, Place>{.place = {field}, .access = {field}};
}
template <Name RowName, typename Object, typename Type>
constexpr auto property(Type Object::*field, typename DefaultOf<Type>::Type standard)
{
    using Place = Field<Object, Type>;
    return Property<RowName, Place>{
        .place = {field}, .access = {field}, .standard = standard, .freshValue = standard, .isStarted = true};
}

/// In a part: a reader and a writer of the part's class.
template <Name RowName, typename Object, typename Part, typename Target, typename Type>
constexpr auto property(Part Object::*part, Type (Target::*reader)() const, void (Target::*writer)(Type))
{
    using Place = PartOf<Object, Part, Target, Type>;
    return Property<RowName, Place>{.place = {part, reader, writer}, .access = {part, reader, writer}};
}
template <Name RowName, typename Object, typename Part, typename Target, typename Type>
constexpr auto property(Part Object::*part, Type (Target::*reader)() const, void (Target::*writer)(Type),
                        typename DefaultOf<Type>::Type standard)
{
    auto row = property<RowName>(part, reader, writer);
    row.standard = row.freshValue = standard;
    row.isStarted = true;
    return row;
}

/// Behind the class's own reader and writer, where the writer is more than a row can tell.
template <Name RowName, typename Object, typename Type, typename Argument>
constexpr auto property(Type (Object::*reader)() const, void (Object::*writer)(Argument))
{
    using Place = Accessors<Object, Type, Argument>;
    return Property<RowName, Place>{.place = {reader, writer}, .access = {reader, writer}};
}

/// A font that the object shares.
template <Name RowName, typename Object>
constexpr auto font(SharedFont Object::*field, FontDesign standard = {})
{
    using Place = FontField<Object>;
    return Property<RowName, Place>{
        .place = {field}, .access = {field}, .standard = standard, .freshValue = standard, .isStarted = true};
}

template <Name RowName, typename Object, typename Type>
constexpr auto readOnly(Type (Object::*reader)() const)
{
    return ReadOnly<RowName, Object, Type>{reader};
}

template <Name RowName, typename Object>
constexpr auto operation(void (Object::*call)())
{
    return Operation<RowName, Object, void (Object::*)()>{call};
}
template <Name RowName, typename Object>
constexpr auto operation(Variant (*call)(Object&, std::span<const Variant>))
{
    return Operation<RowName, Object, Variant (*)(Object&, std::span<const Variant>)>{call};
}

/// Checks of values.
template <typename Number>
constexpr bool isPositive(const Number& value)
{
    return value > 0;
}
template <typename Number>
constexpr bool isNotNegative(const Number& value)
{
    return value >= 0;
}

} // namespace phial::rows
