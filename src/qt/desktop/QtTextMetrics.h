#pragma once

#include "qt/desktop/QtFontFace.h"

#include <list>

namespace phial::qt
{

/// The faces in use, most recently asked for first. Measuring goes on logical pixels and takes no notice of
/// screens.
class QtTextMetrics final : public TextMetrics
{
public:
    std::shared_ptr<const FontFace> face(const FontSpec& font) override;
    bool hasFont(StringView name) const override;

private:
    // More than any program uses at once; a program that changes sizes all the time does not fill the memory.
    static constexpr std::size_t MaximumFaces = 128;

    std::list<std::shared_ptr<const QtFontFace>> faces_;
};

} // namespace phial::qt
