#pragma once

#include "core/Moment.h"
#include "core/Object.h"
#include "core/RuntimeError.h"
#include "core/String.h"

#include <concepts>
#include <cstdint>
#include <variant>
#include <vector>

namespace phial
{

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
    Variant(std::int32_t value) : value_(value) {}            // NOLINT(google-explicit-constructor)
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
