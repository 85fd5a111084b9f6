#include "qt/desktop/ControlInterface.h"

#include "qt/base/QtText.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/ModalGate.h"
#include "qt/desktop/PartInterface.h"
#include "qt/desktop/WidgetAspects.h"

#include <algorithm>

namespace phial::qt
{

namespace
{

void update(QAccessibleEvent&& event)
{
    QAccessible::updateAccessibility(&event);
}

/// A press in the control's middle, as by hand.
void pressWhole(UserControl& control)
{
    const auto self = control.shared_from_this();
    const PixelRectangle area = control.frame().pixelRectangle();
    const PointerEvent event{PointerButton::Left, 0, area.width / 2, area.height / 2};
    control.pointerDown(event);
    control.pointerUp(event);
    if (control.frame().peer() && control.frame().isReachable()) { // a handler may have closed the window
        control.click();
    }
}

} // namespace

ControlInterface::ControlInterface(ControlWidget& widget)
    : QAccessibleWidget(&widget), toldState_(widget.control().frame().AccessibleState())
{
}

const std::vector<NamedPart>& ControlInterface::parts() const
{
    const std::vector<NamedPart>& now = controlWidget().parts();
    if (!told_) {
        told_ = now;
    }
    return now;
}

PartRole ControlInterface::partRole() const
{
    const ControlFrame& frame = control().frame();
    const PartRole own = frame.textEntry() ? PartRole::Editable : control().role();
    return frame.AccessibleRole().value_or(own);
}

QAccessible::Role ControlInterface::role() const
{
    return toolkitRole(partRole());
}

QAccessible::State ControlInterface::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    addState(state, partRole(), control().frame().AccessibleState());
    if (const auto& text = control().frame().textEntry()) {
        state.editable = !text->locked;
        state.readOnly = text->locked;
        state.selectableText = true;
    }
    return state;
}

/// The value is the text as it stands, in which the caret has its place. Where it is read otherwise, as a
/// formula is, the description begins with that.
QString ControlInterface::text(QAccessible::Text text) const
{
    const QString own = QAccessibleWidget::text(text);
    if (!control().frame().textEntry()) {
        return own;
    }
    if (text == QAccessible::Description) {
        const String spoken = control().accessibleText();
        if (!spoken.empty() && spoken != entry().text) {
            return own.isEmpty() ? toQt(spoken) : toQt(spoken) + QStringLiteral(", ") + own;
        }
    }
    return text == QAccessible::Value ? toQt(entry().text) : own;
}

void* ControlInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface && partRole() == PartRole::Table) {
        return static_cast<QAccessibleTableInterface*>(this);
    }
    if (type == QAccessible::TextInterface && control().frame().textEntry()) {
        return static_cast<QAccessibleTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* ControlInterface::child(int index) const
{
    if (index < 0 || index >= partCount()) {
        return isOneText() ? nullptr : QAccessibleWidget::child(index - partCount());
    }
    const auto part = static_cast<std::size_t>(index);
    auto known = ids_.find(part);
    if (known == ids_.end()) {
        const QAccessible::Id id =
            QAccessible::registerAccessibleInterface(new PartInterface(controlWidget(), part));
        known = ids_.emplace(part, id).first;
    }
    return QAccessible::accessibleInterface(known->second);
}

int ControlInterface::indexOfChild(const QAccessibleInterface* child) const
{
    for (const auto& [part, id] : ids_) {
        if (QAccessible::accessibleInterface(id) == child) {
            return static_cast<int>(part);
        }
    }
    const int inner = isOneText() ? -1 : QAccessibleWidget::indexOfChild(child);
    return inner < 0 ? inner : inner + partCount();
}

QAccessibleInterface* ControlInterface::childAt(int x, int y) const
{
    for (int part = 0; part < partCount(); ++part) {
        if (QAccessibleInterface* found = child(part); found->rect().contains(x, y)) {
            return found;
        }
    }
    return isOneText() ? nullptr : QAccessibleWidget::childAt(x, y);
}

QStringList ControlInterface::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (isPressable()) {
        names.prepend(pressAction());
    }
    return names;
}

void ControlInterface::doAction(const QString& action)
{
    if (action != pressAction()) {
        QAccessibleWidget::doAction(action);
    } else if (isPressable() && widget()->isEnabled() && !isBlockedByDialog(*widget())) {
        dispatch([&] { pressWhole(control()); });
    }
}

QAccessibleInterface* ControlInterface::cellAt(int row, int column) const
{
    const auto found = std::ranges::find_if(
        parts(), [&](const NamedPart& part) { return part.row == row + 1 && part.column == column + 1; });
    return found == parts().end() ? nullptr : child(static_cast<int>(found - parts().begin()));
}

int ControlInterface::columnCount() const
{
    return parts().empty() ? 0 : std::ranges::max(parts(), {}, &NamedPart::column).column;
}

int ControlInterface::rowCount() const
{
    return parts().empty() ? 0 : std::ranges::max(parts(), {}, &NamedPart::row).row;
}

QList<QAccessibleInterface*> ControlInterface::selectedCells() const
{
    QList<QAccessibleInterface*> selected;
    for (int part = 0; part < partCount(); ++part) {
        const NamedPart& cell = parts()[static_cast<std::size_t>(part)];
        if (cell.row > 0 && cell.state.checked) {
            selected.push_back(child(part));
        }
    }
    return selected;
}

QString ControlInterface::text(int start, int end) const
{
    return toQt(entry().text).mid(start, end - start);
}

QRect ControlInterface::characterRect(int offset) const
{
    if (offset != entry().caret) {
        return {};
    }
    const QRectF caret = zoomed(entry().caretArea, control());
    return {widget()->mapToGlobal(caret.topLeft().toPoint()), caret.size().toSize()};
}

QString ControlInterface::attributes(int /*offset*/, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void ControlInterface::forget()
{
    for (const auto& [part, id] : ids_) {
        QAccessible::deleteAccessibleInterface(id);
    }
    ids_.clear();
}

void ControlInterface::partsChanged()
{
    tellState(std::exchange(toldState_, control().frame().AccessibleState()));
    if (!told_) {
        return;
    }
    const std::vector<NamedPart>& now = controlWidget().parts();
    const std::vector<NamedPart> before = std::exchange(*told_, now);
    if (before.size() != now.size()) {
        forget();
        update(QAccessibleEvent(widget(), QAccessible::ObjectReorder));
        return;
    }
    for (const PartChange& change : changesOf(before, now)) {
        tell(change);
    }
}

void ControlInterface::tell(const PartChange& change)
{
    const auto say = [&](QAccessibleEvent&& event) {
        event.setChild(static_cast<int>(change.part));
        update(std::move(event));
    };
    if (change.type == QAccessible::StateChanged) { // which has a class of its own
        say(QAccessibleStateChangeEvent(widget(), change.state));
    } else {
        say(QAccessibleEvent(widget(), change.type));
    }
}

void ControlInterface::tellState(const PartState& before)
{
    if (before != toldState_) {
        update(QAccessibleStateChangeEvent(widget(), differenceOf(before, toldState_)));
    }
}

} // namespace phial::qt
