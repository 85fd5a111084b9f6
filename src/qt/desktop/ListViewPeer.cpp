#include "qt/desktop/ListViewPeer.h"

#include "qt/base/QtText.h"
#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/WidgetAspects.h"

#include <QHeaderView>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>

namespace phial::qt
{

namespace
{

constexpr double CellPadding = 12; // left and right of a text together, as the style has it

} // namespace

QWidget* ListViewPeer::make(std::shared_ptr<ListView> model, QWidget& holder)
{
    auto* list = new QTreeWidget(&holder);
    new ListViewPeer(std::move(model), *list); // belongs to the list
    return list;
}

ListViewPeer::ListViewPeer(std::shared_ptr<ListView> model, QTreeWidget& list)
    : NativePeer(model, list), model_(std::move(model)), list_(list)
{
    list_.setRootIsDecorated(false);
    list_.setUniformRowHeights(true);
    list_.setAllColumnsShowFocus(true);
    list_.header()->setSectionsMovable(false);
    list_.header()->setSectionsClickable(true);
    connect(&list_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* line) { choose(line); });
    connect(&list_, &QTreeWidget::itemDoubleClicked, this,
            [this] { input([this] { model_->doubleClick(); }); });
    connect(list_.header(), &QHeaderView::sectionClicked, this,
            [this](int section) { input([&] { model_->inputColumn(section + 1); }); });
    connect(list_.header(), &QHeaderView::sectionResized, this, [this] { showTitles(); });
    watch(list_);
    begin();
}

void ListViewPeer::choose(const QTreeWidgetItem* line)
{
    const int row = list_.indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(line));
    if (row >= 0) {
        input([&] { model_->inputChoice(row + 1); });
    }
}

void ListViewPeer::showStyle()
{
    list_.setFont(fontCatalogue().font(zoomed(model_->Font()->traits(), *model_)));
    showColours(list_, toQColor(inkOn(model_->BackColor(), model_->ForeColor())),
                toQColor(model_->BackColor()));
    showTitles();
}

// Lines that stay are left alone, so that the list does not lose its place.
void ListViewPeer::showItems()
{
    showColumns();
    while (list_.topLevelItemCount() > model_->ITEMS()->Count()) {
        delete list_.takeTopLevelItem(list_.topLevelItemCount() - 1);
    }
    while (list_.topLevelItemCount() < model_->ITEMS()->Count()) {
        list_.addTopLevelItem(new QTreeWidgetItem);
    }
    for (int at = 0; at < list_.topLevelItemCount(); ++at) {
        showRow(*list_.topLevelItem(at), *model_->ITEMS()->Item(at + 1));
    }
    showTitles();
    showSelection();
}

void ListViewPeer::showColumns()
{
    const auto& columns = *model_->COLUMNHEADERS();
    list_.setColumnCount(columns.Count());
    list_.header()->setStretchLastSection(false);
    for (int at = 0; at < columns.Count(); ++at) {
        const ListColumn& column = *columns.Item(at + 1);
        list_.headerItem()->setText(at, toQt(column.Text()));
        list_.headerItem()->setToolTip(at, toQt(column.ToolTipText()));
        list_.headerItem()->setTextAlignment(at, lineAlignment(column.Alignment()));
        const bool takesTheRest = column.Width() == 0;
        list_.header()->setSectionResizeMode(at,
                                             takesTheRest ? QHeaderView::Stretch : QHeaderView::Interactive);
        if (!takesTheRest) {
            list_.header()->resizeSection(at,
                                          static_cast<int>(std::lround(column.Width() * zoomOf(*model_))));
        }
    }
}

void ListViewPeer::showRow(QTreeWidgetItem& line, const ListRow& row)
{
    const auto& columns = *model_->COLUMNHEADERS();
    const bool isOwn = !(row.ForeColor() == SystemColour::WindowText);
    const QBrush ink = isOwn ? QBrush(toQColor(row.ForeColor())) : QBrush();
    for (int at = 0; at < columns.Count(); ++at) {
        line.setForeground(at, ink);
        if (at > 0) {
            line.setText(at, toQt(row.Cell(at + 1)));
        }
        if (const String spoken = row.Spoken(at + 1);
            !spoken.empty() || line.data(at, Qt::AccessibleTextRole).isValid()) {
            line.setData(at, Qt::AccessibleTextRole, toQt(spoken));
        }
        line.setToolTip(at, toQt(row.ToolTipText()));
        line.setTextAlignment(at, lineAlignment(columns.Item(at + 1)->Alignment()));
    }
}

/// The short title stands where the first column has no room for the whole one.
void ListViewPeer::showTitles()
{
    const int lines = std::min(list_.topLevelItemCount(), static_cast<int>(model_->ITEMS()->Count()));
    const int room =
        list_.columnCount() > 0 ? list_.columnWidth(0) - static_cast<int>(CellPadding * zoomOf(*model_)) : 0;
    for (int at = 0; at < lines; ++at) {
        const ListRow& row = *model_->ITEMS()->Item(at + 1);
        const QString title = toQt(row.Title());
        const bool fits = row.TitleShort().empty() || list_.fontMetrics().horizontalAdvance(title) <= room;
        list_.topLevelItem(at)->setText(0, fits ? title : toQt(row.TitleShort()));
    }
}

void ListViewPeer::showSelection()
{
    const std::int32_t chosen = model_->ListIndex();
    list_.setCurrentItem(chosen == 0 ? nullptr : list_.topLevelItem(chosen - 1));
}

} // namespace phial::qt
