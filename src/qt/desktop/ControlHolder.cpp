#include "qt/desktop/ControlHolder.h"

#include "qt/desktop/ControlWidget.h"

#include <QVBoxLayout>

#include <utility>

namespace phial::qt
{

ControlHolder::ControlHolder(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    connect(this, &QObject::objectNameChanged, this, [this](const QString& name) {
        if (widget_) {
            widget_->setObjectName(name);
        }
    });
}

void ControlHolder::control(std::shared_ptr<UserControl> value)
{
    auto* fresh = value ? new ControlWidget(std::move(value)) : nullptr;
    delete std::exchange(widget_, fresh);
    setFocusProxy(widget_);
    if (widget_) {
        widget_->setObjectName(objectName());
        layout()->addWidget(widget_);
    }
}

} // namespace phial::qt
