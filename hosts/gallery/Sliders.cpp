#include "gallery/Sliders.h"

#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "gallery/PropertyText.h"
#include "visual/ScrollBar.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <cmath>

namespace gallery
{

using namespace phial;

namespace
{

constexpr int SliderColumns = 2;
constexpr double SliderGap = 12;
constexpr double SliderHeight = 16;
constexpr double CaptionHeight = 18;

/// One slider at its place: the bar, and the line above it.
class SliderOnStage
{
public:
    SliderOnStage(Stage& stage, std::shared_ptr<UserControl> control, const Slider& slider,
                  const PixelRectangle& place)
        : control_(std::move(control)), slider_(slider),
          caption_(stage.put<ctl_Label>({place.left, place.top, place.width, CaptionHeight})),
          bar_(std::make_shared<ScrollBar>(ScrollDirection::Horizontal))
    {
        stage.put(bar_, {place.left, place.top + CaptionHeight, place.width, SliderHeight});
        caption_->Font(galleryFont(9));
        caption_->ForeColor(colours::Ink);
        bar_->frame().AccessibleName(String(slider.property));
        bar_->Max(stepsTo(slider.greatest));
        bar_->LargeChange(std::max(1, bar_->Max() / 10));
    }

    void follow()
    {
        const Variant value = getMember(*control_, slider_.property);
        caption_->Caption(String(slider_.property) + u" = " + propertyText(slider_.property, value));
        isFollowing_ = true;
        bar_->Value(stepsTo(value.toReal()));
        isFollowing_ = false;
    }
    void set()
    {
        if (!isFollowing_) {
            setMember(*control_, slider_.property, slider_.least + bar_->Value() * slider_.step);
        }
    }
    ScrollBar& bar() { return *bar_; }

private:
    std::int32_t stepsTo(double value) const
    {
        const double held = std::clamp(value, slider_.least, slider_.greatest);
        return static_cast<std::int32_t>(std::lround((held - slider_.least) / slider_.step));
    }

    std::shared_ptr<UserControl> control_;
    Slider slider_;
    std::shared_ptr<ctl_Label> caption_;
    std::shared_ptr<ScrollBar> bar_;
    bool isFollowing_ = false;
};

} // namespace

void putSliders(Stage& stage, const std::shared_ptr<UserControl>& control, std::span<const Slider> sliders,
                const PixelRectangle& area)
{
    const double width = (area.width - SliderGap) / SliderColumns;
    for (std::size_t at = 0; at < sliders.size(); ++at) {
        const auto column = static_cast<double>(at % SliderColumns);
        const std::size_t row = at / SliderColumns;
        const PixelRectangle place{area.left + column * (width + SliderGap),
                                   area.top + static_cast<double>(row) * (CaptionHeight + SliderHeight),
                                   width, CaptionHeight + SliderHeight};
        const auto slider = std::make_shared<SliderOnStage>(stage, control, sliders[at], place);
        stage.keep(control->PropertyChanged.connect([slider](const String&) { slider->follow(); }));
        stage.keep(slider->bar().Change.connect([slider] { slider->set(); }));
        stage.keep(slider->bar().Scroll.connect([slider] { slider->set(); }));
        slider->follow();
    }
}

} // namespace gallery
