#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// Words of praise, `QVAPP().TEXTS()`.
class cls_AppTexts
{
public:
    /// A random word in the language in force, the stronger the greater the number: 0 and 1, 2 to 4, 5 and
    /// more. The empty text for a negative one.
    String CORRECT(std::int32_t pReinforcement = 0) const;
};

} // namespace phial
