#pragma once

#include "core/String.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace phial
{

/// One element as an element file tells it.
struct ElementRecord {
    String symbol;
    String names;            ///< `Name*Alternative*...`
    double mass = 0;         ///< g/mol, rounded to one decimal
    double exactMass = 0;    ///< the same with the digits of the file
    std::int32_t period = 0; ///< 0 in the three-line format
    std::int32_t group = 0;  ///< 0 in the three-line format
};

/// Reads the text formats of element tables, fed line by line.
///
/// A record has one field a line: symbol, names, molar mass, and in the five-line format period and group.
/// Empty lines and lines that start with "#" count as nothing, also within a record; a line of blanks is a
/// field like any other. A number is read as people type it; what is none counts as the number it begins
/// with, or 0.
///
/// Molar masses are kept with one decimal, as schools use them, an exact second decimal 5 going up: 35.45
/// gives 35.5, 35.449 gives 35.4.
class ElementFileReader
{
public:
    enum class Format : std::size_t { ThreeLines = 3, FiveLines = 5 };

    explicit ElementFileReader(Format format) : fieldCount_(static_cast<std::size_t>(format)) {}

    /// Takes the next line and gives the record that it completes, if it does. Raises 6 for a period or group
    /// beyond 32 bits.
    std::optional<ElementRecord> take(StringView line);

private:
    ElementRecord record() const;

    std::size_t fieldCount_;
    std::size_t filled_ = 0;
    std::array<String, 5> fields_;
};

} // namespace phial
