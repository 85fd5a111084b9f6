#pragma once

#include "visual/SharedFont.h"

#include <memory>
#include <utility>

/// Where the value of a property lies: what the rows of PropertyRow.h are made of. `actsItself` says that
/// `put` does all that a write has to do.
namespace phial::rows
{

/// In a field of the object.
template <typename Object, typename Type>
struct Field {
    using Owner = Object;
    using Value = Type;
    static constexpr bool actsItself = false;

    Type Object::*field;

    const Type& get(const Object& object) const { return object.*field; }
    void put(Object& object, Type value) const { object.*field = std::move(value); }
};

/// In a part that the object holds, by value or by pointer: such as the colour of its surface or the caption
/// of a label within.
template <typename Object, typename Part, typename Target, typename Type>
struct PartOf {
    using Owner = Object;
    using Value = Type;
    static constexpr bool actsItself = false;

    Part Object::*part;
    Type (Target::*reader)() const;
    void (Target::*writer)(Type);

    Type get(const Object& object) const { return (target(object.*part).*reader)(); }
    void put(Object& object, Type value) const { (target(object.*part).*writer)(std::move(value)); }

private:
    static const Target& target(const Target& part) { return part; }
    static Target& target(Target& part) { return part; }
    static Target& target(const std::shared_ptr<Target>& part) { return *part; }
};

/// Behind a pair of functions of the object itself, which do all that is to be done.
template <typename Object, typename Type, typename Argument>
struct Accessors {
    using Owner = Object;
    using Value = Type;
    static constexpr bool actsItself = true;

    Type (Object::*reader)() const;
    void (Object::*writer)(Argument);

    Type get(const Object& object) const { return (object.*reader)(); }
    void put(Object& object, Type value) const { (object.*writer)(std::move(value)); }
};

/// In a font that the object shares.
template <typename Object>
struct FontField {
    using Owner = Object;
    using Value = FontPtr;
    static constexpr bool actsItself = false;

    SharedFont Object::*field;

    const FontPtr& get(const Object& object) const { return (object.*field).pointer(); }
};

} // namespace phial::rows
