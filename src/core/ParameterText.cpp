#include "core/ParameterText.h"

#include "core/CoreValuePacker.h"
#include "core/EscapedText.h"
#include "core/ExactNumber.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>

namespace phial
{

namespace
{

constexpr StringView EmptyWord = u"empty";
constexpr StringView TrueWord = u"true";
constexpr StringView FalseWord = u"false";
constexpr StringView NoObjectWord = u"nothing";
constexpr char16_t DaysSign = u'@';
constexpr char16_t ObjectSign = u'<';

constexpr StringView CalendarPattern = u"yyyy-mm-dd\\Thh:nn:ss";
constexpr StringView Blanks = u" \t";
constexpr StringView EntryEnds = u";\r\n";
constexpr StringView BetweenEntries = u" \t;\r\n";
constexpr StringView WordEnds = u" \t;\r\n,]";

[[noreturn]] void raiseDamagedParameters()
{
    throw RuntimeError(ErrorNumber::InvalidArgument, u"Invalid argument: no text of parameters");
}

void checkNesting(int nesting)
{
    if (nesting > CoreValuePacker::MaxNesting) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
}

/// Whether a name may hold this unit without quotation marks.
bool isNameUnit(char16_t unit)
{
    constexpr StringView GermanLetters = u"\u00C4\u00D6\u00DC\u00E4\u00F6\u00FC\u00DF";
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'a' && unit <= u'z') || unit == u'_' || unit == u'.' || unit == u'-' ||
           GermanLetters.find(unit) != StringView::npos;
}

bool sameBits(double left, double right)
{
    return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

/// The moment of a text such as `2024-01-01T18:00:00`. Raises 5 where there is no such day or time.
std::optional<Moment> calendarMoment(StringView text)
{
    constexpr StringView Shape = u"0000-00-00T00:00:00";
    const auto fits = [](char16_t unit, char16_t shape) {
        return shape == u'0' ? unit >= u'0' && unit <= u'9' : unit == shape;
    };
    if (!std::ranges::equal(text, Shape, fits)) {
        return std::nullopt;
    }
    const auto number = [text](std::size_t begin, std::size_t length) {
        return exactWhole(text.substr(begin, length)).value_or(0);
    };
    return Moment::fromCalendar({.year = number(0, 4),
                                 .month = number(5, 2),
                                 .day = number(8, 2),
                                 .hour = number(11, 2),
                                 .minute = number(14, 2),
                                 .second = number(17, 2)});
}

/// Day and time where they say the moment to the last bit, otherwise its count of days.
String momentText(Moment moment)
{
    String text;
    ignoringErrors([&] { text = formatPattern(moment, CalendarPattern); });
    const auto read = calendarMoment(text);
    return read && sameBits(read->days, moment.days) ? text : DaysSign + exactText(moment.days);
}

/// A double never looks like a whole number.
String realText(double number)
{
    String text = exactText(number);
    return exactWhole(text) ? text + u".0" : text;
}

String valueText(const Variant& value, int nesting);

String arrayText(const Variant::Array& values, int nesting)
{
    checkNesting(nesting);
    String text = u"[";
    for (const Variant& value : values) {
        text += text.size() > 1 ? u", " : u"";
        text += valueText(value, nesting);
    }
    return text + u']';
}

String valueText(const Variant& value, int nesting)
{
    switch (value.kind()) {
    case Variant::Kind::Empty:
        return String(EmptyWord);
    case Variant::Kind::Boolean:
        return String(value.toBoolean() ? TrueWord : FalseWord);
    case Variant::Kind::Whole:
        return plainText(value.toWhole());
    case Variant::Kind::Real:
        return realText(value.toReal());
    case Variant::Kind::Moment:
        return momentText(value.toMoment());
    case Variant::Kind::Text:
        return quotedText(value.text());
    case Variant::Kind::Array:
        return arrayText(value.array(), nesting + 1);
    case Variant::Kind::Object:
        break;
    }
    return value.object() ? String(1, ObjectSign).append(value.object()->typeName()) + u'>'
                          : String(NoObjectWord);
}

/// Reads entries one after the other.
class ParameterReader
{
public:
    explicit ParameterReader(StringView text) : rest_(text) {}

    CoreParameters parameters()
    {
        CoreParameters parameters;
        for (skip(BetweenEntries); !rest_.empty(); skip(BetweenEntries)) {
            const String entryName = name();
            require(u'=');
            parameters.Set(entryName, value(0));
            skip(Blanks);
            if (!rest_.empty() && EntryEnds.find(rest_.front()) == StringView::npos) {
                raiseDamagedParameters();
            }
        }
        return parameters;
    }

private:
    void skip(StringView units)
    {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(units), rest_.size()));
    }

    /// Takes a sign and the blanks around it, if it is there.
    bool take(char16_t sign)
    {
        skip(Blanks);
        if (!rest_.starts_with(sign)) {
            return false;
        }
        rest_.remove_prefix(1);
        skip(Blanks);
        return true;
    }

    void require(char16_t sign)
    {
        if (!take(sign)) {
            raiseDamagedParameters();
        }
    }

    StringView takeUnits(std::size_t count)
    {
        const StringView taken = rest_.substr(0, count);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    String quoted()
    {
        auto text = takeQuotedText(rest_);
        if (!text) {
            raiseDamagedParameters();
        }
        return *std::move(text);
    }

    String name()
    {
        if (rest_.starts_with(u'"')) {
            return quoted();
        }
        const auto end = std::ranges::find_if_not(rest_, isNameUnit);
        const StringView bare = takeUnits(static_cast<std::size_t>(end - rest_.begin()));
        if (bare.empty()) {
            raiseDamagedParameters();
        }
        return String(bare);
    }

    Variant value(int nesting)
    {
        if (rest_.starts_with(u'"')) {
            return quoted();
        }
        if (take(u'[')) {
            return array(nesting + 1);
        }
        if (rest_.starts_with(ObjectSign)) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        return word(takeUnits(rest_.find_first_of(WordEnds)));
    }

    /// Reads the values of an array and its end.
    Variant array(int nesting)
    {
        checkNesting(nesting);
        Variant::Array values;
        if (take(u']')) {
            return values;
        }
        do {
            values.push_back(value(nesting));
        } while (take(u','));
        require(u']');
        return values;
    }

    static Variant word(StringView text)
    {
        if (text == EmptyWord) {
            return {};
        }
        if (text == NoObjectWord) {
            return ObjectPtr();
        }
        if (text == TrueWord || text == FalseWord) {
            return text == TrueWord;
        }
        if (const auto moment = calendarMoment(text)) {
            return *moment;
        }
        return numberOrDays(text);
    }

    static Variant numberOrDays(StringView text)
    {
        if (const auto whole = exactWhole(text)) {
            return *whole;
        }
        const bool days = text.starts_with(DaysSign);
        const auto number = exactReal(days ? text.substr(1) : text);
        if (!number) {
            raiseDamagedParameters();
        }
        return days ? Variant(Moment{*number}) : Variant(*number);
    }

    StringView rest_;
};

} // namespace

String parameterText(StringView name, const Variant& value)
{
    const bool bare = !name.empty() && std::ranges::all_of(name, isNameUnit);
    return (bare ? String(name) : quotedText(name)) + u" = " + valueText(value, 0);
}

CoreParameters parametersOfText(StringView text)
{
    if (text.size() > CoreValuePacker::MaxLength) {
        raiseDamagedParameters();
    }
    return ParameterReader(text).parameters();
}

} // namespace phial
