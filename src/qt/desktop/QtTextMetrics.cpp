#include "qt/desktop/QtTextMetrics.h"

#include "qt/desktop/FontCatalogue.h"

#include <algorithm>

namespace phial::qt
{

std::shared_ptr<const FontFace> QtTextMetrics::face(const FontSpec& font)
{
    const auto known =
        std::find_if(faces_.begin(), faces_.end(), [&](const auto& face) { return face->traits() == font; });
    if (known != faces_.end()) {
        faces_.splice(faces_.begin(), faces_, known);
        return faces_.front();
    }
    faces_.push_front(std::make_shared<QtFontFace>(font));
    if (faces_.size() > MaximumFaces) {
        faces_.pop_back();
    }
    return faces_.front();
}

bool QtTextMetrics::hasFont(StringView name) const
{
    return fontCatalogue().has(name);
}

} // namespace phial::qt
