#include "server/WireText.h"

#include "core/Arithmetic.h"
#include "core/CoreValuePacker.h"
#include "core/ExactNumber.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace phial
{

namespace
{

constexpr StringView Divider = u"::";
constexpr std::size_t TypeDigits = 3;
constexpr std::size_t PayloadStart = TypeDigits + 1;

/// The types that have a payload of their own. Any other number stands for a packed value; those that are
/// used for packed values tell a reader of the traffic what is inside.
enum class AnswerType : std::int32_t {
    Empty = 0,
    Whole16 = 2,
    Whole32 = 3,
    Single = 4,
    Double = 5,
    Moment = 7,
    Text = 8,
    Object = 9,
    Boolean = 11,
    Array = 12,
};

String answerOf(AnswerType type, StringView payload)
{
    const auto number = static_cast<std::int32_t>(type);
    String text(TypeDigits, u'0');
    text[1] = static_cast<char16_t>(u'0' + number / 10);
    text[2] = static_cast<char16_t>(u'0' + number % 10);
    return text.append(u":").append(payload);
}

String packedAnswer(AnswerType type, const Variant& value)
{
    return answerOf(type, CoreValuePacker::Pack({value}));
}

/// A payload that is a number from its first to its last sign, blanks around it allowed.
double decimalNumber(StringView payload)
{
    const String text = trimmed(payload);
    const NumberAtStart number = numberAtStart(text);
    if (number.length == 0 || number.length != text.size()) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    if (number.overflow) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number.value;
}

std::int32_t shortNumber(StringView payload)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const std::int32_t number = toWhole(decimalNumber(payload));
    if (number < Limits::min() || number > Limits::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number;
}

Variant unpackedValue(StringView payload)
{
    const std::vector<Variant> values = CoreValuePacker::unpackAll(payload);
    if (values.size() != 1) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"the answer is not one value");
    }
    return values.front();
}

} // namespace

String requestText(StringView module, StringView command, StringView package)
{
    return String(module).append(Divider).append(command).append(Divider).append(package);
}

std::optional<WireRequest> parseRequest(StringView text)
{
    const std::size_t moduleEnd = text.find(Divider);
    if (moduleEnd == StringView::npos) {
        return std::nullopt;
    }
    const std::size_t commandStart = moduleEnd + Divider.size();
    const std::size_t commandEnd = text.find(Divider, commandStart);
    if (commandEnd == StringView::npos) {
        return std::nullopt;
    }
    return WireRequest{String(text.substr(0, moduleEnd)),
                       String(text.substr(commandStart, commandEnd - commandStart)),
                       String(text.substr(commandEnd + Divider.size()))};
}

String answerText(const Variant& value)
{
    switch (value.kind()) {
    case Variant::Kind::Boolean:
        return answerOf(AnswerType::Boolean, value.toBoolean() ? u"1" : u"0");
    case Variant::Kind::Whole:
        return answerOf(AnswerType::Whole32, plainText(value.toWhole()));
    case Variant::Kind::Real:
        // A number that is not finite has no decimal text.
        return std::isfinite(value.toReal()) ? answerOf(AnswerType::Double, exactText(value.toReal()))
                                             : packedAnswer(AnswerType::Empty, value);
    case Variant::Kind::Text:
        return answerOf(AnswerType::Text, value.text());
    case Variant::Kind::Moment:
        return packedAnswer(AnswerType::Moment, value);
    case Variant::Kind::Array:
        return packedAnswer(AnswerType::Array, value);
    case Variant::Kind::Object:
        return packedAnswer(AnswerType::Object, value);
    case Variant::Kind::Empty:
        break;
    }
    return packedAnswer(AnswerType::Empty, value);
}

Variant answerValue(StringView answer)
{
    const StringView payload = answerPayload(answer);
    switch (static_cast<AnswerType>(toWhole(numberAtStart(answer.substr(0, TypeDigits)).value))) {
    case AnswerType::Whole16:
        return shortNumber(payload);
    case AnswerType::Whole32:
        return toWhole(decimalNumber(payload));
    case AnswerType::Single:
    case AnswerType::Double:
        return decimalNumber(payload);
    case AnswerType::Text:
        return payload;
    case AnswerType::Boolean:
        return payload == u"1";
    case AnswerType::Empty:
    case AnswerType::Moment:
    case AnswerType::Object:
    case AnswerType::Array:
        break;
    }
    return unpackedValue(payload);
}

bool isRefusal(const Variant& value)
{
    return value == Variant(u"ERROR");
}

StringView answerPayload(StringView answer)
{
    return answer.substr(std::min(PayloadStart, answer.size()));
}

} // namespace phial
