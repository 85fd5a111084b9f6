#pragma once

#include "core/RecordFormat.h"

namespace phial::test
{

/// The record file's body of these values.
inline RecordWriter recordOf(const std::vector<Variant>& values)
{
    RecordWriter writer;
    for (const Variant& value : values) {
        writer.write(value);
    }
    return writer;
}

} // namespace phial::test
