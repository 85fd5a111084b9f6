#pragma once

#include <cstdint>

namespace phial
{

class Form;

/// What stands on the calculator beside its keys.
enum class CalculatorSide : std::uint8_t {
    Lines, ///< what was worked out before
    Table, ///< the periodic table
};

/// Lays the bars of the calculator out, each as high as it needs, and gives its form their size: the task on
/// top where there is one, keys and what stands beside them, the variables at the bottom where there are
/// some.
void layOutCalculator(Form& form, CalculatorSide side);

} // namespace phial
