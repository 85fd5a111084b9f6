#pragma once

#include "core/CoreValueList.h"
#include "core/String.h"

#include <utility>

namespace phial
{

/// An entry of a CoreTokenList: a name and its values. The name is the key and does not change.
class CoreToken
{
public:
    CoreToken() = default;
    CoreToken(StringView name, CoreValueList values) : name_(name), values_(std::move(values)) {}

    const String& Name() const { return name_; }
    CoreValueList& Values() { return values_; }
    const CoreValueList& Values() const { return values_; }

private:
    String name_;
    CoreValueList values_;
};

} // namespace phial
