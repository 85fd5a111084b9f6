#pragma once

#include "core/String.h"
#include "visual/FontSpec.h"

#include <memory>

namespace phial
{

/// A font made ready for measuring and drawing. Belongs to the TextMetrics that made it; a back end draws
/// text in faces of its own metrics only.
class FontFace
{
public:
    virtual ~FontFace() = default;

    /// Advance of one line of text, in logical pixels.
    virtual double width(StringView text) const = 0;
    /// Height of one line, in logical pixels.
    virtual double height() const = 0;
    /// Distance from the top of the line to the base line, in logical pixels.
    virtual double ascent() const = 0;
};

/// The synchronous service that measures text. Figures do not depend on a screen's pixel ratio, so that
/// layouts are the same on every screen.
class TextMetrics
{
public:
    virtual ~TextMetrics() = default;

    /// The face for a font; the same object again for equal traits. Never null: an unknown name
    /// gives a substitute.
    virtual std::shared_ptr<const FontFace> face(const FontSpec& font) = 0;
    /// Whether the name can be had without a substitute of another look.
    virtual bool hasFont(StringView name) const = 0;
};

} // namespace phial
