#pragma once

#include "core/String.h"

#include <cstdint>
#include <exception>

namespace phial
{

/// Numbers of the run-time errors that the system raises. Callers may raise others.
enum class ErrorNumber : std::int32_t {
    InvalidArgument = 5,
    Overflow = 6,
    IndexOutOfBounds = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    InputPastEnd = 62,
    DeviceUnavailable = 68,
    FileAccess = 75,
    ObjectNotSet = 91,
    InvalidPropertyValue = 380,
    NoSuchMember = 438,
};

/// The plain English description of an error number; "Unknown error" for a
/// number outside the table.
StringView errorDescription(std::int32_t number);

/// An error raised to the caller: a number and a description.
class RuntimeError : public std::exception
{
public:
    /// With the description of the table.
    explicit RuntimeError(ErrorNumber number);
    /// With a description of its own.
    RuntimeError(ErrorNumber number, String description);
    RuntimeError(std::int32_t number, String description);

    std::int32_t Number() const noexcept { return number_; }
    const String& Description() const noexcept { return description_; }
    /// The description in UTF-8.
    const char* what() const noexcept override { return utf8_.c_str(); }

private:
    std::int32_t number_;
    String description_;
    std::string utf8_;
};

/// Error 438, with the name that was asked for and where: "No such member: but_Ok of frm_Start".
RuntimeError noSuchMember(StringView member, StringView owner);

/// Runs one statement and drops what it raises: the visible form of "errors ignored". Gives whether it ran to
/// its end.
template <typename Statement>
bool ignoringErrors(Statement&& statement)
{
    try {
        statement();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace phial
