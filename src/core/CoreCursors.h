#pragma once

#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

class Picture;

/// Reads cursor pictures.
class CoreCursors
{
public:
    virtual ~CoreCursors() = default;

    /// The cursor of a file; null when it cannot be read, which stands for the usual pointer. `pSize` 0 is
    /// the file's own size; `pShared` lets equal paths share one picture, `pQuiet` keeps failures silent.
    virtual std::shared_ptr<Picture> Load(StringView pPath, std::int32_t pSize = 0, bool pShared = true,
                                          bool pQuiet = true) = 0;
};

} // namespace phial
