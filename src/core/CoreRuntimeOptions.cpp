#include "core/CoreRuntimeOptions.h"

namespace phial
{

void CoreRuntimeOptions::SetOption(StringView pName, const Variant& pValue)
{
    const String name = upperCase(pName);
    options_.insert_or_assign(name, pValue);
    OPTIONSET.raise(name, pValue);
}

Variant CoreRuntimeOptions::Option(StringView pName) const
{
    const auto option = options_.find(upperCase(pName));
    return option == options_.end() ? Variant() : option->second;
}

void CoreRuntimeOptions::Shutdown()
{
    SHUTDOWN.raise();
}

} // namespace phial
