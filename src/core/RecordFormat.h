#pragma once

#include "core/Variant.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace phial
{

/// The bytes of record files; docs/formats.md describes them. What this writes it reads back, value for value
/// with kind and content, and there is one way only to write a sequence of values.
namespace record_format
{

/// A file of more bytes is neither written nor read.
constexpr std::size_t MaxBytes = std::size_t{1} << 26;
/// A file of more values is neither written nor read; those in arrays count.
constexpr std::size_t MaxValues = std::size_t{1} << 22;
/// Arrays within arrays.
constexpr int MaxNesting = 32;

/// What a file's bytes turn out to be.
enum class State : std::uint8_t {
    Whole,   ///< every byte is as it was written
    Newer,   ///< of a later format, which this program does not know
    Damaged, ///< or no record file at all
};

/// A file taken apart; the body lies within the bytes that were given.
struct Frame {
    State state = State::Damaged;
    bool isSealed = false;
    std::string_view body;
};

/// The file for a body, with head and checksum.
std::string framed(std::string_view body, bool isSealed);

/// Checks all bytes of a file. Raises nothing.
Frame frameOf(std::string_view bytes) noexcept;

/// All values of a body that is not sealed. Raises 5 when it is no sequence of values.
std::vector<Variant> valuesOf(std::string_view body);

/// The first of these values, the empty value when there is none. All are checked, and 5 is raised likewise.
Variant firstValueOf(std::string_view body);

} // namespace record_format

/// Gathers values as the body of a record file.
class RecordWriter
{
public:
    /// Appends a value. Raises 13 for an object that is set, and 5 beyond the limits; the writer is of no use
    /// then.
    void write(const Variant& value);

    const std::string& body() const { return body_; }
    /// The first value, a record's version; the empty value when there is none.
    const Variant& first() const { return first_; }

private:
    void write(const Variant& value, int nesting);
    void array(const Variant::Array& items, int nesting);
    void text(StringView text);

    std::string body_;
    Variant first_;
    std::size_t values_ = 0;
};

} // namespace phial
