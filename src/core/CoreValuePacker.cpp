#include "core/CoreValuePacker.h"

#include "core/DATA.h"
#include "core/EscapedText.h"
#include "core/ExactNumber.h"
#include "core/NumberText.h"
#include "core/tmp_Data.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace phial
{

namespace
{

constexpr StringView Head = u"QV1;";
constexpr StringView AlsoEscaped = u"{|:";
constexpr std::size_t ShortestValue = 4; // "E0=;"

/// The letter before a value's length.
enum class Tag : char16_t {
    Empty = u'E',
    Boolean = u'B',
    Whole = u'I',
    Real = u'D',
    Moment = u'M',
    Text = u'T',
    Array = u'A',
    NoObject = u'N',
    Record = u'R',
};

[[noreturn]] void raiseDamaged()
{
    throw RuntimeError(ErrorNumber::InvalidArgument, u"Invalid argument: no packed values");
}

[[noreturn]] void raiseTypeMismatch()
{
    throw RuntimeError(ErrorNumber::TypeMismatch);
}

/// The number, or damage where the text was none.
template <typename Number>
Number required(std::optional<Number> number)
{
    if (!number) {
        raiseDamaged();
    }
    return *number;
}

/// A count or length in decimal digits.
String countText(std::size_t count)
{
    const std::string digits = std::to_string(count);
    return {digits.begin(), digits.end()};
}

// The record in an object that is set, or null.
tmp_Data* recordIn(const Variant& value)
{
    return value.kind() == Variant::Kind::Object ? dynamic_cast<tmp_Data*>(value.object().get()) : nullptr;
}

/// Writes values one after the other.
class Writer
{
public:
    explicit Writer(int nesting) : nesting_(nesting)
    {
        if (nesting > CoreValuePacker::MaxNesting) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
    }

    String list(std::span<const Variant> values)
    {
        text_ += countText(values.size()) + u';';
        for (const Variant& value : values) {
            write(value);
        }
        return std::move(text_);
    }

private:
    void write(const Variant& value)
    {
        switch (value.kind()) {
        case Variant::Kind::Empty:
            return append(Tag::Empty, {});
        case Variant::Kind::Boolean:
            return append(Tag::Boolean, value.toBoolean() ? u"-1" : u"0");
        case Variant::Kind::Whole:
            return append(Tag::Whole, plainText(value.toWhole()));
        case Variant::Kind::Real:
            return append(Tag::Real, exactText(value.toReal()));
        case Variant::Kind::Moment:
            return append(Tag::Moment, exactText(value.toMoment().days));
        case Variant::Kind::Text:
            return append(Tag::Text, escapedText(value.text(), AlsoEscaped));
        case Variant::Kind::Array:
            return append(Tag::Array, Writer(nesting_ + 1).list(value.array()));
        case Variant::Kind::Object:
            return value.object() ? append(Tag::Record, record(value)) : append(Tag::NoObject, {});
        }
    }

    void append(Tag tag, StringView content)
    {
        text_ += static_cast<char16_t>(tag);
        text_ += countText(content.size());
        text_ += u'=';
        text_ += content;
        text_ += u';';
    }

    String record(const Variant& value)
    {
        tmp_Data* data = recordIn(value);
        if (data == nullptr) {
            raiseTypeMismatch();
        }
        const std::array<Variant, 2> parts = {data->DATA()->ClassTag(), data->DATA()->Pack()};
        return Writer(nesting_ + 1).list(parts);
    }

    int nesting_;
    String text_;
};

/// A record as it was packed.
struct PackedRecord {
    std::size_t position; ///< of its value in the outermost list, from 0
    String classTag;
    String text;
};

/// Reads values one after the other. Everything is bounded by the text that is really there.
class Reader
{
public:
    explicit Reader(StringView text) : rest_(text) {}

    std::vector<Variant> list()
    {
        const auto count = required(exactCount(take(u';')));
        if (count > rest_.size() / ShortestValue) {
            raiseDamaged();
        }
        std::vector<Variant> values;
        values.reserve(count);
        for (std::uint32_t i = 0; i < count; ++i) {
            values.push_back(value());
            if (record_) {
                records_.push_back({i, std::move(record_->classTag), std::move(record_->text)});
                record_.reset();
            }
        }
        if (!rest_.empty()) {
            raiseDamaged();
        }
        return values;
    }

    const std::vector<PackedRecord>& records() const { return records_; }

private:
    Reader(StringView text, int nesting) : rest_(text), nesting_(nesting)
    {
        if (nesting > CoreValuePacker::MaxNesting) {
            raiseDamaged();
        }
    }

    StringView take(char16_t end)
    {
        const std::size_t length = rest_.find(end);
        if (length == StringView::npos) {
            raiseDamaged();
        }
        const StringView taken = rest_.substr(0, length);
        rest_.remove_prefix(length + 1);
        return taken;
    }

    Variant value()
    {
        if (rest_.empty()) {
            raiseDamaged();
        }
        const auto tag = static_cast<Tag>(rest_.front());
        rest_.remove_prefix(1);
        const auto length = required(exactCount(take(u'=')));
        if (length >= rest_.size() || rest_[length] != u';') {
            raiseDamaged();
        }
        const StringView content = rest_.substr(0, length);
        rest_.remove_prefix(std::size_t{length} + 1);
        return valueOf(tag, content);
    }

    Variant valueOf(Tag tag, StringView content)
    {
        switch (tag) {
        case Tag::Empty:
        case Tag::NoObject:
            if (!content.empty()) {
                raiseDamaged();
            }
            return tag == Tag::Empty ? Variant() : Variant(ObjectPtr());
        case Tag::Boolean:
            return boolean(content);
        case Tag::Whole:
            return required(exactWhole(content));
        case Tag::Real:
            return required(exactReal(content));
        case Tag::Moment:
            return phial::Moment{required(exactReal(content))};
        case Tag::Text:
            return text(content);
        case Tag::Array:
            return Variant::Array(Reader(content, nesting_ + 1).list());
        case Tag::Record:
            return record(content);
        }
        raiseTypeMismatch();
    }

    static bool boolean(StringView content)
    {
        if (content != u"-1" && content != u"0") {
            raiseDamaged();
        }
        return content == u"-1";
    }

    static String text(StringView content)
    {
        auto text = unescapedText(content);
        if (!text) {
            raiseDamaged();
        }
        return *std::move(text);
    }

    /// A record is noted; in its place stands an object that is not set.
    Variant record(StringView content)
    {
        if (nesting_ > 0) {
            raiseTypeMismatch(); // no target holds a record that could be filled
        }
        const std::vector<Variant> parts = Reader(content, nesting_ + 1).list();
        if (parts.size() != 2 || !parts[0].isText() || !parts[1].isText()) {
            raiseDamaged();
        }
        record_ = PackedRecord{0, parts[0].text(), parts[1].text()};
        return ObjectPtr();
    }

    StringView rest_;
    int nesting_ = 0;
    std::optional<PackedRecord> record_;
    std::vector<PackedRecord> records_;
};

/// A reader behind the head of a packed text.
Reader readerOf(StringView text)
{
    if (text.size() > CoreValuePacker::MaxLength || !CoreValuePacker::isPacked(text)) {
        raiseDamaged();
    }
    return Reader(text.substr(Head.size()));
}

} // namespace

String CoreValuePacker::Pack(std::span<const Variant> pValues)
{
    return String(Head) + Writer(0).list(pValues);
}

String CoreValuePacker::Pack(std::initializer_list<Variant> pValues)
{
    return Pack(std::span<const Variant>(pValues.begin(), pValues.size()));
}

void CoreValuePacker::Unpack(StringView pText, std::span<const Target> pTargets)
{
    Reader reader = readerOf(pText);
    std::vector<Variant> values = reader.list();
    if (values.size() != pTargets.size()) {
        raiseDamaged();
    }
    for (const PackedRecord& packed : reader.records()) {
        Variant& target = pTargets[packed.position];
        tmp_Data* record = recordIn(target);
        if (record == nullptr || record->DATA()->ClassTag() != packed.classTag) {
            raiseTypeMismatch();
        }
        values[packed.position] = target;
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        pTargets[i].get() = std::move(values[i]);
    }
    for (const PackedRecord& packed : reader.records()) {
        recordIn(pTargets[packed.position])->DATA()->Unpack(packed.text);
    }
}

void CoreValuePacker::Unpack(StringView pText, std::initializer_list<Target> pTargets)
{
    Unpack(pText, std::span<const Target>(pTargets.begin(), pTargets.size()));
}

bool CoreValuePacker::isPacked(StringView text)
{
    return text.starts_with(Head);
}

std::vector<Variant> CoreValuePacker::unpackAll(StringView text)
{
    Reader reader = readerOf(text);
    std::vector<Variant> values = reader.list();
    if (!reader.records().empty()) {
        raiseTypeMismatch();
    }
    return values;
}

} // namespace phial
