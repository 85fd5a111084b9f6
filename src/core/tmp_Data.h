#pragma once

#include <memory>

namespace phial
{

class DATA;

/// A record: whatever has a `DATA` header.
class tmp_Data
{
public:
    virtual ~tmp_Data() = default;

    /// The record's header; never null.
    virtual std::shared_ptr<phial::DATA> DATA() = 0;
};

} // namespace phial
