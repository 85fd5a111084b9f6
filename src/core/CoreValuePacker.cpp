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

constexpr StringView PackHead = u"QV1;";
constexpr StringView EscapedInPacks = u"{|:";
constexpr std::size_t ShortestValue = 4; // "E0=;"

/// The letter before a value's length.
enum class ValueTag : char16_t {
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

[[noreturn]] void raiseDamagedPack()
{
    throw RuntimeError(ErrorNumber::InvalidArgument, u"Invalid argument: no packed values");
}

/// The number, or damage where the text was none.
template <typename Number>
Number required(std::optional<Number> number)
{
    if (!number) {
        raiseDamagedPack();
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
            return append(ValueTag::Empty, {});
        case Variant::Kind::Boolean:
            return append(ValueTag::Boolean, value.toBoolean() ? u"-1" : u"0");
        case Variant::Kind::Whole:
            return append(ValueTag::Whole, plainText(value.toWhole()));
        case Variant::Kind::Real:
            return append(ValueTag::Real, exactText(value.toReal()));
        case Variant::Kind::Moment:
            return append(ValueTag::Moment, exactText(value.toMoment().days));
        case Variant::Kind::Text:
            return append(ValueTag::Text, escapedText(value.text(), EscapedInPacks));
        case Variant::Kind::Array:
            return append(ValueTag::Array, Writer(nesting_ + 1).list(value.array()));
        case Variant::Kind::Object:
            return value.object() ? append(ValueTag::Record, record(value)) : append(ValueTag::NoObject, {});
        }
    }

    void append(ValueTag tag, StringView content)
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
            throw RuntimeError(ErrorNumber::TypeMismatch);
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
class PackReader
{
public:
    explicit PackReader(StringView text) : rest_(text) {}

    std::vector<Variant> list()
    {
        const auto count = required(exactCount(take(u';')));
        if (count > rest_.size() / ShortestValue) {
            raiseDamagedPack();
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
            raiseDamagedPack();
        }
        return values;
    }

    const std::vector<PackedRecord>& records() const { return records_; }

private:
    PackReader(StringView text, int nesting) : rest_(text), nesting_(nesting)
    {
        if (nesting > CoreValuePacker::MaxNesting) {
            raiseDamagedPack();
        }
    }

    StringView take(char16_t end)
    {
        const std::size_t length = rest_.find(end);
        if (length == StringView::npos) {
            raiseDamagedPack();
        }
        const StringView taken = rest_.substr(0, length);
        rest_.remove_prefix(length + 1);
        return taken;
    }

    Variant value()
    {
        if (rest_.empty()) {
            raiseDamagedPack();
        }
        const auto tag = static_cast<ValueTag>(rest_.front());
        rest_.remove_prefix(1);
        const auto length = required(exactCount(take(u'=')));
        if (length >= rest_.size() || rest_[length] != u';') {
            raiseDamagedPack();
        }
        const StringView content = rest_.substr(0, length);
        rest_.remove_prefix(std::size_t{length} + 1);
        return valueOf(tag, content);
    }

    Variant valueOf(ValueTag tag, StringView content)
    {
        switch (tag) {
        case ValueTag::Empty:
        case ValueTag::NoObject:
            if (!content.empty()) {
                raiseDamagedPack();
            }
            return tag == ValueTag::Empty ? Variant() : Variant(ObjectPtr());
        case ValueTag::Boolean:
            return boolean(content);
        case ValueTag::Whole:
            return required(exactWhole(content));
        case ValueTag::Real:
            return required(exactReal(content));
        case ValueTag::Moment:
            return phial::Moment{required(exactReal(content))};
        case ValueTag::Text:
            return text(content);
        case ValueTag::Array:
            return Variant::Array(PackReader(content, nesting_ + 1).list());
        case ValueTag::Record:
            return record(content);
        }
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }

    static bool boolean(StringView content)
    {
        if (content != u"-1" && content != u"0") {
            raiseDamagedPack();
        }
        return content == u"-1";
    }

    static String text(StringView content)
    {
        auto text = unescapedText(content);
        if (!text) {
            raiseDamagedPack();
        }
        return *std::move(text);
    }

    /// A record is noted; in its place stands an object that is not set.
    Variant record(StringView content)
    {
        if (nesting_ > 0) {
            throw RuntimeError(ErrorNumber::TypeMismatch); // no target holds a record that could be filled
        }
        const std::vector<Variant> parts = PackReader(content, nesting_ + 1).list();
        if (parts.size() != 2 || !parts[0].isText() || !parts[1].isText()) {
            raiseDamagedPack();
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
PackReader readerOf(StringView text)
{
    if (text.size() > CoreValuePacker::MaxLength || !CoreValuePacker::isPacked(text)) {
        raiseDamagedPack();
    }
    return PackReader(text.substr(PackHead.size()));
}

} // namespace

String CoreValuePacker::Pack(std::span<const Variant> pValues)
{
    return String(PackHead) + Writer(0).list(pValues);
}

String CoreValuePacker::Pack(std::initializer_list<Variant> pValues)
{
    return Pack(std::span<const Variant>(pValues.begin(), pValues.size()));
}

void CoreValuePacker::Unpack(StringView pText, std::span<const Target> pTargets)
{
    PackReader reader = readerOf(pText);
    std::vector<Variant> values = reader.list();
    if (values.size() != pTargets.size()) {
        raiseDamagedPack();
    }
    for (const PackedRecord& packed : reader.records()) {
        Variant& target = pTargets[packed.position];
        tmp_Data* record = recordIn(target);
        if (record == nullptr || record->DATA()->ClassTag() != packed.classTag) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
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
    return text.starts_with(PackHead);
}

std::vector<Variant> CoreValuePacker::unpackAll(StringView text)
{
    PackReader reader = readerOf(text);
    std::vector<Variant> values = reader.list();
    if (!reader.records().empty()) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return values;
}

} // namespace phial
