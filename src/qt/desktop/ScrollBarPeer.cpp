#include "qt/desktop/ScrollBarPeer.h"

#include <QScrollBar>

#include <algorithm>

namespace phial::qt
{

QWidget* ScrollBarPeer::make(std::shared_ptr<ScrollBar> model, QWidget& holder)
{
    auto* bar = new QScrollBar(&holder);
    new ScrollBarPeer(std::move(model), *bar); // belongs to the bar
    return bar;
}

ScrollBarPeer::ScrollBarPeer(std::shared_ptr<ScrollBar> model, QScrollBar& bar)
    : NativePeer(model, bar), model_(std::move(model)), bar_(bar)
{
    connect(&bar_, &QScrollBar::valueChanged, this, [this](int value) {
        input([&] {
            bar_.isSliderDown() ? model_->inputScroll(turned(value)) : model_->inputValue(turned(value));
        });
    });
    connect(&bar_, &QScrollBar::sliderReleased, this,
            [this] { input([&] { model_->inputValue(turned(bar_.value())); }); });
    watch(bar_);
    begin();
}

// Its own inverse.
std::int32_t ScrollBarPeer::turned(std::int32_t value) const
{
    return model_->Min() > model_->Max() ? model_->Min() + model_->Max() - value : value;
}

void ScrollBarPeer::showStyle()
{
    bar_.setOrientation(model_->Direction() == ScrollDirection::Vertical ? Qt::Vertical : Qt::Horizontal);
}

void ScrollBarPeer::showRange()
{
    bar_.setRange(std::min(model_->Min(), model_->Max()), std::max(model_->Min(), model_->Max()));
    bar_.setSingleStep(model_->SmallChange());
    bar_.setPageStep(model_->LargeChange());
    bar_.setValue(turned(model_->Value()));
}

} // namespace phial::qt
