#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// One named text field of a form document.
class CoreFormField
{
public:
    virtual ~CoreFormField() = default;

    virtual String Name() const = 0;
    virtual String Text() const = 0;
    virtual void Text(StringView pText) = 0;
};

/// The text fields of one page, in the form's order.
class CoreFormFields
{
public:
    virtual ~CoreFormFields() = default;

    virtual std::int32_t Count() const = 0;
    /// Counts from 1; raises 9 outside.
    virtual CoreFormField& Item(std::int32_t pIndex) = 0;
};

/// A printable document made from a form file with text fields to be filled in.
class CoreFormDocument
{
public:
    virtual ~CoreFormDocument() = default;

    /// Reads a form file; false when there is none or it cannot be understood.
    virtual bool Load(StringView pPath) = 0;
    /// The fields of a page, 1 being the first; raises 9 for a page that the form does not have.
    virtual CoreFormFields& Fields(std::int32_t pPage = 1) = 0;
    /// Prints that many copies; false when the user cancels or the printer fails.
    virtual bool Print(std::int32_t pCopies = 1) = 0;
};

} // namespace phial
