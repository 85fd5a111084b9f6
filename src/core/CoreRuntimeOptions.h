#pragma once

#include "core/Event.h"
#include "core/String.h"
#include "core/Variant.h"

#include <map>

namespace phial
{

/// Named options of the run, which the styled controls follow, and its end. Names disregard case.
class CoreRuntimeOptions
{
public:
    /// Records an option and reports it, whether or not it differs. The system sets one: "TOUCHMODE".
    void SetOption(StringView pName, const Variant& pValue);

    /// An option's value; the empty value when it was never set.
    Variant Option(StringView pName) const;

    /// Announces the end of the run; may be called again.
    void Shutdown();

    Event<const String& /*pName, upper case*/, const Variant& /*pValue*/> OPTIONSET;
    Event<> SHUTDOWN;

private:
    std::map<String, Variant, std::less<>> options_;
};

} // namespace phial
