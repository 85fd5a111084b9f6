#include "core/Variant.h"

#include "core/Arithmetic.h"
#include "core/Format.h"
#include "core/Locale.h"
#include "core/NumberText.h"

#include <array>
#include <cmath>
#include <optional>

namespace phial
{

namespace
{

[[noreturn]] void raiseTypeMismatch()
{
    throw RuntimeError(ErrorNumber::TypeMismatch);
}

/// The number that a whole text is; no value when it is none. Raises 6 beyond the range of a double.
std::optional<double> wholeNumberText(StringView text)
{
    const NumberAtStart number = typedNumberAtStart(text);
    if (number.length == 0 || text.find_first_not_of(u' ', number.length) != StringView::npos) {
        return std::nullopt;
    }
    if (number.overflow) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number.value;
}

double numberOf(StringView text)
{
    if (const auto number = wholeNumberText(text)) {
        return *number;
    }
    raiseTypeMismatch();
}

/// The digits at a text's beginning as a number of at most four digits; takes them off the text.
std::optional<int> takeNumber(StringView& text)
{
    constexpr std::size_t MostDigits = 4;
    int number = 0;
    std::size_t digits = 0;
    for (; digits < text.size() && text[digits] >= u'0' && text[digits] <= u'9'; ++digits) {
        if (digits == MostDigits) {
            return std::nullopt;
        }
        number = number * 10 + (text[digits] - u'0');
    }
    text.remove_prefix(digits);
    return digits > 0 ? std::optional(number) : std::nullopt;
}

bool takeSign(StringView& text, char16_t sign)
{
    if (text.empty() || text.front() != sign) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

/// Takes `31.12.2024`, `31-12-2024`, `31/12/2024` or `2024-12-31` off the text.
bool takeDate(StringView& text, CalendarTime& fields)
{
    StringView rest = text;
    const std::size_t before = rest.size();
    const auto first = takeNumber(rest);
    const bool yearFirst = before - rest.size() == 4;
    if (!first || rest.empty()) {
        return false;
    }
    const char16_t sign = rest.front();
    if (sign != u'.' && sign != u'-' && sign != u'/') {
        return false;
    }
    rest.remove_prefix(1);
    const auto second = takeNumber(rest);
    if (!second || !takeSign(rest, sign)) {
        return false;
    }
    const auto third = takeNumber(rest);
    if (!third) {
        return false;
    }
    fields.year = yearFirst ? *first : *third;
    fields.month = *second;
    fields.day = yearFirst ? *third : *first;
    text = rest;
    return true;
}

/// Takes `18:30` or `18:30:05` off the text.
bool takeTime(StringView& text, CalendarTime& fields)
{
    StringView rest = text;
    const auto hour = takeNumber(rest);
    if (!hour || !takeSign(rest, u':')) {
        return false;
    }
    const auto minute = takeNumber(rest);
    if (!minute) {
        return false;
    }
    const auto second = takeSign(rest, u':') ? takeNumber(rest) : 0;
    if (!second) {
        return false;
    }
    fields.hour = *hour;
    fields.minute = *minute;
    fields.second = *second;
    text = rest;
    return true;
}

Moment momentOf(StringView text)
{
    const String whole = trimmed(text);
    StringView rest = whole;
    CalendarTime fields;
    const bool date = takeDate(rest, fields);
    if (date && !rest.empty() && !takeSign(rest, u' ')) {
        raiseTypeMismatch();
    }
    const bool time = takeTime(rest, fields);
    if (!rest.empty() || (!date && !time)) {
        raiseTypeMismatch();
    }
    try {
        return Moment::fromCalendar(fields);
    } catch (const RuntimeError&) {
        raiseTypeMismatch();
    }
}

/// Date and time, without a part that is zero.
String plainMoment(Moment moment)
{
    const Locale& locale = currentLocale();
    const CalendarTime fields = moment.calendar();
    const bool noTime = fields.hour == 0 && fields.minute == 0 && fields.second == 0;
    const bool noDate = std::trunc(moment.days) == 0;
    if (noTime) {
        return formatPattern(moment, locale.shortDate, locale);
    }
    return formatPattern(moment, noDate ? locale.longTime : locale.shortDate + u' ' + locale.longTime,
                         locale);
}

} // namespace

Variant::Variant(Array value) : value_(std::make_shared<const Array>(std::move(value))) {}

Variant::Variant(ObjectPtr value) : value_(std::move(value)) {}

const String& Variant::text() const
{
    if (const auto* text = std::get_if<String>(&value_)) {
        return *text;
    }
    raiseTypeMismatch();
}

const Variant::Array& Variant::array() const
{
    if (const auto* array = std::get_if<std::shared_ptr<const Array>>(&value_)) {
        return **array;
    }
    raiseTypeMismatch();
}

const ObjectPtr& Variant::object() const
{
    if (const auto* object = std::get_if<ObjectPtr>(&value_)) {
        return *object;
    }
    raiseTypeMismatch();
}

bool Variant::toBoolean() const
{
    if (isText()) {
        if (equalsIgnoringCase(text(), u"True")) {
            return true;
        }
        if (equalsIgnoringCase(text(), u"False")) {
            return false;
        }
    }
    return toReal() != 0;
}

std::int32_t Variant::toWhole() const
{
    if (const auto* whole = std::get_if<std::int32_t>(&value_)) {
        return *whole;
    }
    return phial::toWhole(toReal());
}

double Variant::toReal() const
{
    switch (kind()) {
    case Kind::Empty:
        return 0;
    case Kind::Boolean:
        return std::get<bool>(value_) ? -1 : 0;
    case Kind::Whole:
        return std::get<std::int32_t>(value_);
    case Kind::Real:
        return std::get<double>(value_);
    case Kind::Moment:
        return std::get<phial::Moment>(value_).days;
    case Kind::Text:
        return numberOf(std::get<String>(value_));
    case Kind::Array:
    case Kind::Object:
        break;
    }
    raiseTypeMismatch();
}

Moment Variant::toMoment() const
{
    if (const auto* moment = std::get_if<phial::Moment>(&value_)) {
        return *moment;
    }
    if (isText() && !wholeNumberText(text())) {
        return momentOf(text());
    }
    return phial::Moment{toReal()};
}

String Variant::toText() const
{
    switch (kind()) {
    case Kind::Empty:
        return {};
    case Kind::Boolean:
        return std::get<bool>(value_) ? u"True" : u"False";
    case Kind::Whole:
        return plainText(std::get<std::int32_t>(value_));
    case Kind::Real:
        return plainText(std::get<double>(value_), currentLocale().decimalSign);
    case Kind::Moment:
        return plainMoment(std::get<phial::Moment>(value_));
    case Kind::Text:
        return std::get<String>(value_);
    case Kind::Array:
    case Kind::Object:
        break;
    }
    raiseTypeMismatch();
}

bool operator==(const Variant& left, const Variant& right)
{
    if (left.isNumber() && right.isNumber()) {
        return left.toReal() == right.toReal();
    }
    if (left.kind() == Variant::Kind::Array && right.kind() == Variant::Kind::Array) {
        return left.array() == right.array();
    }
    return left.value_ == right.value_;
}

} // namespace phial
