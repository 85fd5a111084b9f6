#pragma once

#include "core/Members.h"
#include "core/Variant.h"

namespace phial
{

/// A sequence of typed values without names: what is read back comes in the order in which it was written.
class CoreDataStream
{
public:
    virtual ~CoreDataStream() = default;

    /// Appends one value.
    virtual void writeValue(const Variant& value) = 0;
    /// The next value, with the type with which it was written; raises an error at the end and when the
    /// stream is damaged.
    virtual Variant ReadValue() = 0;

    /// Appends values in order.
    template <typename... Values>
    void Write(const Values&... pValues)
    {
        (writeValue(Variant(pValues)), ...);
    }

    /// Fills the references with the next values in order; the type of each tells how its value is taken.
    /// Raises 13 when a value does not fit.
    template <typename... Values>
    void Read(Values&... rValues)
    {
        ((rValues = members::fromVariant<Values>(ReadValue())), ...);
    }
};

} // namespace phial
