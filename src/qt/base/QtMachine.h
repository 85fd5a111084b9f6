#pragma once

#include "core/CoreMachine.h"

namespace phial::qt
{

/// Facts about this computer.
class QtMachine final : public CoreMachine
{
public:
    String UserName() const override;
    /// Without its domain.
    String ComputerName() const override;
    String OSVersion() const override;
    std::int32_t UserLanguage() const override;
    /// A random identifier; both arguments are without effect.
    String NewUniqueID(std::int32_t pKind = 0, std::int32_t pOptions = 0) override;
};

} // namespace phial::qt
