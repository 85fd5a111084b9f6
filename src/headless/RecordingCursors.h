#pragma once

#include "core/CoreCursors.h"

#include <vector>

namespace phial::headless
{

/// Gives the usual pointer and remembers which cursors were asked for.
class RecordingCursors : public CoreCursors
{
public:
    const std::vector<String>& loaded() const { return loaded_; }

    std::shared_ptr<Picture> Load(StringView pPath, std::int32_t /*pSize*/, bool /*pShared*/,
                                  bool /*pQuiet*/) override
    {
        loaded_.emplace_back(pPath);
        return nullptr;
    }

private:
    std::vector<String> loaded_;
};

} // namespace phial::headless
