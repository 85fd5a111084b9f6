#pragma once

#include "core/Moment.h"
#include "core/Object.h"
#include "core/RuntimeError.h"
#include "core/String.h"

#include <concepts>
#include <cstdint>
#include <utility>
#include <variant>
#include <vector>

namespace phial
{

template <typename Type>
concept CharacterType = std::same_as<Type, char> || std::same_as<Type, wchar_t> ||
    std::same_as<Type, char8_t> || std::same_as<Type, char16_t> || std::same_as<Type, char32_t>;

/// What counts as a number, unlike Booleans and characters, and is none of 32 bits.
template <typename Type>
concept OtherInteger = std::integral<Type> && !std::same_as<Type, bool> &&
                       !std::same_as<Type, std::int32_t> && !CharacterType<Type>;

/// A tagged value: empty, Boolean, 32-bit whole number, double, moment, text, array of such values, or
/// object.
///
/// A literal is never taken for a Boolean, since the constructors accept exact types only. Conversions follow
/// the usual rules or raise 13 (type mismatch) and 6 (overflow). Two values are equal when their kinds agree
/// and the contents are equal, whole numbers and doubles comparing by value; a number never equals a text.
class Variant
{
public:
    using Array = std::vector<Variant>;

    enum class Kind : std::uint8_t { Empty, Boolean, Whole, Real, Moment, Text, Array, Object };

    Variant() = default;
    template <std::same_as<bool> Boolean>
    Variant(Boolean value) : value_(value) // NOLINT(google-explicit-constructor): a value is a value
    {
    }
    Variant(std::int32_t value) : value_(value) {} // NOLINT(google-explicit-constructor)
    /// Other integers, such as a std::size_t: whole where they have room in 32 bits, real beyond.
    template <OtherInteger Integer>
    Variant(Integer value) // NOLINT(google-explicit-constructor)
        : value_(std::in_range<std::int32_t>(value) ? Content(static_cast<std::int32_t>(value))
                                                    : Content(static_cast<double>(value)))
    {
    }
    /// A character is no number, and a text only as a String.
    template <CharacterType Character>
    Variant(Character value) = delete;
    Variant(double value) : value_(value) {}                  // NOLINT(google-explicit-constructor)
    Variant(phial::Moment value) : value_(value) {}           // NOLINT(google-explicit-constructor)
    Variant(String value) : value_(std::move(value)) {}       // NOLINT(google-explicit-constructor)
    Variant(StringView value) : value_(String(value)) {}      // NOLINT(google-explicit-constructor)
    Variant(const char16_t* value) : value_(String(value)) {} // NOLINT(google-explicit-constructor)
    Variant(Array value);                                     // NOLINT(google-explicit-constructor)
    Variant(ObjectPtr value); // NOLINT(google-explicit-constructor): null gives an object that is not set

    Kind kind() const noexcept { return static_cast<Kind>(value_.index()); }
    bool isEmpty() const noexcept { return kind() == Kind::Empty; }
    bool isText() const noexcept { return kind() == Kind::Text; }
    /// Whole or Real.
    bool isNumber() const noexcept { return kind() == Kind::Whole || kind() == Kind::Real; }

    /// The content when the kind is known; raises 13 for another kind.
    const String& text() const;
    const Array& array() const;
    const ObjectPtr& object() const;

    /// Conversions. The empty value is False, 0 or "". True is -1 as a number; as text it is "True". A text
    /// that is no number (Boolean: neither a number nor "True"/"False") raises 13. Whole numbers are rounded
    /// to the nearest, halves to even, and raise 6 beyond 32 bits.
    bool toBoolean() const;
    std::int32_t toWhole() const;
    double toReal() const;
    phial::Moment toMoment() const;
    String toText() const;

    friend bool operator==(const Variant& left, const Variant& right);

private:
    // Arrays and objects are shared: copying a value does not copy them.
    using Content = std::variant<std::monostate, bool, std::int32_t, double, phial::Moment, String,
                                 std::shared_ptr<const Array>, ObjectPtr>;
    Content value_;
};

} // namespace phial
