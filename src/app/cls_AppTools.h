#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

class DrawDevice;
enum class TEXTALIGN : std::int32_t; // see term/TermDraw.h

/// The chemistry tools of the root, `QVAPP().TOOLS()`.
class cls_AppTools
{
public:
    /// Draws a term on a device; -1 stands for the device's current position. See TermDraw.
    void TERMPRINT(DrawDevice& pDevice, StringView pText, std::int32_t pX = -1, std::int32_t pY = -1,
                   TEXTALIGN pAlign = TEXTALIGN{}) const;

    /// A term as HTML; the result ends with a blank. See termToHtml.
    String TERM2HTML(StringView pFormula) const;
};

} // namespace phial
