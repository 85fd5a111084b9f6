#pragma once

#include "qt/desktop/ControlWidget.h"

#include <QAccessible>
#include <QPointer>

namespace phial::qt
{

QAccessible::Role toolkitRole(PartRole role);
/// Adds how a part stands to what is known of it.
void addState(QAccessible::State& rState, PartRole role, const PartState& state);

/// One part of a painted control for screen readers; void as soon as the control has fewer parts.
class PartInterface final : public QAccessibleInterface,
                            public QAccessibleActionInterface,
                            public QAccessibleTableCellInterface
{
public:
    PartInterface(ControlWidget& widget, std::size_t part) : widget_(&widget), part_(part) {}

    bool isValid() const override { return widget_ && part_ < widget_->parts().size(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(widget_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString&) override {}
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    bool isSelected() const override { return isValid() && part().state.checked; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return isValid() ? part().column - 1 : -1; }
    int rowIndex() const override { return isValid() ? part().row - 1 : -1; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    const NamedPart& part() const { return widget_->parts()[part_]; }

    QPointer<ControlWidget> widget_;
    std::size_t part_;
};

} // namespace phial::qt
