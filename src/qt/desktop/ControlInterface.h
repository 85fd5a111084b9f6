#pragma once

#include "qt/desktop/AccessibleChanges.h"
#include "qt/desktop/ControlWidget.h"

#include <QAccessibleWidget>

#include <map>
#include <vector>

namespace phial::qt
{

/// A painted control for screen readers, with its parts before the widgets that stand in it. A control that
/// is one text is read as a whole, so what stands in it is not told. A control of cells is a table, one with
/// a text entry a text with a caret, and one that is a button as a whole can be pressed.
class ControlInterface final : public QAccessibleWidget,
                               public QAccessibleTableInterface,
                               public QAccessibleTextInterface
{
public:
    explicit ControlInterface(ControlWidget& widget);
    ~ControlInterface() override { forget(); }

    /// State or parts may have changed: tells what is different. Parts are void where there are more or
    /// fewer.
    void partsChanged();

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text text) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return partCount() + innerCount(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

    // The table. Rows and columns cannot be chosen as such.
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int columnCount() const override;
    int rowCount() const override;
    int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int) const override { return {}; }
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

    // The text. What the control does not tell, where each character stands, is unknown.
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return entry().caret; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override;
    int characterCount() const override { return static_cast<int>(entry().text.size()); }
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    ControlWidget& controlWidget() const { return static_cast<ControlWidget&>(*widget()); }
    UserControl& control() const { return controlWidget().control(); }
    const std::vector<NamedPart>& parts() const;
    TextEntry entry() const { return control().frame().textEntry().value_or(TextEntry()); }
    PartRole partRole() const;
    bool isOneText() const { return partRole() == PartRole::StaticText; }
    bool isPressable() const { return partRole() == PartRole::Button && parts().empty(); }
    int innerCount() const { return isOneText() ? 0 : QAccessibleWidget::childCount(); }
    int partCount() const { return static_cast<int>(parts().size()); }
    void forget();
    void tellState(const PartState& before);
    void tell(const PartChange& change);

    mutable std::map<std::size_t, QAccessible::Id> ids_;
    mutable std::optional<std::vector<NamedPart>>
        told_;            ///< as screen readers know them; none before they ask
    PartState toldState_; ///< of the control itself
};

} // namespace phial::qt
