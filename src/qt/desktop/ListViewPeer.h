#pragma once

#include "qt/desktop/NativePeer.h"
#include "visual/ListView.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace phial::qt
{

/// A list with columns as the toolkit's own.
class ListViewPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<ListView> model, QWidget& holder);

private:
    ListViewPeer(std::shared_ptr<ListView> model, QTreeWidget& list);
    void showStyle() override;
    void showItems() override;
    void showSelection() override;
    void showPlace() override { showTitles(); }
    void showColumns();
    void showRow(QTreeWidgetItem& line, const ListRow& row);
    void showTitles();
    void choose(const QTreeWidgetItem* line);

    std::shared_ptr<ListView> model_;
    QTreeWidget& list_;
};

} // namespace phial::qt
