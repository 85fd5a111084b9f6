#pragma once

#include "core/CoreRegistryRead.h"
#include "core/CoreRegistryWrite.h"

#include <memory>

namespace phial
{

/// The settings, with one object to read and one to write.
class CoreRegistry
{
public:
    explicit CoreRegistry(const std::shared_ptr<SettingsStore>& store) : read_(store), write_(store) {}

    const phial::CoreRegistryRead& CoreRegistryRead() const { return read_; }
    phial::CoreRegistryWrite& CoreRegistryWrite() { return write_; }

private:
    phial::CoreRegistryRead read_;
    phial::CoreRegistryWrite write_;
};

} // namespace phial
