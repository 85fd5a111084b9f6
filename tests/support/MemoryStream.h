#pragma once

#include "core/CoreDataStream.h"
#include "core/RuntimeError.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace phial::test
{

/// A data stream in memory: what is written is read back from the first value on. A test can also look at the
/// values or give some to be read.
class MemoryStream : public CoreDataStream
{
public:
    MemoryStream() = default;
    explicit MemoryStream(std::vector<Variant> content) : values(std::move(content)) {}

    void writeValue(const Variant& value) override { values.push_back(value); }
    Variant ReadValue() override
    {
        if (next == values.size()) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        return values[next++];
    }

    std::vector<Variant> values;
    std::size_t next = 0; ///< how many values have been read
};

} // namespace phial::test
