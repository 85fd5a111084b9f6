#include "qt/desktop/ContainerWidgets.h"

#include "qt/desktop/ControlFactory.h"

#include <algorithm>

namespace phial::qt
{

ContainerWidgets::ContainerWidgets(Container& container, QWidget& holder)
    : container_(container), holder_(holder)
{
    synchronise();
}

ContainerWidgets::~ContainerWidgets() = default; // the holder ends its widgets

void ContainerWidgets::synchronise()
{
    endMissing();
    makeNew();
    putInOrder();
}

// A widget may be in the middle of the very event that took its control away, so it goes when that is over.
void ContainerWidgets::endMissing()
{
    std::erase_if(widgets_, [this](const auto& entry) {
        const auto& controls = container_.controls();
        const bool stays = std::any_of(controls.begin(), controls.end(), [&](const ControlPtr& control) {
            return control.get() == entry.first;
        });
        if (!stays && entry.second) {
            entry.second->hide();
            entry.second->deleteLater();
        }
        return !stays;
    });
}

void ContainerWidgets::makeNew()
{
    for (const ControlPtr& control : container_.controls()) {
        if (!widgets_.contains(control.get())) {
            widgets_[control.get()] = makeControlWidget(control, holder_);
        }
    }
}

void ContainerWidgets::putInOrder()
{
    for (const ControlPtr& control : container_.controls()) {
        if (QWidget* widget = widgets_[control.get()]) {
            widget->raise();
        }
    }
}

} // namespace phial::qt
