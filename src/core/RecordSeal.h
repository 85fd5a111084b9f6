#pragma once

#include "core/String.h"

#include <optional>
#include <string>
#include <string_view>

namespace phial
{

/// Seals the content of a record file with a password, so that nobody reads or changes it who does not know
/// the password.
class RecordSeal
{
public:
    virtual ~RecordSeal() = default;

    /// The bytes encrypted; sealing the same bytes again gives others. Raises 5 when there is not the memory
    /// to do so.
    virtual std::string seal(std::string_view bytes, StringView password) = 0;

    /// The bytes as they were sealed; none when the password is another one or anything was changed.
    virtual std::optional<std::string> open(std::string_view sealedBytes, StringView password) = 0;
};

} // namespace phial
