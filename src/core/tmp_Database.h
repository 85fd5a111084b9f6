#pragma once

#include <memory>

namespace phial
{

class CoreDatabase;

/// A record that is a list of records.
class tmp_Database
{
public:
    virtual ~tmp_Database() = default;

    /// The record's list engine; never null.
    virtual std::shared_ptr<CoreDatabase> DATABASE() = 0;
};

} // namespace phial
