#include "qt/desktop/PartInterface.h"

#include "qt/base/QtText.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/ModalGate.h"
#include "qt/desktop/WidgetAspects.h"

namespace phial::qt
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
    case PartRole::Table:
        return QAccessible::Table;
    case PartRole::Decoration:
        return QAccessible::Client;
    }
    return QAccessible::Graphic;
}

void addState(QAccessible::State& rState, PartRole role, const PartState& state)
{
    rState.pressed = state.pressed;
    rState.checkable = state.checkable;
    rState.checked = state.checked;
    if (role == PartRole::Cell) {
        rState.selectable = state.checkable;
        rState.selected = state.checked;
    }
    if (role == PartRole::Decoration) {
        rState.invisible = true;
    }
}

QWindow* PartInterface::window() const
{
    return widget_ ? widget_->window()->windowHandle() : nullptr;
}

QRect PartInterface::rect() const
{
    if (!isValid()) {
        return {};
    }
    const QRectF inWidget = zoomed(part().area, widget_->control());
    return {widget_->mapToGlobal(inWidget.topLeft().toPoint()), inWidget.size().toSize()};
}

QAccessible::Role PartInterface::role() const
{
    return isValid() ? toolkitRole(part().role) : QAccessible::NoRole;
}

QAccessible::State PartInterface::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.disabled = !widget_->isEnabled();
    state.invisible = !widget_->isVisible();
    state.focusable = !part().action.empty();
    state.focused = widget_->hasFocus() && widget_->currentPart() == part_;
    addState(state, part().role, part().state);
    return state;
}

QString PartInterface::text(QAccessible::Text text) const
{
    return isValid() && text == QAccessible::Name ? toQt(part().name) : QString();
}

void* PartInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface) {
        return static_cast<QAccessibleActionInterface*>(this);
    }
    if (type == QAccessible::TableCellInterface && isValid() && part().row > 0) {
        return static_cast<QAccessibleTableCellInterface*>(this);
    }
    return nullptr;
}

QStringList PartInterface::actionNames() const
{
    return isValid() && !part().action.empty() ? QStringList{pressAction()} : QStringList();
}

void PartInterface::doAction(const QString& action)
{
    if (isValid() && action == pressAction() && widget_->isEnabled() && !isBlockedByDialog(*widget_)) {
        dispatch([&] { widget_->control().activatePart(part_); });
    }
}

} // namespace phial::qt
