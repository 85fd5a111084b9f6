#pragma once

#include "core/Environment.h"

#include <map>
#include <utility>

namespace phial::headless
{

/// Environment variables from a map; at first there are none.
class MapEnvironment : public Environment
{
public:
    /// The empty value unsets a variable.
    void set(const String& name, String value) { variables_.insert_or_assign(name, std::move(value)); }

    String variable(StringView name) const override
    {
        const auto variable = variables_.find(name);
        return variable == variables_.end() ? String() : variable->second;
    }

private:
    std::map<String, String, std::less<>> variables_;
};

} // namespace phial::headless
