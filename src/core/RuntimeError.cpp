#include "core/RuntimeError.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace phial
{

namespace
{

struct Description {
    ErrorNumber number;
    StringView text;
};

constexpr Description Descriptions[] = {
    {ErrorNumber::InvalidArgument, u"Invalid argument"},
    {ErrorNumber::Overflow, u"Overflow"},
    {ErrorNumber::IndexOutOfBounds, u"Index out of bounds"},
    {ErrorNumber::DivisionByZero, u"Division by zero"},
    {ErrorNumber::TypeMismatch, u"Type mismatch"},
    {ErrorNumber::FileNotFound, u"File not found"},
    {ErrorNumber::DeviceUnavailable, u"Device unavailable"},
    {ErrorNumber::ObjectNotSet, u"Object not set"},
    {ErrorNumber::InvalidPropertyValue, u"Invalid property value"},
    {ErrorNumber::NoSuchMember, u"No such member"},
};

} // namespace

StringView errorDescription(std::int32_t number)
{
    const auto* found =
        std::find_if(std::begin(Descriptions), std::end(Descriptions), [number](const auto& entry) {
            return static_cast<std::int32_t>(entry.number) == number;
        });
    return found != std::end(Descriptions) ? found->text : StringView(u"Unknown error");
}

RuntimeError::RuntimeError(ErrorNumber number)
    : RuntimeError(number, String(errorDescription(static_cast<std::int32_t>(number))))
{
}

RuntimeError::RuntimeError(ErrorNumber number, String description)
    : RuntimeError(static_cast<std::int32_t>(number), std::move(description))
{
}

RuntimeError::RuntimeError(std::int32_t number, String description)
    : number_(number), description_(std::move(description)), utf8_(toUtf8(description_))
{
}

RuntimeError noSuchMember(StringView member, StringView owner)
{
    return {ErrorNumber::NoSuchMember,
            String(errorDescription(static_cast<std::int32_t>(ErrorNumber::NoSuchMember)))
                .append(u": ")
                .append(member)
                .append(u" of ")
                .append(owner)};
}

} // namespace phial
