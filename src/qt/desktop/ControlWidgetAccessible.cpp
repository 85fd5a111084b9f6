#include "qt/desktop/ControlWidgetAccessible.h"

#include "qt/base/QtText.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/WidgetAspects.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <map>

namespace phial::qt
{

namespace
{

QAccessible::Role toolkitRole(PartRole role)
{
    switch (role) {
    case PartRole::StaticText:
        return QAccessible::StaticText;
    case PartRole::Graphic:
        return QAccessible::Graphic;
    case PartRole::Button:
        return QAccessible::PushButton;
    case PartRole::Cell:
        return QAccessible::Cell;
    case PartRole::Grouping:
        return QAccessible::Grouping;
    case PartRole::Editable:
        return QAccessible::EditableText;
    }
    return QAccessible::Graphic;
}

/// One part of a control; void as soon as the control has fewer parts.
class PartInterface final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    PartInterface(ControlWidget& widget, std::size_t part) : widget_(&widget), part_(part) {}

    bool isValid() const override { return widget_ && part_ < widget_->control().parts().size(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return widget_ ? widget_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(widget_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QRect rect() const override
    {
        if (!isValid()) {
            return {};
        }
        const PixelRectangle area = part().area;
        const double zoom = zoomOf(widget_->control());
        const QRectF inWidget(area.left * zoom, area.top * zoom, area.width * zoom, area.height * zoom);
        return {widget_->mapToGlobal(inWidget.topLeft().toPoint()), inWidget.size().toSize()};
    }

    QAccessible::Role role() const override
    {
        return isValid() ? toolkitRole(part().role) : QAccessible::NoRole;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.disabled = !widget_->isEnabled();
        state.invisible = !widget_->isVisible();
        state.checked = part().checked;
        state.focusable = !part().action.empty();
        state.focused = widget_->hasFocus() && widget_->currentPart() == part_;
        return state;
    }

    QString text(QAccessible::Text text) const override
    {
        return isValid() && text == QAccessible::Name ? toQt(part().name) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override
    {
        return isValid() && !part().action.empty() ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString& action) override
    {
        if (isValid() && action == pressAction()) {
            dispatch([&] { widget_->control().activatePart(part_); });
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    NamedPart part() const { return widget_->control().parts()[part_]; }

    QPointer<ControlWidget> widget_;
    std::size_t part_;
};

/// The control itself, with its parts before the widgets that stand in it. A control that is one text is read
/// as a whole, so what stands in it is not told.
class ControlInterface final : public QAccessibleWidget
{
public:
    explicit ControlInterface(ControlWidget& widget)
        : QAccessibleWidget(&widget, toolkitRole(widget.control().role()))
    {
    }
    ~ControlInterface() override { forget(); }

    void forget()
    {
        for (const auto& [part, id] : parts_) {
            QAccessible::deleteAccessibleInterface(id);
        }
        parts_.clear();
    }

    int childCount() const override { return partCount() + innerCount(); }

    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= partCount()) {
            return isOneText() ? nullptr : QAccessibleWidget::child(index - partCount());
        }
        const auto part = static_cast<std::size_t>(index);
        auto known = parts_.find(part);
        if (known == parts_.end()) {
            const QAccessible::Id id =
                QAccessible::registerAccessibleInterface(new PartInterface(controlWidget(), part));
            known = parts_.emplace(part, id).first;
        }
        return QAccessible::accessibleInterface(known->second);
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (const auto& [part, id] : parts_) {
            if (QAccessible::accessibleInterface(id) == child) {
                return static_cast<int>(part);
            }
        }
        const int inner = isOneText() ? -1 : QAccessibleWidget::indexOfChild(child);
        return inner < 0 ? inner : inner + partCount();
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        for (int part = 0; part < partCount(); ++part) {
            if (QAccessibleInterface* found = child(part); found->rect().contains(x, y)) {
                return found;
            }
        }
        return isOneText() ? nullptr : QAccessibleWidget::childAt(x, y);
    }

private:
    ControlWidget& controlWidget() const { return static_cast<ControlWidget&>(*widget()); }
    bool isOneText() const { return controlWidget().control().role() == PartRole::StaticText; }
    int innerCount() const { return isOneText() ? 0 : QAccessibleWidget::childCount(); }
    int partCount() const { return static_cast<int>(controlWidget().control().parts().size()); }

    mutable std::map<std::size_t, QAccessible::Id> parts_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* widget = dynamic_cast<ControlWidget*>(object);
    return widget ? new ControlInterface(*widget) : nullptr;
}

} // namespace

void installPartAccessibility()
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    static_cast<void>(installed);
}

void forgetParts(ControlWidget& widget)
{
    if (!QAccessible::isActive()) {
        return;
    }
    if (auto* known = dynamic_cast<ControlInterface*>(QAccessible::queryAccessibleInterface(&widget))) {
        known->forget();
        QAccessibleEvent event(&widget, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
}

void announcePart(ControlWidget& widget, std::size_t part)
{
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(static_cast<int>(part));
    QAccessible::updateAccessibility(&event);
}

} // namespace phial::qt
