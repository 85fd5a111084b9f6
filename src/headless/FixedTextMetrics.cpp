#include "headless/FixedTextMetrics.h"

namespace phial::headless
{

namespace
{

class FixedFace final : public FontFace
{
public:
    explicit FixedFace(const FontSpec& font) : font_(font) {}

    double width(StringView text) const override
    {
        return static_cast<double>(text.size()) * font_.size * FixedTextMetrics::WidthPerPoint;
    }
    double height() const override { return font_.size * FixedTextMetrics::HeightPerPoint; }
    double ascent() const override { return font_.size; }
    const FontSpec& font() const { return font_; }

private:
    FontSpec font_;
};

} // namespace

std::shared_ptr<const FontFace> FixedTextMetrics::face(const FontSpec& font)
{
    ++asked_;
    for (const auto& known : faces_) {
        if (fontOfFace(*known) == font) {
            return known;
        }
    }
    return faces_.emplace_back(std::make_shared<FixedFace>(font));
}

const FontSpec& fontOfFace(const FontFace& face)
{
    return static_cast<const FixedFace&>(face).font();
}

} // namespace phial::headless
