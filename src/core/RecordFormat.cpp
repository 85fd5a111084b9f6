#include "core/RecordFormat.h"

#include "core/Checksum.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>

namespace phial
{

namespace
{

/// The control sign ends the output of programs that show files as text.
constexpr std::string_view Magic = "QVR\x1A";
constexpr std::uint16_t FormatVersion = 1;
constexpr std::uint16_t SealedFlag = 1;
constexpr std::size_t ChecksumAt = 16;
constexpr std::size_t HeadSize = 20;

/// The byte before a value.
enum class RecordTag : std::uint8_t {
    Empty = 0,
    False = 1,
    True = 2,
    Whole = 3,
    Real = 4,
    Moment = 5,
    NarrowText = 6, ///< one byte a unit, where all units are below 256
    WideText = 7,   ///< two bytes a unit
    Array = 8,
    NoObject = 9,
};

constexpr char16_t LastNarrowUnit = 0xFF;

[[noreturn]] void raiseDamagedRecord()
{
    throw RuntimeError(ErrorNumber::InvalidArgument, u"Invalid argument: no record values");
}

[[noreturn]] void raiseTooLarge()
{
    throw RuntimeError(ErrorNumber::InvalidArgument, u"Invalid argument: record too large");
}

/// Numbers have their lowest byte first.
template <std::unsigned_integral Number>
void append(std::string& bytes, Number number)
{
    std::array<char, sizeof(Number)> parts = {};
    for (std::size_t at = 0; at < sizeof(Number); ++at) {
        parts[at] = static_cast<char>((number >> (8 * at)) & 0xFF);
    }
    bytes.append(parts.data(), parts.size());
}

template <std::unsigned_integral Number>
Number numberAt(std::string_view bytes, std::size_t position)
{
    Number number = 0;
    for (std::size_t at = 0; at < sizeof(Number); ++at) {
        number = static_cast<Number>(
            number | static_cast<Number>(static_cast<Number>(static_cast<unsigned char>(bytes[position + at]))
                                         << (8 * at)));
    }
    return number;
}

bool isNarrow(StringView text)
{
    // Gathered rather than searched, since compilers turn this loop into wide instructions.
    char16_t all = 0;
    for (const char16_t unit : text) {
        all = static_cast<char16_t>(all | unit);
    }
    return all <= LastNarrowUnit;
}

/// Takes values from the front of a body.
class RecordReader
{
public:
    explicit RecordReader(std::string_view body) : rest_(body) {}

    bool atEnd() const { return rest_.empty(); }

    Variant value(int nesting)
    {
        countValue();
        switch (static_cast<RecordTag>(number<std::uint8_t>())) {
        case RecordTag::Empty:
            return {};
        case RecordTag::False:
            return Variant(false);
        case RecordTag::True:
            return Variant(true);
        case RecordTag::Whole:
            return std::bit_cast<std::int32_t>(number<std::uint32_t>());
        case RecordTag::Real:
            return std::bit_cast<double>(number<std::uint64_t>());
        case RecordTag::Moment:
            return Moment{std::bit_cast<double>(number<std::uint64_t>())};
        case RecordTag::NarrowText:
            return narrowText();
        case RecordTag::WideText:
            return wideText();
        case RecordTag::Array:
            return array(nesting + 1);
        case RecordTag::NoObject:
            return ObjectPtr();
        }
        raiseDamagedRecord();
    }

    /// Checks a value and passes over it.
    void skip(int nesting)
    {
        countValue();
        switch (static_cast<RecordTag>(number<std::uint8_t>())) {
        case RecordTag::Empty:
        case RecordTag::False:
        case RecordTag::True:
        case RecordTag::NoObject:
            return;
        case RecordTag::Whole:
            take(sizeof(std::uint32_t));
            return;
        case RecordTag::Real:
        case RecordTag::Moment:
            take(sizeof(std::uint64_t));
            return;
        case RecordTag::NarrowText:
            take(number<std::uint32_t>());
            return;
        case RecordTag::WideText:
            wideText();
            return;
        case RecordTag::Array:
            for (std::uint32_t items = arrayCount(nesting + 1); items > 0; --items) {
                skip(nesting + 1);
            }
            return;
        }
        raiseDamagedRecord();
    }

private:
    void countValue()
    {
        if (++values_ > record_format::MaxValues) {
            raiseDamagedRecord();
        }
    }

    std::string_view take(std::size_t count)
    {
        if (count > rest_.size()) {
            raiseDamagedRecord();
        }
        const std::string_view bytes = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return bytes;
    }

    template <std::unsigned_integral Number>
    Number number()
    {
        return numberAt<Number>(take(sizeof(Number)), 0);
    }

    String narrowText()
    {
        const std::string_view bytes = take(number<std::uint32_t>());
        String text(bytes.size(), u'\0');
        std::ranges::transform(bytes, text.begin(),
                               [](char byte) { return static_cast<unsigned char>(byte); });
        return text;
    }

    String wideText()
    {
        const std::string_view bytes = take(std::size_t{2} * number<std::uint32_t>());
        String text(bytes.size() / 2, u'\0');
        for (std::size_t at = 0; at < text.size(); ++at) {
            text[at] = numberAt<std::uint16_t>(bytes, 2 * at);
        }
        if (isNarrow(text)) {
            raiseDamagedRecord();
        }
        return text;
    }

    std::uint32_t arrayCount(int nesting)
    {
        const auto count = number<std::uint32_t>();
        if (nesting > record_format::MaxNesting || count > rest_.size()) {
            raiseDamagedRecord();
        }
        return count;
    }

    Variant array(int nesting)
    {
        Variant::Array items;
        for (std::uint32_t count = arrayCount(nesting); count > 0; --count) {
            items.push_back(value(nesting));
        }
        return items;
    }

    std::string_view rest_;
    std::size_t values_ = 0;
};

} // namespace

std::string record_format::framed(std::string_view body, bool isSealed)
{
    if (body.size() > MaxBytes - HeadSize) {
        raiseTooLarge();
    }
    std::string bytes;
    bytes.reserve(HeadSize + body.size());
    bytes += Magic;
    append(bytes, FormatVersion);
    append(bytes, isSealed ? SealedFlag : std::uint16_t{0});
    append(bytes, std::uint64_t{body.size()});
    append(bytes, crc32c(body, crc32c(bytes)));
    bytes += body;
    return bytes;
}

record_format::Frame record_format::frameOf(std::string_view bytes) noexcept
{
    if (bytes.size() < HeadSize || !bytes.starts_with(Magic)) {
        return {};
    }
    if (numberAt<std::uint16_t>(bytes, 4) > FormatVersion) {
        return {State::Newer, false, {}};
    }
    const std::string_view head = bytes.substr(0, ChecksumAt);
    const std::string_view body = bytes.substr(HeadSize);
    const auto flags = numberAt<std::uint16_t>(head, 6);
    const bool isWhole = numberAt<std::uint16_t>(head, 4) == FormatVersion && flags <= SealedFlag &&
                         numberAt<std::uint64_t>(head, 8) == body.size() &&
                         numberAt<std::uint32_t>(bytes, ChecksumAt) == crc32c(body, crc32c(head));
    return isWhole ? Frame{State::Whole, flags == SealedFlag, body} : Frame{};
}

std::vector<Variant> record_format::valuesOf(std::string_view body)
{
    std::vector<Variant> values;
    RecordReader reader(body);
    while (!reader.atEnd()) {
        values.push_back(reader.value(0));
    }
    return values;
}

Variant record_format::firstValueOf(std::string_view body)
{
    RecordReader reader(body);
    Variant first = reader.atEnd() ? Variant() : reader.value(0);
    while (!reader.atEnd()) {
        reader.skip(0);
    }
    return first;
}

void RecordWriter::write(const Variant& value)
{
    if (values_ == 0) {
        first_ = value;
    }
    write(value, 0);
}

void RecordWriter::write(const Variant& value, int nesting)
{
    const auto begin = [&](RecordTag tag) { body_ += static_cast<char>(tag); };
    if (++values_ > record_format::MaxValues || body_.size() > record_format::MaxBytes) {
        raiseTooLarge();
    }
    switch (value.kind()) {
    case Variant::Kind::Empty:
        return begin(RecordTag::Empty);
    case Variant::Kind::Boolean:
        return begin(value.toBoolean() ? RecordTag::True : RecordTag::False);
    case Variant::Kind::Whole:
        begin(RecordTag::Whole);
        return append(body_, std::bit_cast<std::uint32_t>(value.toWhole()));
    case Variant::Kind::Real:
        begin(RecordTag::Real);
        return append(body_, std::bit_cast<std::uint64_t>(value.toReal()));
    case Variant::Kind::Moment:
        begin(RecordTag::Moment);
        return append(body_, std::bit_cast<std::uint64_t>(value.toMoment().days));
    case Variant::Kind::Text:
        begin(isNarrow(value.text()) ? RecordTag::NarrowText : RecordTag::WideText);
        return text(value.text());
    case Variant::Kind::Array:
        begin(RecordTag::Array);
        return array(value.array(), nesting + 1);
    case Variant::Kind::Object:
        if (value.object()) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        return begin(RecordTag::NoObject);
    }
}

void RecordWriter::array(const Variant::Array& items, int nesting)
{
    if (nesting > record_format::MaxNesting || items.size() > record_format::MaxValues) {
        raiseTooLarge();
    }
    append(body_, static_cast<std::uint32_t>(items.size()));
    for (const Variant& item : items) {
        write(item, nesting);
    }
}

void RecordWriter::text(StringView text)
{
    if (text.size() > record_format::MaxBytes) {
        raiseTooLarge();
    }
    append(body_, static_cast<std::uint32_t>(text.size()));
    if (isNarrow(text)) {
        const std::size_t begin = body_.size();
        body_.resize(begin + text.size());
        std::ranges::transform(text, body_.begin() + static_cast<std::ptrdiff_t>(begin),
                               [](char16_t unit) { return static_cast<char>(unit); });
        return;
    }
    for (const char16_t unit : text) {
        append(body_, static_cast<std::uint16_t>(unit));
    }
}

} // namespace phial
