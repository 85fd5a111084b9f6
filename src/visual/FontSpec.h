#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// What a font is asked for by. `name` is the system's name for it; the adapter owns the table from names to
/// installed families, and from the codes of symbol fonts to signs.
struct FontSpec {
    String name = u"Tahoma";
    double size = 8; ///< points of 1/72 inch
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::int32_t charset = 0;

    /// Height of the font in logical pixels.
    double pixelSize() const { return size * 96 / 72; }

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

/// The same in a constant table, which cannot hold a String.
struct FontDesign {
    StringView name = u"Tahoma";
    double size = 8;
    bool bold = false;
    bool italic = false;
    bool underline = false;

    FontSpec traits() const
    {
        return {.name = String(name), .size = size, .bold = bold, .italic = italic, .underline = underline};
    }
};

} // namespace phial
