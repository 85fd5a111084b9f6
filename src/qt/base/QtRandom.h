#pragma once

#include "core/RandomSource.h"

#include <QRandomGenerator>

namespace phial::qt
{

/// Random numbers of the operating system.
class QtRandom final : public RandomSource
{
public:
    double next() override { return QRandomGenerator::system()->generateDouble(); }
    void seed(double /*value*/) override {}
};

} // namespace phial::qt
